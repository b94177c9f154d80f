#include <QSqlDatabase>
#include <QStringList>
#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <utility>

#include <tolvi/connect/sqlaccess.h>
#include <tolvi/connect/sqlconnection.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

namespace fs = std::filesystem;

/// What a kind of server needs besides.
struct TServer {
  const char* PasswordVariable;
  std::string_view Hint;
};
constexpr TServer PostgreSQL{"PGPASSWORD", "check that the server runs, and host, database, user and password"};
constexpr TServer MySQL{"MYSQL_PWD", "check that the server runs, and host, database, user and password"};

const TServer& ServerOf(TDatabaseKind kind) { return kind == dkMySQL ? MySQL : PostgreSQL; }

template <typename TError = EConnectError>
[[noreturn]] void Refuse(const TConnectionUrl& url, std::string_view words, std::string_view hint) {
  throw TError("Cannot open %s: %s: %s", {url.Shown(), words, hint});
}

/// Whether the error has one of these numbers; a driver that has met several errors gives all.
bool HasNumber(const QSqlError& error, std::initializer_list<const char*> numbers) {
  const QStringList given = error.nativeErrorCode().split(QLatin1Char(';'));
  return std::any_of(numbers.begin(), numbers.end(),
                     [&given](const char* number) { return given.contains(QLatin1String(number)); });
}

/// Whether the words of the error have one of these.
bool HasWord(const QSqlError& error, std::initializer_list<const char*> words) {
  const QString text = error.databaseText() + QLatin1Char(' ') + error.driverText();
  return std::any_of(words.begin(), words.end(),
                     [&text](const char* word) { return text.contains(QString::fromUtf8(word), Qt::CaseInsensitive); });
}

std::string NewName() {
  static std::atomic<unsigned> count{0};
  return "tolvi-" + std::to_string(++count);
}

/// Takes the connection off the list again unless it is kept.
class TOpening final {
 public:
  TOpening(const TConnectionUrl& url, const TSqlConnectOptions& options)
      : FUrl(url), FOptions(options), FName(NewName()) {
    EnsureApplication();
    const QString driver = DriverOf(url.Kind);
    if (!QSqlDatabase::isDriverAvailable(driver)) {
      Refuse(url, "there is no driver " + FromQString(driver), "install Qt's driver for this kind of database");
    }
    FDatabase = QSqlDatabase::addDatabase(driver, ToQString(FName));
  }
  TOpening(const TOpening&) = delete;
  TOpening& operator=(const TOpening&) = delete;
  ~TOpening() {
    FDatabase = {};
    if (!FKept) QSqlDatabase::removeDatabase(ToQString(FName));
  }

  std::string Open() {
    switch (FUrl.Kind) {
      case dkSQLite:
        OpenFile();
        break;
      case dkODBC:
        OpenSource();
        break;
      case dkPostgreSQL:
      case dkMySQL:
        OpenServer();
        break;
    }
    FKept = true;
    return FName;
  }

 private:
  void OpenFile() {
    constexpr int MillisecondsPerSecond = 1000;
    QStringList connectOptions{QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1")
                                   .arg(static_cast<qlonglong>(FOptions.TimeoutSeconds) * MillisecondsPerSecond)};
    if (FOptions.ReadOnly && !IsInMemory()) connectOptions << QStringLiteral("QSQLITE_OPEN_READONLY");
    std::error_code error;
    if (FOptions.MustExist && !IsInMemory() && !fs::exists(fs::path(FUrl.Database), error)) {
      Refuse(FUrl, "there is no such file", "check its name");
    }
    FDatabase.setDatabaseName(ToQString(FUrl.Database));
    FDatabase.setConnectOptions(connectOptions.join(QLatin1Char(';')));
    if (!FDatabase.open()) RefuseFile(FDatabase.lastError());
    // Nothing has been read so far.
    QSqlQuery query(FDatabase);
    if (!query.exec(QStringLiteral("PRAGMA schema_version"))) RefuseFile(query.lastError());
    if (FOptions.ReadOnly) RunSql(FDatabase, "PRAGMA query_only = 1");
  }

  [[noreturn]] void RefuseFile(const QSqlError& error) const {
    const bool isLocked = error.nativeErrorCode() == QLatin1String("5");
    Refuse(FUrl, WordsOf(error),
           isLocked ? "try again when the program that writes in it is done"
                    : "check that it is an SQLite database and that you may read it");
  }

  bool IsInMemory() const { return FUrl.Database == ":memory:"; }

  void OpenSource() {
    constexpr std::string_view Hint = "check the data source, its driver, user and password", Prefix = "dsn=";
    // The driver writes "DSN=" before what seems to be a name.
    std::string_view source = FUrl.Database;
    if (AsciiSameText(source.substr(0, Prefix.size()), Prefix)) source.remove_prefix(Prefix.size());
    FDatabase.setDatabaseName(ToQString(source));
    FDatabase.setUserName(ToQString(OdbcValue(FUrl.User)));
    FDatabase.setPassword(ToQString(OdbcValue(FUrl.Password)));
    QStringList options{QStringLiteral("SQL_ATTR_LOGIN_TIMEOUT=%1").arg(std::max(FOptions.TimeoutSeconds, 1))};
    if (FOptions.ReadOnly) options << QStringLiteral("SQL_ATTR_ACCESS_MODE=SQL_MODE_READ_ONLY");
    FDatabase.setConnectOptions(options.join(QLatin1Char(';')));
    OpenWithPassword(Hint);
  }

