#include <cstdlib>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "databases.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/connect/sqlqrybase.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

namespace fs = std::filesystem;

TEST(OdbcUrl, KeepsAttributesAsTheyStandAndTakesUserAndPasswordOut) {
  const struct {
    std::string_view Url;
    TConnectionUrl Expected;
    std::string_view Shown;
  } cases[] = {
      {"odbc:shop", {.Kind = dkODBC, .Database = "shop"}, "odbc:shop"},
      {"ODBC:My shop%20;uid=anna;pwd=se}cr=et",
       {.Kind = dkODBC, .Database = "My shop%20", .User = "anna", .Password = "se}cr=et"},
       "odbc:My shop%20;UID=anna"},
      {"odbc:Driver={A;B}};C};Server=db,1433; ;PWD={;}}x};User=an{na",
       {.Kind = dkODBC, .Database = "Driver={A;B}};C};Server=db,1433", .User = "an{na", .Password = ";}x"},
       "odbc:Driver={A;B}};C};Server=db,1433;UID={an{na}"},
      {"odbc:DSN=shop;Password=x", {.Kind = dkODBC, .Database = "DSN=shop", .Password = "x"}, "odbc:DSN=shop"},
  };
  for (const auto& [url, expected, shown] : cases) {
    SCOPED_TRACE(url);
    EXPECT_TRUE(IsConnectionUrl(url));
    EXPECT_EQ(ParseConnectionUrl(url), expected);
    EXPECT_EQ(expected.Shown(), shown);
    TConnectionUrl withoutPassword = expected;
    withoutPassword.Password.clear();
    EXPECT_EQ(ParseConnectionUrl(shown), withoutPassword);
  }
  EXPECT_EQ(FormatPresetOf(dkODBC), "generic");
}

TEST(OdbcUrl, SaysWhatIsWrongWithoutThePassword) {
  const struct {
    std::string_view Url, Message;
  } cases[] = {
      {"odbc:", "\"odbc:\" names no data source"},
      {"odbc:UID=me;PWD=secret", "\"odbc:UID=me;PWD=***\" names no data source"},
      {"odbc:Driver=x;shop;pwd={sec;ret}", "\"odbc:Driver=x;shop;pwd=***\" has an attribute without a \"=\""},
      {"odbc:shop;PWD={secret;Server=x", "\"odbc:shop;PWD=***\" has a \"{\" without its \"}\""},
  };
  for (const auto& [url, message] : cases) {
    const std::string error = ConnectErrorOf([text = url] { static_cast<void>(ParseConnectionUrl(text)); });
    EXPECT_EQ(error.substr(0, error.find(". A database")), message);
  }
}

TEST(Odbc, OpensSourcesByAttributesAndByName) {
  const TSqlConnection connection = ConnectTo(dkODBC);
  EXPECT_EQ(connection.GetKind(), dkODBC);
  // A data source of the user's own.
  const TTestFolder folder;
  const fs::path file = folder.Path() / "odbc.ini";
  std::ofstream(file) << "[tolvi test]\nDriver=SQLite3\nDatabase=" << TestDatabase(dkSQLite).Database << "\n";
  setenv("ODBCINI", file.c_str(), 1);
  for (const char* url : {"odbc:tolvi test", "odbc:DSN=tolvi test;UID=anna;PWD={s;e}"}) {
    TSqlConnection named(ParseConnectionUrl(url));
    EXPECT_NO_THROW(named.Execute("UPDATE customers SET name = name")) << url;
  }
  unsetenv("ODBCINI");
  const std::string error =
      ConnectErrorOf([] { const TSqlConnection none(ParseConnectionUrl("odbc:nowhere;UID=me;PWD=secret")); });
  EXPECT_TRUE(error.starts_with("Cannot open odbc:nowhere;UID=me: ")) << error;
  EXPECT_TRUE(error.ends_with(": check the data source, its driver, user and password")) << error;
  EXPECT_EQ(error.find("secret"), std::string::npos);
}

