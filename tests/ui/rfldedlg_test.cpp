#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QWheelEvent>
#include <memory>

#include <gtest/gtest.h>

#include "uitest.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/panel/rfldeditor.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/dialogs/rfldedlg.h>
#include <tolvi/ui/panels/rfldpnl.h>

namespace tolvi {
namespace {

using namespace Qt::Literals::StringLiterals;

/// The dialog on the model of the shop.
class ResultFieldsDialog : public TUiTest {
 protected:
  void SetUp() override {
    TUiTest::SetUp();
    Model.LoadFromFile(TOLVI_SOURCE_DIR "/samples/shop/shop.model");
    Query.SetDBStruct(&Model);
  }

  void Open(const TRFHelpEvent& onHelp = {}) {
    Dialog = std::make_unique<T_dlgRFieldEdit>(Query.RFields(), TTitles(), onHelp, &window);
    Dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog.get()));
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { user::Press(*Dialog, key, modifiers); }
  void Repeat(Qt::Key key, int times) {
    while (times-- > 0) Press(key);
  }

  template <typename T>
  T& Only() {
    return *Dialog->findChild<T*>();
  }
  /// The control of that name, as a screen reader tells it.
  template <typename T = QWidget>
  T& Named(const QString& name) {
    for (auto* widget : Dialog->findChildren<T*>()) {
      if (widget->isVisible() && (widget->accessibleName() == name || widget->property("text").toString() == name)) {
        return *widget;
      }
    }
    throw std::runtime_error("nothing is called " + name.toStdString());
  }
  QTreeView& Tree() { return Only<QTreeView>(); }
  QListWidget& List() { return Only<QListWidget>(); }
  QTableWidget& Table() { return Only<QTableWidget>(); }
  QLineEdit& Expression() { return Named<QLineEdit>(u"Expression"_s); }
  QLineEdit& Caption() { return Named<QLineEdit>(u"Field Name"_s); }

  QString Told() {
    for (const QLabel* label : Dialog->findChildren<QLabel*>())
      if (label->wordWrap()) return label->text();
    return {};
  }
  /// "Caption: expression" of all columns.
  std::string Columns() const {
    std::string text;
    for (const TResultField& column : Dialog->GetFields()) {
      if (!text.empty()) text += "; ";
      text += column.GetCaption() + ": " + column.GetExpression();
    }
    return text;
  }
  QStringList Sorted() {
    QStringList rows;
    for (int row = 0; row < Table().rowCount(); ++row) {
      rows << Table().item(row, 0)->text() + u' ' + static_cast<QComboBox*>(Table().cellWidget(row, 2))->currentText();
    }
    return rows;
  }

