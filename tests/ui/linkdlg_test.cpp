#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTimer>
#include <memory>

#include "support/models.h"
#include "uitest.h"
#include <tolvi/ui/dialogs/linkdlg.h>
#include <tolvi/ui/dialogs/linkpairs.h>

namespace tolvi {
namespace {

using namespace Qt::Literals::StringLiterals;

class LinkDialog : public TUiTest {
 protected:
  void Open(TDSLink& link) {
    dialog = std::make_unique<T_dlgLinkEdit>(*model, link, &window);
    const auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
    new QAbstractItemModelTester(&dialog->findChild<TLinkPairs*>()->Model(), fatal, dialog.get());
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    user::Settle();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { user::Press(*dialog, key, modifiers); }
  /// Into the cell that is current, or being edited; a list of what fits opens below it, and takes the first Enter.
  void Enter(const QString& text) {
    for (const QChar letter : text) {
      QTest::keyClick(Popup() != nullptr ? Popup() : QApplication::focusWidget(), letter.toLatin1());
      user::Settle();
    }
    Press(Qt::Key_Return);
    if (qobject_cast<QComboBox*>(QApplication::focusWidget()) != nullptr) Press(Qt::Key_Return);
  }
  QTableView& Grid() { return *dialog->findChild<QTableView*>(); }
  QString Cells() {
    QString text;
    const QAbstractItemModel& cells = *Grid().model();
    for (int row = 0; row < cells.rowCount(); ++row) {
      for (int column = 0; column < cells.columnCount(); ++column) {
        text += cells.index(row, column).data().toString() + (column < 2 ? u' ' : u'|');
      }
    }
    return text.remove(QChar(0x2068)).remove(QChar(0x2069));
  }
  QString Condition() { return dialog->findChild<QPlainTextEdit*>()->toPlainText(); }
  bool Tells(const QString& text) {
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      if (label->text().contains(text)) return true;
    }
    return false;
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  std::unique_ptr<T_dlgLinkEdit> dialog;
};

TEST_F(LinkDialog, EditsPairsByKeys) {
  TDSLink& link = model->GetLink(0);
  Open(link);
  EXPECT_EQ(dialog->windowTitle(), u"Edit link"_s);
  EXPECT_EQ(Cells(), u"CustNo = CustNo|"_s);
  EXPECT_TRUE(Grid().hasFocus());
  Press(Qt::Key_N, Qt::ControlModifier);
  Enter(u"SALEDATE"_s);
  EXPECT_EQ(Cells(), u"CustNo = CustNo|SaleDate = (choose a column)|"_s) << "as the list writes it";
  EXPECT_TRUE(Tells(u"Pair 2: a column name is empty"_s));
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Grid().currentIndex(), Grid().model()->index(1, 2)) << "where the error is";
  Enter(u"val:'x'"_s);
  EXPECT_EQ(Cells(), u"CustNo = CustNo|SaleDate = Constant: 'x'|"_s);
  EXPECT_FALSE(Tells(u"Pair 2"_s));
  EXPECT_EQ(Condition(), u"Orders.CustNo = Customers.CustNo and Orders.SaleDate = 'x'"_s);
  Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Grid().currentIndex().row(), 0);
  Press(Qt::Key_Up);
  Grid().setCurrentIndex(Grid().model()->index(0, 1));
  Press(Qt::Key_F2);
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_EQ(Cells(), u"SaleDate <> Constant: 'x'|CustNo = CustNo|"_s);
  Press(Qt::Key_Q, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return dialog->Editor().GetQuoteFields(); }));
  EXPECT_EQ(Condition(), u"Orders.\"SaleDate\" <> 'x' and Orders.\"CustNo\" = Customers.\"CustNo\""_s);
  EXPECT_EQ(link.GetSQLExpr(), "Orders.CustNo = Customers.CustNo");
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(link.GetSQLExpr(), Condition().toStdString());
}

