#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/rowerror.h>

namespace tolvi {
namespace {

/// A panel on the model of orders, with short ways to add conditions and columns.
class Statement : public testing::Test {
 protected:
  Statement() {
    panel.SetDBStruct(model.get());
    panel.SetActive(true);
  }
  TSimpleCond& Where(std::string_view field, std::string_view op, std::string_view value1 = {},
                     std::string_view value2 = {}, TFilterBracket* bracket = nullptr) {
    return panel.AddSimpleCond(bracket != nullptr ? *bracket : panel.RootBracket(), FieldOf(*model, field),
                               OperatorOf(*model, op), value1, value2);
  }
  TFilterBracket& Bracket(TFilterLinkType linkType, TFilterBracket* in = nullptr) {
    TFilterBracket& bracket = (in != nullptr ? *in : panel.RootBracket()).AddNewBracket();
    bracket.SetLinkType(linkType);
    return bracket;
  }
  TResultField& Column(std::string_view field, TSortingType sorting = stNoSort) {
    TResultField& column = panel.RFields().Add(FieldOf(*model, field));
    column.SetSorting(sorting);
    return column;
  }
  /// The statement, with lines joined by "|".
  std::string SQL() { return panel.GetSQL().Joined("|"); }
  std::string ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const EQueryRowError& error) {
      return error.RowID() + " " + error.Message();
    } catch (const EJQueryPanelError& error) {
      return error.Message();
    }
    return "no error";
  }
  std::string Warnings() {
    std::string result;
    for (const TQueryWarning& warning : panel.QResult().Warnings()) result += warning.RowID + " " + warning.Text + "\n";
    return result;
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
};

TEST_F(Statement, WithTheMainTableOnlyHasThreeLines) {
  EXPECT_EQ(ErrorOf([&] { SQL(); }), "Not enough information for building query");
  EXPECT_EQ(ErrorOf([&] { panel.QResult().GetFromClause(); }), "Query was not built properly");
  model->SetDefaultMainTable("customers");
  EXPECT_EQ(SQL(), "SELECT *|FROM |     Customers");
  panel.SetSQLTopClause("5");
  panel.SetSQLLimitClause("10");
  EXPECT_EQ(SQL(), "SELECT  TOP 5 *|FROM |     Customers|LIMIT 10");
}

TEST_F(Statement, LaysOutJoinsConditionsAndSorting) {
  Column("Customers.Company");
  Column("Orders.Total", stDescending);
  Where("Orders.Total", "GreaterThan", "100");
  Where("Customers.City", "StartsWith", "O'Har");
  EXPECT_EQ(SQL(),
            "SELECT Customers.Company, Orders.Total|FROM |     Customers INNER JOIN  Orders ON Orders.CustNo = "
            "Customers.CustNo|WHERE|(|Orders.Total >100 AND|Customers.City like 'O''Har%'|)|ORDER BY 2 DESC");
  panel.SetSQLSyntax(ssSQL1);
  EXPECT_EQ(SQL(),
            "SELECT Customers.Company, Orders.Total|FROM |     Customers, |     Orders|WHERE|   Orders.CustNo = "
            "Customers.CustNo AND|(|Orders.Total >100 AND|Customers.City like 'O''Har%'|)|ORDER BY 2 DESC");
  EXPECT_EQ(panel.GetQueryText().find("\r\nORDER BY 2 DESC"), panel.GetQueryText().size() - 17);
}

TEST_F(Statement, FindsTheTablesInBetween) {
  Column("Customers.Company");
  Column("Products.Description");
  EXPECT_EQ(panel.GetSQL().Joined("|"),
            "SELECT Customers.Company, Products.Description as Product|FROM |"
            "     Customers INNER JOIN  Orders ON Orders.CustNo = Customers.CustNo|"
            "     INNER JOIN  \"Order Details\" Order_Details ON Order_Details.OrderNo = Orders.OrderNo|"
            "     INNER JOIN  Products ON Order_Details.PartNo = Products.PartNo");
  panel.SetSQLOptions({soBracketJoins, soBracketConditions});
  Where("Customers.Active", "Equal", "yes");
  EXPECT_EQ(SQL(),
            "SELECT Customers.Company, Products.Description as Product|FROM |"
            "     (Customers INNER JOIN |         (Orders INNER JOIN |             (\"Order Details\" Order_Details "
            "INNER JOIN  Products|                 ON Order_Details.PartNo = Products.PartNo)|"
            "             ON Order_Details.OrderNo = Orders.OrderNo)|         ON Orders.CustNo = Customers.CustNo)|"
            "WHERE|(|(Customers.Active = 'true')|)");
}

TEST_F(Statement, OuterLinksTakeTheSideFromWhichTheyAreReached) {
  model->GetLink(0).SetLinkType(ltOuterLeft);
  Column("Customers.Company");
  Column("Orders.Total");
  EXPECT_EQ(panel.GetSQL()[2], "     Customers RIGHT OUTER JOIN  Orders ON Orders.CustNo = Customers.CustNo");
  model->GetLink(0).SetLinkType(ltOuterRight);
  EXPECT_EQ(panel.GetSQL()[2], "     Customers LEFT OUTER JOIN  Orders ON Orders.CustNo = Customers.CustNo");
  model->SQLFormats().SetUseOuterKeyword(false);
  EXPECT_EQ(panel.GetSQL()[2], "     Customers LEFT JOIN  Orders ON Orders.CustNo = Customers.CustNo");
  model->SQLFormats().SetUseOuterKeyword(true);
  panel.SetSQLSyntax(ssOracle);
  EXPECT_EQ(panel.GetSQL()[5], "   Orders.CustNo (+) = Customers.CustNo");
  panel.SetSQLSyntax(ssSQL1);
  EXPECT_EQ(panel.GetSQL()[5], "   Orders.CustNo = Customers.CustNo");
  EXPECT_EQ(Warnings(),
            " The outer join of \"Orders\" and \"Customers\" became an inner one: this syntax has no outer joins\n");
  model->GetLink(0).SetLinkType(ltOuterFull);
  panel.SetSQLSyntax(ssSQL2);
  EXPECT_EQ(panel.GetSQL()[2], "     Customers FULL JOIN  Orders ON Orders.CustNo = Customers.CustNo");
}

TEST_F(Statement, BracketsOfEveryKindNest) {
  TFilterBracket& any = Bracket(fltAny);
  Where("Customers.CustNo", "Equal", "1", {}, &any);
  TFilterBracket& none = Bracket(fltNone, &any);
  Where("Customers.CustNo", "Equal", "2", {}, &none);
  Where("Customers.CustNo", "Equal", "3", {}, &none);
  TFilterBracket& notAll = Bracket(fltNotAll);
  Where("Customers.CustNo", "IsNull", {}, {}, &notAll);
  Where("Customers.CustNo", "NotEqual", "4", {}, &notAll);
  const std::string c = "Customers.CustNo";
  EXPECT_EQ(SQL().substr(SQL().find("WHERE")), "WHERE|(|(|" + c + " = 1 OR|NOT (|" + c + " = 2 OR|" + c +
                                                   " = 3|)|) AND|NOT (|" + c + " is null AND|" + c + " <> 4|)|)");
  for (TFilterRow& row : none) row.SetEnabled(false);
  EXPECT_FALSE(none.GetEnabled());
  notAll.SetEnabled(false);
  EXPECT_EQ(SQL().substr(SQL().find("WHERE")), "WHERE|(|(|" + c + " = 1|)|)")
      << "what writes nothing leaves no word behind";
}

TEST_F(Statement, AggregatesBringGroupByAndHavingInOneLine) {
  Column("Customers.Company");
  Column("Quantity sold", stDescending);
  Where("Quantity sold", "GreaterThan", "10");
  Where("Customers.City", "Equal", "Oslo");
  Where("Quantity sold", "LessThan", "20");
  TFilterBracket& none = Bracket(fltNone);
  Where("Quantity sold", "Equal", "15", {}, &none);
  TFilterBracket& any = Bracket(fltAny, &none);
  Where("Quantity sold", "Equal", "17", {}, &any);
  Where("Customers.City", "Equal", "Bergen", {}, &none);
  const TStrings sql = panel.GetSQL();
  EXPECT_EQ(sql[sql.Count() - 3], "GROUP BY Customers.Company");
  EXPECT_EQ(sql[sql.Count() - 2],
            "HAVING ( sum(Order_Details.Qty) >10 AND sum(Order_Details.Qty) < 20 AND NOT ( sum(Order_Details.Qty) = 15 "
            "OR( sum(Order_Details.Qty) = 17 ) ) )");
  EXPECT_EQ(sql[sql.Count() - 1], "ORDER BY 2 DESC");
  EXPECT_EQ(Warnings(),
            ".4.3 Left out: a condition that is not on an aggregate stands in a bracket of conditions on aggregates; "
            "move it out of the bracket\n");
}

TEST_F(Statement, SortTermsFollowTheSortOrderAndOptions) {
  Column("Customers.City", stAscending).SetSortOrder(2);
  Column("Customers.Company", stDescending).SetSortOrder(1);
  Column("Customers.CustNo", stAscending).SetSortOrder(1);
  EXPECT_EQ(panel.GetSQL()[3], "ORDER BY 2 DESC, 3 ASC, 1 ASC");
  panel.SetSQLOptions({soSortByNames, soSelectDistinct});
  EXPECT_EQ(SQL(),
            "SELECT DISTINCT Customers.City, Customers.Company, Customers.CustNo as Customer_no|FROM |     Customers|"
            "ORDER BY Customers.Company DESC, Customers.CustNo ASC, Customers.City ASC");
  panel.SetSQLOptions({});
  panel.RFields().SetJustSorting(true);
  EXPECT_EQ(panel.GetSQL()[0], "SELECT *");
  EXPECT_EQ(panel.GetSQL()[3], "ORDER BY Customers.Company DESC, Customers.CustNo ASC, Customers.City ASC");
}

TEST_F(Statement, ValuesTakeTheFormOfTheirType) {
  Where("Orders.SaleDate", "Between", "36526", "2000-12-31");
  Where("Orders.Total", "InList", "1,2.50,\"3\"");
  Where("Customers.Company", "Contains", "100%");
  Where("Customers.Company", "NotInList", "\"a,b\",c'd");
  model->OperatorByName("Equal")->SetCaseInsensative(true);
  Where("Customers.City", "Equal", "OSLO");
  EXPECT_EQ(SQL().substr(SQL().find("WHERE")),
            "WHERE|(|Orders.SaleDate between '2000-01-01' and '2000-12-31' AND|Orders.Total in (1,2.50,3) AND|"
            "Customers.Company like '%100%%' AND|NOT (Customers.Company in ('a,b','c''d')) AND|"
            "LOWER(Customers.City) = LOWER('OSLO')|)");
  panel.RootBracket().GetRow(1).SetEnabled(false);
  panel.SetSQLSyntax(ssOracle);
  EXPECT_NE(SQL().find("between TO_DATE('01-01-2000 00:00:00', 'dd-mm-yyyy hh24:mi:ss') and TO_DATE('31-12"),
            std::string::npos);
  panel.SetSQLSyntax(ssNexusDB);
  EXPECT_NE(SQL().find("between DATE '2000-01-01' and DATE '2000-12-31'"), std::string::npos);
}

TEST_F(Statement, IsTheSameAfterAChangeOfOneValueAsWhenBuiltAnew) {
  Column("Customers.Company");
  TSimpleCond& total = Where("Orders.Total", "GreaterThan", "100");
  Where("Customers.City", "Equal", "Oslo");
  const std::string before = panel.GetQueryText();
  total.SetValue(1, "250");
  const std::string changed = panel.GetQueryText();
  EXPECT_NE(before, changed);
  panel.SetSQLSyntax(ssSQL1);
  panel.SetSQLSyntax(ssSQL2);
  EXPECT_EQ(panel.GetQueryText(), changed);
  model->TableByName(tnAlias, "Orders")->SetTableAlias("o");
  EXPECT_NE(panel.GetQueryText().find("o.Total >250"), std::string::npos) << "the model's changes are seen";
  total.SetValue(1, "none");
  EXPECT_EQ(ErrorOf([&] { SQL(); }).substr(0, 16), ".1 Field \"Total\"");
  total.SetValue(1, "250");
  EXPECT_NE(panel.GetQueryText().find("o.Total >250"), std::string::npos);
}

TEST_F(Statement, ParametersAndBoundValuesStandForTheSameLiterals) {
  Column("Customers.Company");
  TSimpleCond& company = Where("Customers.Company", "Contains", "ab");
  Where("Orders.SaleDate", "Between", "36526", "36527");
  TSimpleCond& qty = Where("Order Details.Qty", "InList", "3,4");
  Where("Quantity sold", "GreaterThan", "9");
  company.SetValueIsParam(1, true);
  EXPECT_NE(SQL().find("Customers.Company like :Param1 AND"), std::string::npos);
  EXPECT_EQ(company.GetParam(1)->GetFullValue(), "%ab%");
  const TBoundStatement bound = panel.GetBoundStatement(msDollarNumber);
  EXPECT_NE(bound.SQL.find("Customers.Company like $1 AND\r\nOrders.SaleDate between $2 and $3 AND\r\n"
                           "Order_Details.Qty in ($4,$5)\r\n)\r\nHAVING ( sum(Order_Details.Qty) >$6 )"),
            std::string::npos)
      << bound.SQL;
  ASSERT_EQ(bound.Values.size(), 6u);
  EXPECT_EQ(bound.Values[0].Name, "Param1");
  EXPECT_EQ(std::get<std::string>(bound.Values[0].Value), "%ab%");
  EXPECT_EQ(std::get<double>(bound.Values[2].Value), 36527);
  EXPECT_EQ(bound.Values[2].Text, "2000-01-02");
  EXPECT_EQ(std::get<std::int64_t>(bound.Values[4].Value), 4);
  company.GetParam(1)->SetValueFormat("@v, or @v's");
  EXPECT_EQ(std::get<std::string>(panel.GetBoundStatement().Values[0].Value), company.GetParam(1)->GetFullValue());
  qty.SetValueIsParam(1, true);
  qty.GetParam(1)->SetParamName("Sizes");
  qty.GetParam(1)->SetValue("");
  EXPECT_NE(SQL().find("in (:Sizes)"), std::string::npos);
  const TBoundStatement named = panel.GetBoundStatement(msColonName);
  EXPECT_NE(named.SQL.find("between :Value1 and :Value2 AND\r\nOrder_Details.Qty in (:Sizes)"), std::string::npos);
  EXPECT_TRUE(named.Values[3].IsMissing);
  // One name for two values is wrong only where names are the markers.
  company.GetParam(1)->SetParamName("Sizes");
  EXPECT_EQ(panel.GetBoundStatement().Values.size(), 5u);
  EXPECT_EQ(ErrorOf([&] { panel.GetBoundStatement(msColonName); }),
            ".3 Two parameters are called \"Sizes\" and stand for different values: rename one of them");
  company.GetParam(1)->SetParamName("Value1");
  qty.SetValueIsParam(1, false);
  qty.SetValue(1, "5");
  EXPECT_EQ(panel.GetBoundStatement(msColonName).Values[1].Name, "Value2");
}

TEST_F(Statement, SubQueriesAreBuiltIntoTheirPlace) {
  TJQueryPanel inner;
  inner.SetDBStruct(model.get());
  inner.SetActive(true);
  inner.RFields().Add(FieldOf(*model, "Orders.CustNo"));
  TSimpleCond& total =
      inner.AddSimpleCond(inner.RootBracket(), FieldOf(*model, "Orders.Total"), OperatorOf(*model, "GreaterThan"), "5");
  total.SetValueIsParam(1, true);
  TStrings text;
  inner.SaveToStrings(text);
  TSimpleCond& outer = Where("Customers.CustNo", "InQuery");
  EXPECT_EQ(ErrorOf([&] { SQL(); }),
            ".1 Field \"Customer no\": no sub-query is chosen: choose one or switch the row off");
  outer.SetSubQuery(text);
  outer.SetSubQueryOptions({soSelectDistinct});
  TSimpleCond& city = Where("Customers.City", "Equal", "x");
  city.SetValueIsParam(1, true);
  EXPECT_EQ(
      panel.GetQueryText(),
      "SELECT *\r\nFROM \r\n     Customers\r\nWHERE\r\n(\r\nCustomers.CustNo in (SELECT DISTINCT Orders.CustNo as "
      "Customer\r\nFROM \r\n     Orders\r\nWHERE\r\n(\r\nOrders.Total >:Param2\r\n)) AND\r\nCustomers.City = "
      ":Param1\r\n)");
  const TBoundStatement bound = panel.GetBoundStatement();
  ASSERT_EQ(bound.Values.size(), 2u);
  EXPECT_EQ(bound.Values[0].Name, "Param2");
  EXPECT_NE(panel.GetQueryText().find("Orders.Total >:Param2"), std::string::npos) << "numbers do not grow";
  TFilterBracket& mixed = inner.RootBracket().AddNewBracket();
  inner.AddSimpleCond(mixed, FieldOf(*model, "Orders.OrderNo"), OperatorOf(*model, "Equal"), "1");
  inner.AddSimpleCond(mixed, FieldOf(*model, "Quantity sold"), OperatorOf(*model, "Equal"), "2");
  inner.SaveToStrings(text);
  outer.SetSubQuery(text);
  for (int build = 0; build < 2; ++build) {
    SQL();
    EXPECT_EQ(Warnings(),
              ".1 In the sub-query: Left out: a condition on an aggregate stands in a bracket of other conditions; "
              "move it out of the bracket\n");
  }
  inner.AddSimpleCond(inner.RootBracket(), FieldOf(*model, "Orders.Total"), OperatorOf(*model, "Equal"), "much");
  inner.SaveToStrings(text);
  outer.SetSubQuery(text);
  EXPECT_EQ(ErrorOf([&] { SQL(); }), ".1 Field \"Total\": \"much\" is not a number such as 12.5");
}

TEST_F(Statement, TellsWhereConditionsOnAggregatesChangeTheMeaning) {
  const std::string left =
      "Left out: a condition that is not on an aggregate stands in a bracket of conditions on "
      "aggregates; move it out of the bracket\n";
  const std::string noGroups =
      " The conditions on aggregates take all rows as one group: only a column that is an "
      "aggregate groups them by the other columns\n";
  const std::string split =
      "\" holds for conditions on aggregates and for the others apart: both parts must be "
      "fulfilled\n";
  Column("Customers.City");
  Where("Quantity sold", "Equal", "1");
  SQL();
  EXPECT_EQ(Warnings(), noGroups);
  Column("Quantity sold");
  TSimpleCond& city = Where("Customers.City", "Equal", "Oslo");
  for (const auto& [linkType, warning] :
       {std::pair(fltAll, std::string()), std::pair(fltAny, " The root bracket \"any" + split),
        std::pair(fltNone, std::string()), std::pair(fltNotAll, " The root bracket \"not all" + split)}) {
    panel.RootBracket().SetLinkType(linkType);
    SQL();
    EXPECT_EQ(Warnings(), warning);
  }
  city.SetEnabled(false);
  TFilterBracket& bracket = Bracket(fltAll);
  Where("Quantity sold", "Equal", "3", {}, &bracket);
  Bracket(fltAll, &bracket).SetEnabled(true);
  TSimpleCond& inner = Where("Customers.City", "Equal", "Rome", {}, &Bracket(fltAll, &bracket));
  SQL();
  EXPECT_EQ(Warnings(), ".3.3 " + left);
  inner.SetEnabled(false);
  SQL();
  EXPECT_EQ(Warnings(), "");
  panel.BuildFilters();
  EXPECT_EQ(Warnings(),
            ".1 Left out: a table filter cannot hold a condition on an aggregate\n"
            ".3.1 Left out: a table filter cannot hold a condition on an aggregate\n");
}

TEST_F(Statement, HoldsWhatWasAddedAndSetAfterTheBuild) {
  Column("Customers.Company");
  EXPECT_EQ(SQL(), "SELECT Customers.Company|FROM |     Customers");
  TQueryResult& result = panel.QResult();
  panel.SetSQLOptions({soSelectDistinct, soBracketConditions});
  panel.SetSQLTopClause("3");
  panel.SetSQLLimitClause("7");
  result.AddCondition("1=1");
  result.AddHavingCondition("2=2");
  EXPECT_EQ(result.GetSQL().Joined("|"),
            "SELECT DISTINCT  TOP 3 Customers.Company|FROM |     Customers|WHERE|(1=1)|HAVING  (2=2)|LIMIT 7");
  EXPECT_EQ(SQL(), "SELECT DISTINCT  TOP 3 Customers.Company|FROM |     Customers|LIMIT 7");
}

TEST_F(Statement, PlaceholdersOfTablesAndTheHandlerHaveTheirSay) {
  model->AddOperator("Odd", "is odd", "exists (select 1 from @t where '@t.@m' <> @f and @f = @1)", "", {ftInteger});
  Where("Orders.OrderNo", "Odd", "7");
  model->SetDefaultMainTable("Customers");
  EXPECT_NE(SQL().find("exists (select 1 from Orders where 'Orders.Customers' <> Orders.OrderNo and Orders.OrderNo = "
                       "7)"),
            std::string::npos);
  panel.OnBuildSQL = [](TFilterCond& condition, std::string& text) {
    if (condition.GetValue(1) == "7") text = "1=1";
  };
  EXPECT_NE(SQL().find("(|1=1|)"), std::string::npos);
  panel.OnBuildSQL = {};
  EXPECT_EQ(SQL().find("1=1"), std::string::npos);
}

TEST_F(Statement, FiltersHoldTheConditionsOfEachTable) {
  Where("Orders.Total", "GreaterThan", "100");
  Where("Customers.City", "Equal", "Oslo");
  Where("Orders.OrderNo", "IsNull");
  Where("Customers.CustNo", "Equal", "1", {}, &Bracket(fltAny));
  Where("Customers.CustNo", "Equal", "2", {}, static_cast<TFilterBracket*>(panel.RootBracket().LastRow()));
  panel.BuildFilters();
  ASSERT_EQ(panel.TableFilters().Count(), 2u);
  EXPECT_EQ(panel.TableFilters()[0].Filter, "Total >100 AND OrderNo is null");
  EXPECT_EQ(panel.TableFilters()[1].Filter, "City = 'Oslo' AND CustNo = 1 AND CustNo = 2");
  EXPECT_EQ(Warnings(),
            ".4.1 A table filter cannot keep the meaning of the bracket \"any\"\n"
            ".4.2 A table filter cannot keep the meaning of the bracket \"any\"\n");
  panel.ClearRows();
  Where("Item price", "GreaterThan", "5");
  panel.BuildFilters();
  EXPECT_EQ(Warnings(), ".1 The filter of the table \"Order Details\" holds a condition on other tables, too\n");
  panel.ClearRows();
  Where("Orders.Total", "GreaterThan", "100");
  Where("Customers.City", "Equal", "Oslo");
  panel.SetSQLOptions({soFilter});
  EXPECT_NE(SQL().find("Orders.Total >100"), std::string::npos) << "two tables: names stay qualified";
}

TEST_F(Statement, TablesWithoutAPathAreAnErrorWithTheFirstNameOnly) {
  model->AddTable("Island", "Island");
  model->AddField(jfkData, "Tree", "Tree", &model->GetTable(4));
  Column("Customers.Company");
  Column("Island.Tree");
  EXPECT_EQ(ErrorOf([&] { SQL(); }), "No path between table \"Customers\" and \"$s\"");
}

TEST_F(Statement, WhatTheModelLosesIsAnErrorOfTheEnabledRow) {
  TSimpleCond& condition = Where("Customers.City", "Equal", "Oslo");
  Where("Customers.Company", "IsNull");
  const std::int32_t id = condition.GetField().GetID();
  for (std::size_t i = 0; i < model->Fields().Count(); ++i) {
    if (&model->GetField(i) == &condition.GetField()) model->DelField(i);
  }
  EXPECT_EQ(condition.GetFieldID(), id);
  EXPECT_EQ(ErrorOf([&] { SQL(); }), ".1 Unrecognized field \"3\"");
  condition.SetEnabled(false);
  EXPECT_NE(SQL().find("Customers.Company is null"), std::string::npos);
}

}  // namespace
}  // namespace tolvi
