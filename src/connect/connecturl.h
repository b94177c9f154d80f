#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/connect/api.h>
#include <tolvi/foundation/errors.h>

namespace tolvi {

/// A connection cannot be opened, or a statement failed. The message holds what the database said, never a password.
class TOLVI_CONNECT_API EConnectError : public EException {
 public:
  using EException::EException;
};

/// A connection was refused for want of a password, or of another one.
class TOLVI_CONNECT_API EPasswordError final : public EConnectError {
 public:
  using EConnectError::EConnectError;
};

/// The databases that a URL can name.
enum TDatabaseKind : std::uint8_t { dkSQLite, dkPostgreSQL, dkMySQL, dkODBC };

/// Where a database is: "sqlite:FILE", "postgresql://[USER[:PASSWORD]@][HOST][:PORT]/DATABASE[?schema=NAME]", or
/// "mysql:" with the same but no schema. Parts may hold "%20" and the like; a "%" itself is "%25". "postgres" and
/// "mariadb" mean the same as the names above. A host of a local socket is its folder, encoded:
/// "postgresql://%2Fvar%2Frun%2Fpostgresql/shop".
///
/// Whatever else there is a driver for: "odbc:NAME" of a data source, or "odbc:" and the attributes of a connection,
/// "odbc:Driver={SQLite3};Database=/home/anna/shop.sqlite;UID=anna;PWD=secret". They are taken as they stand, without
/// "%20"; a value with ";" in it stands in braces.
struct TOLVI_CONNECT_API TConnectionUrl {
  TDatabaseKind Kind = dkSQLite;
  /// The file of `dkSQLite` (":memory:" for none); of `dkODBC` the name of the data source, or the attributes but for
  /// user and password; else the name of the database.
  std::string Database = {};
  std::string Host = {}, User = {}, Password = {};
  /// 0 for the usual one.
  int Port = 0;
  /// Empty for the usual one.
  std::string Schema = {};

  /// The URL without the password.
  [[nodiscard]] std::string Shown() const;

  bool operator==(const TConnectionUrl&) const = default;
};

/// The preset of SQL formats that suits the kind (see `ApplyFormatPreset`).
[[nodiscard]] TOLVI_CONNECT_API std::string_view FormatPresetOf(TDatabaseKind kind);

/// A value for the attributes of ODBC, in braces where it would be misread.
[[nodiscard]] TOLVI_CONNECT_API std::string OdbcValue(std::string_view value);

/// Whether the text begins like a URL ("sqlite:", "postgresql://", also "other://"), and is not the name of a file.
[[nodiscard]] TOLVI_CONNECT_API bool IsConnectionUrl(std::string_view text);

/// The parts of a text that may be passwords, if it is a URL, right or wrong: for those who show what they were given.
[[nodiscard]] TOLVI_CONNECT_API std::vector<std::string_view> PasswordsIn(std::string_view url);

/// Raises `EConnectError`, which says what is wrong and how such a URL looks, and does not repeat a password.
[[nodiscard]] TOLVI_CONNECT_API TConnectionUrl ParseConnectionUrl(std::string_view url);

}  // namespace tolvi
