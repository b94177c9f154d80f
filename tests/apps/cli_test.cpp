#include "apps/tolvi/options.h"
#include "command_line.h"

namespace tolvi {
namespace {

TEST_F(CommandLine, TellsWrongUsageWithStatus2) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"", "a command is missing; `tolvi --help` lists them"},
      {"foo", "there is no command \"foo\"; `tolvi --help` lists them"},
      {"--model a sql", "the command comes first, not --model"},
      {"sql --model a", "sql needs --query FILE"},
      {"sql --model a --query", "--query needs FILE"},
      {"sql --model a --model b --query c", "--model is given twice"},
      {"sql --model - --query -", "only one file can be standard input (\"-\")"},
      {"check --model m - -", "only one file can be standard input (\"-\")"},
      {"sql --model a --query b --syntax sql3", "--syntax is one of sql1|sql2|oracle|access|nexusdb, not \"sql3\""},
      {"sql --model a --query b --bound=x", "--bound is one of ?|:name|$1, not \"x\""},
      {"sql --model a --query b c", "sql takes no \"c\""},
      {"sql --model a --query b --db c", "sql has no option --db"},
      {"sql --model a --query b -x", "options begin with \"--\", not -x"},
      {"sql --model a --query b --top 1;", "--top is a number or \"N PERCENT\", not \"1;\""},
      {"sql --model a --query b --limit 1,b", "--limit is a number, \"N OFFSET M\" or \"M,N\", not \"1,b\""},
      {"path --model a B", "path needs A B"},
      {"run --model MODEL --query QUERIES/04-silent-customers.qry --db DB --param Since",
       "--param is NAME=VALUE, not \"Since\""},
  };
  for (const auto& [arguments, message] : cases) {
    const TOutcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.out + outcome.err, "tolvi: " + std::string(message) + "\n");
  }
  EXPECT_EQ(TopClause("10 percent") + "|" + LimitClause("10 offset 5") + "|" + LimitClause("5, 10"),
            "10 PERCENT|10 OFFSET 5|5,10");
}

TEST_F(CommandLine, HelpsWithEveryCommand) {
  EXPECT_TRUE(Run("--help").out.starts_with("usage: tolvi COMMAND ...\n"));
  for (const TCommandInfo& command : Commands()) {
    const TOutcome outcome = Run(std::string(command.Name) + " --help");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.starts_with("usage: tolvi " + std::string(command.Name))) << outcome.out;
    EXPECT_NE(outcome.out.find("\n  tolvi " + std::string(command.Name) + " "), std::string::npos) << outcome.out;
    EXPECT_NE(Run("--help").out.find("\n  " + std::string(command.Name) + " "), std::string::npos);
  }
}

TEST_F(CommandLine, TellsFaultsOfTheInputWithFileAndLine) {
  const std::string badModel = Write("bad.model", ReplaceStr(Shop("shop.model"), "FieldGroups=11", "FieldGroups=x"));
  const std::string badQuery =
      Write("bad.qry", ReplaceStr(Shop("queries/01-late-to-these-cities.qry"), "Sorting=2", "Sorting=down"));
  const std::string noText = Write("no.text", "[Main]\n\xFF\n");
  const std::pair<std::string, std::string_view> cases[] = {
      {"model DIR/none.model", "Cannot read the file DIR/none.model: No such file or directory"},
      {"model " + badModel, "DIR/bad.model:7: section \"Main\", key \"FieldGroups\": 'x' is not a valid integer value"},
      {"path a b --model " + Write("bad.xml", "<DataModel formatVersion='1'>\n <table/></DataModel>"),
       "DIR/bad.xml:2:2: <DataModel> has no element <table>. Its elements: <sqlFormats>, <dmOptions>, <operators>, "
       "<tables>, <links>, <entities>, <conditions>, <specInfo>"},
      {"model " + noText, "DIR/no.text: the text is no UTF-8"},
      {"query --model MODEL " + badQuery,
       "DIR/bad.qry:61: section \"RField6\", key \"Sorting\": 'down' is not a valid integer value"},
      {"path --model MODEL Orders Nowhere", "shop.model: No such table Nowhere"},
      {"run --model MODEL --query QUERIES/01-late-to-these-cities.qry --db DIR/none.db",
       "Cannot open sqlite:DIR/none.db: there is no such file: check its name"},
      {"run --model DIR/orders.model --query - --db DB", "sqlite:DB: no such table: Order Details"},
  };
  const std::string anyQuery =
      "[Main]\nVersion=3.6\n[RFields]\nCount=1\n[RField1]\nFormula=@1\nFields=14\n[Row]\nRowType=1\n";
  for (const auto& [arguments, message] : cases) {
    const TOutcome outcome = Run(arguments, anyQuery);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(ReplaceStr(outcome.err, TOLVI_SHOP_DATABASE, "DB"), "tolvi: " + std::string(message) + "\n");
  }
}

