#include <QContextMenuEvent>
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

TEST_F(QueryPanelView, EditsAListOfValuesAsLines) {
  TSimpleCond& numbers = Add("Orders.OrderNo", "InList", "3,5");
  Settle();
  Label(1, "value1").setFocus();
  QTimer untilOpen;
  QObject::connect(&untilOpen, &QTimer::timeout, view, [&untilOpen] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    untilOpen.stop();
    auto* lines = dialog->findChild<QPlainTextEdit*>();
    EXPECT_EQ(lines->toPlainText(), QStringLiteral("3\n5"));
    lines->moveCursor(QTextCursor::End);
    QTest::keyClicks(lines, QStringLiteral("x"));
    EXPECT_EQ(lines->extraSelections().size(), 1);
    EXPECT_TRUE(lines->accessibleDescription().startsWith(QStringLiteral("Line 2: Field \"Order no\": \"5x\" is not")));
    QTest::keyClick(lines, Qt::Key_Backspace);
    QTest::keyClick(lines, Qt::Key_Return);
    lines->insertPlainText(QStringLiteral(" 7\n\n12 \n"));
    EXPECT_TRUE(lines->extraSelections().isEmpty());
    QTest::keyClick(lines, Qt::Key_Return, Qt::ControlModifier);
  });
  untilOpen.start(10);
  Press(Qt::Key_4, Qt::ControlModifier);
  EXPECT_EQ(numbers.GetValue(1), "3,5,7,12");
  QContextMenuEvent event(QContextMenuEvent::Mouse, {}, Label(1, "value1").mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(&Label(1, "value1"), &event);
  EXPECT_EQ(Menu(), QStringLiteral("Constant value\nParameter\n!Sub-query\n-\nValue &list...\n"));
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
  const QString noName =
      QStringLiteral("\"no name\" is no parameter name: use letters A to Z, digits and \"_\", a letter first");
  Click(Label(1, "value1"));
  Enter(QStringLiteral("no name"));
  ASSERT_NE(Popup(), nullptr) << "Enter takes no wrong name";
  EXPECT_EQ(Popup()->focusProxy()->accessibleDescription(), noName);
  Popup()->findChild<QLineEdit*>(QStringLiteral("prompt"))->setText(QStringLiteral("Which town?"));
  Popup()->close();
  Settle();
  EXPECT_EQ(errors, QStringList(noName));
  EXPECT_EQ(param.GetParam(1)->GetParamName() + param.GetParam(1)->GetOwnDisplayName(), "Town");

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

/// A condition with a sub-query, and what users do in its dialog.
class SubQueryDialog : public QueryPanelView {
 protected:
  void SetUp() override {
    QueryPanelView::SetUp();
    TJQueryPanel query;
    query.SetDBStruct(model.get());
    query.SetActive(true);
    query.ParseSQL("select max(Orders.CustNo) from Orders where Orders.Total > 5");
    query.AddSimpleCond(query.RootBracket(), FieldOf(*model, "Customers.City"), OperatorOf(*model, "Equal"),
                        "a\u00A0b");
    TStrings lines;
    query.SaveToStrings(lines);
    condition = &Add("Orders.CustNo", "InQuery", "");
    condition->SetSubQuery(lines);
    Settle();
  }

  /// Opens the dialog; gives it up if it is open afterwards.
  void Run(const std::function<void()>& edit) {
    bool wasOpen = false;
    QTimer::singleShot(20, view, [&] {
      dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      wasOpen = dialog != nullptr;
      if (!wasOpen) return;
      sql = Part<QPlainTextEdit>("sql");
      inner = dialog->findChild<TJQueryPanelView*>();
      edit();
      if (dialog->isVisible()) dialog->reject();
    });
    view->EditSubQuery(*condition, 1);
    Settle();
    EXPECT_TRUE(wasOpen);
  }
  template <typename T>
  T* Part(const char* name) const {
    return dialog->findChild<T*>(QLatin1String(name));
  }
  void Push(const char* button) { Click(*Part<QAbstractButton>(button)); }
  std::size_t AddRow() {
    inner->RunCommand(pcFirstRow);
    inner->RunCommand(pcAddCond);
    Settle();
    return inner->GetQueryPanel()->RootBracket().GetRowCount();
  }
  std::size_t RowsInText() const {
    TJQueryPanel query;
    query.SetDBStruct(model.get());
    query.LoadFromStrings(condition->GetSubQuery());
    return query.RootBracket().GetRowCount();
  }

  TSimpleCond* condition = nullptr;
  QDialog* dialog = nullptr;
  QPlainTextEdit* sql = nullptr;
  TJQueryPanelView* inner = nullptr;
};

TEST_F(SubQueryDialog, ChangesNothingThatTheUserDoesNotChange) {
  const TStrings before = condition->GetSubQuery();
  Run([this] {
    auto* column = Part<TDropDownLabel>("column");
    const QString computed = column->GetCaption();
    Open(*column);
    PopupKey(Qt::Key_Return);
    EXPECT_EQ(column->GetCaption(), computed);
    dialog->accept();
    EXPECT_FALSE(dialog->isVisible());
  });
  EXPECT_EQ(condition->GetSubQuery().GetText(), before.GetText());
}

TEST_F(SubQueryDialog, AsksWhichIsMeantWhenQueryAndTextWereBothChanged) {
  Run([this] {
    const QString good = sql->toPlainText();
    Push("sqlSwitch");
    sql->setPlainText(QStringLiteral("select nonsense ("));
    Push("readSql");
    EXPECT_TRUE(Part<QWidget>("fault")->isVisible());
    sql->setPlainText(good);
    EXPECT_FALSE(Part<QWidget>("fault")->isVisible());
    EXPECT_EQ(AddRow(), 3u);
    EXPECT_NE(sql->toPlainText(), good) << "text put back is no text of the user's";

    sql->setPlainText(good + u' ');
    Push("sqlSwitch");
    EXPECT_FALSE(Part<QWidget>("unread")->isVisible());
    EXPECT_EQ(AddRow(), 4u);
    dialog->accept();
    EXPECT_TRUE(dialog->isVisible() && Part<QWidget>("unread")->isVisible());
    EXPECT_TRUE(Part<QWidget>("readSql")->hasFocus());
    Push("discardSql");
    EXPECT_FALSE(Part<QWidget>("unread")->isVisible());
    EXPECT_EQ(inner->GetQueryPanel()->RootBracket().GetRowCount(), 4u);
    dialog->accept();
  });
  EXPECT_EQ(RowsInText(), 4u);
  Run([this] {
    sql->setPlainText(QStringLiteral("select CustNo from Orders where Total > 5"));
    AddRow();
    Push("readSql");
    EXPECT_EQ(inner->GetQueryPanel()->RootBracket().GetRowCount(), 1u);
    dialog->accept();
  });
  EXPECT_EQ(RowsInText(), 1u);
}

TEST_F(SubQueryDialog, LooksAndActsAsTheViewOutside) {
  FieldOf(*model, "Customers.City").SetEditType(etCustom);
  view->SetCommandTitleLines({QStringLiteral("cmdDuplicateRow=Noch einmal")});
  view->GetAppearance().SetIndent(77);
  view->OnCustomEdit = [](TJQueryPanelView&, TFilterCond& sender, int index) { sender.SetValue(index, "by host"); };
  Run([this] {
    auto& row = static_cast<TFilterCond&>(*inner->GetQueryPanel()->RowByNum(2));
    inner->RowWidget(row)->findChild<TDropDownLabel*>(QStringLiteral("value1"))->DropDown();
    Settle();
    EXPECT_EQ(row.GetValue(1), "by host");
    EXPECT_EQ(inner->GetAction(pcDuplicate).text(), QStringLiteral("Noch einmal"));
    EXPECT_EQ(inner->GetAppearance().GetIndent(), 77);
    inner->OnError(*inner, QStringLiteral("told outside"));
  });
  EXPECT_EQ(errors, QStringList(QStringLiteral("told outside")));
}

TEST_F(QueryPanelView, OffersDefaultValuesAndTheCaseOfTheField) {
  struct TCase {
    const char *Field, *Op, *Default, *Typed, *Value;
  };
  static constexpr TCase cases[] = {
      {"Customers.City", "Equal", "Berlin", "oslo", "OSLO"},
      {"Customers.City", "InList", "New York", "oslo, bern", "OSLO,BERN"},
      {"Customers.Notes", "Equal", "Berlin", "oslo", "OSLO"},
      {"Orders.SaleDate", "Equal", "2026-05-17", nullptr, nullptr},
      {"Customers.Active", "Equal", "True", nullptr, nullptr},
  };
  for (const TCase& at : cases) {
    TDSField& field = FieldOf(*model, at.Field);
    field.SetEditType(etEdit);
    auto& editor = static_cast<TDSTextEditor&>(*field.GetValueEditor());
    editor.SetDefaultValue(at.Default);
    editor.SetAutoUpperCase(true);
    TSimpleCond& condition = Add(at.Field, at.Op, "");
    Settle();
    const int row = static_cast<int>(panel->RootBracket().GetRowCount());
    const auto accept = [&] {
      QTest::keyClick(Popup()->windowHandle(), Qt::Key_Return,
                      at.Field == std::string("Customers.Notes") ? Qt::ControlModifier : Qt::NoModifier);
      Settle();
    };
    Click(Label(row, "value1"));
    PopupKey(Qt::Key_Escape);
    EXPECT_EQ(Label(row, "value1").GetValue(), QString()) << at.Field << ": given up";
    Click(Label(row, "value1"));
    Settle();
    accept();
    EXPECT_FALSE(condition.GetValue(1).empty()) << at.Field << ": a default given up once comes again";
    if (at.Typed == nullptr) continue;
    Click(Label(row, "value1"));
    Settle();
    user::TypeOver(QLatin1String(at.Typed));
    accept();
    EXPECT_EQ(condition.GetValue(1), at.Value) << at.Field;
  }
}

TEST_F(QueryPanelView, ShowsAgainWhatTheConditionHoldsAfterAnEditThatChangesNothing) {
  TDSField& city = FieldOf(*model, "Customers.City");
  city.SetEditType(etList);
  auto& editor = static_cast<TDSListEditor&>(*city.GetValueEditor());
  editor.Items() = TStrings{"Berlin", "Paris"};
  editor.Values() = TStrings{"1", "2"};
  TSimpleCond& several = Add("Customers.City", "InList", "2,1");
  TSimpleCond& one = Add("Customers.City", "Equal", "2");
  several.SetCaption(1, "Paris!, Berlin!");
  one.SetCaption(1, "Paris!");
  Settle();
  const std::size_t steps = view->GetEditor()->GetUndoCount();
  for (const int row : {1, 2}) {
    const QString caption = Label(row, "value1").GetCaption();
    Click(Label(row, "value1"));
    PopupKey(Qt::Key_Return);
    EXPECT_EQ(Label(row, "value1").GetCaption(), caption);
  }
  EXPECT_EQ(several.GetValue(1) + " " + one.GetValue(1), "2,1 2");
  EXPECT_EQ(view->GetEditor()->GetUndoCount(), steps);
}

}  // namespace
}  // namespace tolvi
