#include <QLabel>
#include <QPlainTextEdit>

#include "queryview.h"

namespace tolvi {
namespace {

TEST_F(QueryPanelView, ShowsWhatIsOffLockedOrWrong) {
  TSimpleCond& row = Add("Orders.OrderNo", "Equal", "12x");
  TFilterRow& locked = Add("Customers.City", "Equal", "A");
  Settle();
  EXPECT_EQ(Label(1, "value1").GetFault(),
            QStringLiteral("Field \"Order no\": \"12x\" is not a whole number from -2147483648 to 2147483647"));
  ClickLabel(1, "value1", QStringLiteral("12y"));
  EXPECT_EQ(row.GetValue(1), "12y");
  EXPECT_FALSE(Label(1, "value1").GetFault().isEmpty());
  view->FocusRow(locked, 0);
  try {
    SQL();
    FAIL();
  } catch (const EJQueryPanelError& error) {
    view->ReportError(error);
  }
  EXPECT_TRUE(Label(1, "value1").hasFocus());
  EXPECT_EQ(errors.takeLast(), QStringLiteral("Order no is equal to 12y:\n"
                                              "Field \"Order no\": \"12y\" is not a whole number from -2147483648 to "
                                              "2147483647"));
  ClickLabel(1, "value1", QStringLiteral("12"));
  EXPECT_EQ(Label(1, "value1").GetFault(), QString());

  Row(1).GetCheckBox()->setFocus();
  Press(Qt::Key_Space);
  EXPECT_FALSE(row.GetEnabled());
  Click(*Row(1).GetCheckBox());
  EXPECT_TRUE(row.GetEnabled());

  view->GetEditor()->SetLocked(locked, true);
  Settle();
  Click(Label(2, "value1"));
  EXPECT_EQ(Popup(), nullptr);
  Press(Qt::Key_Delete);
  EXPECT_EQ(panel->RootBracket().GetRowCount(), 2u);
  EXPECT_EQ(Row(2).GetButton().accessibleDescription(), QStringLiteral("The row is locked: it cannot be changed here"));
}

TEST_F(QueryPanelView, ShowsWhatTheModelAndTheBracketsCallThings) {
  TFilterBracket& bracket = panel->AddBracket(panel->RootBracket());
  Add("Customers.City", "Equal", "A", &bracket);
  Add("Orders.Total", "GreaterThan", "5", &bracket).SetEnabled(false);
  TFilterBracket& inner = panel->AddBracket(bracket);
  inner.SetLinkType(fltAny);
  Add("Customers.City", "Equal", "B", &inner);
  Settle();
  auto& triangle = *Row(1).findChild<QAbstractButton*>(QStringLiteral("triangle"));
  Click(triangle);
  Settle();
  EXPECT_EQ(Row(1).GetSentence(), QStringLiteral("all of the following apply (City is equal to A; "
                                                 "any of the following apply (City is equal to B))"));
  EXPECT_EQ(view->Rows().size(), 2u);
  FieldOf(*model, "Customers.City").SetDisplayName("Town");
  Settle();
  EXPECT_TRUE(Row(1).GetSentence().contains(QStringLiteral("Town is equal to B"))) << "the model's names changed";
  Click(triangle);
  Settle();
  EXPECT_EQ(view->Rows().size(), 6u);
  EXPECT_FALSE(Row(4).findChild<QAbstractButton*>(QStringLiteral("triangle"))->isHidden());
}

TEST_F(QueryPanelView, OffersValuesByTheEditorOfTheField) {
  TJDBInfo info;
  TDSField& city = FieldOf(*model, "Customers.City");
  city.SetEditType(etSQL);
  static_cast<TDSSQLEditor*>(city.GetValueEditor())->SetSQL({"select distinct City from Customers"});
  TSimpleCond& condition = Add("Customers.City", "InList", "");
  TSimpleCond& custom = Add("Customers.Company", "Equal", "");
  FieldOf(*model, "Customers.Company").SetEditType(etCustom);
  TSimpleCond& truth = Add("Customers.Active", "Equal", "");
  Settle();
  // A list that comes later than the label was closed, and one that comes while it is open.
  for (const bool isOpen : {false, true}) {
    std::function<void(const QString&)> done;
    view->OnFetchItems = [&done](TJQueryPanelView&, TDSSQLEditor&, const auto& call) { done = call; };
    Click(Label(1, "value1"));
    Settle();
    if (!isOpen) PopupKey(Qt::Key_Escape);
    done(QStringLiteral("The server is asleep"));
    EXPECT_EQ(Popup() != nullptr, isOpen);
    if (!isOpen) continue;
    EXPECT_EQ(Popup()->findChild<QLabel*>()->text(), QStringLiteral("The server is asleep"));
    PopupKey(Qt::Key_Escape);
  }
  view->OnFetchItems = nullptr;
  Click(Label(1, "value1"));
  Settle();
  PopupKey(Qt::Key_Escape);
  info.OnGetSQLValues = [](TJDBInfo&, std::string_view, TStrings& values, TStrings& items) {
    values = {"1", "2"};
    items = {"Berlin", "Paris"};
  };
  model->SetDatabaseInfo(&info);
  Click(Label(1, "value1"));
  Settle();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return}) PopupKey(key);
  EXPECT_EQ(condition.GetValue(1), "1,2");
  EXPECT_EQ(Row(1).GetSentence(), QStringLiteral("City is in list Berlin, Paris"));