TEST_F(CommandLine, PrintsStatementsFiltersAndPathsWithLineFeeds) {
  const std::string query = "--model MODEL --query QUERIES/04-silent-customers.qry";
  EXPECT_EQ(Run("path --model MODEL Customers Products").out, "Customers Orders OrderLines Products\n");
  EXPECT_EQ(
      Run("sql " + query + " --limit=5 --top 3").out,
      R"(SELECT  TOP 3 Customers.CustomerID as Customer_no, )"
      R"(Customers.Company, Customers.Phone as Telephone, Customers.City, Customers.CustomerSince as Customer_since
FROM 
     Customers
WHERE
(
not exists (select 1 from Orders x where x.CustomerID = Customers.CustomerID and x.OrderDate >= :Since) AND
Customers.Segment in ('W','T') AND
NOT (
not exists (select 1 from Orders x where x.CustomerID = Customers.CustomerID)
)
)
ORDER BY 2 ASC, 5 ASC, 1 ASC
LIMIT 5
)");
  const std::string bound = Run("sql " + query + " --bound $1").out;
  EXPECT_EQ(bound.substr(bound.find("x.OrderDate")), R"(x.OrderDate >= $1) AND
Customers.Segment in ($2,$3) AND
NOT (
not exists (select 1 from Orders x where x.CustomerID = Customers.CustomerID)
)
)
ORDER BY 2 ASC, 5 ASC, 1 ASC
-- 1 Since param ftDate 2025-01-01
-- 2 Value1 value ftFixedChar W
-- 3 Value2 value ftFixedChar T
)");
  const TOutcome filters = Run("filters --model MODEL --query QUERIES/24-suppliers-without-large-orders.qry");
  EXPECT_EQ(filters.out.substr(0, filters.out.find(" (")), "Suppliers\tNOT");
  EXPECT_EQ(Run("filters " + query).err,
            "tolvi: queries/04-silent-customers.qry:97: warning: A table filter cannot keep the meaning of the bracket "
            "\"none\"\n");
}

TEST_F(CommandLine, WritesTextsInTheCurrentFormat) {
  EXPECT_EQ(Run("model MODEL").out, Shop("shop.model"));
  const std::string xml = Run("model --to xml MODEL").out;
  EXPECT_EQ(Run("model --to=text -", xml).out, Shop("shop.model"));
  EXPECT_EQ(Run("check --model -", xml).out, "");
  const std::string late = Shop("queries/01-late-to-these-cities.qry");
  EXPECT_EQ(Run("query --model MODEL -", "\xEF\xBB\xBF" + late).out, late);
  const TOutcome lost = Run("query --model MODEL -", ReplaceStr(late, "FieldID=41", "FieldID=4100"));
  EXPECT_EQ(lost.status, 0);
  EXPECT_EQ(lost.out, ReplaceStr(late, "FieldID=41", "FieldID=4100"));
  EXPECT_EQ(lost.err, "tolvi: -:97: warning: Unrecognized field \"4100\"\n");
  const TOutcome column = Run("explain --model MODEL --query -",
                              "[Main]\nVersion=3.6\n[RFields]\nCount=1\n[RField1]\nFormula=@1\nFields=4100\n[Row]\n");
  EXPECT_EQ(column.out, "Choose records where all of the following apply\nResult fields:\n  {4100}\n");
  EXPECT_EQ(column.err, "tolvi: -:5: warning: RField1: Unrecognized field \"4100\"\n");
}

