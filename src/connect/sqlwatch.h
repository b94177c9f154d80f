#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <string>

#include <tolvi/connect/sqlaccess.h>

namespace tolvi {

/// Ends a statement that runs on a connection, from another thread or after a time. A server is told so over a second
/// connection; SQLite asks again and again, if it is the library that the program itself can reach. With ODBC, no more
/// rows are read, but a statement that has begun goes on to its first row.
///
/// `Begin` and `End` belong to the connection's thread, all else to any.
class TSqlWatch final {
 public:
  explicit TSqlWatch(const TSqlSession& session);
  ~TSqlWatch() { End(); }
  TSqlWatch(const TSqlWatch&) = delete;
  TSqlWatch& operator=(const TSqlWatch&) = delete;

  /// Statements from here to `End` can be ended. The time is watched for SQLite alone; zero: no limit.
  void Begin(std::chrono::milliseconds timeout = {});
  void End();

  /// Ends the statement that runs; whatever it was doing fails. Without one, nothing happens.
  void Cancel();
  bool IsCancelled() const { return FIsCancelled; }
  /// Whether the time was over before the statement.
  bool IsLate() const { return FIsLate; }

 private:
  static int Ask(void* watch);
  void FindServerTask();
  void TellServer();

  // SQLite's function that has a statement ask, now and then, whether to go on.
  using TSetHandler = void (*)(void* database, int steps, int (*ask)(void*), void* argument);
  static TSetHandler SetHandlerOf(const QSqlDatabase& database);

  TSqlSession FSession;
  std::string FConnectionName;
  // Null where SQLite cannot be reached.
  TSetHandler FSetHandler = nullptr;
  void* FHandle = nullptr;
  std::int64_t FServerTask = 0;
  std::chrono::steady_clock::time_point FDeadline;
  std::atomic<bool> FIsCancelled{false}, FIsLate{false};
  std::mutex FMutex;
  bool FIsRunning = false;
};

}  // namespace tolvi
