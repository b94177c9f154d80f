#include <QProcess>
#include <atomic>
#include <barrier>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include <gtest/gtest.h>

#include "databases.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/connect/sqlqrybase.h>

namespace tolvi {
namespace {

TStrings TextOf(TJStoredQueryBase& base, std::string_view name) {
  TStrings lines;
  base.GetStoredQuery(base.IndexByName(name)).LoadContent(lines);
  return lines;
}

std::string NamesOf(const TJStoredQueryBase& base) {
  TStrings names;
  for (int i = 0; i < base.Count(); ++i) names.Add(base.GetQuery(i).GetQueryName());
  return names.Joined("|");
}

std::string StoreErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const EQueryStoreError& error) {
    return error.Message();
  }
  return {};
}

/// What the database says, without the statement.
std::string WordsOfError(const std::function<void()>& call) {
  const std::string message = ConnectErrorOf(call);
  return message.substr(0, message.find("\r\nStatement: "));
}

/// One connection and a base on it.
struct TUser {
  explicit TUser(TDatabaseKind kind, std::string_view owner = "", const TSqlConnectOptions& options = {})
      : Connection(ConnectTo(kind, options)), Base(Connection.GetName()) {
    Base.SetQueryOwner(owner);
    Base.Open();
  }
  TJStoredQuery& Query(std::string_view name) { return Base.GetStoredQuery(Base.IndexByName(name)); }

  TSqlConnection Connection;
  TJSqlQueryBase Base;
};

class SqlQueryBase : public testing::TestWithParam<TDatabaseKind> {
 protected:
  void SetUp() override {
    if (GetParam() == dkPostgreSQL) Connection.Execute("SET client_min_messages = warning");
    DropTable();
  }
  void TearDown() override { DropTable(); }

  void DropTable() { Connection.Execute("DROP TABLE IF EXISTS tolvi_queries"); }

  /// The only value of a statement.
  std::string Value(std::string_view sql) {
    TJQueryRunner runner(Connection.GetName());
    runner.Run(TBoundStatement{std::string(sql), {}});
    return runner.Next() ? runner.Value(0).Text : "none";
  }

  TSqlConnection Connection = ConnectTo(GetParam());
};
INSTANTIATE_TEST_SUITE_P(On, SqlQueryBase, testing::Values(dkSQLite, dkPostgreSQL, dkMySQL),
                         [](const auto& test) { return std::string(KindName(test.param)); });

TEST_P(SqlQueryBase, ListsWhatOthersHaveDone) {
  TUser anna(GetParam(), "anna"), bert(GetParam(), "bert");
  anna.Base.AddQuery("One", {"SELECT 1"});
  anna.Base.AddQuery("Two", {"SELECT 2"});
  anna.Base.AddQuery("Three", {"SELECT 3"});
  EXPECT_EQ(bert.Base.Refresh(), (TStoreChanges{.Added = {"One", "Three", "Two"}, .Changed = {}, .Erased = {}}));
  const TQueryEntry entry = bert.Query("Two").Entry();
  EXPECT_EQ(entry, anna.Query("Two").Entry());
  EXPECT_EQ(entry.Owner + entry.Revision, "anna1");
  EXPECT_EQ(entry.Id.size(), 32u);
  EXPECT_EQ(entry.ChangedAt.size(), std::string_view("2025-01-31 12:00:00").size());
  constexpr std::string_view SecondsAgo[] = {
      "86400 * (julianday('now') - julianday(changed_at))",
      "extract(epoch FROM clock_timestamp() AT TIME ZONE 'UTC' - changed_at)",
      "timestampdiff(second, changed_at, utc_timestamp())",
  };
  EXPECT_EQ(Value("SELECT count(*) FROM tolvi_queries WHERE abs(" + std::string(SecondsAgo[GetParam()]) + ") < 60"),
            "3");

  bert.Base.RenameQuery(bert.Base.IndexByName("Two"), "Deux");
  bert.Base.DescribeQuery(bert.Base.IndexByName("One"), "The first");
  bert.Base.EraseQuery(bert.Base.IndexByName("Three"));
  EXPECT_EQ(anna.Base.Refresh(), (TStoreChanges{.Added = {}, .Changed = {"One", "Two"}, .Erased = {"Three"}}));
  EXPECT_EQ(NamesOf(anna.Base), "One|Deux");
  EXPECT_EQ(anna.Query("One").GetDescription(), "The first");
  EXPECT_EQ(anna.Query("Deux").Entry().Id, entry.Id);
  EXPECT_EQ(anna.Query("Deux").Entry().Owner + anna.Query("Deux").Entry().Revision, "bert2");
  EXPECT_EQ(TextOf(anna.Base, "Deux"), TStrings{"SELECT 2"});
  EXPECT_EQ(anna.Base.Refresh(), TStoreChanges{});
  // One that comes again is another one.
  bert.Base.EraseQuery(bert.Base.IndexByName("Deux"));
  bert.Base.AddQuery("Deux", {"SELECT 22"});
  EXPECT_NE(bert.Query("Deux").Entry().Id, entry.Id);
}

