#include "apps/screenshots/designsession.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <exception>

#include "tests/ui/userevents.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/dialogs/entrytable.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>
#include <tolvi/ui/panels/stdspnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Somebody at the editor and at the dialogs that it opens.
class TDesigner {
 public:
  TDesigner(T_dlgModelEdit& editor, const TDesignStation& station)
      : FEditor(editor), FStation(station), FWindow(&editor) {}

 protected:
  void Tell(const char* name) {
    user::Settle();
    if (FStation) FStation(name, *FWindow);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { user::Press(*FWindow, key, modifiers); }
  void Type(const QString& text) {
    QWindow* window = user::Popup() != nullptr ? user::Popup()->windowHandle() : FWindow->windowHandle();
    for (const QChar letter : text) QTest::keyClick(window, letter.toLatin1());
    user::Settle();
  }
  void Click(QWidget& widget) {
    // Whoever does not see it scrolls.
    for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
      if (auto* area = qobject_cast<QScrollArea*>(above)) area->ensureWidgetVisible(&widget);
    }
    user::Settle();
    // A box that is wider than its caption is hit on that.
    const int middle = std::min(widget.width(), widget.sizeHint().width()) / 2;
    user::Click(widget, {widget.isRightToLeft() ? widget.width() - middle : middle, widget.height() / 2});
    user::Settle();
  }

  // What is in the window, by what its user sees or hears

  /// The accessible name, or the label.
  QString NameOf(const QWidget& widget) const {
    if (!widget.accessibleName().isEmpty()) return widget.accessibleName();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text().remove(u'&');
    for (const auto* label : FWindow->findChildren<QLabel*>()) {
      if (label->buddy() == &widget) return label->text().remove(u'&').remove(u':');
    }
    return {};
  }
  template <typename T>
  T& Named(const QString& name) const {
    for (T* widget : FWindow->findChildren<T*>()) {
      if (widget->isVisible() && NameOf(*widget) == name) return *widget;
    }
    throw EException("nothing is called " + FromQString(name));
  }
  QAbstractButton& Button(const QString& caption) const {
    for (auto* button : FWindow->findChildren<QAbstractButton*>()) {
      if (button->isVisible() && button->text().remove(u'&') == caption) return *button;
    }
    throw EException("no button " + FromQString(caption));
  }
  void GoToPage(const QString& caption) { GoToTab(caption, *FEditor.findChild<QTabWidget*>()); }
  /// A tab inside a page.
  void GoToTab(const QString& caption) { GoToTab(caption, *FWindow->findChildren<QTabWidget*>().constLast()); }

  /// Clicks the row that has the text in its first column.
  void ClickRow(QAbstractItemView& view, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QModelIndexList found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                                      Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    if (found.isEmpty()) throw EException("no row " + FromQString(text));
    view.scrollTo(found[0], QAbstractItemView::PositionAtCenter);
    user::Settle();
    const QPoint at = view.viewport()->mapTo(FWindow, view.visualRect(found[0]).center());
    QTest::mouseClick(FWindow->windowHandle(), Qt::LeftButton, modifiers, at);
    user::Settle();
  }
  /// Types into a line, in place of what it holds, and leaves it by Enter.
  void Enter(const QString& name, const QString& text) {
    Click(Named<QLineEdit>(name));
    Replace(text);
  }
  /// The same with the line that has the focus.
  void Replace(const QString& text) {
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(text);
    Press(Qt::Key_Return);
  }
  void Choose(const QString& name, const QString& item) {
    auto& box = Named<QComboBox>(name);
    box.setFocus(Qt::TabFocusReason);
    Press(Qt::Key_F4);
    if (user::Popup() == nullptr) throw EException("no list has opened for " + FromQString(name));
    Type(item);
    Press(Qt::Key_Return);
    if (!box.currentText().startsWith(item)) throw EException("there is no " + FromQString(item));
  }

