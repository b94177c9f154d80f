#include "apps/workbench/connection/connectiontest.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSqlDatabase>
#include <QThreadPool>
#include <QTimer>
#include <exception>

#include <tolvi/connect/queryrunner.h>
#include <tolvi/connect/sqlconnection.h>
#include <tolvi/query/values.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

struct TAnswer {
  bool Works = false;
  int Tables = 0;
  QString Words;
};

/// One question to the catalogue: what can be read at all is counted, which is not all that there is to know of it.
/// None for ODBC, whose drivers have a call for it.
const char* CountOf(TDatabaseKind kind) {
  switch (kind) {
    case dkSQLite:
      return "SELECT count(*) FROM sqlite_master WHERE type IN ('table', 'view') AND name NOT LIKE 'sqlite~_%' "
             "ESCAPE '~' AND name <> 'tolvi_queries'";
    case dkPostgreSQL:
      return "SELECT count(*) FROM pg_catalog.pg_class WHERE relkind IN ('r', 'p', 'v', 'm', 'f') AND "
             "pg_catalog.pg_table_is_visible(oid) AND relname <> 'tolvi_queries' AND relnamespace NOT IN (SELECT oid "
             "FROM pg_catalog.pg_namespace WHERE nspname IN ('pg_catalog', 'information_schema'))";
    case dkMySQL:
      return "SELECT count(*) FROM information_schema.tables WHERE table_schema = DATABASE() AND table_name <> "
             "'tolvi_queries'";
    case dkODBC:
      break;
  }
  return nullptr;
}

int CountTables(const TSqlConnection& connection) {
  const char* sql = CountOf(connection.GetKind());
  const QSqlDatabase database = QSqlDatabase::database(ToQString(connection.GetName()), false);
  if (sql == nullptr) return static_cast<int>(database.tables(QSql::TableType(QSql::Tables | QSql::Views)).size());
  TJQueryRunner runner(connection.GetName());
  TBoundStatement statement;
  statement.SQL = sql;
  runner.Run(statement, false);
  return runner.Next() ? ToQString(runner.Value(0).Text).toInt() : 0;
}

/// In a thread of its own.
TAnswer Connect(const TConnectionUrl& url, int seconds) {
  TAnswer answer;
  try {
    const TSqlConnection connection(url, {.ReadOnly = true, .TimeoutSeconds = seconds});
    answer.Tables = CountTables(connection);
    answer.Works = true;
  } catch (const EException& error) {
    answer.Words = ToQString(error.Message());
  } catch (const std::exception& error) {
    answer.Words = QString::fromUtf8(error.what());
  }
  return answer;
}

}  // namespace

TConnectionTest::TConnectionTest(QObject* parent) : QObject(parent), FTimer(new QTimer(this)) {
  constexpr int MillisecondsPerSecond = 1000;
  FTimer->setSingleShot(true);
  connect(FTimer, &QTimer::timeout, this,
          [this] { End(false, NoAnswer(FKind, FTimer->interval() / MillisecondsPerSecond)); });
}

QString TConnectionTest::NoAnswer(TDatabaseKind kind, int seconds) {
  switch (kind) {
    case dkSQLite:
      return tr("There was no answer within %n second(s): check that the file can be read and no program locks it.",
                nullptr, seconds);
    case dkODBC:
      return tr("There was no answer within %n second(s): check the data source and its driver.", nullptr, seconds);
    case dkPostgreSQL:
    case dkMySQL:
      break;
  }
  return tr("There was no answer within %n second(s): check host and port.", nullptr, seconds);
}

bool TConnectionTest::IsRunning() const { return FTimer->isActive(); }

void TConnectionTest::Start(const TConnectionUrl& url, int seconds) {
  constexpr int MillisecondsPerSecond = 1000;
  Stop();
  FKind = url.Kind;
  FTimer->start(seconds * MillisecondsPerSecond);
  const QPointer<TConnectionTest> self = this;
  const auto tell = [self, number = FNumber](const TAnswer& answer) {
    if (!self || self->FNumber != number) return;
    self->End(answer.Works,
              answer.Works ? tr("The connection works; %n table(s) found.", nullptr, answer.Tables) : answer.Words);
  };
  // One that hangs keeps no other from starting.
  QThreadPool& pool = *QThreadPool::globalInstance();
  pool.reserveThread();
  pool.startOnReservedThread([url, seconds, tell] {
    const TAnswer answer = Connect(url, seconds);
    if (QCoreApplication* app = QCoreApplication::instance()) {
      QMetaObject::invokeMethod(
          app, [tell, answer] { tell(answer); }, Qt::QueuedConnection);
    }
  });
}

void TConnectionTest::Stop() {
  ++FNumber;
  FTimer->stop();
}

void TConnectionTest::End(bool works, const QString& words) {
  Stop();
  if (const auto handler = OnEnd) handler(works, words);
}

}  // namespace tolvi
