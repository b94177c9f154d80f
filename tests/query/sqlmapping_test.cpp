#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/global.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/templatematch.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {
namespace {

/// A panel on the model of orders that reads statements.
class SQLMapping : public testing::Test {
 protected:
  SQLMapping() {
    panel.SetDBStruct(model.get());
    panel.SetActive(true);
  }
  TSimpleCond& Row(std::size_t index) { return static_cast<TSimpleCond&>(panel.RootBracket().GetRow(index)); }
  /// The conditions in sentences, joined by "|".
  std::string Import(std::string_view sql) {
    panel.ParseSQL(sql);
    std::string rows;
    for (const std::string& line : Explain(panel)) {
      if (line.starts_with("Result")) break;
      if (line.starts_with("  ")) rows += (rows.empty() ? "" : "|") + line.substr(2);
    }
    return rows;
  }
  /// The conditions of "select * from TABLE where CONDITION".
  std::string Where(std::string_view table, std::string_view condition) {
    return Import("select * from " + std::string(table) + " where " + std::string(condition));
  }
  std::string Warnings() {
    std::string result;
    for (const TImportWarning& warning : panel.ImportWarnings()) {
      result += (result.empty() ? "" : "|") + std::to_string(warning.Line) + " " + warning.Message();
    }
    return result;
  }
  template <typename TError>
  std::string ErrorOf(std::string_view sql) {
    try {
      panel.ParseSQL(sql);
    } catch (const TError& error) {
      return ReplaceStr(error.Message(), CrLf, "|");
    }
    return "no error";
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
};

TEST_F(SQLMapping, ReadsComparisonsAsConditionsWithoutLoss) {
  const std::tuple<std::string_view, std::string_view, std::string_view> cases[] = {
      {"Orders", "Total > 100", "Total is greater than 100"},
      {"Customers", "Company != 'x'", "Company is not equal to x"},
      {"Customers", "not(Company = 'x')", "Company is not equal to x"},
      {"Customers", "not Company = 'x'", "Company is not equal to x"},
      {"Customers", "CustNo >= 5 and CustNo <= 7",
       "Customer no is greater than or equal to 5|Customer no is less than "
       "or equal to 7"},
      {"Customers", "customers.\"City\" = \"Oslo\"", "City is equal to Oslo"},
      {"Customers", "City = 'O''Hara' and Company = '50%'", "City is equal to O'Hara|Company is equal to 50%"},
      {"Customers", "City like '%x%' and City like 'x%y%'", "City contains x|City starts with x%y"},
      {"Customers", "not(City LIKE '%x%')", "City does not contain x"},
      {"Customers", "City in ('Oslo', 'O''Hara \"x\"', 'a,b')", "City is in list Oslo, O'Hara \"x\", a,b"},
      {"Customers", "not (CustNo in (1, 2,3))", "Customer no is not in list 1, 2, 3"},
      {"Customers", "CustNo between -1 and 5", "Customer no is between -1 and 5"},
      {"Customers", "Active = true and City is null", "Active is equal to True|City is null"},
      {"Customers", "City = ':x'", "City is equal to :x"},
      {"Orders", "SaleDate > '12/31/2020'", "Sale date is greater than 2020-12-31"},
      {"Orders", "SaleDate in ('31.12.2020', '2020-01-01')", "Sale date is in list 44196, 43831"},
      {"Orders", "ShipDate <> '2020-01-02 10:11:12'", "Shipped is not equal to 2020-01-02 10:11:12"},
      {"Orders", "SaleTime > '12:30'", "Sale time is greater than 12:30:00"},
      {"Orders", "orders.shipdate  IS\r\n NULL", "Orders that have not been shipped"},
      {"Orders", "sum(Order_Details.Qty) > 5", "Quantity sold is greater than 5"},
  };
  for (const auto& [table, condition, row] : cases) {
    EXPECT_EQ(Where(table, condition), row);
    const bool isAggregate = condition.starts_with("sum");
    EXPECT_EQ(Warnings().empty(), !isAggregate) << Warnings();
  }
}

TEST_F(SQLMapping, TellsWhatItGuessedOrLeftOut) {
  const std::string today = DateToStr(Now());
  const std::tuple<std::string_view, std::string, std::string_view> cases[] = {
      {"Nowhere = 1", "Customer no is equal to 1",
       "1 \"Nowhere\": no field of the model: taken as \"Customers.CustNo\""},
      {"City = upper('x')", "City is equal to <empty>",
       "1 \"City = upper('x')\": no operator of the model fits: taken as \"Equal\" without a value"},
      {"City = Company", "City is equal to Company", "1 \"Company\": no value: taken as text"},
      {"City not like '%x%'", "City contains x", "1 \"City not like '%x%'\": the negation is left out"},
      {"City is\nnot null", "City is null", "1 \"City is not null\": the negation is left out"},
      {"City like 'x%y'", "City contains x%y", "1 \"City like 'x%y'\": taken as \"Contains\" with the value \"x%y\""},
      {"not City like 'x'", "City contains x",
       "1 \"not(City like 'x')\": taken as \"Contains\" with the value \"x\", the negation is left out"},
      {"City = :1", "City is equal to <Param1>", "1 \":1\": no name of a parameter: called \"Param1\""},
      {"CustNo = 1\nand ((not (City = 'a' or City = 'b')))",
       "Customer no is equal to 1|any of the following apply|  City is equal to a|  City is equal to b",
       "2 \"City = 'a' or City = 'b')))\": one negation of the bracket is left out"},
      {"City = 'a'\nunion select 2", "City is equal to <empty>",
       "1 \"City = 'a' union\": no operator of the model fits: taken as \"Equal\" without a value|"
       "2 \"select 2\": left out"},
  };
  for (const auto& [condition, row, warning] : cases) {
    EXPECT_EQ(Where("Customers", condition), row);
    EXPECT_EQ(Warnings(), warning);
  }
  EXPECT_EQ(Where("Orders", "SaleDate > 'xx'"), "Sale date is greater than " + today);
  EXPECT_EQ(Warnings(), "1 \"xx\": cannot be read as a date: taken as today");
}

TEST_F(SQLMapping, TellsWhatBecomesOfTheOtherClauses) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"select distinct Customers.City as Town,\ncount(*) from Customers\ngroup by City\nhaving count(*) > 1",
       "1 \"distinct\": left out|1 \"Town\": not kept: the column is called \"City\"|"
       "4 \"having count(*) > 1\": left out"},
      {"select Customers.City, count(*) from Customers group by Company",
       "1 \"group by Company\": became \"group by Customers.City\""},
      {"select Customers.City from Customers group by City\norder by 1 asc limit 5",
       "1 \"group by City\": left out|2 \"limit 5\": left out"},
      {"select Customers.City, o.Total town from Customers, Orders o",
       "1 \"o.Total town\": kept word for word: \"o.Total\" is no field of the model|"
       "1 \"o\": the model knows this table as \"Orders\""},
      {"select Customers.City, Orders.Total from Customers left outer join Orders on customers.custno=Orders.CustNo",
       "1 \"customers.custno=Orders.CustNo\": a left join became an inner join, as the model's link"},
      {"select Customers.City, Orders.Total\nfrom Customers join Orders on Orders.OrderNo = Customers.CustNo",
       "2 \"Orders.OrderNo = Customers.CustNo\": left out: the query does not join so|"
       "2 \"Orders.CustNo = Customers.CustNo\": added as an inner join by a link of the model"},
      {"select Customers.City from Customers, Clients, Orders",
       "1 \"Clients\": left out: the model has no such table|"
       "1 \"Orders\": left out: no result field or condition needs the table"},
      {"select Customers.City,\nOrder_Details.Qty from Customers, \"Order Details\" Order_Details",
       "2 \"Orders\": table added, which the query needs|"
       "2 \"Orders.CustNo = Customers.CustNo\": added as an inner join by a link of the model|"
       "2 \"Order_Details.OrderNo = Orders.OrderNo\": added as an inner join by a link of the model"},
  };
  for (const auto& [sql, warnings] : cases) {
    panel.ParseSQL(sql);
    EXPECT_EQ(Warnings(), warnings) << sql;
  }
  EXPECT_EQ(TImportWarning({3, "a\r\n  " + std::string(200, 'b'), "left out"}).Message(),
            "\"a " + std::string(98, 'b') + "...\": left out");
}