  /// Types what is sought, which selects the first field found.
  void Find(const QString& text) {
    Named<QLineEdit>(u"Find a field"_s).setFocus();
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(text);
  }
  void TabTo(const QWidget& wanted) {
    for (int i = 0; i < 40 && !wanted.hasFocus(); ++i) Press(Qt::Key_Tab);
    EXPECT_TRUE(wanted.hasFocus());
  }
  /// Opens the group with a click on its arrow if need be, and clicks on the field.
  QPoint PlaceOf(const QString& group, const QString& field) {
    const QAbstractItemModel& model = *Tree().model();
    for (int row = 0; row < model.rowCount(); ++row) {
      const QModelIndex index = model.index(row, 0);
      if (index.data() != group) continue;
      if (!Tree().isExpanded(index)) {
        Tree().scrollTo(index);
        const QRect place = Tree().visualRect(index);
        const int beside = Tree().indentation() / 2;
        const int x = Tree().isRightToLeft() ? place.right() + beside : place.left() - beside;
        Click(*Tree().viewport(), QPoint(x, place.center().y()));
      }
      EXPECT_TRUE(Tree().isExpanded(index));
      for (int i = 0; i < model.rowCount(index); ++i) {
        const QModelIndex child = model.index(i, 0, index);
        if (child.data() != field) continue;
        Tree().scrollTo(child);
        return Tree().visualRect(child).center();
      }
    }
    throw std::runtime_error("no field " + field.toStdString());
  }
  void Drag(QAbstractItemView& view, int from, int to, bool release = true) {
    const auto place = [&view](int row, bool below) {
      const QRect rect = view.visualRect(view.model()->index(row, 0));
      return view.viewport()->mapTo(view.window(),
                                    QPoint(rect.center().x(), below ? rect.bottom() : rect.center().y()));
    };
    QWindow* handle = Dialog->windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, {}, place(from, false));
    QTest::mouseMove(handle, place(from, false) + QPoint(0, QApplication::startDragDistance() + 1));
    QTest::mouseMove(handle, place(to, true));
    user::Settle();
    if (release) QTest::mouseRelease(handle, Qt::LeftButton, {}, place(to, true));
    user::Settle();
  }
  void CheckTurnover() {
    Query.RFields().Assign(Dialog->GetFields());
    EXPECT_EQ(
        Query.GetQueryText(),
        "SELECT Customers.Company, sum(OrderLines.Quantity * OrderLines.UnitPrice) as Quantity_Unit_price__Sum\r\n"
        "FROM \r\n     Customers INNER JOIN  Orders ON Orders.CustomerID = Customers.CustomerID\r\n"
        "     INNER JOIN  \"Order Lines\" OrderLines ON OrderLines.OrderID = Orders.OrderID\r\n"
        "GROUP BY Customers.Company\r\nORDER BY 2 DESC");
  }

  TJDBStructure Model;
  TJQueryPanel Query;
  std::unique_ptr<T_dlgRFieldEdit> Dialog;
};

TEST_F(ResultFieldsDialog, MakesASortedSumByKeysAlone) {
  Open();
  Find(u"COMPANY"_s);
  Press(Qt::Key_Return);
  Find(u"quantity"_s);
  Press(Qt::Key_Return);
  Find(u"unit price"_s);
  Press(Qt::Key_Asterisk, Qt::ControlModifier);
  TabTo(Named<QPushButton>(u"as is"_s));
  Press(Dialog->isRightToLeft() ? Qt::Key_Left : Qt::Key_Right);
  Press(Qt::Key_T, Qt::ControlModifier);
  Press(Qt::Key_T, Qt::ControlModifier);
  CheckTurnover();
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Dialog->result(), QDialog::Accepted);
}

TEST_F(ResultFieldsDialog, MakesASortedSumByTheMouseAlone) {
  Open();
  const auto twice = [this](QPoint at) {
    Click(*Tree().viewport(), at);
    QTest::mouseDClick(Dialog->windowHandle(), Qt::LeftButton, {}, Tree().viewport()->mapTo(Dialog.get(), at));
  };
  twice(PlaceOf(u"Customers"_s, u"Company"_s));
  Click(*Tree().viewport(), PlaceOf(u"Order lines"_s, u"Quantity"_s));
  Click(Named<QToolButton>(u"Create result field"_s));
  Click(*Tree().viewport(), PlaceOf(u"Order lines"_s, u"Unit price (\u20ac)"_s));
  Click(Named<QToolButton>(u"Multiply by result field"_s));
  Click(Named<QPushButton>(u"Sum"_s));
  Only<QTabWidget>().setCurrentIndex(1);
  // The button waits for its menu.
  QTimer::singleShot(0, Dialog.get(), [] {
    auto& menu = *qobject_cast<QMenu*>(Popup());
    Click(menu, menu.actionGeometry(menu.actions()[1]).center());
  });
  Click(Named<QPushButton>(u"&Add"_s));
  auto* box = static_cast<QComboBox*>(Table().cellWidget(0, 2));
  Click(*box);
  user::Settle();
  ASSERT_NE(Popup(), nullptr);
  auto* items = Popup()->findChild<QAbstractItemView*>();
  QTest::qWait(QApplication::doubleClickInterval());  // a click right after opening does not choose
  Click(*items->viewport(), items->visualRect(items->model()->index(stDescending, 0)).center());
  user::Settle();
  CheckTurnover();
  Click(*Only<QDialogButtonBox>().button(QDialogButtonBox::Ok));
  EXPECT_EQ(Dialog->result(), QDialog::Accepted);
}

