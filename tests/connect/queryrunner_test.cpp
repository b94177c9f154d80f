#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "databases.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

std::unique_ptr<TJDBStructure> Model(TDatabaseKind kind) {
  const struct {
    std::string_view Table, Column;
    TFieldType Type;
  } fields[] = {
      {"customers", "cust_no", ftAutoInc}, {"customers", "name", ftString}, {"customers", "active", ftBoolean},
      {"customers", "credit", ftBCD},      {"customers", "since", ftDate},  {"customers", "notes", ftMemo},
      {"orders", "year", ftInteger},       {"orders", "number", ftInteger}, {"orders", "total", ftCurrency},
      {"orders", "placed", ftDateTime},    {"orders", "at", ftTime},        {"order lines", "number", ftInteger},
      {"order lines", "pos", ftInteger},   {"order lines", "qty", ftFloat}, {"order lines", "price", ftFloat},
  };
  auto model = std::make_unique<TJDBStructure>();
  ApplyFormatPreset(model->SQLFormats(), KindName(kind));
  for (const std::string_view table : {"customers", "orders", "order lines"}) model->AddTable(table, table);
  for (const auto& [table, column, type] : fields) {
    TDSTable* owner = nullptr;
    for (std::size_t i = 0; i < model->GetTableCount(); ++i) {
      if (model->GetTable(i).GetTableName() == table) owner = &model->GetTable(i);
    }
    TDSField& field = model->GetField(model->AddField(jfkData, column, column, owner));
    field.SetFieldType(type);
    field.AddAppliedOperators();
  }
  return model;
}

class QueryRunner : public testing::TestWithParam<TDatabaseKind> {
 protected:
  QueryRunner() {
    Panel.SetDBStruct(DBStruct.get());
    Panel.SetActive(true);
  }

  TDSField& Field(std::string_view table, std::string_view column) {
    for (std::size_t i = 0; i < DBStruct->Fields().Count(); ++i) {
      TDSField& field = DBStruct->GetField(i);
      if (field.GetTable() == nullptr) continue;
      if (field.GetTable()->GetTableName() == table && field.GetFieldExpr() == column) return field;
    }
    throw EListError("the test model has no such field", {});
  }

  TSimpleCond& Ask(std::string_view table, std::string_view column, std::string_view op, std::string_view value1,
                   std::string_view value2 = {}) {
    Panel.ClearAll();
    Panel.SetActive(true);
    for (const std::string_view key : table == "customers" ? std::vector{"cust_no"}
                                      : table == "orders"  ? std::vector{"year", "number"}
                                                           : std::vector{"number", "pos"}) {
      Panel.RFields().Add(Field(table, key)).SetSorting(stAscending);
    }
    return Panel.AddSimpleCond(Panel.RootBracket(), Field(table, column), *DBStruct->OperatorByName(op), value1,
                               value2);
  }

  /// All rows that are left: values joined by "/", rows by a blank.
  std::string Rows() {
    std::string text;
    while (Runner.Next()) {
      if (!text.empty()) text += ' ';
      for (std::size_t i = 0; i < Runner.Columns().size(); ++i)
        text.append(i > 0 ? "/" : "").append(Runner.Value(i).Text);
    }
    return text;
  }
  std::string RowsOf(std::string_view sql) {
    Runner.Run(TBoundStatement{std::string(sql), {}});
    return Rows();
  }

  TSqlConnection Connection = ConnectTo(GetParam());
  TJQueryRunner Runner{Connection.GetName()};
  std::unique_ptr<TJDBStructure> DBStruct = Model(GetParam());
  TJQueryPanel Panel;
};
INSTANTIATE_TEST_SUITE_P(On, QueryRunner, testing::Values(dkSQLite, dkPostgreSQL, dkMySQL),
                         [](const auto& test) { return std::string(KindName(test.param)); });