  /// Drags what is between the two parts of a splitter, to a place counted from where lines begin.
  void DragHandle(QSplitter& splitter, double place) {
    if (splitter.isRightToLeft()) place = 1 - place;
    QWidget& handle = *splitter.handle(1);
    const QPoint from = handle.mapTo(FWindow, handle.rect().center());
    const QPoint to = splitter.mapTo(FWindow, QPoint(static_cast<int>(place * splitter.width()), handle.height() / 2));
    QTest::mousePress(FWindow->windowHandle(), Qt::LeftButton, {}, from);
    QTest::mouseMove(FWindow->windowHandle(), to);
    QTest::mouseRelease(FWindow->windowHandle(), Qt::LeftButton, {}, to);
    user::Settle();
  }

  /// Does the steps in the dialog that `open` opens, which is to end with them.
  template <typename TSteps>
  void InDialog(const std::function<void()>& open, TSteps steps) {
    QWidget* const below = FWindow;
    std::exception_ptr fault;
    bool opened = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
      const QPointer<QWidget> dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || dialog == below || !dialog->isActiveWindow()) return;
      timer.stop();
      opened = true;
      FWindow = dialog;
      try {
        user::Settle();
        steps();
        if (dialog != nullptr && dialog->isVisible())
          throw EException("still open: " + FromQString(dialog->windowTitle()));
      } catch (...) {
        fault = std::current_exception();
        if (dialog != nullptr) delete dialog;
      }
    });
    timer.start(1);
    open();
    if (!opened && !QTest::qWaitFor([&] { return opened; })) throw EException("no dialog has opened");
    FWindow = below;
    if (fault) std::rethrow_exception(fault);
    // As a window system does.
    QApplication::setActiveWindow(FWindow);
    if (!QTest::qWaitForWindowActive(FWindow)) throw EException("the window below the dialog is not active");
  }

  T_dlgModelEdit& FEditor;

 private:
  static void GoToTab(const QString& caption, const QTabWidget& tabs) {
    QTabBar& bar = *tabs.tabBar();
    for (int tab = 0; tab < bar.count(); ++tab) {
      if (!bar.tabText(tab).remove(u'&').startsWith(caption)) continue;
      user::Click(bar, bar.tabRect(tab).center());
      return user::Settle();
    }
    throw EException("no page " + FromQString(caption));
  }

  const TDesignStation& FStation;
  QWidget* FWindow;
};

class TShopDesigner final : public TDesigner {
 public:
  using TDesigner::TDesigner;

  TDesignResult Play(const QString& file) {
    const QFontMetrics letters = FEditor.fontMetrics();
    FEditor.resize(
        QSize(170 * letters.averageCharWidth(), 46 * letters.height()).boundedTo(FEditor.screen()->availableSize()));
    Tell("start");
    Press(Qt::Key_K, Qt::ControlModifier);
    InDialog([this] { Press(Qt::Key_D, Qt::ControlModifier); }, [this] { Fill(); });
    EditTables();
    EditFields();
    EditOperators();
    EditConditions();
    InDialog([this] { Press(Qt::Key_Comma, Qt::ControlModifier); }, [this] { EditSettings(); });
    Arrange();
    Check();
    const TDesignResult result = Try();
    InDialog([this] { Press(Qt::Key_S, Qt::ControlModifier); }, [this, &file] { SaveAs(file); });
    Press(Qt::Key_Return, Qt::ControlModifier);
    if (FEditor.isVisible()) throw EException("the editor is still open");
    return result;
  }

 private:
  void Fill() {
    // All but the goods that come back: these are added later.
    auto& tables = Named<QTreeView>(u"Tables of the database"_s);
    ClickRow(tables, u"Returns"_s);
    Press(Qt::Key_Space);
    Click(Button(u"Options"_s));
    Tell("fill-tables");
    Press(Qt::Key_Return);
    auto& fields = Named<QTreeView>(u"Tables and fields that are added"_s);
    for (const auto& [column, name] :
         {std::pair(u"Company"_s, u"Customer"_s), std::pair(u"Segment"_s, u"Kind of customer"_s)}) {
      ClickRow(fields, column);
      Press(Qt::Key_F2);
      Replace(name);
    }
    Tell("fill-fields");
    GoToTab(u"Links"_s);
    Tell("fill-links");
    Press(Qt::Key_Return);
    Tell("fill-preview");
    Press(Qt::Key_Return);
  }

