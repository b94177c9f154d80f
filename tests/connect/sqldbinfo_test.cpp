#include <QSqlDatabase>
#include <cstdlib>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "databases.h"
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

/// All that is known of a database, as lines.
TStrings Dump(TJSqlDBInfo& info) {
  TStrings lines, tables, views, links;
  info.GetTableNames(tables);
  info.GetViewNames(views);
  for (const std::string& table : tables) {
    TStrings keys;
    info.GetKeyNames(table, keys);
    std::string head = (views.IndexOf(table) >= 0 ? "view " : "table ") + table;
    if (!keys.Empty()) head += ", key " + keys.Joined("+");
    lines.Add(head);
    for (const TDBFieldInfo& field : info.GetFieldList(table)) {
      std::string line = "  " + field.GetFieldName() + " " + std::string(FldTypeToStr(field.GetFieldType()));
      if (field.GetFieldSize() != 0) line += " " + std::to_string(field.GetFieldSize());
      lines.Add(line);
    }
  }
  info.GetLinkList(links);
  for (const std::string& link : links) lines.Add("link " + link);
  return lines;
}

/// With TOLVI_UPDATE_GOLDEN set, writes the file anew.
void ExpectFile(const TStrings& lines, const std::string& name) {
  const std::string file = std::string(TOLVI_SOURCE_DIR) + "/tests/connect/fixtures/" + name;
  const std::string text = lines.Joined("\n") + "\n";
  if (std::getenv("TOLVI_UPDATE_GOLDEN") != nullptr) std::ofstream(file) << text;
  EXPECT_EQ(text, ReadFile(file));
}

class SqlDBInfo : public testing::TestWithParam<TDatabaseKind> {
 protected:
  std::string Error(std::string_view sql) {
    return ConnectErrorOf([&] { Info.RunQuery(sql, Values, Items); });
  }

  TSqlConnection Connection = ConnectTo(GetParam());
  TJSqlDBInfo Info{Connection.GetName()};
  TStrings Values, Items;
};
INSTANTIATE_TEST_SUITE_P(On, SqlDBInfo, testing::Values(dkSQLite, dkPostgreSQL, dkMySQL),
                         [](const auto& test) { return std::string(KindName(test.param)); });

TEST_P(SqlDBInfo, KnowsTablesColumnsKeysAndLinks) {
  ExpectFile(Dump(Info), std::string(KindName(GetParam())) + ".catalogue");
}

TEST_P(SqlDBInfo, ListsDatabasesAndQualifiesTheTablesOfOthers) {
  if (GetParam() == dkSQLite) {
    Connection.Execute("ATTACH ':memory:' AS \"far \"\"off\"\"\"");
    Connection.Execute("CREATE TABLE \"far \"\"off\"\"\".things (id INTEGER PRIMARY KEY, up REFERENCES things)");
  }
  constexpr std::string_view Databases[] = {"main,far \"off\"", "Other 1,public", "other,tolvi"};
  constexpr std::string_view Others[] = {"far \"off\"", "Other 1", "other"};
  constexpr std::string_view Tables[] = {"far \"off\".things", "Other 1.bills,Other 1.customers", "other.far away"};
  constexpr std::string_view Links[] = {"\"far \"\"off\"\"\".things.up = \"far \"\"off\"\"\".things.id",
                                        "\"Other 1\".bills.cust = \"Other 1\".customers.id", ""};
  constexpr std::string_view Keys[] = {"id", "", "id"};
  TStrings names, tables, links, keys;
  Info.GetDatabaseNames(names);
  EXPECT_EQ(names.Joined(","), Databases[GetParam()]);
  Info.GetFieldList("customers");
  Info.SetCurrentDBName(Others[GetParam()]);
  Info.GetTableNames(tables);
  EXPECT_EQ(tables.Joined(","), Tables[GetParam()]);
  Info.GetLinkList(links);
  EXPECT_EQ(links.Joined(","), Links[GetParam()]);
  Info.GetKeyNames(tables[0], keys);
  EXPECT_EQ(keys.Joined(","), Keys[GetParam()]);
  EXPECT_FALSE(Info.GetFieldList(tables[0]).Empty());
}

