#include <algorithm>
#include <iterator>
#include <limits>

#include <tolvi/connect/sqllimits.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

std::string_view WithoutSemicolon(std::string_view sql) {
  std::string_view result = Trim(sql);
  while (result.ends_with(';')) result = Trim(result.substr(0, result.size() - 1));
  return result;
}

}  // namespace

TSqlLimits::TSqlLimits(const TSqlSession& session, std::chrono::milliseconds timeout, std::size_t maxRows)
    : FSession(session), FMaxRows(maxRows) {
  switch (session.Kind) {
    case dkSQLite:
      SetSQLite();
      break;
    case dkPostgreSQL:
      SetPostgreSQL(timeout);
      break;
    case dkMySQL:
      SetMySQL(timeout);
      break;
    case dkODBC:
      break;
  }
}

TSqlLimits::~TSqlLimits() { Restore(); }

void TSqlLimits::Restore() noexcept {
  if (FRestoreSql.empty()) return;
  try {
    RunSql(FSession.Database, FRestoreSql, FValues);
  } catch (...) {
    // Within a transaction that has failed, nothing runs; its end sets the settings back.
  }
}

std::string TSqlLimits::Limited(std::string_view sql) const {
  constexpr std::string_view Words[] = {"select", "with", "values", "table"};
  const std::string_view statement = WithoutSemicolon(sql);
  const bool isQuery = std::any_of(std::begin(Words), std::end(Words), [statement](std::string_view word) {
    return AsciiSameText(statement.substr(0, word.size()), word);
  });
  if (FSession.Kind != dkPostgreSQL || FMaxRows == 0 || !isQuery) return std::string(sql);
  // A comment at the end of the statement ends with the line.
  return std::string("SELECT * FROM (")
      .append(statement)
      .append("\n) AS rows_wanted LIMIT ")
      .append(std::to_string(FMaxRows));
}

void TSqlLimits::SetSQLite() {
  constexpr std::string_view Sql = "PRAGMA query_only";
  QSqlQuery query = RunSql(FSession.Database, Sql);
  const bool isOn = NextRow(query, Sql) && query.value(0).toBool();
  query.finish();
  if (isOn) return;
  RunSql(FSession.Database, "PRAGMA query_only = 1");
  FRestoreSql = "PRAGMA query_only = 0";
}

void TSqlLimits::SetPostgreSQL(std::chrono::milliseconds timeout) {
  // A transaction that is open already could not be made one for writing again.
  constexpr std::string_view Sql =
      "SELECT current_setting('statement_timeout'), current_setting('default_transaction_read_only')";
  constexpr std::string_view SetSql =
      "SELECT set_config('statement_timeout', ?, false), set_config('default_transaction_read_only', ?, false)";
  QSqlQuery query = RunSql(FSession.Database, Sql);
  if (!NextRow(query, Sql)) return;
  const QVariantList old{query.value(0), query.value(1)};
  query.finish();
  RunSql(FSession.Database, SetSql, {QString::number(timeout.count()), QStringLiteral("on")});
  FRestoreSql = SetSql;
  FValues = old;
}

void TSqlLimits::SetMySQL(std::chrono::milliseconds timeout) {
  constexpr double MillisecondsPerSecond = 1000;
  constexpr std::string_view VersionSql = "SELECT VERSION()";
  QSqlQuery version = RunSql(FSession.Database, VersionSql);
  const bool isMariaDB = NextRow(version, VersionSql) && TextAt(version, 0).find("MariaDB") != std::string::npos;
  version.finish();
  const std::string time = isMariaDB ? "max_statement_time" : "max_execution_time";
  const std::string readOnly = isMariaDB ? "tx_read_only" : "transaction_read_only";
  const std::string sql = "SELECT @@SESSION." + time + ", @@SESSION.sql_select_limit, @@SESSION." + readOnly;
  QSqlQuery query = RunSql(FSession.Database, sql);
  if (!NextRow(query, sql)) return;
  const QVariantList old{query.value(0).toDouble(), query.value(1).toULongLong(), query.value(2).toInt()};
  query.finish();
  const std::string setSql = "SET SESSION " + time + " = ?, SESSION sql_select_limit = ?, SESSION " + readOnly + " = ?";
  const auto milliseconds = static_cast<double>(timeout.count());
  const qulonglong rows = FMaxRows == 0 ? std::numeric_limits<qulonglong>::max() : qulonglong{FMaxRows};
  const auto toTime = [isMariaDB](double number) {
    return isMariaDB ? QVariant(number) : QVariant(static_cast<qlonglong>(number));
  };
  RunSql(FSession.Database, setSql,
         {toTime(isMariaDB ? milliseconds / MillisecondsPerSecond : milliseconds), QVariant(rows), QVariant(1)});
  FRestoreSql = setSql;
  FValues = {toTime(old[0].toDouble()), old[1], old[2]};
}

}  // namespace tolvi
