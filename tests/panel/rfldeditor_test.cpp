#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/panel/rfldeditor.h>
#include <tolvi/panel/rfldformula.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

TEST(ColumnFormulas, AreTakenApartIntoFunctionAndValue) {
  TSQLFormats formats;
  const auto split = [&formats](std::string_view formula) {
    const TRFAggregated parts = SplitAggregate(formula, formats);
    return std::string(AggregateTitle(parts.Aggregate)) + " " + parts.Inner;
  };
  const struct {
    std::string_view formula;
    std::string parts;
  } cases[] = {
      {"@1", "ttlAsIs @1"},
      {"sum(@1 * (@2 - 1))", "ttlSUMCaption @1 * (@2 - 1)"},
      {" MAX( @1 )", "ttlMAXCaption @1"},
      {"count(*)", "ttlCOUNTCaption *"},
      {"count( Distinct @1)", "ttlAsIs count( Distinct @1)"},
      {"count(distinct @1)", "ttlCOUNTDISTINCTCaption @1"},
      {"avg(')')", "ttlAVERAGECaption ')'"},
      // More than one call, not one value, or not closed.
      {"sum(@1) + sum(@2)", "ttlAsIs sum(@1) + sum(@2)"},
      {"sum(distinct @1)", "ttlAsIs sum(distinct @1)"},
      {"max(@1, @2)", "ttlAsIs max(@1, @2)"},
      {"min(@1", "ttlAsIs min(@1"},
      {"sum()", "ttlAsIs sum()"},
      {"", "ttlAsIs "},
  };
  for (const auto& [formula, parts] : cases) EXPECT_EQ(split(formula), parts) << formula;

  // Each database lists values in its own way; what was made for one is known again.
  for (const std::string& preset : FormatPresetNames()) {
    ApplyFormatPreset(formats, preset);
    for (const TRFAggregate aggregate : AllAggregates) {
      const std::string formula = WithAggregate(aggregate, "@1 + @2", formats);
      if (aggregate == agList && preset == "access") {
        EXPECT_EQ(formula, "");
        continue;
      }
      EXPECT_EQ(SplitAggregate(formula, formats), (TRFAggregated{aggregate, "@1 + @2"})) << preset << ": " << formula;
    }
  }
  ApplyFormatPreset(formats, "oracle");
  EXPECT_EQ(split("listagg(@1, ', ') within group (order by @2)"),
            "ttlAsIs listagg(@1, ', ') within group (order by @2)");
  formats.SetListFunction("no place()");
  EXPECT_EQ(AggregatePattern(agList, formats), "");
}

TEST(ColumnFormulas, AreJoinedWithTheBracketsThatTheyNeed) {
  const auto joined = [](TRFOperation operation, std::string_view left, std::string_view right) {
    return Joined(operation, left, BindingOf(left), right, BindingOf(right));
  };
  EXPECT_EQ(joined(opAdd, "a - b", "c * d"), "a - b + c * d");
  EXPECT_EQ(joined(opAdd, "a", "b - c"), "a + (b - c)");
  EXPECT_EQ(joined(opSubtract, "a", "b + c"), "a - (b + c)");
  EXPECT_EQ(joined(opMultiply, "a + b", "c"), "(a + b) * c");
  EXPECT_EQ(joined(opMultiply, "a / b", "c / d"), "a / b * (c / d)");
  EXPECT_EQ(joined(opDivide, "f(a + b)", "(c + d)"), "f(a + b) / (c + d)");
  EXPECT_EQ(joined(opDivide, "\"a + b\".[c-d]", "'+'"), "\"a + b\".[c-d] / '+'");
  for (const char* loose : {"case when a then b end", "a || b", "a = b", "not a", "a, b", "'a", "(a", "a) + (b"}) {
    EXPECT_EQ(BindingOf(loose), bdLoose) << loose;
  }
  EXPECT_EQ(BindingOf("-a * b"), bdSum);
}