TEST_P(SqlQueryBase, ReplacesNothingThatItsUserHasNotSeen) {
  TUser anna(GetParam(), "anna"), bert(GetParam(), "bert");
  anna.Base.AddQuery("Orders", {"old"});
  bert.Base.Refresh();
  bert.Query("Orders").SaveContent({"Bert's"});
  const auto conflictOf = [&](const auto& call) -> std::unique_ptr<EQueryConflictError> {
    try {
      call();
    } catch (const EQueryConflictError& error) {
      return std::make_unique<EQueryConflictError>(error);
    }
    return nullptr;
  };
  const auto save = [&] { anna.Query("Orders").SaveContent({"Anna's"}); };
  const auto rename = [&] { anna.Base.RenameQuery(0, "Others"); };
  const auto erase = [&] { anna.Base.EraseQuery(0); };
  for (const std::function<void()>& call : {std::function<void()>(save), {rename}, {erase}}) {
    const auto conflict = conflictOf(call);
    ASSERT_TRUE(conflict != nullptr && conflict->GetStored().has_value());
    EXPECT_EQ(conflict->GetStored()->Text, "Bert's\n");
    EXPECT_EQ(conflict->GetStored()->Entry, bert.Query("Orders").Entry());
  }
  const auto conflict = conflictOf(save);
  EXPECT_EQ(conflict->GetOwnText(), "Anna's\n");
  anna.Query("Orders").Accept(*conflict);
  EXPECT_FALSE(conflictOf(save));
  EXPECT_EQ(TextOf(bert.Base, "Orders"), TStrings{"Anna's"});
  EXPECT_EQ(bert.Query("Orders").Entry().Revision, "3");

  bert.Base.EraseQuery(0);
  const auto erased = conflictOf(save);
  ASSERT_NE(erased, nullptr);
  EXPECT_FALSE(erased->GetStored());
  anna.Query("Orders").Accept(*erased);
  EXPECT_FALSE(conflictOf(save));
  bert.Base.Refresh();
  EXPECT_EQ(TextOf(bert.Base, "Orders"), TStrings{"Anna's"});
  bert.Base.EraseQuery(0);
  EXPECT_FALSE(conflictOf(erase));
  // All of it has gone.
  bert.Base.AddQuery("Orders", {"new"});
  anna.Base.Refresh();
  DropTable();
  EXPECT_TRUE(conflictOf(save));
  EXPECT_FALSE(conflictOf(erase));
}

TEST_P(SqlQueryBase, KeepsTextsByteForByte) {
  const TStrings texts[] = {
      {"  a blank begins and ends  ", "\t\x01\x1b\x7f", "", "", ""},
      {R"('one' ''two'' "three" `four` \ \\ \' \n \0 \)", "?1 ? :x @y $1 $$ %s %% _ -- /* ; ", "\\'"},
      {"😀 Żółć ß e\u0301 \u00a0 \u2028 \u200b \uFEFF \U0010FFFF"},
      {"a", std::string(3'000'000, 'x'), "\\", "😀"},
      {" ", "an empty text would become a query"},
  };
  TUser anna(GetParam()), bert(GetParam());
  for (const TStrings& text : texts) {
    const std::string& odd = text[0];
    const std::string name = "<" + odd + ">";
    const int index = anna.Base.AddQuery(name, text);
    EXPECT_EQ(anna.Base.GetStoredQuery(index).Entry().Description, "");
    bert.Base.Refresh();
    ASSERT_GE(bert.Base.IndexByName(name), 0) << name;
    EXPECT_EQ(bert.Query(name).Entry(), anna.Query(name).Entry());
    anna.Base.DescribeQuery(index, odd + "\r\n" + odd);
    bert.Base.Refresh();
    EXPECT_EQ(bert.Query(name).GetDescription(), odd + "\r\n" + odd);
    EXPECT_TRUE(TextOf(bert.Base, name) == text) << name;
    EXPECT_TRUE(Value("SELECT text FROM tolvi_queries") == text.Joined("\n") + "\n") << name;
    anna.Base.EraseQuery(index);
  }
}