  view->OnCustomEdit = [](TJQueryPanelView&, TFilterCond& sender, int index) { sender.SetValue(index, "by host"); };
  Click(Label(2, "value1"));
  Settle();
  EXPECT_EQ(custom.GetValue(1), "by host");
  ClickLabel(3, "value1", QStringLiteral("False"));
  EXPECT_EQ(truth.GetValue(1), "0");
}

TEST_F(QueryPanelView, EditsParametersAndSubQueries) {
  TSimpleCond& param = Add("Customers.City", "Equal", "A");
  param.SetValueIsParam(1, true);
  TSimpleCond& query = Add("Orders.CustNo", "InQuery", "");
  Settle();
  Click(Label(1, "value1"));
  Settle();
  for (const QChar letter : QStringLiteral("Town")) QTest::keyClick(Popup()->focusProxy(), letter.toLatin1());
  PopupKey(Qt::Key_Return);
  EXPECT_EQ(Row(1).GetSentence(), QStringLiteral("City is equal to <Town: A>"));
  Click(Label(1, "value1"));
  Enter(QStringLiteral("no name"));
  EXPECT_EQ(errors.size(), 1);
  EXPECT_EQ(param.GetParam(1)->GetParamName(), "Town");

  QTimer untilOpen;
  QObject::connect(&untilOpen, &QTimer::timeout, view, [this, &untilOpen] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    untilOpen.stop();
    auto* inner = dialog->findChild<TJQueryPanelView*>();
    inner->RunCommand(pcAddCond);
    auto* column = dialog->findChild<TDropDownLabel*>(QStringLiteral("column"));
    column->DropDown();
    Enter(QStringLiteral("Customer no"));
    auto* sql = dialog->findChild<QPlainTextEdit*>(QStringLiteral("sql"));
    dialog->findChild<QAbstractButton*>(QStringLiteral("sqlSwitch"))->click();
    EXPECT_TRUE(sql->toPlainText().startsWith(QStringLiteral("SELECT Customers.CustNo")));
    sql->setPlainText(QStringLiteral("select max(Total) from Orders where"));
    dialog->accept();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(
        dialog->findChild<QLabel*>(QStringLiteral("fault"))->text().startsWith(QStringLiteral("Line 1, column 36: ")));
    sql->setPlainText(QStringLiteral("select distinct CustNo from Orders where Total > 5 and Total < 9"));
    dialog->findChild<QAbstractButton*>(QStringLiteral("readSql"))->click();
    EXPECT_EQ(column->GetCaption(), QStringLiteral("Customer"));
    dialog->accept();
  });
  untilOpen.start(10);
  Label(2, "value1").DropDown();
  Settle();
  TJQueryPanel inner;
  inner.SetDBStruct(model.get());
  inner.LoadFromStrings(query.GetSubQuery());
  EXPECT_EQ(inner.RootBracket().GetRowCount(), 2u);
  ASSERT_EQ(inner.RFields().Count(), 1u);
  EXPECT_EQ(inner.RFields()[0].DSFields().front(), &FieldOf(*model, "Orders.CustNo"));
  EXPECT_NE(SQL().find("(SELECT DISTINCT Orders.CustNo"), std::string::npos) << SQL();
}

}  // namespace
}  // namespace tolvi
