#include <QSqlDriver>
#include <set>

#include <tolvi/connect/sqlwatch.h>

#if __has_include(<dlfcn.h>)
#include <dlfcn.h>
#endif

namespace tolvi {
namespace {

#if __has_include(<dlfcn.h>)
std::set<std::string> RowsOf(const QSqlDatabase& database, std::string_view sql) {
  QSqlQuery query = RunSql(database, sql);
  std::set<std::string> rows;
  while (NextRow(query, sql)) rows.insert(TextAt(query, 0));
  return rows;
}

#endif

void* HandleOf(const QSqlDatabase& database) {
  if (!database.isOpen()) return nullptr;
  const QVariant handle = database.driver()->handle();
  if (!handle.isValid() || std::string_view(handle.typeName()) != "sqlite3*") return nullptr;
  return *static_cast<void* const*>(handle.data());
}

constexpr int StepsBetweenQuestions = 10000;

constexpr std::string_view PostgreSQLTask = "SELECT pg_catalog.pg_backend_pid()";
constexpr std::string_view MySQLTask = "SELECT CONNECTION_ID()";

}  // namespace

// A driver may hold an SQLite of its own. Only one of the same sources and options is taken for the driver's.
TSqlWatch::TSetHandler TSqlWatch::SetHandlerOf([[maybe_unused]] const QSqlDatabase& database) {
#if __has_include(<dlfcn.h>)
  void* const library = dlopen("libsqlite3.so.0", RTLD_LAZY | RTLD_NOLOAD);
  if (library == nullptr) return nullptr;
  const auto sourceId = reinterpret_cast<const char* (*)()>(dlsym(library, "sqlite3_sourceid"));
  const auto option = reinterpret_cast<const char* (*)(int)>(dlsym(library, "sqlite3_compileoption_get"));
  const auto setHandler = reinterpret_cast<TSetHandler>(dlsym(library, "sqlite3_progress_handler"));
  // The driver keeps it in memory.
  dlclose(library);
  if (sourceId == nullptr || option == nullptr || setHandler == nullptr) return nullptr;
  std::set<std::string> options;
  for (int i = 0; const char* text = option(i); ++i) options.insert(text);
  const bool isSame = RowsOf(database, "SELECT sqlite_source_id()").contains(sourceId()) &&
                      RowsOf(database, "PRAGMA compile_options") == options;
  return isSame ? setHandler : nullptr;
#else
  return nullptr;
#endif
}

TSqlWatch::TSqlWatch(const TSqlSession& session)
    : FSession(session), FConnectionName(FromQString(session.Database.connectionName())) {}

void TSqlWatch::Begin(std::chrono::milliseconds timeout) {
  End();
  FIsCancelled = FIsLate = false;
  FDeadline =
      timeout.count() > 0 ? std::chrono::steady_clock::now() + timeout : std::chrono::steady_clock::time_point::max();
  if (FSession.Kind == dkSQLite) {
    FSetHandler = SetHandlerOf(FSession.Database);
    if (FSetHandler != nullptr) FHandle = HandleOf(FSession.Database);
    if (FHandle != nullptr) FSetHandler(FHandle, StepsBetweenQuestions, Ask, this);
  } else if (FSession.Kind != dkODBC) {
    FindServerTask();
  }
  const std::lock_guard lock(FMutex);
  FIsRunning = true;
}

void TSqlWatch::End() {
  {
    const std::lock_guard lock(FMutex);
    if (!FIsRunning) return;
    FIsRunning = false;
  }
  if (FHandle == nullptr) return;
  // A closed connection has taken its handle along.
  if (HandleOf(FSession.Database) == FHandle) FSetHandler(FHandle, 0, nullptr, nullptr);
  FHandle = nullptr;
}

int TSqlWatch::Ask(void* watch) {
  auto& self = *static_cast<TSqlWatch*>(watch);
  if (std::chrono::steady_clock::now() > self.FDeadline) self.FIsLate = true;
  return self.FIsCancelled || self.FIsLate ? 1 : 0;
}

void TSqlWatch::Cancel() {
  const std::lock_guard lock(FMutex);
  if (!FIsRunning || FIsCancelled) return;
  FIsCancelled = true;
  if (FSession.Kind == dkPostgreSQL || FSession.Kind == dkMySQL) TellServer();
}

void TSqlWatch::FindServerTask() {
  const std::string_view sql = FSession.Kind == dkMySQL ? MySQLTask : PostgreSQLTask;
  QSqlQuery query = RunSql(FSession.Database, sql);
  FServerTask = NextRow(query, sql) ? query.value(0).toLongLong() : 0;
}

void TSqlWatch::TellServer() {
  static std::atomic<unsigned> count{0};
  const QString name = QStringLiteral("tolvi-cancel-%1").arg(++count);
  const std::string task = std::to_string(FServerTask);
  {
    QSqlDatabase database = QSqlDatabase::cloneDatabase(ToQString(FConnectionName), name);
    if (database.open()) {
      QSqlQuery query(database);
      query.exec(ToQString(FSession.Kind == dkMySQL ? "KILL QUERY " + task
                                                    : "SELECT pg_catalog.pg_cancel_backend(" + task + ")"));
    }
  }
  QSqlDatabase::removeDatabase(name);
}

}  // namespace tolvi