TEST_P(SqlQueryBase, RefusesTextsThatWouldComeBackAsOthers) {
  using namespace std::string_literals;
  TUser anna(GetParam());
  anna.Base.AddQuery("x", {"text"});
  const std::pair<std::string, std::string_view> cases[] = {
      {"a\0b"s, "it holds the character U+0000"},   {"\uFFFE", "it holds the character U+FFFE"},
      {"a\uFFFF", "it holds the character U+FFFF"}, {"\xff", "it is no UTF-8"},
      {"\xed\xa0\x80", "it is no UTF-8"},           {"\uFEFFa", "it begins with a byte order mark"},
  };
  for (const auto& [odd, reason] : cases) {
    const std::string end = " of the query \"x\" cannot be stored: " + std::string(reason);
    EXPECT_EQ(StoreErrorOf([&] { anna.Query("x").SaveContent({odd}); }), "The text" + end);
    EXPECT_EQ(StoreErrorOf([&] { anna.Base.DescribeQuery(0, odd); }), "The description" + end);
  }
  EXPECT_EQ(StoreErrorOf([&] { anna.Base.AddQuery("\uFEFFy", {}); }),
            "The name of the query \"\uFEFFy\" cannot be stored: it begins with a byte order mark");
  const TUser bert(GetParam());
  EXPECT_EQ(NamesOf(bert.Base), "x");
  EXPECT_EQ(bert.Base.GetStoredQuery(0).Entry(), anna.Query("x").Entry());
}

TEST_P(SqlQueryBase, TellsNamesApartAsTheListDoes) {
  TUser anna(GetParam());
  anna.Base.AddQuery("été", {"1"});
  {
    TUser bert(GetParam());
    bert.Base.EraseQuery(0);
    bert.Base.AddQuery("ÉTÉ", {"2"});
  }
  const auto taken = [](std::string_view name) {
    return "There is a query \"" + std::string(name) + "\" in the store: choose another name";
  };
  EXPECT_EQ(StoreErrorOf([&] { anna.Base.AddQuery("Été", {"3"}); }), taken("Été"));
  anna.Base.Refresh();
  for (const std::string_view name : {"ete", "Straße", "STRASSE", "a", "á", "a b", "a  b", "\u00a0a", "ﬁ", "fi"}) {
    EXPECT_EQ(StoreErrorOf([&] { anna.Base.AddQuery(name, {}); }), "");
  }
  const std::string longest = "É" + std::string(198, 'w') + "é";
  anna.Base.AddQuery(longest, {});
  EXPECT_EQ(StoreErrorOf([&] { anna.Base.RenameQuery(anna.Base.IndexByName("fi"), "STRAßE"); }), taken("STRAßE"));
  anna.Base.RenameQuery(anna.Base.IndexByName("Straße"), "strasSe 2");
  anna.Base.RenameQuery(anna.Base.IndexByName(longest), "W" + longest.substr(2));
  anna.Base.RenameQuery(anna.Base.IndexByName("a"), "A");
  const TUser bert(GetParam());
  EXPECT_EQ(bert.Base.GetQuery(bert.Base.IndexByName("a")).GetQueryName(), "A");
  EXPECT_EQ(bert.Base.GetQuery(bert.Base.IndexByName("été")).GetQueryName(), "ÉTÉ");
}

TEST_P(SqlQueryBase, LooksForTheNameAgainWhenAnotherWasFaster) {
  for (int round = 0; round < 5; ++round) {
    DropTable();
    std::barrier both(2);
    std::atomic<int> taken = 0;
    const auto write = [&](std::string_view name) {
      try {
        TUser user(GetParam());
        both.arrive_and_wait();
        user.Base.AddQuery(name, {"own"});
        for (const std::string_view shared : {"Shared 1", "SHARED 2", "shared 3"}) {
          both.arrive_and_wait();
          try {
            user.Base.AddQuery(shared, {std::string(name)});
          } catch (const EQueryNameTakenError&) {
            ++taken;
          }
        }
      } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
        both.arrive_and_drop();
      }
    };
    std::thread other(write, "Anna");
    write("Bert");
    other.join();
    EXPECT_EQ(taken, 3);
    EXPECT_EQ(NamesOf(TUser(GetParam()).Base), "Anna|Bert|Shared 1|SHARED 2|shared 3");
  }
}

