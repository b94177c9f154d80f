// A query panel in a window, with what users do to it.
#pragma once

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>
#include <memory>
#include <string>

#include "support/models.h"
#include "uitest.h"
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/controls/rndbtn.h>
#include <tolvi/ui/panels/linklabel.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

/// An active panel on the orders model, shown in the window.
class QueryPanelView : public TUiTest {
 protected:
  void SetUp() override {
    TUiTest::SetUp();
    panel->SetDBStruct(model.get());
    panel->SetActive(true);
    view = new TJQueryPanelView(&window);
    view->resize(window.size());
    view->OnError = [this](TJQueryPanelView&, const QString& message) { errors << message; };
    view->SetQueryPanel(panel.get());
    view->show();
    view->ShowChanges();
    view->setFocus();
    QCoreApplication::processEvents();
  }
  void TearDown() override {
    TUiTest::TearDown();
    delete view;
  }

  static void Settle() { user::Settle(); }

  TSimpleCond& Add(const char* field, const char* op, const char* value, TFilterBracket* bracket = nullptr) {
    TFilterBracket& target = bracket != nullptr ? *bracket : panel->RootBracket();
    return panel->AddSimpleCond(target, FieldOf(*model, field), OperatorOf(*model, op), value);
  }
  TQPRow& Row(int number) const {
    TFilterRow* row = panel->RowByNum(number);
    TQPRow* widget = row != nullptr ? view->RowWidget(*row) : nullptr;
    if (widget == nullptr) throw EListError("no widget for row %d", {number});
    return *widget;
  }
  TDropDownLabel& Label(int row, const char* name) const {
    auto* label = Row(row).findChild<TDropDownLabel*>(QLatin1String(name));
    if (label == nullptr) throw EListError("row %d has no %s", {row, name});
    return *label;
  }

  /// Keys to the popup that is open, else to the window.
  static void PopupKey(Qt::Key key) {
    Settle();
    QTest::keyClick(Popup() != nullptr ? Popup()->windowHandle() : nullptr, key);
    Settle();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Key(key, modifiers);
    Settle();
  }
  /// Types into the editor that is open, and accepts.
  void Enter(const QString& text) {
    Settle();
    ASSERT_NE(Popup(), nullptr);
    user::TypeOver(text);
    PopupKey(Qt::Key_Return);
  }
  void ClickLabel(int row, const char* name, const QString& text) {
    Click(Label(row, name));
    Enter(text);
  }
  void Choose(TPanelCommand command) { ASSERT_TRUE(user::ChooseFromMenu(ToQString(InfoOf(command).Name))); }
  QString Menu() const {
    QString text;
    const auto* menu = qobject_cast<QMenu*>(Popup());
    for (const QAction* action : menu != nullptr ? menu->actions() : QList<QAction*>()) {
      text += action->isSeparator() ? QStringLiteral("-")
                                    : (action->isEnabled() ? QString() : QStringLiteral("!")) + action->text();
      text += u'\n';
    }
    return text;
  }

  std::string SQL() {
    if (panel->RFields().Empty()) panel->RFields().Add(FieldOf(*model, "Orders.OrderNo"));
    return panel->GetQueryText();
  }
  std::string Phrases() const {
    const TFieldNames names(model.get());
    std::string text;
    ForEachRow(panel->RootBracket(), [&](TFilterRow& row) {
      text += std::string(static_cast<std::size_t>(row.GetRowLevel()), ' ') + PhraseText(RowPhrase(row, names)) + "\n";
    });
    return text;
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  std::unique_ptr<TJQueryPanel> panel = std::make_unique<TJQueryPanel>();
  TJQueryPanelView* view = nullptr;
  QStringList errors;
};

}  // namespace tolvi
