#include "command_line.h"

namespace tolvi {
namespace {

/// `tolvi import` with the model of orders and a statement as standard input.
class ImportCommand : public CommandLine {
 protected:
  TOutcome Run(std::string_view sql, const std::vector<std::string>& more = {}) const {
    std::vector<std::string> words{"import", "--model", "DIR/orders.model", "--sql", "-"};
    words.insert(words.end(), more.begin(), more.end());
    return RunWords(words, sql);
  }
};

TEST_F(ImportCommand, PrintsTheQueryTextOfAStatement) {
  const std::string sql = "select Customers.City\r\nfrom Customers\r\nwhere City = 'Oslo'\r\norder by 1 desc;\r\n";
  const std::string expected = R"([Main]
QueryName=
Version=3.6
Options=0

[Description]

[UserData]

[RFields]
Count=1
Version=3.6
JustSorting=0

[RField1]
Formula=@1
Fields=3
Alias=City
Caption=City
Sorting=2
SortOrder=1

[Row]
Enabled=1
RowType=1
LinkType=0
RowCount=1

[Row.1]
RowType=0
Enabled=1
FieldID=3
Param1=0
Param2=0
Operator=Equal
Value1=Oslo
)";
  for (const std::string& text : {sql, ReplaceStr(sql, "\r\n", "\n"), "\xEF\xBB\xBF" + sql}) {
    const TOutcome outcome = Run(text, {"--strict"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out.substr(0, expected.size()), expected);
    EXPECT_EQ(outcome.err, "");
  }
}

TEST_F(ImportCommand, TellsWarningsWithTheirLines) {
  const std::string sql = "select distinct Customers.City\nfrom Customers\nwhere City not like 'O%'\nlimit 5";
  const TOutcome outcome = Run(sql);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.out.starts_with("[Main]\n"));
  EXPECT_EQ(outcome.err,
            "tolvi: -:1: warning: \"distinct\": left out\n"
            "tolvi: -:3: warning: \"City not like 'O%' limit 5\": the negation is left out\n"
            "tolvi: -:3: warning: \"City like 'O%' limit 5\": taken as \"Contains\" with the value "
            "\"'O%' limit 5\"\n"
            "tolvi: -:3: warning: \"'O%' limit 5\": no value: taken as text\n");
  const TOutcome strict = Run(sql, {"--strict"});
  EXPECT_EQ(strict.status, 1);
  EXPECT_EQ(strict.out + strict.err, outcome.out + outcome.err);
}

TEST_F(ImportCommand, TellsFaultsWithTheirLines) {
  const std::pair<std::string_view, std::string_view> faults[] = {
      {"select Customers.City\r\nfrom Customers\r\nwhere (City = 'Oslo'\r\n", "-:3: Lost bracket\n"},
      {"delete from Customers", "-:1: Wrong SQL statement\n"},
      {"select Customers.City from Customers\norder by 2", "-: List index out of bounds (1)\n"},
      {"select * from Orders where\nSaleTime = 'x'", "-:2: 'x' is not a valid time\n"},
  };
  for (const auto& [sql, message] : faults) {
    const TOutcome outcome = Run(sql);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out + outcome.err, "tolvi: " + std::string(message));
  }
  EXPECT_EQ(Run("", {"--strict=1"}).err, "tolvi: --strict takes no argument\n");
}

}  // namespace
}  // namespace tolvi
