#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/query/explain.h>
#include <tolvi/query/paramvalues.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querycheck.h>

namespace tolvi {
namespace {

/// A query on the orders model, to which each test adds what it is about.
class QueryInWords : public testing::Test {
 protected:
  QueryInWords() {
    FPanel.SetDBStruct(FModel.get());
    FPanel.SetActive(true);
    FPanel.RFields().Add(Field("Customers.Company"));
  }
  TDSField& Field(std::string_view name) { return FieldOf(*FModel, name); }
  TSimpleCond& Add(TFilterBracket& bracket, std::string_view field, std::string_view op, std::string_view value1,
                   std::string_view value2 = {}) {
    return FPanel.AddSimpleCond(bracket, Field(field), OperatorOf(*FModel, op), value1, value2);
  }
  TSimpleCond& Add(std::string_view field, std::string_view op, std::string_view value1, std::string_view value2 = {}) {
    return Add(FPanel.RootBracket(), field, op, value1, value2);
  }
  std::string Sentences() { return Explain(FPanel).Joined("\n"); }
  std::string Findings() {
    std::string lines;
    for (const TCheckFinding& finding : CheckQuery(FPanel)) {
      lines += (finding.Severity == csError ? "error [" : "warning [") + finding.Section + "] " + finding.Place + ": " +
               finding.Text + "\n";
    }
    return lines;
  }
  /// The text of a query for customers with more than a quantity, a parameter where `value` is empty.
  TStrings SubQuery(std::string_view value) {
    TJQueryPanel inner;
    inner.SetDBStruct(FModel.get());
    inner.RFields().Add(Field("Customers.CustNo"));
    TSimpleCond& condition =
        inner.AddSimpleCond(inner.RootBracket(), Field("Orders.Total"), OperatorOf(*FModel, "GreaterThan"), value);
    condition.SetValueIsParam(1, value.empty());
    TStrings lines;
    inner.SaveToStrings(lines);
    return lines;
  }

