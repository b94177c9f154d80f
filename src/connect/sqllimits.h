#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include <tolvi/connect/sqlaccess.h>

namespace tolvi {

/// While it lives, statements of the connection cannot change anything (unless in a transaction that was open before)
/// and end after a time; then the connection has its own settings again. For SQLite, `TSqlWatch` keeps the time. ODBC
/// has no settings that all drivers know: there, nothing is limited.
class TSqlLimits final {
 public:
  /// Raises `EConnectError`. Zero: no limit.
  TSqlLimits(const TSqlSession& session, std::chrono::milliseconds timeout, std::size_t maxRows);
  ~TSqlLimits();
  TSqlLimits(const TSqlLimits&) = delete;
  TSqlLimits& operator=(const TSqlLimits&) = delete;

  /// The statement so that the server sends no more rows than wanted, where the settings do not see to it: PostgreSQL
  /// would send all of them.
  [[nodiscard]] std::string Limited(std::string_view sql) const;

 private:
  void Restore() noexcept;
  void SetSQLite();
  void SetPostgreSQL(std::chrono::milliseconds timeout);
  void SetMySQL(std::chrono::milliseconds timeout);

  TSqlSession FSession;
  std::size_t FMaxRows;
  // The statement that sets the settings back, and its values.
  std::string FRestoreSql;
  QVariantList FValues;
};

}  // namespace tolvi