TEST_P(QueryRunner, FindsTheRowsThatTheLiteralsFind) {
  const struct {
    std::string_view Table, Column, Operator, Value1, Value2, Rows;
  } cases[] = {
      {"customers", "name", "Contains", "'", "", "1"},
      {"customers", "name", "Equal", "Żółć \"x\"", "", "2"},
      {"customers", "name", "Equal", "C:\\dir", "", "3"},
      {"customers", "name", "Equal", "\\' OR 1=1 -- ", "", ""},
      {"customers", "name", "InList", "O'Hara,C:\\dir", "", "1 3"},
      {"customers", "notes", "Contains", "?", "", "1"},
      {"customers", "notes", "IsNull", "", "", "2"},
      {"customers", "active", "Equal", "True", "", "1"},
      {"customers", "active", "NotEqual", "True", "", "2"},
      {"customers", "credit", "Equal", "0.1", "", "1"},
      {"customers", "credit", "GreaterThan", "1234.499", "", "2"},
      {"customers", "credit", "InList", "0.10,1234.5", "", "1 2"},
      {"customers", "since", "Between", "1999-12-31", "2020-01-30", "2"},
      {"customers", "cust_no", "InList", "1,3", "", "1 3"},
      {"orders", "year", "LessThan", "70000", "", "2023/1 2024/1 2024/2"},
      {"orders", "total", "Equal", "19.99", "", "2024/1"},
      {"orders", "total", "GreaterOrEqual", "19.99", "", "2024/1 2024/2"},
      {"orders", "placed", "GreaterThan", "2024-02-29 12:29:59", "", "2024/1 2024/2"},
      {"orders", "at", "Equal", "12:30:00", "", "2024/1"},
      {"order lines", "qty", "GreaterThan", "2.5", "", "1/2 2/1"},
      {"order lines", "qty", "Equal", "2.5", "", ""},
      {"order lines", "price", "Equal", "0.1", "", "1/1"},
  };
  for (const auto& [table, column, op, value1, value2, rows] : cases) {
    Ask(table, column, op, value1, value2);
    Runner.Run(Panel);
    EXPECT_EQ(Rows(), rows) << Runner.GetSQL() << ' ' << value1;
    EXPECT_EQ(RowsOf(Panel.GetQueryText()), rows) << Panel.GetQueryText();
  }
}

TEST_P(QueryRunner, BindsBooleansThatAreTexts) {
  DBStruct->SQLFormats().SetTrueValue("O'Hara");
  DBStruct->SQLFormats().SetQuoteBool(true);
  Field("customers", "name").SetFieldType(ftBoolean);
  Ask("customers", "name", "Equal", "True");
  Runner.Run(Panel);
  EXPECT_EQ(Rows(), "1");
}

TEST_P(QueryRunner, ComparesDecimalsByAllTheirDigits) {
  const auto rows = [this](std::string_view condition, std::string_view value) {
    Runner.Run({"SELECT cust_no FROM customers WHERE " + std::string(condition) + " = ?",
                {{.Name = "v", .Type = ftBCD, .Value = std::string(value), .Text = std::string(value)}}});
    return Rows();
  };
  EXPECT_EQ(rows("credit * 1", "1234.500"), "2");
  if (GetParam() == dkSQLite) return;
  EXPECT_EQ(rows("CAST('12345678901234567.01' AS decimal(30,2)) + credit - credit", "12345678901234567.02"), "");
  EXPECT_EQ(rows("CAST('12345678901234567.01' AS decimal(30,2)) + credit - credit", "12345678901234567.01"), "1 2");
}

TEST_P(QueryRunner, LeavesMarkersInTextsAndCommentsAlone) {
  Connection.Execute("DELETE FROM \"select\"");
  const TBoundValue number{.Name = "n", .Type = ftInteger, .Value = std::int64_t{2}, .Text = "2"};
  Runner.Run(
      {"SELECT '?', cust_no /* ? ' */ FROM customers -- ?\nWHERE cust_no = ? AND name <> '''?' OR cust_no < ? ORDER BY "
       "2",
       {number, {.Name = "f", .Type = ftFloat, .Value = 1.5, .Text = "1.5"}}});
  EXPECT_EQ(Rows(), "?/1 ?/2");
  Runner.Run({"SELECT 1 FROM customers WHERE cust_no = ?",
              {{.Name = "none", .IsMissing = true, .Type = ftInteger, .Value = {}, .Text = {}}}});
  EXPECT_EQ(Rows(), "");
}