TEST_P(SqlQueryBase, MakesNoTableByReading) {
  const auto tables = [this] {
    constexpr std::string_view Catalogues[] = {"sqlite_master WHERE name", "pg_class WHERE relname",
                                               "information_schema.TABLES WHERE TABLE_NAME"};
    return Value("SELECT count(*) FROM " + std::string(Catalogues[GetParam()]) + " = 'tolvi_queries'");
  };
  constexpr std::string_view Words[] = {"attempt to write a readonly database",
                                        "ERROR:  cannot execute %s in a read-only transaction\n(25006)",
                                        "Cannot execute statement in a READ ONLY transaction"};
  const auto words = [&](std::string_view command) { return Format(Words[GetParam()], {command}); };
  TUser anna(GetParam());
  TUser reader(GetParam(), "", {.ReadOnly = true});
  EXPECT_EQ(reader.Base.Count(), 0);
  EXPECT_EQ(anna.Base.Refresh(), TStoreChanges{});
  EXPECT_EQ(WordsOfError([&] { reader.Base.AddQuery("x", {}); }), words("CREATE TABLE"));
  EXPECT_EQ(tables(), "0");
  anna.Base.AddQuery("x", {"text"});
  EXPECT_EQ(tables(), "1");
  reader.Base.Refresh();
  EXPECT_EQ(TextOf(reader.Base, "x"), TStrings{"text"});
  EXPECT_EQ(WordsOfError([&] { reader.Base.AddQuery("y", {}); }), words("INSERT"));
  EXPECT_EQ(WordsOfError([&] { reader.Query("x").SaveContent({"changed"}); }), words("UPDATE"));
  EXPECT_EQ(WordsOfError([&] { reader.Base.EraseQuery(0); }), words("DELETE"));
  EXPECT_EQ(TextOf(anna.Base, "x"), TStrings{"text"});
}

TEST_P(SqlQueryBase, RefusesATableThatIsAnother) {
  Connection.Execute("CREATE TABLE tolvi_queries (id INT, name VARCHAR(9))");
  constexpr std::string_view Message =
      "The table \"tolvi_queries\" has no column \"name_key\": it is not one that keeps queries";
  TJSqlQueryBase base(Connection.GetName());
  EXPECT_EQ(StoreErrorOf([&] { base.Open(); }), Message);
  EXPECT_FALSE(base.GetActive());
  DropTable();
  base.Open();
  Connection.Execute("CREATE TABLE tolvi_queries (id INT, name VARCHAR(9))");
  EXPECT_EQ(StoreErrorOf([&] { base.AddQuery("x", {}); }), Message);
  // More columns than needed are none of its business.
  DropTable();
  base.AddQuery("x", {});
  Connection.Execute("ALTER TABLE tolvi_queries ADD COLUMN folder VARCHAR(9)");
  base.AddQuery("y", {});
  EXPECT_EQ(NamesOf(TUser(GetParam()).Base), "x|y");
}

// Writers of their own processes

/// A writer of a test program.
class TWriter final {
 public:
  TWriter(TDatabaseKind kind, const QStringList& arguments) {
    FProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    FProcess.start(
        QStringLiteral(STORE_WRITER),
        QStringList{QString::fromStdString(TestDatabase(kind).Shown()), QStringLiteral("Shared")} + arguments);
  }
  /// Whether it has saved something.
  bool HasSaved() { return FProcess.waitForReadyRead(30000); }
  void Kill() {
    FProcess.kill();
    FProcess.waitForFinished();
  }
  int ExitCode() {
    return FProcess.waitForFinished(60000) && FProcess.exitStatus() == QProcess::NormalExit ? FProcess.exitCode() : -1;
  }

 private:
  QProcess FProcess;
};

TEST_P(SqlQueryBase, HoldsOneOfTheTextsWhenTheWriterIsKilled) {
  constexpr int Length = 100'000;
  const int count = GetParam() == dkSQLite ? 100 : 30;
  TUser anna(GetParam());
  anna.Base.AddQuery("Shared", {std::string(Length, 'b')});
  std::int64_t before = 1;
  for (int i = 0; i < count; ++i) {
    TWriter writer(GetParam(), {QStringLiteral("alternate"), QString::number(Length)});
    ASSERT_TRUE(writer.HasSaved());
    std::this_thread::sleep_for(std::chrono::microseconds(i * 7919 % 5000));
    writer.Kill();
    // In one statement: a server may still do what was sent.
    TJQueryRunner runner(Connection.GetName());
    runner.Run(TBoundStatement{"SELECT revision, text FROM tolvi_queries", {}});
    ASSERT_TRUE(runner.Next());
    const std::int64_t revision = std::stoll(runner.Value(0).Text);
    EXPECT_GT(revision, before);
    before = revision;
    EXPECT_TRUE(runner.Value(1).Text == std::string(Length, revision % 2 == 0 ? 'a' : 'b') + "\n") << i;
    EXPECT_FALSE(runner.Next());
  }
}