TEST_F(LinkDialog, DeletesPairsAndAsksForOne) {
  TDSLink& link = model->GetLink(0);
  link.AddPair("SaleDate", "=>", "val:");
  Open(link);
  const QModelIndex symbol = Grid().model()->index(1, 1);
  EXPECT_EQ(symbol.data(Qt::AccessibleDescriptionRole), u"\"=>\" is no comparison symbol"_s);
  EXPECT_TRUE(Tells(u"Pair 2: a constant is empty\nPair 2: \"=>\" is no comparison symbol"_s));
  Grid().selectAll();
  Press(Qt::Key_Delete);
  EXPECT_EQ(Cells(), QString());
  EXPECT_TRUE(Tells(u"the link has no columns"_s));
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Cells(), u"(choose a column) = (choose a column)|"_s);
  Press(Qt::Key_Escape);
  EXPECT_TRUE(dialog->isVisible()) << "the edit of the cell ends";
  Press(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(link.GetFields1().Count(), 2u);
}

TEST_F(LinkDialog, ChoosesTheTablesOfANewLink) {
  TDSLink link(model->GetTable(1), model->GetTable(1));
  Open(link);
  EXPECT_TRUE(Tells(u"no statement joins a table with itself"_s));
  Press(Qt::Key_S, Qt::AltModifier);
  for (const QString& text : {u"nothing"_s, u"customers"_s}) {
    auto& box = *qobject_cast<QComboBox*>(dialog->focusWidget());
    box.lineEdit()->selectAll();
    Enter(text);
    EXPECT_EQ(box.currentText(), text == u"nothing"_s ? u"Orders"_s : u"Customers"_s);
  }
  EXPECT_TRUE(Tells(u"the two tables have a link before this one"_s));
  Grid().setFocus();
  Press(Qt::Key_F2);
  Enter(u"custno"_s);
  EXPECT_EQ(Condition(), u"Orders.CustNo = Customers.CustNo"_s);

  QList<QRadioButton*> joins = dialog->findChildren<QRadioButton*>();
  EXPECT_EQ(joins[1]->text() + u", "_s + joins[2]->text(), u"All rows of Orders, All rows of Customers"_s);
  Click(*joins[1]);
  for (auto* button : dialog->findChildren<QPushButton*>()) {
    if (button->text() == u"S&wap"_s) Click(*button);
  }
  EXPECT_EQ(Condition(), u"Customers.CustNo = Orders.CustNo"_s);
  EXPECT_TRUE(joins[2]->isChecked()) << "the rows of Orders still";
  EXPECT_EQ(joins[2]->text(), u"All rows of Orders"_s);
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(link.GetTable2(), &model->GetTable(1));
  EXPECT_EQ(link.GetLinkType(), ltOuterRight);
}

TEST_F(LinkDialog, TakesAColumnOrAConstantFromTheList) {
  TDSLink& link = model->GetLink(0);
  Open(link);
  const auto choose = [&](const QString& text) {
    Press(Qt::Key_F2);
    auto& box = *qobject_cast<QComboBox*>(QApplication::focusWidget());
    box.showPopup();
    user::Settle();
    box.view()->setCurrentIndex(box.model()->index(box.findText(text), 0));
    QTest::keyClick(box.view(), Qt::Key_Return);
    user::Settle();
  };
  choose(u"Total"_s);
  EXPECT_EQ(Cells(), u"Total = CustNo|"_s) << "taken over at once";
  choose(u"A constant..."_s);
  Enter(u"7"_s);
  EXPECT_EQ(Cells(), u"Constant: 7 = CustNo|"_s);
  EXPECT_TRUE(Tells(u"no pair compares columns of both tables"_s));
}

TEST_F(LinkDialog, GoesWithItsParent) {
  auto* parent = new QWidget(&window);
  QTimer::singleShot(0, &window, [parent] { delete parent; });
  EXPECT_FALSE(EditLink(parent, *model, model->GetLink(0)));
  QTimer::singleShot(0, &window, [] { qobject_cast<T_dlgLinkEdit*>(QApplication::activeModalWidget())->accept(); });
  EXPECT_TRUE(EditLink(&window, *model, model->GetLink(0)));
}

}  // namespace
}  // namespace tolvi