  std::unique_ptr<TJDBStructure> FModel = OrdersModel();
  TJQueryPanel FPanel;
};

TEST_F(QueryInWords, IndentsBracketsAndMarksWhatIsOff) {
  Add("Customers.City", "InList", "Oslo,\"Den Haag\"");
  TFilterBracket& bracket = FPanel.AddBracket(FPanel.RootBracket());
  bracket.SetLinkType(fltNone);
  Add(bracket, "Orders.SaleDate", "Between", "2024-01-01", "2024-12-31").SetEnabled(false);
  Add(bracket, "Customers.Active", "Equal", "1");
  Add(bracket, "Customers.Company", "Equal", "").SetEnabled(false);
  FPanel.AddCustomCondition(FPanel.RootBracket(), FModel->Conditions()[1]).SetValue(1, "2024-05-01");
  FPanel.RFields().AddByExpression("{Item price} * 2").SetCaption("Double");
  FPanel.RFields()[0].SetSorting(stDescending);
  FPanel.SetSQLOptions({soSelectDistinct});
  EXPECT_EQ(Sentences(), R"(Choose records where all of the following apply
  City is in list Oslo, Den Haag
  none of the following apply
    (off) Sale date is between 2024-01-01 and 2024-12-31
    Active is equal to True
    (off) Company is equal to <empty>
  Sold between 2024-05-01 and <empty>
Result fields, each row once:
  Company
  Double = {Item price} * 2
Sorted fields:
  Company (Descending))");
}

TEST_F(QueryInWords, ShowsAmbiguousFieldsWithTheirGroup) {
  FModel->FieldGroups().AddGroup("Buyers").Add(Field("Customers.City"));
  Field("Products.Description").SetDisplayName("city");
  EXPECT_EQ(ExplainCondition(Add("Customers.City", "Equal", "a\r\nb")), "Buyers.City is equal to a  b");
  EXPECT_EQ(ExplainCondition(Add("Products.Description", "IsNull", "")), "city is null");
}

TEST_F(QueryInWords, NumbersTheParametersOfSubQueriesAsTheStatementDoes) {
  Add("Customers.City", "Contains", "").SetValueIsParam(1, true);
  Add("Customers.CustNo", "InQuery", "").SetSubQuery(SubQuery(""));
  EXPECT_EQ(Sentences(), R"(Choose records where all of the following apply
  City contains <Param1>
  Customer no is in the sub-query <Sub-query>
    Choose records where all of the following apply
      Total is greater than <Param2>
    Result fields:
      Customer no
Result fields:
  Company)");
  EXPECT_FALSE(SetParamValue(FPanel, "Param3", "1"));
  EXPECT_TRUE(SetParamValue(FPanel, "param2", "99.5"));
  EXPECT_TRUE(SetParamValue(FPanel, "Param1", "Oslo"));
  const std::vector<TParamInfo> params = ListParams(FPanel);
  ASSERT_EQ(params.size(), 2U);
  EXPECT_EQ(params[0].Sentence + "|" + params[0].FullValue, "City contains <Param1: Oslo>|%Oslo%");
  EXPECT_EQ(params[0].Prompt + "|" + params[0].Question, "|City contains …");
  EXPECT_EQ(params[1].Sentence + "|" + params[1].FullValue, "Total is greater than <Param2: 99.5>|99.5");
  const TBoundStatement statement = FPanel.GetBoundStatement();
  ASSERT_EQ(statement.Values.size(), 2U);
  EXPECT_EQ(statement.Values[0].Name + statement.Values[1].Name, "Param1Param2");
  EXPECT_EQ(statement.Values[1].Text, "99.5");
}

TEST_F(QueryInWords, CheckFindsNothingInASoundQuery) {
  Add("Customers.CustNo", "InQuery", "").SetSubQuery(SubQuery("10"));
  EXPECT_EQ(Findings(), "");
}

TEST_F(QueryInWords, CheckTellsEachFaultOnceAndAtItsRow) {
  Add("Orders.Total", "GreaterThan", "much");
  Add("Orders.SaleDate", "GreaterThan", "").SetEnabled(false);
  Field("Customers.City").SetUseInConditions(false);
  Add("Customers.City", "Equal", "Oslo");
  Field("Customers.City").RemoveOperator(OperatorOf(*FModel, "Equal"));
  Field("Customers.Company").SetUseInResult(false);
  Add("Customers.CustNo", "InQuery", "").SetSubQuery(SubQuery("ten"));
  FPanel.AddBracket(FPanel.RootBracket());
  EXPECT_EQ(Findings(), R"(error [Row.1] Row .1: Field "Total": "much" is not a number such as 12.5
warning [Row.2] Row .2: value 1 of "Sale date" is empty: 0, False or the first day stands for it
warning [Row.3] Row .3: the model keeps field "City" out of conditions
warning [Row.3] Row .3: field "City" does not offer operator "Equal"
error [Row.4] Row .4, sub-query, Row .1: Field "Total": "ten" is not a number such as 12.5
warning [Row.5] Row .5: the bracket is empty
warning [RField1] Result column "Company": the model keeps field "Company" out of result columns
)");
}

TEST_F(QueryInWords, CheckAndSentencesNameWhatTheModelLacks) {
  Add("Customers.City", "Equal", "Oslo");
  Add("Orders.SaleDate", "Equal", "1").SetEnabled(false);
  FModel->DelField(2);
  FModel->DelField(0);
  FPanel.LoadFromText(ReplaceStr(FPanel.SaveToText(), "Fields=2\r\n", "Fields=2,77\r\n"));
  FModel->DeleteOperatorByName("Equal");
  EXPECT_EQ(Sentences(), R"(Choose records where all of the following apply
  <Unrecognized field "3"> <Equal> Oslo
  (off) Sale date <Equal> 1899-12-31
Result fields:
  Company = {Customers.Company})");
  EXPECT_EQ(Findings(), R"(error [Row.1] Row .1: Unrecognized field "3"
warning [Row.2] Row .2: Unrecognized operator "Equal"
error [RField1] Result column "Company": Unrecognized field "77"
)");
}

TEST_F(QueryInWords, CheckTellsWhatKeepsTheStatementFromBeingBuilt) {
  FModel->DelLink(1);
  Add("Products.Price", "GreaterThan", "1");
  EXPECT_EQ(Findings(), "error [Row.1] Row .1: No path between table \"Customers\" and \"$s\"\n");
}

}  // namespace
}  // namespace tolvi