TEST_F(SQLMapping, ReadsItsOwnStatementsBack) {
  const std::string_view statements[] = {
      "select * from Orders where Total > 100 or SaleDate = '2020-01-31' and Total < 5 order by Orders.SaleDate desc",
      "select Customers.City, Orders.Total from Customers join Orders on (customers.custno=Orders.CustNo) "
      "where not (Customers.City = 'O''Hara' or Customers.City like '%x%' and Orders.Total in (1, 2.5)) order by 2, 1",
      "select Customers.City, sum(Order_Details.Qty), count(*) as count from Customers inner join Orders on "
      "Orders.CustNo = Customers.CustNo join \"Order Details\" Order_Details on Order_Details.OrderNo=Orders.OrderNo "
      "where not (City is null and Active = 1) group by Customers.City",
      "select * from Customers where City = :Town and Company like :Pattern and CustNo between :Low and 9",
      "select * from Customers where CustNo in (select Orders.CustNo from Orders where Total > 5)",
  };
  for (const std::string_view statement : statements) {
    panel.ParseSQL(statement);
    const std::string first = panel.GetQueryText();
    panel.ParseSQL(first);
    EXPECT_EQ(panel.GetQueryText(), first);
    EXPECT_EQ(Warnings(), "") << first;
  }
}