TEST_F(ResultFieldsDialog, OffersFieldsAndTellsWhatIsWrongAsOneTypes) {
  Open();
  Press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(Expression().hasFocus());
  EXPECT_EQ(Told(), u"The expression is empty."_s);
  Type(u"2 * {QUANT"_s);
  EXPECT_EQ(Told(), u"The expression \"2 * {QUANT\" has no \"}\" for the \"{\" in column 5."_s);
  EXPECT_FALSE(Named<QPushButton>(u"Sum"_s).isEnabled());
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Expression())->text(QAccessible::Description), Told());
  user::Settle();
  ASSERT_NE(Popup(), nullptr);
  Press(Qt::Key_Return);
  EXPECT_EQ(Popup(), nullptr);
  EXPECT_TRUE(Dialog->isVisible());
  EXPECT_EQ(Expression().text(), u"2 * {Order Lines.Quantity}"_s);
  EXPECT_EQ(Columns(), "Quantity: 2 * {Order Lines.Quantity}");
  Type(u" + {c"_s);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Popup(), nullptr);
  EXPECT_TRUE(Dialog->isVisible());
  Find(u"country"_s);
  Press(Qt::Key_Return);
  Click(*Only<QDialogButtonBox>().button(QDialogButtonBox::Ok));
  EXPECT_TRUE(Dialog->isVisible()) << "not with a wrong expression";
  EXPECT_TRUE(Expression().hasFocus());
  EXPECT_EQ(List().currentRow(), 0);
  EXPECT_EQ(Expression().text(), u"2 * {Order Lines.Quantity} + {c"_s);
  Press(Qt::Key_Home);
  Repeat(Qt::Key_Delete, 27);
  EXPECT_EQ(Told(), u"The expression \"+ {c\" has no \"}\" for the \"{\" in column 3."_s);
  Press(Qt::Key_A, Qt::ControlModifier);
  Type(u"count(*)"_s);
  EXPECT_EQ(Told() + Caption().text(), u"count(*)"_s);
  EXPECT_TRUE(Named<QPushButton>(u"Count"_s).isChecked());
  Press(Qt::Key_Return);
  EXPECT_TRUE(Dialog->isVisible()) << "Enter ends the text alone";
}

