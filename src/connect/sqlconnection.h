#pragma once

#include <functional>
#include <optional>
#include <string>

#include <tolvi/connect/api.h>
#include <tolvi/connect/connecturl.h>

namespace tolvi {

struct TSqlConnectOptions {
  /// Whether the database refuses changes; of `dkODBC`, those drivers do that can. Default false.
  bool ReadOnly = false;
  /// Whether the file of an SQLite database must exist; without it, an empty one is made. Default true.
  bool MustExist = true;
  /// How long to wait for a server, and for a locked file. Default 10.
  int TimeoutSeconds = 10;
  /// Asked once, when the URL has no password and the server wants one, another than the environment's if that has one.
  /// Nothing: give up.
  std::function<std::optional<std::string>(const TConnectionUrl& url)> OnPasswordRequest = {};
};

/// An open connection, closed with the object. Other classes find it by its name; whatever uses it must be gone before.
/// Belongs to the thread that opens it.
///
/// A URL without a password takes the one of the environment: PGPASSWORD or MYSQL_PWD. On MySQL, texts are
/// UTF-8, names may stand in double quotes, a backslash in a text is only that, and "||" joins texts as elsewhere: a
/// host that opens MySQL by itself sets the modes ANSI_QUOTES, NO_BACKSLASH_ESCAPES and PIPES_AS_CONCAT, too.
///
/// The database drivers need a QCoreApplication. Where none exists, this makes one, which stays to the end of the
/// program: a host that has its own makes it before.
class TOLVI_CONNECT_API TSqlConnection final {
 public:
  /// Raises `EConnectError` with the database's words and what to do; `EPasswordError` where a password may help.
  explicit TSqlConnection(const TConnectionUrl& url, const TSqlConnectOptions& options = {});
  ~TSqlConnection();
  TSqlConnection(const TSqlConnection&) = delete;
  TSqlConnection& operator=(const TSqlConnection&) = delete;
  TSqlConnection(TSqlConnection&& other) noexcept;
  TSqlConnection& operator=(TSqlConnection&& other) noexcept;

  /// The name of the QSqlDatabase, of its own.
  [[nodiscard]] const std::string& GetName() const { return FName; }
  [[nodiscard]] TDatabaseKind GetKind() const { return FUrl.Kind; }
  /// Without the password.
  [[nodiscard]] const TConnectionUrl& GetUrl() const { return FUrl; }

  /// Runs one statement that gives no rows. Raises `EConnectError`.
  void Execute(std::string_view sql);

 private:
  void Close() noexcept;

  std::string FName;
  TConnectionUrl FUrl;
};

}  // namespace tolvi