  void EditTables() {
    auto& tables = Named<QTreeView>(u"Tables"_s);
    InDialog([this] { Click(Button(u"Add from database"_s)); },
             [this] {
               Type(u"ret"_s);
               Press(Qt::Key_Down);
               Press(Qt::Key_Space);
               Tell("add-tables");
               Press(Qt::Key_Return, Qt::ControlModifier);
             });
    ClickRow(tables, u"Order_Lines"_s);
    Enter(u"Display name"_s, u"Order items"_s);
    ClickRow(tables, u"Orders"_s);
    Tell("tables");
    // Orders that have not been handed over have no shipper.
    auto& links = Named<QTreeView>(u"Links of the table"_s);
    ClickRow(links, u"Shippers"_s);
    InDialog([this] { Press(Qt::Key_F2); },
             [this] {
               Click(Button(u"All rows of Orders"_s));
               Tell("link");
               Press(Qt::Key_Return, Qt::ControlModifier);
             });
  }

  void EditFields() {
    GoToPage(u"Entities"_s);
    auto& fields = Named<QTreeView>(u"Fields in groups"_s);
    // Numbers that nobody but the database cares for.
    Click(Named<QLineEdit>(u"Find fields or groups"_s));
    Type(u"ID"_s);
    ClickRow(fields, u"Account manager ID"_s);
    for (const QString& field : {u"Billing address ID"_s, u"Shipping address ID"_s}) {
      ClickRow(fields, field, Qt::ControlModifier);
    }
    for (const QString& use : {u"Offered in conditions"_s, u"Offered as result column"_s}) Click(Button(use));
    Tell("found");
    Click(Named<QLineEdit>(u"Find fields or groups"_s));
    Press(Qt::Key_Escape);
    // The button that clears the line fades.
    QTest::qWait(400);
    ClickRow(fields, u"Kind of customer"_s);
    Tell("fields");
    GoToTab(u"Value Editor"_s);
    Choose(u"Value editor"_s, u"Fixed list"_s);
    auto& list = Named<TEntryTable>(u"List of values"_s);
    list.setFocus();
    for (const auto& [text, value] : {std::pair(u"Retail"_s, u"R"_s), std::pair(u"Wholesale"_s, u"W"_s),
                                      std::pair(u"Trade"_s, u"T"_s), std::pair(u"Public sector"_s, u"P"_s)}) {
      const int row = list.rowCount() - 1;
      for (const auto& [column, typed] : {std::pair(0, text), std::pair(1, value)}) {
        list.setCurrentCell(row, column);
        Press(Qt::Key_F2);
        Type(typed);
        Press(Qt::Key_Return);
      }
    }
    Tell("value-editor");

    ClickRow(fields, u"Order lines"_s);
    Press(Qt::Key_E, Qt::ControlModifier);
    Replace(u"Turnover"_s);
    Enter(u"Expression"_s, u"sum(Order_Lines.Quantity * Order_Lines.UnitPrice)"_s);
    Choose(u"Type"_s, u"ftCurrency"_s);
    Tell("expression");
    GoToTab(u"Operators"_s);
    Tell("field-operators");
    fields.setFocus();
    Press(Qt::Key_N, Qt::ControlModifier);
    Replace(u"Sales"_s);
    ClickRow(fields, u"Turnover"_s);
    Choose(u"Group"_s, u"Sales"_s);
  }

  void EditOperators() {
    GoToPage(u"Operators"_s);
    Click(Button(u"New operator"_s));
    Replace(u"InYear"_s);
    Enter(u"Display name"_s, u"falls in the year"_s);
    Enter(u"SQL template"_s, u"cast(strftime('%Y', @f) as integer) = @1"_s);
    Choose(u"Type of values"_s, u"ftInteger"_s);
    for (const auto& [types, wanted] : {std::pair(u"Text"_s, Qt::Unchecked), std::pair(u"Number"_s, Qt::Unchecked),
                                        std::pair(u"Date"_s, Qt::Checked)}) {
      auto& box = Named<QCheckBox>(types);
      for (int click = 0; click < 2 && box.checkState() != wanted; ++click) Click(box);
    }
    for (const QString& type : {u"ftBoolean"_s, u"ftTime"_s}) {
      ClickRow(Named<QListWidget>(u"Types of fields"_s), type);
      Press(Qt::Key_Space);
    }
    Click(Button(u"Offer for all of them"_s));
    Click(Named<QLineEdit>(u"Name"_s));
    Tell("operators");
  }