class RFieldEditor : public testing::Test {
 protected:
  TDSField& Field(std::string_view name) const { return FieldOf(*Model, name); }
  void Create(std::initializer_list<const char*> names) { Editor->Create(Fields(names)); }
  std::vector<TDSField*> Fields(std::initializer_list<const char*> names) const {
    std::vector<TDSField*> fields;
    for (const char* name : names) fields.push_back(&Field(name));
    return fields;
  }
  /// "Caption: expression" of all columns, the current one in brackets.
  std::string Columns() const {
    std::string text;
    for (std::size_t i = 0; i < Editor->Fields().Count(); ++i) {
      const std::string column = Editor->Fields()[i].GetCaption() + ": " + Editor->GetExpression(i);
      if (!text.empty()) text += "; ";
      text += Editor->GetCurrent() == i ? "[" + column + "]" : column;
    }
    return text;
  }
  std::string Current() const { return Editor->GetExpression(*Editor->GetCurrent()); }
  std::string Fault() const { return Editor->GetFault(*Editor->GetCurrent()); }
  std::string Sorting() const {
    std::string text;
    for (const std::size_t index : Editor->Sorted()) {
      const TResultField& column = Editor->Fields()[index];
      text += column.GetCaption() + std::to_string(column.GetSortOrder()) + " ";
    }
    return text;
  }

  std::unique_ptr<TJDBStructure> Model = OrdersModel();
  TRFieldList Given{Model.get()};
  std::unique_ptr<TRFieldEditor> Editor = std::make_unique<TRFieldEditor>(Given, TTitles());
};

TEST_F(RFieldEditor, MakesMovesAndDeletesColumnsStepByStep) {
  int changes = 0;
  Editor->OnChange = [&changes] { ++changes; };
  Create({"Customers.City", "Orders.Total"});
  EXPECT_EQ(Columns(), "City: {Customers.City}; [Total: {Orders.Total}]");
  Editor->SetCurrent(0);
  Create({"Orders.Total"});
  Editor->New();
  EXPECT_EQ(Columns(), "City: {Customers.City}; Total 2: {Orders.Total}; [Result field: ]; Total: {Orders.Total}");
  EXPECT_EQ(Fault(), "The expression is empty.");
  EXPECT_EQ(Editor->FirstFault(), 2u);
  Editor->Move(0);
  Editor->Move(4);
  EXPECT_EQ(Editor->GetCurrent(), 0u);
  EXPECT_EQ(Editor->FirstFault(), 0u);
  Editor->Delete();
  Editor->SetCurrent(2);
  Editor->Delete();
  EXPECT_EQ(Columns(), "City: {Customers.City}; [Total 2: {Orders.Total}]");
  EXPECT_EQ(changes, 8) << "once each";
  const std::string last = Columns();
  while (Editor->CanUndo()) Editor->Undo();
  EXPECT_EQ(Columns(), "");
  EXPECT_EQ(Editor->GetCurrent(), std::nullopt);
  Editor->Delete();
  EXPECT_TRUE(Editor->CanRedo());
  while (Editor->CanRedo()) Editor->Redo();
  EXPECT_EQ(Columns(), last);
  EXPECT_TRUE(Given.Empty());
}

