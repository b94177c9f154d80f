#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include <tolvi/connect/connecturl.h>
#include <tolvi/connect/sqlconnection.h>

namespace tolvi {

/// The kinds of databases with the same tables in each; ODBC leads to the file of SQLite. Servers are started for the
/// first test that needs one and end with the program. Throws `std::runtime_error` with the reason, also when a server
/// is not installed.
TConnectionUrl TestDatabase(TDatabaseKind kind);

/// That of the user "locked" of both servers, who may read "customers" alone on PostgreSQL.
inline constexpr std::string_view LockedPassword = "s e;c'r\\t";

/// A connection to it.
TSqlConnection ConnectTo(TDatabaseKind kind, const TSqlConnectOptions& options = {});

/// "sqlite", "postgresql", "mysql": for names of tests, files and presets.
std::string_view KindName(TDatabaseKind kind);

/// A folder that goes with the object.
class TTestFolder final {
 public:
  TTestFolder();
  ~TTestFolder();
  TTestFolder(const TTestFolder&) = delete;
  TTestFolder& operator=(const TTestFolder&) = delete;
  const std::filesystem::path& Path() const { return FPath; }

 private:
  std::filesystem::path FPath;
};

/// The message of what the call raises; empty when it raises no `EConnectError`.
std::string ConnectErrorOf(const std::function<void()>& call);

}  // namespace tolvi