TEST_P(SqlDBInfo, FindsTablesHoweverTheirNamesAreWritten) {
  const auto fields = [this](std::string_view table) {
    TStrings names;
    Info.GetFieldNamesByTable(table, names);
    return names.Joined(",");
  };
  EXPECT_EQ(fields("\"a.b\""), "x");
  EXPECT_EQ(fields("[a.b]"), "x");
  EXPECT_EQ(fields("`SELECT`"), "from,order,group by");
  EXPECT_EQ(fields("\"Größe \"\"XL\"\"\""), "id,Maß,say \"hi\" = and");
  constexpr std::string_view Schemas[] = {"main", "public", "tolvi"};
  EXPECT_EQ(fields(std::string(Schemas[GetParam()]) + ".Select"), "from,order,group by");
  EXPECT_EQ(fields("server." + std::string(Schemas[GetParam()]) + ".\"a.b\""), "x");
  EXPECT_EQ(fields("nowhere.select"), "");
  EXPECT_EQ(fields("\"unclosed"), "");
  EXPECT_EQ(fields(""), "");
}

TEST_P(SqlDBInfo, ReadsAChangedCatalogueWhenAskedForTablesOrUpdated) {
  TStrings tables;
  Info.GetTableNames(tables);
  Connection.Execute("CREATE TABLE tolvi_queries (id INT)");
  Connection.Execute("CREATE TABLE fresh (id INT)");
  EXPECT_TRUE(Info.GetFieldList("fresh").Empty());
  Info.Update();
  EXPECT_EQ(Info.GetFieldList("fresh").Count(), 1u);
  Connection.Execute("DROP TABLE fresh");
  TStrings newTables;
  Info.GetTableNames(newTables);
  EXPECT_EQ(newTables, tables) << "stored queries are no data";
  Connection.Execute("DROP TABLE tolvi_queries");
  EXPECT_TRUE(Info.GetFieldList("fresh ").Empty());
}

TEST_P(SqlDBInfo, RunsQueriesForListsOfValues) {
  EXPECT_TRUE(Info.RunQuery("SELECT cust_no, name, 'more' FROM customers ORDER BY 1 DESC; ", Values, Items));
  EXPECT_EQ(Values.Joined("|"), "3|2|1");
  EXPECT_EQ(Items.Joined("|"), "C:\\dir|Żółć \"x\"|O'Hara");
  Values.Clear();
  Items.Clear();
  // NULL is no value; as a caption, it is the value.
  Info.RunQuery("SELECT credit FROM customers ORDER BY cust_no -- all of them", Values, Items);
  Info.RunQuery("SELECT cust_no, notes FROM customers WHERE cust_no = 2", Values, Items);
  Info.RunQuery("SELECT placed, at FROM orders WHERE total = 19.99", Values, Items);
  Info.RunQuery("SELECT since FROM customers WHERE cust_no = 2", Values, Items);
  Info.RunQuery("SELECT price FROM \"order lines\" WHERE qty < 5 ORDER BY 1", Values, Items);
  const std::string credits = GetParam() == dkSQLite ? "0.1|1234.5" : "0.10|1234.50";
  EXPECT_EQ(Values.Joined("|"), credits + "|2|2024-02-29 12:30:00|1999-12-31|0.1|2.5");
  EXPECT_EQ(Items.Joined("|"), credits + "|2|12:30:00|1999-12-31|0.1|2.5");
}

TEST_P(SqlDBInfo, StopsAtTheRowLimit) {
  Info.SetMaxRows(2);
  Info.RunQuery("SELECT number FROM orders ORDER BY year, number", Values, Items);
  EXPECT_EQ(Values.Joined("|"), "1|1");
  Info.SetMaxRows(0);
  Info.RunQuery("SELECT number FROM orders ORDER BY year, number", Values, Items);
  EXPECT_EQ(Values.Count(), 5u);
}