TEST_F(ResultFieldsDialog, NamesHidesMovesAndDeletesColumns) {
  Open();
  for (const QString& name : {u"country"_s, u"region"_s, u"company"_s}) {
    Find(name);
    Press(Qt::Key_Return);
  }
  EXPECT_EQ(Columns(), "Country: {Countries.CountryName}; Region: {Countries.Region}; Company: {Customers.Company}");
  Drag(List(), 0, 2);
  EXPECT_EQ(Columns(), "Region: {Countries.Region}; Company: {Customers.Company}; Country: {Countries.CountryName}");
  Drag(List(), 2, 0, false);
  auto* mark = List().viewport()->findChild<QWidget*>(u"dropMark"_s);
  EXPECT_TRUE(mark->isVisible());
  List().setFocus();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(mark->isVisible());
  QTest::mouseRelease(Dialog->windowHandle(), Qt::LeftButton);
  EXPECT_TRUE(Dialog->isVisible());
  Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Columns(), "Region: {Countries.Region}; Country: {Countries.CountryName}; Company: {Customers.Company}");
  Press(Qt::Key_Space);
  EXPECT_TRUE(Dialog->GetFields()[1].GetHidden());
  TabTo(Caption());
  Press(Qt::Key_A, Qt::ControlModifier);
  Type(u"region"_s);
  EXPECT_EQ(Caption().text(), u"region"_s) << "as typed";
  Press(Qt::Key_Tab);
  EXPECT_EQ(Caption().text(), u"region 2"_s);
  EXPECT_EQ(List().item(1)->text(), u"region 2"_s);
  List().setFocus();
  Press(Qt::Key_Delete);
  EXPECT_EQ(List().count(), 2) << "a field is deleted without a question";
  Dialog->Editor().SetExpression("upper({Customers.Company})");
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    Press(Qt::Key_Delete);
    auto* box = Dialog->findChild<QMessageBox*>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), u"Delete Field \"Company\"?"_s);
    EXPECT_EQ(List().count(), 2);
    box->button(answer)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Dialog->activateWindow();  // the offscreen platform leaves that to others
    ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog.get()));
    EXPECT_TRUE(List().hasFocus());
  }
  EXPECT_EQ(Columns(), "Region: {Countries.Region}");
  Click(Named<QToolButton>(u"Undo"_s));
  EXPECT_EQ(List().count(), 2);
  List().setFocus();
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(List().count(), 1);
  Find(u"CUSTOMERS"_s);
  Tree().setFocus();
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(List().count(), 1) << "keys of the tree do not take signs";
}

TEST_F(ResultFieldsDialog, SortsOnAPageOfItsOwn) {
  for (const char* name : {"Customers.City", "Customers.Company", "Countries.Region"}) {
    Query.RFields().Add(*Model.FieldByName(fnFullName, name)).SetSorting(stAscending);
  }
  Open();
  Only<QTabWidget>().setCurrentIndex(1);
  EXPECT_EQ(Sorted(), QStringList({u"City Ascending"_s, u"Company Ascending"_s, u"Region Ascending"_s}));
  EXPECT_FALSE(Named<QPushButton>(u"&Add"_s).isEnabled());
  Drag(Table(), 2, 0);
  EXPECT_EQ(Sorted(), QStringList({u"City Ascending"_s, u"Region Ascending"_s, u"Company Ascending"_s}));
  Table().setFocus();
  Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Sorted(), QStringList({u"Region Ascending"_s, u"City Ascending"_s, u"Company Ascending"_s}));
  EXPECT_EQ(Table().currentRow(), 0);
  Press(Qt::Key_Return);
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_EQ(Sorted()[0], u"Region Descending"_s);
  Table().setFocus();
  Press(Qt::Key_Down);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Sorted(), QStringList({u"Region Descending"_s, u"Company Ascending"_s}));
  EXPECT_EQ(Columns(), "City: {Customers.City}; Company: {Customers.Company}; Region: {Countries.Region}");
  Named<QCheckBox>(u"just sorting"_s).setFocus();
  Press(Qt::Key_Space);
  EXPECT_TRUE(Dialog->GetFields().GetJustSorting());
}

TEST_F(ResultFieldsDialog, MarksWhatCannotBeBuiltAndSaysWhy) {
  const TDSField& region = *Model.FieldByName(fnFullName, "Countries.Region");
  Query.RFields().Add(*Model.FieldByName(fnFullName, "Customers.City"));
  Query.RFields().Add(*Model.FieldByName(fnFullName, "Countries.Region"));
  const QString unknown = u"Unrecognized field \"%1\"."_s.arg(region.GetID());
  Open();
  const QImage sound = List().viewport()->grab(List().visualItemRect(List().item(1))).toImage();
  const QString caption = List().item(1)->text();
  std::size_t index = 0;
  while (&Model.GetField(index) != &region) ++index;
  Model.DelField(index);
  Dialog->Editor().SetCurrent(1);
  EXPECT_EQ(Told(), unknown);
  EXPECT_TRUE(List().item(1)->data(Qt::AccessibleTextRole).toString().endsWith(unknown));
  Dialog->Editor().SetCurrent(0);
  List().item(1)->setForeground(QBrush());
  EXPECT_EQ(List().item(1)->text(), caption);
  EXPECT_NE(List().viewport()->grab(List().visualItemRect(List().item(1))).toImage(), sound) << "more than a colour";
  Tree().clearSelection();
  Tree().setCurrentIndex(QModelIndex());
  EXPECT_EQ(Named<QToolButton>(u"Multiply by result field"_s).accessibleDescription(), u"Select a field first."_s);
  EXPECT_EQ(Named<QPushButton>(u"as is"_s).width(), Named<QPushButton>(u"Sum"_s).width()) << "in equal columns";
  Click(*Only<QDialogButtonBox>().button(QDialogButtonBox::Ok));
  EXPECT_FALSE(Dialog->isVisible());
}