TEST_F(SQLMapping, TakesLinkTypesAndParametersFromTheStatement) {
  const std::pair<std::string_view, TFilterLinkType> cases[] = {
      {"City = 'a' and City = 'b'", fltAll},
      {"City = 'a' or City = 'b'", fltAny},
      {"not (City = 'a' or City = 'b')", fltNone},
      {"not (City = 'a' and City = 'b')", fltNotAll},
      {"City = 'a'", fltAll},
  };
  for (const auto& [condition, linkType] : cases) {
    Where("Customers", condition);
    EXPECT_EQ(panel.RootBracket().GetLinkType(), linkType) << condition;
  }
  Where("Customers", "City = :CityParam and City like :Pattern");
  EXPECT_TRUE(Row(0).GetValueIsParam(1));
  EXPECT_EQ(Row(0).GetValue(1), "");
  EXPECT_EQ(Row(0).GetParam(1)->GetParamName(), "CityParam");
  Row(1).GetParam(1)->SetValue("x_");
  EXPECT_EQ(Row(1).GetParam(1)->GetFullValue(), "x_");
}

TEST_F(SQLMapping, KeepsOrClearsTheQueryAsItSucceeds) {
  int changes = 0;
  std::vector<int> lines;
  panel.OnChange = [&changes](TJQueryPanel&) { ++changes; };
  panel.OnImportWarning = [&lines](TJQueryPanel&, const TImportWarning& warning) { lines.push_back(warning.Line); };
  panel.SetQueryName("Old");
  changes = 0;
  TSQLImportOptions options;
  options.FirstLine = 10;
  panel.ParseSQL(TStrings{"select distinct Customers.City", "from Customers limit", "5"}, options);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(lines, (std::vector<int>{10, 11, 12}));
  EXPECT_TRUE(panel.GetActive() && panel.GetModified() && panel.GetQueryName().empty());

  const std::pair<std::string, std::string_view> faults[] = {
      {ErrorOf<ESQLParserError>("select * from Customers\nwhere (City = 'x'"), "Lost bracket|Line:2"},
      {ErrorOf<EListError>("select Customers.City from Customers order by 2"), "List index out of bounds (1)"},
      {ErrorOf<EConvertError>("select Orders.Total from Orders\nwhere SaleTime = '25:00'"),
       "Line 2: '25:00' is not a valid time"},
  };
  for (const auto& [error, message] : faults) EXPECT_EQ(error, message);
  EXPECT_FALSE(panel.GetActive());
  EXPECT_EQ(panel.RFields().Count() + panel.RootBracket().GetRowCount() + panel.ImportWarnings().size(), 0U);
  panel.ParseSQL("select Customers.City from Customers");
  EXPECT_FALSE(panel.GetActive());

  panel.SetDBStruct(nullptr);
  EXPECT_EQ(ErrorOf<EJQueryPanelError>("select"), "DBStruct is not specified");
  auto doomed = std::make_unique<TJQueryPanel>();
  doomed->SetDBStruct(model.get());
  doomed->OnImportWarning = [&doomed](TJQueryPanel&, const TImportWarning&) { doomed.reset(); };
  doomed->ParseSQL("select a, b from c");
  EXPECT_EQ(doomed, nullptr);
}

TEST_F(SQLMapping, ReadsSubQueriesAsQueriesOfTheirOwn) {
  EXPECT_EQ(Where("Customers", "CustNo in (select Orders.CustNo from Orders\nwhere Total > x)"),
            "Customer no is in the sub-query <Sub-query>|  Choose records where all of the following apply|"
            "    Total is greater than x|  Result fields:|    Customer");
  EXPECT_EQ(Warnings(), "2 \"x\": no value: taken as text");
  Where("Customers", "CustNo in (select Orders.CustNo)");
  EXPECT_EQ(Warnings(), "1 \"select Orders.CustNo\": left out: Wrong SQL statement");
  std::string nested = "CustNo = 1";
  for (int i = 0; i < 12; ++i) nested = "CustNo in (select Customers.CustNo from Customers where " + nested + ")";
  Where("Customers", nested);
  EXPECT_NE(Warnings().find("left out: sub-queries are nested deeper than 8 levels"), std::string::npos);
}

