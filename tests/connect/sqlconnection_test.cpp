#include <QSqlDatabase>
#include <clocale>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "databases.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/foundation/format.h>

namespace tolvi {
namespace {

constexpr std::string_view ServerHint = ": check that the server runs, and host, database, user and password";

std::string OpenError(const TConnectionUrl& url, const TSqlConnectOptions& options = {}) {
  return ConnectErrorOf([&] { TSqlConnection connection(url, options); });
}

bool WantsPassword(const TConnectionUrl& url) {
  try {
    const TSqlConnection connection(url);
  } catch (const EPasswordError&) {
    return true;
  } catch (const EConnectError&) {
    return false;
  }
  return false;
}

/// The only value of a statement.
std::string ValueOf(const TSqlConnection& connection, std::string_view sql) {
  TJQueryRunner runner(connection.GetName());
  runner.Run(TBoundStatement{std::string(sql), {}});
  runner.Next();
  return runner.Value(0).Text;
}

TEST(SqlConnection, OpensOnlyFilesThatExistAndAreDatabases) {
  const TTestFolder folder;
  const std::string file = (folder.Path() / "new file.sqlite").string();
  const TConnectionUrl url{.Kind = dkSQLite, .Database = file};
  const std::string shown = url.Shown();
  EXPECT_EQ(OpenError(url), "Cannot open " + shown + ": there is no such file: check its name");
  EXPECT_FALSE(std::filesystem::exists(file));
  { TSqlConnection(url, {.MustExist = false}).Execute("CREATE TABLE t (x)"); }
  EXPECT_EQ(OpenError(url), "");
  std::ofstream(file) << std::string(1000, 'x');
  EXPECT_EQ(OpenError(url),
            "Cannot open " + shown +
                ": file is not a database: check that it is an SQLite database and that you may read it");
  const TConnectionUrl directory{.Kind = dkSQLite, .Database = folder.Path().string()};
  EXPECT_EQ(OpenError(directory),
            "Cannot open " + directory.Shown() +
                ": unable to open database file: check that it is an SQLite database and that you may read it");
  EXPECT_EQ(OpenError({.Kind = dkSQLite, .Database = ":memory:"}), "");
}

TEST(SqlConnection, IsClosedWithTheObjectWhereverItMoved) {
  std::string name;
  {
    TSqlConnection first = ConnectTo(dkSQLite);
    name = first.GetName();
    TSqlConnection second(std::move(first));
    first = ConnectTo(dkSQLite);
    const std::string replaced = first.GetName();
    first = std::move(second);
    EXPECT_EQ(first.GetName(), name);
    EXPECT_FALSE(QSqlDatabase::contains(QString::fromStdString(replaced)));
    EXPECT_EQ(ValueOf(first, "SELECT 1"), "1");
  }
  EXPECT_FALSE(QSqlDatabase::contains(QString::fromStdString(name)));
}

TEST(SqlConnection, LeavesTheLocaleOfTheProgramAlone) {
  const TSqlConnection connection = ConnectTo(dkSQLite);
  EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

class OnEveryDatabase : public testing::TestWithParam<TDatabaseKind> {};
INSTANTIATE_TEST_SUITE_P(SqlConnection, OnEveryDatabase, testing::Values(dkSQLite, dkPostgreSQL, dkMySQL),
                         [](const auto& test) { return std::string(KindName(test.param)); });

TEST_P(OnEveryDatabase, RefusesChangesWhenOpenedForReading) {
  TSqlConnection connection = ConnectTo(GetParam(), {.ReadOnly = true});
  EXPECT_EQ(ValueOf(connection, "SELECT count(*) FROM customers"), "3");
  constexpr std::string_view Words[] = {
      "attempt to write a readonly database",
      "ERROR:  cannot execute DELETE in a read-only transaction\n(25006)",
      "Cannot execute statement in a READ ONLY transaction",
  };
  EXPECT_EQ(ConnectErrorOf([&] { connection.Execute("DELETE FROM customers"); }),
            std::string(Words[GetParam()]) + "\r\nStatement: DELETE FROM customers");
}

TEST_P(OnEveryDatabase, KeepsTextsAsTheyAre) {
  const TSqlConnection connection = ConnectTo(GetParam());
  constexpr std::string_view Text = "a\\'' \"😀\" ß?:x";
  EXPECT_EQ(ValueOf(connection, "SELECT '" + std::string(Text) + "'"), "a\\' \"😀\" ß?:x");
  EXPECT_EQ(ValueOf(connection, "SELECT name FROM \"customers\" WHERE name = 'C:\\dir'"), "C:\\dir");
}

class OnServers : public testing::TestWithParam<TDatabaseKind> {
 protected:
  TConnectionUrl Locked() const {
    TConnectionUrl url = TestDatabase(GetParam());
    url.User = "locked";
    return url;
  }
};
INSTANTIATE_TEST_SUITE_P(SqlConnection, OnServers, testing::Values(dkPostgreSQL, dkMySQL),
                         [](const auto& test) { return std::string(KindName(test.param)); });

TEST_P(OnServers, TakesThePasswordFromTheUrlTheEnvironmentOrARequest) {
  TConnectionUrl url = Locked();
  EXPECT_TRUE(WantsPassword(url));
  url.Password = LockedPassword;
  EXPECT_EQ(OpenError(url), "");
  EXPECT_EQ(TSqlConnection(url).GetUrl(), Locked());
  url.Password.clear();

  int requests = 0;
  std::optional<std::string> answer(LockedPassword);
  const TSqlConnectOptions options{.OnPasswordRequest = [&](const TConnectionUrl& asked) {
    EXPECT_EQ(asked.User, "locked");
    ++requests;
    return answer;
  }};
  EXPECT_EQ(OpenError(url, options), "");
  EXPECT_EQ(requests, 1);
  answer = "wrong";
  const std::string refused = OpenError(url, options);
  EXPECT_EQ(requests, 2);
  EXPECT_EQ(refused.find("wrong"), std::string::npos) << refused;
  answer.reset();
  EXPECT_NE(OpenError(url, options), "");
  EXPECT_EQ(requests, 3);

  const char* variable = GetParam() == dkMySQL ? "MYSQL_PWD" : "PGPASSWORD";
  setenv(variable, std::string(LockedPassword).c_str(), 1);
  EXPECT_EQ(OpenError(url, options), "");
  unsetenv(variable);
  EXPECT_EQ(requests, 3);
  // Nobody is asked where no password helps.
  url.Database = "no such database";
  url.User = "tester";
  EXPECT_NE(OpenError(url, options), "");
  EXPECT_FALSE(WantsPassword(url));
  EXPECT_EQ(requests, 3);
}

TEST_P(OnServers, SayWhatTheServerSaysAndWhatToDo) {
  TConnectionUrl url = TestDatabase(GetParam());
  url.Database = "nope";
  const std::string socket = url.Host + (GetParam() == dkMySQL ? "/mysqld.sock" : "/.s.PGSQL.5432");
  const std::string wrongDatabase =
      GetParam() == dkMySQL
          ? "Unknown database 'nope'"
          : Format("connection to server on socket \"%s\" failed: FATAL:  database \"nope\" does not exist", {socket});
  EXPECT_EQ(OpenError(url), "Cannot open " + url.Shown() + ": " + wrongDatabase + std::string(ServerHint));
  url.Host += "/gone";
  EXPECT_TRUE(OpenError(url).starts_with("Cannot open " + url.Shown() + ": ")) << OpenError(url);
  EXPECT_TRUE(OpenError(url).ends_with(ServerHint));
}

TEST(SqlConnection, SetsTheSchemaOfPostgreSQL) {
  TConnectionUrl url = TestDatabase(dkPostgreSQL);
  url.Schema = "Other 1";
  EXPECT_EQ(ValueOf(TSqlConnection(url), "SELECT count(*) FROM bills"), "0");
  url.Schema = "other 1";
  EXPECT_EQ(OpenError(url),
            "Cannot open " + url.Shown() + ": there is no schema \"other 1\": check its name, which is case-sensitive");
}

}  // namespace
}  // namespace tolvi