TEST_F(CommandLine, ChecksModelAndQueries) {
  EXPECT_EQ(Run("check --model MODEL").out, "");
  const std::string broken = Write("broken.qry", "[Main]\nVersion=x\n");
  const std::string unknown = Write(
      "unknown.qry", ReplaceStr(Shop("queries/01-late-to-these-cities.qry"), "Operator=InList", "Operator=InLimbo"));
  const std::string model = Write("odd.model", ReplaceStr(Shop("shop.model"), "\nID=2\nDF=", "\nID=1\nDF="));
  const TOutcome queries = Run("check --model MODEL " + broken + " DIR/none.qry " + unknown);
  EXPECT_EQ(queries.status, 1);
  EXPECT_EQ(ReplaceStr(queries.out, FFolder.string(), "DIR"),
            "DIR/broken.qry:2: error: section \"Main\", key \"Version\": 'x' is not a valid version\n"
            "DIR/unknown.qry:83: error: Row .2: Unrecognized operator \"InLimbo\"\n");
  EXPECT_EQ(queries.err, "tolvi: Cannot read the file DIR/none.qry: No such file or directory\n");
  const TOutcome odd = Run("check --model " + model);
  EXPECT_EQ(odd.status, 1);
  EXPECT_EQ(ReplaceStr(odd.out, FFolder.string(), "DIR"),
            "DIR/odd.model:2319: error: Condition \"The customer has never ordered\": another condition has the same "
            "ID, 1\n");
}

TEST_F(CommandLine, RunsWithParametersGivenOrAsked) {
  const std::string silent =
      "run --model MODEL --query QUERIES/04-silent-customers.qry --db DB --format csv --limit 1 ";
  EXPECT_EQ(Run(silent + "--param since=2025-04-01").out,
            "Customer_no,Company,Telephone,City,Customer_since\n93,Besson Bricolage SA,,Paris,2019-04-25\n");
  EXPECT_EQ(Run(silent + "--param Until=1").err,
            "tolvi: queries/04-silent-customers.qry: there is no parameter \"Until\"; the query has Since\n");
  const std::string asked =
      "run --model MODEL --query QUERIES/21-orders-of-one-seller.qry --db DB --format csv --limit 1 ";
  EXPECT_EQ(
      Run(asked + "--param Seller=Gruber").err,
      "tolvi: queries/21-orders-of-one-seller.qry: no value for First_day, Last_day: give --param First_day=VALUE\n");
  const TOutcome outcome = Run(asked + "--param Seller=Gruber", "2025-01-01\n2025-12-31\n", true);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out, "Order_no,Ordered,Company,City,Freight\n3667,2025-01-01,Steiner Eisenhof,Linz,84.75\n");
  EXPECT_EQ(
      outcome.err,
      "First_day (Order date is between <First_day> and <Last_day>): Last_day (Order date is between <First_day> and "
      "<Last_day>): ");
}

TEST_F(CommandLine, ParsesStatementsIntoJson) {
  const std::string statement = "select Company\r\nfrom Customers c\r\nwhere City = \"Oslo\"\r\norder by 1 desc;\r\n";
  const std::string expected = R"({
  "distinct": false,
  "allFields": false,
  "justSorting": false,
  "fields": [
    {"expr": "Company", "alias": "", "caption": "Company", "sorting": 2, "sortOrder": 1}
  ],
  "tables": [
    {"name": "Customers", "alias": "c"}
  ],
  "where": {"kind": "bracket", "op": "", "negative": false, "nodes": [
    {"kind": "condition", "left": "City", "op": "=", "right": "'Oslo'", "negative": false, "subQuery": false}
  ]}
}
)";
  EXPECT_EQ(Run("parse --sql " + Write("good.sql", statement)).out, expected);
  EXPECT_EQ(Run("parse --sql -", "\xEF\xBB\xBF" + ReplaceStr(statement, "\r\n", "\n")).out, expected);
  const std::pair<std::string_view, std::string_view> faults[] = {
      {"select Company\r\nfrom Customers\r\nwhere (City = 'Oslo'\r\n", "Lost bracket\nLine:3\n"},
      {"delete from Customers", "Wrong SQL statement\nLine:1\n"},
      {"select a from b\norder by 1, 2", "List index out of bounds (1)\nLine:2\n"},
      {"select '\xFF' from b", "tolvi: -: the text is no UTF-8\n"},
  };
  for (const auto& [wrong, message] : faults) {
    const TOutcome outcome = Run("parse --sql -", wrong);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out + outcome.err, message);
  }
}

TEST_F(CommandLine, TellsThatTheOutputCannotBeWritten) {
  const std::vector<std::string> arguments{"--help"};
  std::istringstream in;
  std::ostringstream out, err;
  out.setstate(std::ios::badbit);
  TStreams streams{in, out, err};
  errno = 0;
  EXPECT_EQ(RunTolvi(arguments, streams), 1);
  EXPECT_EQ(err.str(), "tolvi: the output cannot be written\n");
}

}  // namespace
}  // namespace tolvi