TEST_F(SQLMapping, OffersItsSteps) {
  TJSQLParser parser;
  parser.SetSQL("select * from Orders where SaleDate in ('a', 'b''c') or SaleDate is null");
  parser.Parse();
  const TSQLBracket& where = *parser.ParserResult().GetWhereClause();
  std::string value1, value2;
  TStrings values;
  EXPECT_EQ(panel.OperatorBySQLCond(*where.Nodes()[0].AsCondition(), value1, value2, values)->GetName(), "InList");
  EXPECT_EQ(value1 + "|" + values.Joined("|"), "'a', 'b''c'|a|b'c");
  EXPECT_EQ(panel.FindCustomCondition(*where.Nodes()[1].AsCondition()), nullptr);
  panel.ProcessSQLBracket(panel.RootBracket(), where, parser.ParserResult().Tables());
  EXPECT_EQ(panel.RootBracket().GetLinkType(), fltAny);
  EXPECT_EQ(Row(1).GetDSOperator().GetName(), "IsNull");
  const std::tuple<TFieldType, std::string_view, std::string_view> dates[] = {
      {ftDate, "2000-01-01", "36526"},
      {ftDate, "1.1.00", "36526"},
      {ftDate, "01/02/2000", "36527"},
      {ftTimeStamp, "01/01/00 12:00:00", "36526.5"},
      {ftDateTime, "1.1.2000 06:00:00", "36526.25"},
      {ftTime, "18:00", "0.75"},
  };
  for (const auto& [type, text, day] : dates) EXPECT_EQ(panel.ProcessSQLDateValue(type, text), day);
}

TEST(SQLTemplate, MatchesAsTheBuilderWrites) {
  struct TCase {
    std::string_view pattern, condition;
    bool withWildcards;
    std::string_view values;  // "@1|@2"; "-" for no match
  };
  const TCase cases[] = {
      {"@f = '@1'", "a = 'x''y'", false, "x'y|"},
      {"@f = '@1'", "a = 5", false, "5|"},
      {"@f = '@1'", "a = '50%'", false, "-"},
      {"@f = '@1'", "a = '50%'", true, "50%|"},
      {"@f = '@1'", "a = b || 'c'", true, "-"},
      {"@f = '@1'", "a = 'b' || 'c'", true, "-"},
      {"@f>@1", "a > 'x'", false, "x|"},
      {"@f > '@1'", "a >= 5", false, "-"},
      {"@F LIKE '@1%'", "a like 'x%'", false, "-"},
      {"@f LIKE '@1%'", "a like 'x%'", false, "x|"},
      {"@f like '%@1%'", "a like '%'", true, "-"},
      {"@f like '%@1%'", "a like '%%'", true, "|"},
      {"NOT (@f in (@1))", "not a in (1, (2), 'x')", false, "1, (2), 'x'|"},
      {"@f in (@1)", "not a in (1)", false, "-"},
      {"@f between '@1' and '@2'", "a between b + 1 and 'x'", false, "b + 1|x"},
      {"@f between '@1' and '@2'", "a + (b) between 1 and 'x' || c", false, "-"},
      {"@f between @1 and @2", "a between (1 and 2) and 3", false, "(1 and 2)|3"},
      {"@f >= date('now', '-@1 days')", "a >= date( 'now', '-30 days' )", false, "30|"},
      {"@f like '@1@2'", "a like 'xy'", false, "-"},
      {"@f = '@1' or @f = '@1'", "a = 'x'", false, "-"},
  };
  for (const TCase& entry : cases) {
    TJSQLParser parser;
    parser.SetSQL("select * from t where " + std::string(entry.condition));
    parser.Parse();
    TComparisonTokens tokens;
    const auto& nodes = parser.ParserResult().GetWhereClause()->Nodes();
    ASSERT_NE(nodes[0].AsCondition(), nullptr) << entry.condition;
    tokens.Assign(*nodes[0].AsCondition());
    TValueCaptures captures;
    const bool matches = TSQLTemplate(entry.pattern, '%').Match(tokens, entry.withWildcards, captures);
    EXPECT_EQ(matches ? captures[0].Text + "|" + captures[1].Text : "-", entry.values)
        << entry.pattern << ", " << entry.condition;
  }
}

}  // namespace
}  // namespace tolvi