TEST_P(QueryRunner, AsksForParametersThatHaveNoValue) {
  TSimpleCond& condition = Ask("customers", "name", "StartsWith", "");
  TSQLParam& param = Panel.QResult().AddParameter(condition, 1);
  param.SetDisplayName("Beginning of the name");
  Panel.GetBoundStatement();
  const std::string text = Panel.SaveToText();

  const std::string refused = "The parameter \"Beginning of the name\" has no value: give it one to run the query";
  EXPECT_EQ(ConnectErrorOf([&] { Runner.Run(Panel); }), refused);
  std::vector<std::string> requests;
  std::optional<std::string> answer = "O'";
  Runner.OnParamRequest = [&](std::string_view name, std::string_view displayName, TFieldType type) {
    EXPECT_EQ(type, ftString);
    requests.push_back(std::string(name).append(": ").append(displayName));
    return answer;
  };
  Runner.Run(Panel);
  EXPECT_EQ(Rows(), "1");
  EXPECT_EQ(requests, std::vector<std::string>{"Param1: Beginning of the name"});
  // An empty text is a text.
  answer = "";
  Runner.Run(Panel);
  EXPECT_EQ(Rows(), "1 2 3");
  answer.reset();
  EXPECT_EQ(ConnectErrorOf([&] { Runner.Run(Panel); }), refused);

  EXPECT_FALSE(Panel.GetModified());
  EXPECT_EQ(Panel.SaveToText(), text);
  param.SetValue("C:");
  Runner.Run(Panel);
  EXPECT_EQ(Rows(), "3");
  EXPECT_EQ(requests.size(), 3u);
}

TEST_P(QueryRunner, ReadsValuesOfParametersByTheirTypes) {
  Panel.QResult().AddParameter(Ask("customers", "since", "Equal", ""), 1);
  TFormatSettings settings;
  settings.ShortDateFormat = "dd.mm.yyyy";
  settings.DateSeparator = '.';
  Panel.SetFormatSettings(settings);
  std::string answer = "31.01.2020";
  Runner.OnParamRequest = [&](std::string_view, std::string_view, TFieldType) { return answer; };
  Runner.Run(Panel);
  EXPECT_EQ(Rows(), "1");
  answer = "soon";
  EXPECT_THROW(Runner.Run(Panel), EJQueryPanelError);
  answer = "";
  EXPECT_EQ(ConnectErrorOf([&] { Runner.Run(Panel); }),
            "The parameter \"Param1\" has no value: give it one to run the query");
  Panel.QResult().AddParameter(Ask("customers", "cust_no", "InList", ""), 1);
  answer = "3,1";
  Runner.Run(Panel);
  EXPECT_EQ(Rows(), "1 3");
}

TEST_P(QueryRunner, GivesTypedValuesInTheFormsOfNoLocale) {
  using TRow = std::vector<TSqlValue>;
  const std::string bytes("\0\xFF", 2);
  const struct {
    std::string_view Sql;
    TRow Row;
  } cases[] = {
      {"SELECT 9223372036854775807, 0.1, 1e300, 100000000000000.5, NULL, x'00ff', '', 'ß'",
       {{svNumber, "9223372036854775807"},
        {svNumber, "0.1"},
        {svNumber, "1E300"},
        {svNumber, "100000000000000.5"},
        {},
        {svBytes, bytes},
        {svText, ""},
        {svText, "ß"}}},
      {"SELECT CAST(12345678901234567890.50 AS numeric), true, NULL, DATE '2024-02-29', TIME '01:02:03.5', "
       "TIMESTAMP '2024-02-29 23:59:59', decode('00ff', 'hex'), CAST(0.1 AS real), CAST(-5 AS smallint), "
       "TIMESTAMP 'infinity', 'ß'",
       {{svNumber, "12345678901234567890.50"},
        {svBoolean, "true"},
        {},
        {svDate, "2024-02-29"},
        {svTime, "01:02:03.500"},
        {svDateTime, "2024-02-29 23:59:59"},
        {svBytes, bytes},
        {svNumber, "0.1"},
        {svNumber, "-5"},
        {svDateTime, ""},
        {svText, "ß"}}},
      {"SELECT CAST('12345678901234567890.50' AS DECIMAL(30,2)), NULL, DATE '2024-02-29', TIME '01:02:03', "
       "TIMESTAMP '2024-02-29 23:59:59', x'00ff', CAST(0.1 AS DOUBLE), 18446744073709551615, 'ß'",
       {{svNumber, "12345678901234567890.50"},
        {},
        {svDate, "2024-02-29"},
        {svTime, "01:02:03"},
        {svDateTime, "2024-02-29 23:59:59"},
        {svBytes, bytes},
        {svNumber, "0.1"},
        {svNumber, "18446744073709551615"},
        {svText, "ß"}}},
  };
  const auto& [sql, expected] = cases[GetParam()];
  Runner.Run(TBoundStatement{std::string(sql), {}});
  ASSERT_TRUE(Runner.Next());
  ASSERT_EQ(Runner.Columns().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(Runner.Value(i), expected[i]) << i << ": " << Runner.Value(i).Kind << ' ' << Runner.Value(i).Text;
  }
  EXPECT_THROW(Runner.Value(expected.size()), EListError);
  EXPECT_FALSE(Runner.Next());
  EXPECT_EQ(Runner.Value(0), TSqlValue());
}

