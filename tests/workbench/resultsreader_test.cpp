#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QThread>
#include <optional>

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "apps/workbench/results/resultreader.h"
#include "apps/workbench/results/typedvalue.h"
#include "workbench/results.h"
#include <tolvi/connect/sqlconnection.h>

namespace tolvi {
namespace {

using namespace results;

/// A reader and what it told.
struct TListener {
  TListener() {
    reader.SetConnection(Shop());
    reader.OnBegin = [this](const std::vector<std::string>& columns) {
      rows = std::make_unique<TResultRows>(columns);
      ++begins;
      EXPECT_EQ(QThread::currentThread(), reader.thread());
    };
    reader.OnRows = [this](TRowBlock&& block) {
      ++blocks;
      EXPECT_LE(block.GetRowCount(), 10'000U);
      rows->Append(std::move(block));
    };
    reader.OnEnd = [this](const TRunStats& stats) { end = stats; };
    reader.OnFault = [this](const QString& words, const QString& sql) { fault = {words, sql}; };
  }

  void Start(const TBoundStatement& statement, std::size_t maxRows = 1'000'000) {
    end.reset();
    fault.reset();
    reader.Start(statement, false, maxRows);
  }
  void Finish(const TBoundStatement& statement, std::size_t maxRows = 1'000'000) {
    Start(statement, maxRows);
    ASSERT_TRUE(Wait([this] { return end || fault; }));
  }

  TResultReader reader;
  std::unique_ptr<TResultRows> rows;
  int begins = 0, blocks = 0;
  std::optional<TRunStats> end;
  std::optional<std::pair<QString, QString>> fault;
};

TEST(ResultReader, HandsOverRowsInBlocksInTheirOrder) {
  TListener listener;
  listener.Finish(Statement(Numbers("SELECT i, 'row ' || i AS word FROM n", " LIMIT 50000")));
  ASSERT_TRUE(listener.end);
  EXPECT_EQ(listener.end->RowCount, 50'000U);
  EXPECT_FALSE(listener.end->IsLimited || listener.end->IsCancelled);
  EXPECT_GE(listener.blocks, 5);
  EXPECT_EQ(listener.rows->Columns(), (std::vector<std::string>{"i", "word"}));
  ASSERT_EQ(listener.rows->GetRowCount(), 50'000U);
  for (const std::size_t row : {0U, 9'999U, 10'000U, 49'999U}) {
    EXPECT_EQ(listener.rows->Cell(row, 0).Text, std::to_string(row + 1));
    EXPECT_EQ(listener.rows->Cell(row, 1).Text, "row " + std::to_string(row + 1));
  }
  EXPECT_FALSE(listener.reader.IsRunning());
}

TEST(ResultReader, TellsWhetherTheLimitCutRowsOff) {
  TListener listener;
  for (const auto& [limit, isLimited] : {std::pair{225U, true}, {226U, false}, {0U, true}}) {
    listener.Finish(Statement("SELECT CustomerID FROM Customers"), limit);
    ASSERT_TRUE(listener.end);
    EXPECT_EQ(listener.end->RowCount, limit);
    EXPECT_EQ(listener.end->IsLimited, isLimited) << limit;
  }
  listener.Finish(Statement("SELECT CustomerID FROM Customers WHERE 1 = 0"));
  EXPECT_EQ(listener.end->RowCount, 0U);
  EXPECT_EQ(listener.rows->Columns().size(), 1U);
}

TEST(ResultReader, BindsValues) {
  TListener listener;
  TBoundValue value;
  value.Type = ftString;
  value.Value = value.Text = "O'Hara";
  listener.Finish({"SELECT ? AS name", {value}});
  EXPECT_EQ(listener.rows->Cell(0, 0).Text, "O'Hara");
}

TEST(ResultReader, StopsWorkWithoutEndAtOnceAndGoesOn) {
  TListener listener;
  for (const bool hasRows : {false, true}) {
    listener.Start(hasRows ? EndlessRows() : EndlessWork(), SIZE_MAX);
    ASSERT_TRUE(Wait([&] { return !hasRows || (listener.rows && listener.rows->GetRowCount() > 1000); }));
    QTest::qWait(30);
    QElapsedTimer timer;
    timer.start();
    listener.reader.Cancel();
    EXPECT_LT(timer.elapsed(), 100);
    ASSERT_TRUE(listener.end);
    EXPECT_TRUE(listener.end->IsCancelled);
    if (hasRows) {
      EXPECT_EQ(listener.end->RowCount, listener.rows->GetRowCount());
    }
    listener.Finish(Statement("SELECT 1 AS one"));
    EXPECT_LT(timer.elapsed(), patience / 4);
    EXPECT_TRUE(listener.end);
  }
}

TEST(ResultReader, LetsOnlyTheLastOfManyRunsSpeak) {
  TListener listener;
  // At every moment of a run's beginning, where telling it to end may go unheard.
  for (int i = 0; i < 60; ++i) {
    listener.Start(i % 2 == 0 ? EndlessWork() : EndlessRows(), SIZE_MAX);
    if (i % 3 != 0) QThread::usleep(static_cast<unsigned long>(i) * 40);
    if (i % 7 == 0) QCoreApplication::processEvents();
  }
  listener.begins = 0;
  listener.Finish(Statement("SELECT 'last' AS word"));
  ASSERT_TRUE(listener.end);
  EXPECT_EQ(listener.begins, 1);
  ASSERT_EQ(listener.rows->GetRowCount(), 1U);
  EXPECT_EQ(listener.rows->Cell(0, 0).Text, "last");
}

TEST(ResultReader, WaitsForAWindowThatIsBehind) {
  TListener listener;
  listener.Start(EndlessRows(), SIZE_MAX);
  QThread::msleep(600);
  // Nobody has taken a row so far: some blocks are ready, and no more.
  QCoreApplication::processEvents();
  EXPECT_GE(listener.blocks, 1);
  EXPECT_LE(listener.blocks, 6);
  listener.reader.Drop();
}

TEST(ResultReader, TellsWordsAndStatementOfAFault) {
  TListener listener;
  listener.Finish(Statement("SELECT Nonsense FROM Customers"));
  ASSERT_TRUE(listener.fault);
  EXPECT_EQ(listener.fault->first.toStdString(), "no such column: Nonsense");
  EXPECT_EQ(listener.fault->second.toStdString(), "SELECT Nonsense FROM Customers");
  // In the middle of the rows.
  listener.Finish(Statement(Numbers("SELECT CASE WHEN i = 20000 THEN abs(-9223372036854775807 - 1) END FROM n")));
  ASSERT_TRUE(listener.fault);
  EXPECT_EQ(listener.fault->first.toStdString(), "integer overflow");
  listener.Finish(Statement("SELECT 1 AS one"));
  EXPECT_TRUE(listener.end);
}

TEST(ResultReader, OpensAnotherConnectionAndOnlyForReading) {
  QTemporaryDir folder;
  TConnectionUrl other;
  other.Database = (folder.path() + QStringLiteral("/other.sqlite")).toStdString();
  TListener listener;
  listener.Finish(Statement("SELECT 1 AS one"));
  listener.reader.SetConnection(other);
  listener.Finish(Statement("SELECT 1 AS one"));
  ASSERT_TRUE(listener.fault);
  EXPECT_EQ(listener.fault->first.toStdString(),
            "Cannot open sqlite:" + other.Database + ": there is no such file: check its name");
  EXPECT_TRUE(listener.fault->second.isEmpty());
  TSqlConnectOptions options;
  options.MustExist = false;
  TSqlConnection(other, options).Execute("CREATE TABLE t (a)");
  listener.Finish(Statement("SELECT a FROM t"));
  EXPECT_TRUE(listener.end);
  listener.Finish(Statement("DELETE FROM t"));
  EXPECT_TRUE(listener.fault);
}

TEST(ResultReader, GoesQuicklyWhateverItDoes) {
  QElapsedTimer timer;
  timer.start();
  for (int i = 0; i < 20; ++i) {
    TListener listener;
    if (i > 0) listener.Start(i % 2 == 0 ? EndlessWork() : EndlessRows(), SIZE_MAX);
    QThread::usleep(static_cast<unsigned long>(i) * 300);
  }
  EXPECT_LT(timer.elapsed(), patience / 4);
  // From within its own events, too.
  for (const bool isFault : {false, true}) {
    auto reader = std::make_unique<TResultReader>();
    reader->SetConnection(Shop());
    reader->OnEnd = [&reader](const TRunStats&) { reader.reset(); };
    reader->OnFault = [&reader](const QString&, const QString&) { reader.reset(); };
    reader->Start(Statement(isFault ? "SELECT" : "SELECT 1 AS one"), false, 10);
    EXPECT_TRUE(Wait([&reader] { return !reader; }));
  }
}

TEST(ResultReader, WaitsForNoServerThatDoesNotAnswer) {
  if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QPSQL"))) GTEST_SKIP() << "no driver";
  // Takes connections, says nothing.
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  const int server = socket(AF_INET, SOCK_STREAM, 0);
  ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr*>(&address), size), 0);
  ASSERT_EQ(listen(server, 8), 0);
  getsockname(server, reinterpret_cast<sockaddr*>(&address), &size);
  const TConnectionUrl deaf =
      ParseConnectionUrl("postgresql://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/shop");
  QElapsedTimer timer;
  timer.start();
  {
    TListener listener;
    listener.reader.SetConnection(deaf);
    listener.Start(Statement("SELECT 1 AS one"));
    QTest::qWait(100);
    listener.reader.Cancel();
    EXPECT_TRUE(listener.end);
    listener.Start(Statement("SELECT 1 AS one"));
    listener.reader.SetConnection(Shop());
    listener.Finish(Statement("SELECT 1 AS one"));
    EXPECT_TRUE(listener.end);
    listener.reader.SetConnection(deaf);
    listener.Start(Statement("SELECT 1 AS one"));
    QTest::qWait(100);
  }
  EXPECT_LT(timer.elapsed(), 5000);
  // Its threads hear of it.
  close(server);
  QTest::qWait(200);
}

TEST(ResultReader, GivesValuesTheTypesThatTheQueryKnows) {
  const struct {
    TSqlValue Given;
    TFieldType Type;
    TSqlValue Expected;
  } cases[] = {
      {{svNumber, "1"}, ftBoolean, {svBoolean, "true"}},
      {{svNumber, "0"}, ftBoolean, {svBoolean, "false"}},
      {{svNumber, "2"}, ftBoolean, {svNumber, "2"}},
      {{svNumber, "1"}, ftInteger, {svNumber, "1"}},
      {{svText, "2021-02-03"}, ftDate, {svDate, "2021-02-03"}},
      {{svText, "2021-02-03"}, ftString, {svText, "2021-02-03"}},
      {{svText, "yesterday"}, ftDate, {svText, "yesterday"}},
      {{svText, "08:30:00.5"}, ftTime, {svTime, "08:30:00.5"}},
      {{svText, "08:30"}, ftTime, {svText, "08:30"}},
      {{svText, "2021-02-03 08:30:00"}, ftDateTime, {svDateTime, "2021-02-03 08:30:00"}},
      {{svText, "2021-02-03"}, ftTimeStamp, {svDate, "2021-02-03"}},
      {{svNull, ""}, ftDate, {svNull, ""}},
  };
  for (const auto& one : cases) EXPECT_EQ(TypedValue(one.Given, one.Type), one.Expected) << one.Given.Text;
}

}  // namespace
}  // namespace tolvi