TEST_F(RFieldEditor, JoinsFieldsAndPutsFunctionsRoundThem) {
  EXPECT_EQ(Editor->Join(opAdd, Fields({"Orders.Total"})), "There is no result field to join a field to.");
  Create({"Order Details.Qty"});
  EXPECT_EQ(Editor->Join(opMultiply, Fields({"Products.Price"})), "");
  Editor->SetAggregate(agSum);
  EXPECT_EQ(Columns(), "[Quantity, Price (Sum): sum({Order Details.Qty} * {Products.Price})]");
  EXPECT_EQ(Editor->Join(opSubtract, Fields({"Item price", "Orders.Total"})), "");
  EXPECT_EQ(Current(),
            "sum({Order Details.Qty} * {Products.Price} - {Order_Details.Qty * Products.Price} - {Orders.Total})");
  Editor->SetAggregate(agCountDistinct);
  EXPECT_EQ(
      Current(),
      "count(distinct {Order Details.Qty} * {Products.Price} - {Order_Details.Qty * Products.Price} - {Orders.Total})");
  Editor->SetAggregate(agAsIs);
  EXPECT_EQ(Editor->Join(opDivide, Fields({"Item price"})), "");
  EXPECT_EQ(Current(),
            "({Order Details.Qty} * {Products.Price} - {Order_Details.Qty * Products.Price} - {Orders.Total}) / "
            "({Order_Details.Qty * Products.Price})");
  EXPECT_TRUE(Editor->HasOwnFormula());

  Editor->New();
  EXPECT_EQ(Editor->Join(opDivide, Fields({"Item price"})), "");
  Editor->SetAggregate(agMax);
  EXPECT_FALSE(Editor->HasOwnFormula());
  EXPECT_EQ(Editor->Join(opMultiply, Fields({"Quantity sold"})), "") << "an aggregate stays outside";
  EXPECT_EQ(Current(), "max({Order_Details.Qty * Products.Price}) * {sum(Order_Details.Qty)}");
  EXPECT_EQ(Editor->AggregateFault(agSum), "The expression is an aggregate already.");
  Editor->SetAggregate(agSum);
  EXPECT_EQ(Current(), "max({Order_Details.Qty * Products.Price}) * {sum(Order_Details.Qty)}");
  Editor->SetExpression("count(*)");
  EXPECT_EQ(Editor->GetAggregate(), agCount);
  EXPECT_EQ(Editor->AggregateFault(agAsIs), "All rows are counted: there is no value to take.");

  Create({"Customers.City"});
  ApplyFormatPreset(Model->SQLFormats(), "access");
  EXPECT_EQ(Editor->AggregateFault(agList), "This database has no function that lists values.");
  ApplyFormatPreset(Model->SQLFormats(), "postgresql");
  Editor->SetAggregate(agList);
  EXPECT_EQ(Current(), "string_agg(cast({Customers.City} as varchar), ', ')");
  EXPECT_TRUE(Editor->Fields()[2].GetAgregate());
  EXPECT_EQ(Editor->Fields()[2].GetCaption(), "City (List)");
  const auto all = Fields({"Customers.CustNo", "Customers.Company", "Customers.Active", "Orders.OrderNo",
                           "Orders.SaleDate", "Orders.Total", "Products.Price", "Products.PartNo", "Item price"});
  EXPECT_EQ(Editor->Join(opAdd, all), "An expression can refer to 9 fields at most.");
  EXPECT_EQ(Current(), "string_agg(cast({Customers.City} as varchar), ', ')");
}

TEST_F(RFieldEditor, ChecksExpressionsAsTheyAreTypedAndKeepsWhatIsWrong) {
  Create({"Orders.Total"});
  const struct {
    const char* text;
    const char* fault;
  } cases[] = {
      {"{Nothing}", "Unrecognized field \"Nothing\"."},
      {"2 * {Total", "The expression \"2 * {Total\" has no \"}\" for the \"{\" in column 5."},
      {"({Total}", "This is no expression: a ( is not closed."},
      {"{Total}, 1", "This is no expression: it holds a comma outside brackets."},
      {"(select 1)", "This is no expression: it holds a SELECT: allow SQL in queries."},
      {" ", "The expression is empty."},
  };
  for (const auto& [text, fault] : cases) {
    Editor->SetExpression(text);
    EXPECT_EQ(Fault(), fault);
    EXPECT_EQ(Current(), text);
  }
  EXPECT_EQ(Editor->JoinFault(), "The expression must be mended first.");
  EXPECT_EQ(Editor->AggregateFault(agSum), "The expression must be mended first.");
  EXPECT_TRUE(Editor->HasOwnFormula());
  EXPECT_EQ(Editor->Fields()[0].GetExpression(), "{Orders.Total}") << "the column keeps its formula";
  Create({"Customers.City"});
  EXPECT_EQ(Editor->FirstFault(), 0u);
  Editor->SetCurrent(0);
  Editor->SetExpression("1.2 * {total}");
  EXPECT_EQ(Columns(), "[Total: 1.2 * {Orders.Total}]; City: {Customers.City}");
  EXPECT_EQ(Editor->FirstFault(), std::nullopt);
  Editor->Undo();
  EXPECT_EQ(Current(), " ") << "a text is one step until the user goes on";

  TJQueryPanel panel;
  panel.SetDBStruct(Model.get());
  panel.SetAllowSQLFragments(true);
  panel.RFields().Add(Field("Orders.Total"));
  TRFieldEditor own(panel.RFields(), TTitles());
  own.SetExpression("(select 1)");
  EXPECT_EQ(own.GetFault(0), "") << "where the query may hold SQL";

  Given.New().SetFormula("(select 2)");
  TRFieldEditor given(Given, TTitles());
  EXPECT_EQ(given.GetProblem(0), "") << "the query has it already";
  given.SetExpression("(select 3)");
  EXPECT_EQ(given.FirstFault(), 0u);
  given.SetExpression("(select 2)");
  EXPECT_EQ(given.FirstFault(), std::nullopt);
}