TEST_F(ResultFieldsDialog, HelpIsShownWithAHandlerWhichMayCloseIt) {
  Open();
  EXPECT_EQ(Only<QDialogButtonBox>().button(QDialogButtonBox::Help), nullptr);
  int asked = 0;
  Open([&](QWidget& dialog) {
    if (++asked == 2) {
      EXPECT_EQ(&dialog, Dialog.get());
      Dialog.reset();
    }
  });
  Press(Qt::Key_F1);
  Only<QDialogButtonBox>().button(QDialogButtonBox::Help)->click();
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(Dialog, nullptr);
}

TEST_F(ResultFieldsDialog, OnlyOKChangesTheColumns) {
  TJResultFieldsPanel panel(&window);
  EXPECT_THROW(panel.EditFields(), ERFPanelError);
  auto model = std::make_unique<TJDBStructure>();
  model->LoadFromFile(TOLVI_SOURCE_DIR "/samples/shop/shop.model");
  panel.SetDBStruct(model.get());
  panel.Activate();
  int changes = 0;
  panel.OnChange = [&changes](TJResultFieldsPanel&) { ++changes; };
  const auto edit = [&](const std::function<void(T_dlgRFieldEdit&)>& close) {
    QTimer::singleShot(0, &window, [&] {
      auto& shown = *qobject_cast<T_dlgRFieldEdit*>(QApplication::activeModalWidget());
      shown.Editor().Create(std::vector{&model->GetField(0), &model->GetField(1)});
      close(shown);
    });
    return panel.EditFields();
  };
  EXPECT_FALSE(edit([](T_dlgRFieldEdit& shown) { shown.reject(); }));
  EXPECT_EQ(panel.GetRows().Count() + static_cast<std::size_t>(changes), 0u);
  EXPECT_TRUE(edit([](T_dlgRFieldEdit& shown) { shown.accept(); }));
  EXPECT_EQ(panel.GetRows().Count(), 2u);
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(edit([&](T_dlgRFieldEdit& shown) {
    panel.SetDBStruct(&Model);
    shown.accept();
  }));
  EXPECT_EQ(panel.GetResultFields()->Count(), 0u);
  panel.SetDBStruct(model.get());
  EXPECT_FALSE(edit([&](T_dlgRFieldEdit&) { model.reset(); })) << "without its model, the dialog closes";
  EXPECT_EQ(changes, 1);

  auto* parent = new QWidget(&window);
  QTimer::singleShot(0, &window, [parent] { delete parent; });
  EXPECT_FALSE(EditResultFields(parent, Query.RFields(), TTitles()));
}