  void OpenServer() {
    const TServer& server = ServerOf(FUrl.Kind);
    FDatabase.setDatabaseName(ToQString(FUrl.Database));
    FDatabase.setUserName(ToQString(FUrl.User));
    if (FUrl.Port != 0) FDatabase.setPort(FUrl.Port);
    FDatabase.setConnectOptions(ConnectOptions());
    std::string password = FUrl.Password;
    if (const char* variable = std::getenv(server.PasswordVariable); password.empty() && variable != nullptr) {
      password = variable;
    }
    // Kept with the connection, so that another one can be opened to end its statements.
    FDatabase.setPassword(ToQString(password));
    OpenWithPassword(server.Hint);
    FUrl.Kind == dkMySQL ? SetUpMySQL() : SetUpPostgreSQL();
  }

  void OpenWithPassword(std::string_view hint) {
    if (FDatabase.open()) return;
    if (WantsPassword(FDatabase.lastError()) && FUrl.Password.empty() && FOptions.OnPasswordRequest) {
      if (const auto given = FOptions.OnPasswordRequest(FUrl)) {
        FDatabase.setPassword(ToQString(FUrl.Kind == dkODBC ? OdbcValue(*given) : *given));
        if (FDatabase.open()) return;
      }
    }
    const QSqlError error = FDatabase.lastError();
    if (WantsPassword(error)) Refuse<EPasswordError>(FUrl, WordsOf(error), hint);
    Refuse(FUrl, WordsOf(error), hint);
  }

  QString ConnectOptions() {
    const QString host = ToQString(FUrl.Host);
    const int seconds = std::max(FOptions.TimeoutSeconds, 1);
    if (FUrl.Kind == dkPostgreSQL) {
      FDatabase.setHostName(host);
      return QStringLiteral("connect_timeout=%1;client_encoding=UTF8").arg(seconds);
    }
    QString connectOptions = QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=%1").arg(seconds);
    if (!FUrl.Host.starts_with('/')) {
      FDatabase.setHostName(host);
      return connectOptions;
    }
    if (host.contains(QLatin1Char(';'))) Refuse(FUrl, "a socket's name cannot hold \";\"", "move the socket");
    return connectOptions + QStringLiteral(";UNIX_SOCKET=") + ToQString(SocketIn(FUrl.Host));
  }

  /// The socket may be given itself, or the folder that it is in.
  static std::string SocketIn(const fs::path& folder) {
    std::error_code error;
    if (!fs::is_directory(folder, error)) return folder.string();
    const fs::path old = folder / "mysql.sock";
    return (fs::exists(old, error) ? old : folder / "mysqld.sock").string();
  }

  bool WantsPassword(const QSqlError& error) const {
    // Of MySQL: access denied, also to users for whom only the system can vouch; of SQL Server: login failed.
    const bool isDenied = HasNumber(error, {"1045", "1698"});
    if (FUrl.Kind == dkMySQL) return isDenied;
    if (FUrl.Kind == dkODBC && (isDenied || HasNumber(error, {"18456"}) || HasWord(error, {"login"}))) return true;
    // No code comes with it. The client library says it so in every language, the server in its own.
    return HasWord(error, {"password", "passwort", "mot de passe", "парол", "lösenord", "パスワード", "პაროლ", "senha",
                           "hasł", "parola", "şifre", "密码", "비밀번호"});
  }

  void SetUpPostgreSQL() {
    if (!FUrl.Schema.empty()) {
      QSqlQuery query =
          RunSql(FDatabase, "SELECT count(*) FROM pg_catalog.pg_namespace WHERE nspname = ?", {ToQString(FUrl.Schema)});
      if (!query.next() || query.value(0).toInt() == 0) {
        Refuse(FUrl, "there is no schema \"" + FUrl.Schema + "\"", "check its name, which is case-sensitive");
      }
      query.finish();
      RunSql(FDatabase, "SET search_path TO " + QuotedName(FUrl.Schema, dkPostgreSQL));
    }
    if (FOptions.ReadOnly) RunSql(FDatabase, "SET SESSION CHARACTERISTICS AS TRANSACTION READ ONLY");
  }

  void SetUpMySQL() {
    RunSql(FDatabase, "SET NAMES utf8mb4");
    // A backslash that escapes would let a text leave its literal; "||" that is OR would make 0 of two texts.
    RunSql(FDatabase,
           "SET SESSION sql_mode = "
           "CONCAT(@@SESSION.sql_mode, ',ANSI_QUOTES,NO_BACKSLASH_ESCAPES,PIPES_AS_CONCAT')");
    if (FOptions.ReadOnly) RunSql(FDatabase, "SET SESSION TRANSACTION READ ONLY");
  }

  const TConnectionUrl& FUrl;
  const TSqlConnectOptions& FOptions;
  std::string FName;
  QSqlDatabase FDatabase;
  bool FKept = false;
};

}  // namespace

TSqlConnection::TSqlConnection(const TConnectionUrl& url, const TSqlConnectOptions& options)
    : FName(TOpening(url, options).Open()), FUrl(url) {
  FUrl.Password.clear();
}

TSqlConnection::~TSqlConnection() { Close(); }

TSqlConnection::TSqlConnection(TSqlConnection&& other) noexcept
    : FName(std::exchange(other.FName, {})), FUrl(std::move(other.FUrl)) {}

TSqlConnection& TSqlConnection::operator=(TSqlConnection&& other) noexcept {
  if (this == &other) return *this;
  Close();
  FName = std::exchange(other.FName, {});
  FUrl = std::move(other.FUrl);
  return *this;
}

void TSqlConnection::Execute(std::string_view sql) { RunSql(SessionOf(FName).Database, sql); }

void TSqlConnection::Close() noexcept {
  if (FName.empty()) return;
  const QString name = ToQString(FName);
  QSqlDatabase::database(name, false).close();
  QSqlDatabase::removeDatabase(name);
  FName.clear();
}

}  // namespace tolvi
