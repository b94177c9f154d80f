#include "databases.h"

#include <cstdlib>
#include <stdexcept>

#include <unistd.h>

#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

namespace fs = std::filesystem;

const fs::path Folder = fs::path(TOLVI_SOURCE_DIR) / "tests/connect";

void FillDatabase(const TConnectionUrl& url) {
  TSqlConnection connection(url, {.MustExist = false});
  TStrings lines;
  lines.LoadFromFile(Folder / "fixtures" / (std::string(KindName(url.Kind)) + ".sql"));
  std::string statement;
  for (const std::string& line : lines) {
    statement += line + "\n";
    if (!line.ends_with(';')) continue;
    connection.Execute(statement.substr(0, statement.size() - 2));
    statement.clear();
  }
}

TConnectionUrl StartDatabase(TDatabaseKind kind) {
  if (kind == dkSQLite) {
    static const TTestFolder folder;
    const TConnectionUrl url{.Kind = kind, .Database = (folder.Path() / "test.sqlite").string()};
    FillDatabase(url);
    return url;
  }
  // The script removes it with the server.
  const std::string folder =
      (fs::temp_directory_path() / "tolvi-").string() + std::string(KindName(kind)) + "-" + std::to_string(getpid());
  fs::create_directory(folder);
  const std::string command = "sh '" + (Folder / "servers.sh").string() + "' " + std::string(KindName(kind)) + " '" +
                              folder + "' " + std::to_string(getpid());
  if (std::system(command.c_str()) != 0) {
    throw std::runtime_error("cannot start the server for " + std::string(KindName(kind)) + ": see above");
  }
  const TConnectionUrl url{.Kind = kind, .Database = "tolvi", .Host = folder, .User = "tester"};
  FillDatabase(url);
  return url;
}

}  // namespace

TConnectionUrl TestDatabase(TDatabaseKind kind) {
  switch (kind) {
    case dkSQLite: {
      static const TConnectionUrl url = StartDatabase(dkSQLite);
      return url;
    }
    case dkODBC: {
      static const TConnectionUrl url{.Kind = dkODBC,
                                      .Database = "Driver=SQLite3;Database=" + TestDatabase(dkSQLite).Database};
      return url;
    }
    case dkPostgreSQL: {
      static const TConnectionUrl url = StartDatabase(dkPostgreSQL);
      return url;
    }
    case dkMySQL:
      break;
  }
  static const TConnectionUrl url = StartDatabase(dkMySQL);
  return url;
}

TSqlConnection ConnectTo(TDatabaseKind kind, const TSqlConnectOptions& options) {
  return TSqlConnection(TestDatabase(kind), options);
}

std::string_view KindName(TDatabaseKind kind) {
  constexpr std::string_view Names[] = {"sqlite", "postgresql", "mysql"};
  return Names[kind];
}

TTestFolder::TTestFolder() {
  std::string pattern = (fs::temp_directory_path() / "tolvi-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("cannot make the folder " + pattern);
  FPath = pattern;
}

TTestFolder::~TTestFolder() {
  std::error_code error;
  fs::remove_all(FPath, error);
}

std::string ConnectErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const EConnectError& error) {
    return error.Message();
  }
  return {};
}

}  // namespace tolvi