  void EditConditions() {
    GoToPage(u"Conditions"_s);
    Click(Button(u"New condition"_s));
    Replace(u"The order was shipped more than @ days late"_s);
    Enter(u"SQL"_s, u"julianday(Orders.ShippedAt) - julianday(Orders.RequiredDate) > @1"_s);
    Choose(u"Data type"_s, u"ftInteger"_s);
    Tell("conditions");
  }

  void EditSettings() {
    Choose(u"Preset"_s, u"sqlite"_s);
    Tell("settings");
    Press(Qt::Key_Return);
  }

  void Arrange() {
    GoToPage(u"Diagram"_s);
    auto& panel = *FEditor.findChild<TJStructDesignPanel*>();
    panel.setFocus(Qt::TabFocusReason);
    Press(Qt::Key_B, Qt::ControlModifier);
    if (!QTest::qWaitFor([&] { return FEditor.Editor().UndoName().find("rrange") != std::string::npos; }, 2000))
      throw EException("nothing is arranged: " + FEditor.Editor().UndoName());
    QTest::qWait(400);
    Press(Qt::Key_9, Qt::ControlModifier);
    Tell("diagram");
  }

  void Check() {
    GoToPage(u"Tables"_s);
    Press(Qt::Key_F7);
    Tell("check");
    for (const auto* label : FEditor.findChildren<QLabel*>()) {
      if (label->isVisible() && label->text().startsWith(u"Errors: "_s) && !label->text().startsWith(u"Errors: 0"_s))
        throw EException("the model has errors");
    }
    Press(Qt::Key_F7);
  }

  /// What the customers of a kind bought in a year.
  TDesignResult Try() {
    Press(Qt::Key_F9);
    DragHandle(*FEditor.findChild<QSplitter*>(u"Columns"_s), 0.55);
    auto& columns = *FEditor.findChild<TJResultFieldsPanel*>();
    auto& view = *FEditor.findChild<TJQueryPanelView*>();
    TJQueryPanel& panel = *view.GetQueryPanel();
    const auto pick = [this](QWidget& label, const QString& text) {
      Click(label);
      if (user::Popup() == nullptr) throw EException("nothing has opened for " + FromQString(text));
      user::TypeOver(text);
      Press(Qt::Key_Return);
    };
    for (const QString& field : {u"Customer"_s, u"Turnover"_s}) {
      Click(columns.GetAddRowLabel());
      pick(*columns.GetLastRow()->GetFieldLabel(), field);
    }
    const auto part = [&](int row, const char* name) -> QWidget& {
      TQPRow* widget = view.RowWidget(*panel.RowByNum(row));
      auto* found = widget != nullptr ? widget->findChild<QWidget*>(QLatin1String(name)) : nullptr;
      if (found == nullptr) throw EException(std::string("the condition has no ") + name);
      return *found;
    };
    const QString conditions[][3] = {{u"Kind of customer"_s, u"is equal to"_s, u"Wholesale"_s},
                                     {u"Order date"_s, u"falls in the year"_s, u"2025"_s}};
    int row = 0;
    for (const auto& [field, op, value] : conditions) {
      Click(view.GetAddRowLabel());
      ++row;
      pick(part(row, "field"), field);
      pick(part(row, "operator"), op);
      pick(part(row, "value1"), value);
    }
    Tell("try");
    return {panel.SaveToText(), FromQString(Named<QPlainTextEdit>(u"Statement"_s).toPlainText())};
  }

  void SaveAs(const QString& file) {
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(file);
    Press(Qt::Key_Return);
  }
};

}  // namespace

TDesignResult PlayDesign(TDesignHost& host, const QString& file, const TDesignStation& station) {
  return TShopDesigner(host.Open(), station).Play(file);
}

}  // namespace tolvi