TEST_F(RFieldEditor, CaptionsFollowTheFieldsUntilTheUserNamesThem) {
  Create({"Orders.Total"});
  Create({"Orders.Total"});
  Editor->SetAggregate(agAverage);
  EXPECT_EQ(Editor->GetAlias(1), "Total_Average");
  EXPECT_EQ(Columns(), "Total: {Orders.Total}; [Total (Average): avg({Orders.Total})]");
  Editor->SetAggregate(agAsIs);
  EXPECT_EQ(Editor->Fields()[1].GetCaption(), "Total 2");
  for (const char* typed : {"M", "Me", "total"}) Editor->SetCaption(typed);
  EXPECT_EQ(Editor->Fields()[1].GetCaption(), "total 2");
  Editor->SetCaption("Mean");
  Editor->SetAggregate(agSum);
  EXPECT_EQ(Editor->Fields()[1].GetCaption(), "Mean");
  Editor->SetCaption("Total 2025");
  Editor->SetAggregate(agMax);
  EXPECT_EQ(Editor->Fields()[1].GetCaption(), "Total 2025");
  for (int step = 0; step < 2; ++step) Editor->Undo();
  Editor->Undo();
  Editor->Undo();
  EXPECT_EQ(Editor->Fields()[1].GetCaption(), "Total 2") << "typing is one step";
  Editor->Redo();
  Editor->SetCaption("");
  EXPECT_EQ(Editor->Fields()[1].GetCaption(), "Total 2");
  Editor->SetHidden(1, true);
  EXPECT_EQ(Editor->GetAlias(1), "");
}

TEST_F(RFieldEditor, KeepsTheSortedColumnsNumbered) {
  for (const char* name : {"Customers.City", "Customers.Company", "Orders.Total", "Products.Price"}) {
    Given.Add(Field(name)).SetSorting(stAscending);
  }
  Given[0].SetSortOrder(7);
  Given[2].SetSorting(stNoSort);
  Editor = std::make_unique<TRFieldEditor>(Given, TTitles());
  EXPECT_EQ(Sorting(), "Company1 Price2 City3 ");
  Editor->SetSorting(2, stDescending);
  EXPECT_EQ(Sorting(), "Company1 Price2 City3 Total4 ");
  Editor->MoveSorted(3, 0);
  Editor->SetSorting(3, stNoSort);
  EXPECT_EQ(Sorting(), "Total1 Company2 City3 ");
  Editor->SetCurrent(1);
  Editor->Delete();
  EXPECT_EQ(Sorting(), "Total1 City2 ");
  Editor->Move(0);
  EXPECT_EQ(Sorting(), "Total1 City2 ") << "the order of the columns is another one";
  Editor->SetJustSorting(true);
  EXPECT_TRUE(Editor->Fields().GetJustSorting());
  Editor->Undo();
  EXPECT_FALSE(Editor->Fields().GetJustSorting());
}

TEST_F(RFieldEditor, SurvivesWhatHappensToTheModel) {
  Create({"Orders.Total", "Customers.City"});
  Model->DelField(10);
  EXPECT_EQ(Columns(), "Total: {11}; [City: {Customers.City}]");
  EXPECT_FALSE(Editor->CanUndo()) << "the history holds the field";
  EXPECT_EQ(Editor->GetWarning(0) + Editor->GetWarning(1), "Unrecognized field \"11\".");
  EXPECT_EQ(Editor->FirstFault(), std::nullopt);
  Editor->SetExpression("{Now}");
  Model->AddField(jfkVirtual, "now()", "Now", nullptr);
  EXPECT_EQ(Fault(), "") << "the model has got the field";
  Editor->SetCaption("Town");
  Model.reset();
  EXPECT_EQ(Columns(), "");
  EXPECT_EQ(Editor->GetModel(), nullptr);
  EXPECT_FALSE(Editor->CanUndo());
}

}  // namespace
}  // namespace tolvi