TEST(Odbc, KnowsTablesColumnsAndKeysButNoLinks) {
  const TSqlConnection connection = ConnectTo(dkODBC);
  TJSqlDBInfo info(connection.GetName());
  TStrings tables, views, links, databases, keys, fields;
  info.GetTableNames(tables);
  for (const char* table : {"customers", "order lines", "Größe \"XL\"", "open_orders"}) {
    EXPECT_NE(tables.Joined("|").find(table), std::string::npos) << tables.Joined("|");
  }
  info.GetViewNames(views);
  EXPECT_EQ(views.Joined("|"), "broken|open_orders");
  info.GetLinkList(links);
  EXPECT_TRUE(links.Empty());
  info.GetDatabaseNames(databases);
  EXPECT_TRUE(databases.Empty());
  info.GetKeyNames("order lines", keys);
  EXPECT_EQ(keys.Joined("|"), "year|number|pos");
  std::string types;
  for (const TDBFieldInfo& field : info.GetFieldList("order lines")) {
    types += field.GetFieldName() + ":" + std::string(FldTypeToStr(field.GetFieldType())) + " ";
  }
  EXPECT_EQ(types, "year:ftSmallint number:ftInteger pos:ftSmallint qty:ftInteger price:ftFloat ");
}

TEST(Odbc, RunsStatementsWithValues) {
  const TSqlConnection connection = ConnectTo(dkODBC);
  TJQueryRunner runner(connection.GetName());
  TBoundStatement statement;
  statement.SQL =
      "SELECT name, cust_no * 0.1, since, notes FROM customers WHERE name = ? OR cust_no > ? ORDER BY cust_no";
  statement.Values.push_back({.Name = "a", .Type = ftString, .Value = "O'Hara", .Text = "O'Hara"});
  statement.Values.push_back({.Name = "b", .Type = ftInteger, .Value = std::int64_t{1}, .Text = "1"});
  runner.Run(statement, false);
  EXPECT_EQ(runner.Columns().size(), 4u);
  ASSERT_TRUE(runner.Next());
  EXPECT_EQ(runner.Value(0), (TSqlValue{svText, "O'Hara"}));
  EXPECT_EQ(runner.Value(1).Kind, svNumber);
  EXPECT_EQ(TryStrToFloat(runner.Value(1).Text), 0.1);
  EXPECT_EQ(runner.Value(2), (TSqlValue{svDate, "2020-01-31"}));
  ASSERT_TRUE(runner.Next());
  EXPECT_EQ(runner.Value(0), (TSqlValue{svText, "Żółć \"x\""}));
  EXPECT_EQ(runner.Value(3).Kind, svNull);
  // No row more comes.
  runner.Cancel();
  EXPECT_THROW(runner.Next(), ECancelledError);
  statement.SQL = "SELECT nothing FROM customers";
  statement.Values.clear();
  const std::string error = ConnectErrorOf([&] { runner.Run(statement, false); });
  EXPECT_NE(error.find("nothing"), std::string::npos) << error;
  EXPECT_TRUE(error.ends_with("\r\nStatement: SELECT nothing FROM customers")) << error;
}

TEST(Odbc, GivesListsOfValuesAndKeepsNoQueries) {
  const TSqlConnection connection = ConnectTo(dkODBC);
  TJSqlDBInfo info(connection.GetName());
  info.SetMaxRows(2);
  TStrings values, items;
  EXPECT_TRUE(info.RunQuery("SELECT cust_no, name FROM customers ORDER BY 1", values, items));
  EXPECT_EQ(values.Joined("|"), "1|2");
  TJSqlQueryBase base(connection.GetName());
  EXPECT_EQ(ConnectErrorOf([&] { base.Open(); }),
            "Queries are not kept in a database that is reached by ODBC: keep them in a folder");
  EXPECT_FALSE(base.GetActive());
}

}  // namespace
}  // namespace tolvi