TEST_P(SqlQueryBase, LosesNothingOfTwoWriters) {
  constexpr int Count = 50;
  TUser anna(GetParam());
  anna.Base.AddQuery("Shared", {"begin"});
  {
    TWriter one(GetParam(), {QStringLiteral("append"), QStringLiteral("one"), QString::number(Count)});
    TWriter two(GetParam(), {QStringLiteral("append"), QStringLiteral("two"), QString::number(Count)});
    EXPECT_EQ(one.ExitCode(), 0);
    EXPECT_EQ(two.ExitCode(), 0);
  }
  const TStrings lines = TextOf(anna.Base, "Shared");
  EXPECT_EQ(lines.Count(), 1u + 2 * Count);
  for (int number = 1; number <= Count; ++number) {
    EXPECT_GE(lines.IndexOf("one " + std::to_string(number)), 0);
    EXPECT_GE(lines.IndexOf("two " + std::to_string(number)), 0);
  }
  EXPECT_EQ(anna.Query("Shared").Entry().Revision, std::to_string(1 + 2 * Count));
}

// One kind alone

TEST(SqlQueryBaseFile, LosesNothingWhenItIsLockedForGood) {
  TUser anna(dkSQLite, "", {.TimeoutSeconds = 0});
  TSqlConnection other = ConnectTo(dkSQLite);
  anna.Base.AddQuery("x", {"text"});
  for (const std::string_view lock : {"BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"}) {
    other.Execute(lock);
    EXPECT_EQ(WordsOfError([&] { anna.Query("x").SaveContent({"changed"}); }), "database is locked");
    EXPECT_EQ(WordsOfError([&] { anna.Base.AddQuery("y", {}); }), "database is locked");
    EXPECT_EQ(WordsOfError([&] { anna.Base.RenameQuery(0, "z"); }), "database is locked");
    EXPECT_EQ(WordsOfError([&] { anna.Base.EraseQuery(0); }), "database is locked");
    other.Execute("ROLLBACK");
    EXPECT_EQ(NamesOf(anna.Base), "x");
    EXPECT_EQ(TextOf(anna.Base, "x"), TStrings{"text"});
  }
  anna.Query("x").SaveContent({"changed"});
  EXPECT_EQ(TextOf(anna.Base, "x"), TStrings{"changed"});
  anna.Connection.Execute("DROP TABLE tolvi_queries");
}

TEST(SqlQueryBaseRights, AreThoseOfTheUser) {
  TUser anna(dkPostgreSQL);
  anna.Base.AddQuery("x", {"text"});
  TConnectionUrl url = TestDatabase(dkPostgreSQL);
  url.User = "locked";
  url.Password = LockedPassword;
  const TSqlConnection connection(url);
  TJSqlQueryBase base(connection.GetName());
  EXPECT_EQ(WordsOfError([&] { base.Open(); }), "ERROR:  permission denied for table tolvi_queries\n(42501)");
  anna.Connection.Execute("DROP TABLE tolvi_queries");
  base.Open();
  EXPECT_EQ(WordsOfError([&] { base.AddQuery("x", {}); }),
            "ERROR:  permission denied for schema public\nLINE 1: CREATE TABLE IF NOT EXISTS tolvi_queries (id TEXT "
            "COLLATE \"C...\n                                   ^\n(42501)");
}

TEST(SqlQueryBaseConnection, IsClosedForAnother) {
  TSqlConnection first({.Kind = dkSQLite, .Database = ":memory:"});
  const TSqlConnection second({.Kind = dkSQLite, .Database = ":memory:"});
  setenv("USER", "ann\xff", 1);
  TJSqlQueryBase base(first.GetName());
  EXPECT_EQ(base.GetQueryOwner(), "ann\uFFFD");
  base.Open();
  base.AddQuery("x", {});
  EXPECT_EQ(base.GetStoredQuery(0).Entry().Owner, base.GetQueryOwner());
  base.SetConnectionName(first.GetName());
  EXPECT_TRUE(base.GetActive());
  base.SetConnectionName(second.GetName());
  EXPECT_FALSE(base.GetActive());
  base.Open();
  EXPECT_EQ(base.Count(), 0);
  base.SetConnectionName("nobody's");
  EXPECT_EQ(
      ConnectErrorOf([&] { base.Open(); }),
      "There is no connection \"nobody's\" in this thread: open it first, and use it in the thread that opened it");
}

}  // namespace
}  // namespace tolvi