TEST_P(QueryRunner, ReportsColumnsRowsAndTime) {
  Runner.Run(TBoundStatement{"SELECT cust_no AS \"N o\", name FROM customers", {}});
  EXPECT_EQ(Runner.Columns(), (std::vector<std::string>{"N o", "name"}));
  EXPECT_EQ(Runner.GetRowCount(), 0u);
  ASSERT_TRUE(Runner.Next());
  EXPECT_EQ(Runner.GetRowCount(), 1u);
  EXPECT_GT(Runner.GetTime().count(), 0);
  // Rows that nobody has read go with the next statement.
  EXPECT_EQ(RowsOf("SELECT 1"), "1");
  EXPECT_EQ(Runner.GetRowCount(), 1u);
  EXPECT_FALSE(Runner.Next());
  Runner.Close();
  EXPECT_EQ(Runner.GetRowCount(), 0u);
  EXPECT_TRUE(Runner.Columns().empty());
}

TEST_P(QueryRunner, SaysWhatTheDatabaseSaysAndTheStatement) {
  constexpr std::string_view Words[] = {
      "no such table: nowhere",
      "ERROR:  relation \"nowhere\" does not exist\nLINE 1: SELECT 1 FROM nowhere\n                      ^\n(42P01)",
      "Table 'tolvi.nowhere' doesn't exist",
  };
  EXPECT_EQ(ConnectErrorOf([&] { RowsOf("SELECT 1 FROM nowhere"); }),
            std::string(Words[GetParam()]) + "\r\nStatement: SELECT 1 FROM nowhere");
  EXPECT_FALSE(Runner.Next());
  // The first row comes before the fault.
  constexpr std::string_view Late[] = {"SELECT abs(x) FROM (SELECT 1 AS x UNION ALL SELECT -9223372036854775807 - 1)",
                                       "SELECT 1 / x FROM (VALUES (1), (0)) AS t(x)", "SELECT cust_no FROM nowhere"};
  constexpr std::string_view LateWords[] = {"integer overflow", "ERROR:  division by zero\n(22012)",
                                            "Table 'tolvi.nowhere' doesn't exist"};
  EXPECT_EQ(ConnectErrorOf([&] { RowsOf(Late[GetParam()]); }),
            std::string(LateWords[GetParam()]) + "\r\nStatement: " + std::string(Late[GetParam()]));
  EXPECT_EQ(RowsOf("SELECT 1"), "1");
}

TEST_P(QueryRunner, IsCancelledFromAnotherThread) {
  constexpr std::string_view Endless[] = {
      "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) SELECT count(*) FROM n",
      "SELECT pg_sleep(60)",
      "SELECT SLEEP(60) FROM customers",
  };
  Runner.Cancel();
  EXPECT_EQ(RowsOf("SELECT 1"), "1");
  std::atomic<bool> isDone = false;
  const auto start = std::chrono::steady_clock::now();
  std::thread canceller([&] {
    // A statement that has not begun is not cancelled.
    while (!isDone) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      Runner.Cancel();
    }
  });
  std::string message;
  try {
    RowsOf(Endless[GetParam()]);
  } catch (const ECancelledError& error) {
    message = error.Message();
  }
  isDone = true;
  canceller.join();
  EXPECT_EQ(message, "The statement was cancelled after 0 rows");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
  EXPECT_EQ(RowsOf("SELECT 1"), "1");
  // Between two rows.
  Runner.Run(TBoundStatement{"SELECT name FROM customers", {}});
  ASSERT_TRUE(Runner.Next());
  std::thread([&] { Runner.Cancel(); }).join();
  EXPECT_THROW(Runner.Next(), ECancelledError);
  EXPECT_EQ(RowsOf("SELECT 2"), "2");
}

}  // namespace
}  // namespace tolvi