TEST_F(ResultFieldsDialog, SortingBoxesChangeTheirOwnColumnOnly) {
  for (const char* name : {"Customers.City", "Customers.Company", "Countries.Region"}) {
    Query.RFields().Add(*Model.FieldByName(fnFullName, name)).SetSorting(stAscending);
  }
  Open();
  Only<QTabWidget>().setCurrentIndex(1);
  const auto box = [this](int row) { return Table().cellWidget(row, 2); };
  user::Settle();
  for (const int turn : {120, -120}) {
    const QPointF at = box(0)->mapTo(Dialog.get(), box(0)->rect().center());
    QWheelEvent event(at, Dialog->mapToGlobal(at), {}, QPoint(0, turn), {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Dialog->windowHandle(), &event);
  }
  EXPECT_FALSE(box(0)->hasFocus());
  box(1)->setFocus();
  Repeat(Qt::Key_Up, 2);
  EXPECT_TRUE(box(0)->hasFocus());
  Press(Qt::Key_Down);
  EXPECT_EQ(Sorted(), QStringList({u"City Ascending"_s, u"Company Ascending"_s, u"Region Ascending"_s}));
  Press(Qt::Key_N);  // "Not Sorted"
  Press(Qt::Key_D);
  EXPECT_EQ(Sorted(), QStringList({u"City Ascending"_s, u"Region Ascending"_s})) << "the next box takes no key";
  EXPECT_EQ(Table().currentRow(), 1);
  Repeat(Qt::Key_Delete, 2);
  EXPECT_EQ(Table().rowCount(), 0);
}

TEST_F(ResultFieldsDialog, KeysGoWhereTheUserIs) {
  Open();
  auto& search = Named<QLineEdit>(u"Find a field"_s);
  EXPECT_EQ(Dialog->focusWidget(), &search);
  Press(Qt::Key_Tab);
  EXPECT_TRUE(Tree().hasFocus());
  Press(Qt::Key_Tab);
  EXPECT_TRUE(Named<QToolButton>(u"Create result field"_s).hasFocus());
  Press(Qt::Key_N, Qt::ControlModifier);
  Type(u"1"_s);
  for (const int columns : {1, 0}) {
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(List().count(), columns);
    EXPECT_EQ(Expression().text(), QString());
  }
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  Press(Qt::Key_Y, Qt::ControlModifier);
  Expression().setFocus();
  EXPECT_EQ(Expression().text(), u"1"_s);
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
  QApplication::sendEvent(&Expression(), &asked);
  ASSERT_NE(Popup(), nullptr);
  Popup()->actions()[0]->trigger();
  Popup()->close();
  Dialog->activateWindow();  // the offscreen platform leaves that to others
  ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog.get()));
  EXPECT_EQ(Expression().text(), QString());
  Find(u"city"_s);
  Press(Qt::Key_Escape);
  EXPECT_EQ(search.text(), QString());
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    EXPECT_TRUE(Dialog->isVisible());
    Press(Qt::Key_Escape);
    ASSERT_NE(Dialog->findChild<QMessageBox*>(), nullptr) << "work is not lost by a key";
    Dialog->findChild<QMessageBox*>()->button(answer)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Dialog->activateWindow();
  }
  EXPECT_FALSE(Dialog->isVisible());
}

TEST_F(ResultFieldsDialog, NamesTakeThePlaceOfTheWholeReference) {
  Query.RFields().Add(*Model.FieldByName(fnFullName, "Countries.Region"));
  Open();
  Expression().setFocus();
  Expression().setCursorPosition(5);
  Press(Qt::Key_Backspace);
  ASSERT_NE(Popup(), nullptr);
  Press(Qt::Key_Tab);
  EXPECT_TRUE(Expression().hasFocus());
  EXPECT_EQ(Expression().text().count(u'{') + Expression().text().count(u'}'), 2) << Expression().text().toStdString();
  EXPECT_EQ(Told(), QString());
}

TEST_F(ResultFieldsDialog, OKTellsWhetherAnythingHasChanged) {
  for (const bool changes : {false, true}) {
    Open();
    if (changes) Dialog->Editor().Create(std::vector{&Model.GetField(0)});
    Press(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_FALSE(Dialog->isVisible());
    EXPECT_EQ(Dialog->result(), int{QDialog::Accepted});
    EXPECT_EQ(Dialog->HasChanged(), changes);
  }
}

}  // namespace
}  // namespace tolvi