TEST_P(SqlDBInfo, EndsQueriesThatTakeTooLong) {
  constexpr std::string_view Endless[] = {
      "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) SELECT count(*) FROM n",
      "SELECT pg_sleep(60)",
      "SELECT SLEEP(60) FROM customers",
  };
  constexpr std::string_view Words[] = {
      "The statement took longer than 50 milliseconds: interrupted",
      "ERROR:  canceling statement due to statement timeout\n(57014)",
      "Query execution was interrupted (max_statement_time exceeded)",
  };
  const std::string_view sql = Endless[GetParam()];
  Info.SetTimeout(std::chrono::milliseconds(50));
  EXPECT_EQ(Error(sql), std::string(Words[GetParam()]) + "\r\nStatement: " + std::string(sql));
  EXPECT_TRUE(Values.Empty());
  // The limits go with the query.
  Connection.Execute("UPDATE customers SET notes = '' WHERE cust_no = 3");
  constexpr std::string_view Slow[] = {
      "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < 1000000) SELECT count(*) FROM n",
      "SELECT pg_sleep(0.2)", "SELECT SLEEP(0.2)"};
  EXPECT_EQ(ConnectErrorOf([&] { Connection.Execute(Slow[GetParam()]); }), "");
}

TEST_P(SqlDBInfo, ChangesNothingWhateverTheQuerySays) {
  for (const std::string_view sql :
       {"DELETE FROM types", "SELECT 1) AS t; DELETE FROM types; --", "DROP TABLE types", "SELECT nothing_like_this"}) {
    const std::string error = Error(sql);
    EXPECT_TRUE(error.ends_with("\r\nStatement: " + std::string(sql))) << error;
  }
  EXPECT_FALSE(Info.GetFieldList("types").Empty());
  EXPECT_EQ(ConnectErrorOf([&] { Connection.Execute("DELETE FROM types"); }), "");
}

TEST_P(SqlDBInfo, LeavesATransactionOfTheHostAlone) {
  Connection.Execute("BEGIN");
  Connection.Execute("UPDATE customers SET notes = 'changed' WHERE cust_no = 1");
  Info.RunQuery("SELECT notes FROM customers WHERE cust_no = 1", Values, Items);
  Connection.Execute("UPDATE customers SET notes = 'changed again' WHERE cust_no = 1");
  Connection.Execute("ROLLBACK");
  Info.RunQuery("SELECT notes FROM customers WHERE cust_no = 1", Values, Items);
  EXPECT_EQ(Values.Joined("|"), "changed|a?b");
}

TEST(SqlDBInfoConnection, ShowsWhatItsUserMayRead) {
  TConnectionUrl url = TestDatabase(dkPostgreSQL);
  url.User = "locked";
  url.Password = LockedPassword;
  const TSqlConnection connection(url);
  TJSqlDBInfo info(connection.GetName());
  TStrings tables, links;
  info.GetTableNames(tables);
  info.GetLinkList(links);
  EXPECT_EQ(tables.Joined(","), "customers");
  EXPECT_TRUE(links.Empty());
}

TEST(SqlDBInfoConnection, MustBeOpenAndOfAKindThatIsKnown) {
  TJSqlDBInfo info("nobody's");
  TStrings lines;
  EXPECT_FALSE(info.GetConnected());
  EXPECT_EQ(
      ConnectErrorOf([&] { info.GetTableNames(lines); }),
      "There is no connection \"nobody's\" in this thread: open it first, and use it in the thread that opened it");
  // The host's own connection.
  const QString name = QStringLiteral("host");
  {
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database.setDatabaseName(QStringLiteral(":memory:"));
    info.SetConnectionName("host");
    EXPECT_EQ(ConnectErrorOf([&] { info.GetDatabaseNames(lines); }),
              "The connection \"host\" is closed: open it first");
    ASSERT_TRUE(database.open());
    EXPECT_TRUE(info.GetConnected());
    info.GetDatabaseNames(lines);
    EXPECT_EQ(lines.Joined(","), "main");
  }
  QSqlDatabase::removeDatabase(name);
  EXPECT_FALSE(info.GetConnected());
}

}  // namespace
}  // namespace tolvi
