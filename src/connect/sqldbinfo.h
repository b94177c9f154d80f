#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include <tolvi/connect/api.h>
#include <tolvi/connect/connecturl.h>
#include <tolvi/model/modelfill.h>
#include <tolvi/schema/dbinfo.h>

namespace tolvi {

class TSqlCatalogue;

/// How to fill a model from a database of that kind: the defaults, with names quoted where it would fold their case,
/// and links by the names of columns where there are no keys to be had.
[[nodiscard]] TOLVI_CONNECT_API TFillOptions FillOptionsFor(TDatabaseKind kind);

/// The catalogue of an open SQLite, PostgreSQL, MySQL or ODBC database. The connection is the host's own QSqlDatabase,
/// or that of a `TSqlConnection`; it is found by its name at each question, in the thread of the question.
///
///   TSqlConnection connection(ParseConnectionUrl("sqlite:shop.sqlite"));
///   TJSqlDBInfo info(connection.GetName());
///   FillModel(model, info, FillOptionsFor(connection.GetKind()));
///
/// 1. Databases are the schemas of PostgreSQL, the databases of MySQL, the attached files of SQLite. With
///    `CurrentDBName` empty, tables are those that statements find without a schema; those of another database are
///    called "schema.table". The table of a `TJSqlQueryBase` is not listed.
/// 2. The catalogue is read as a whole, by a handful of statements: when it is first asked anything, whenever it is
///    asked for tables, and after `Update`. All other answers are of the same reading.
/// 3. Links come from foreign keys between the tables of the list, columns joined by " and ", names in double quotes
///    where they are no plain words.
/// 4. Of ODBC, there are no databases and no links to be had, and each table takes statements of its own (filling
///    finds links by names, see `FillOptionsFor`).
///
/// Every question raises `EConnectError` when there is no open connection of that name or the database refuses; a table
/// that is not in the catalogue has no fields.
class TOLVI_CONNECT_API TJSqlDBInfo final : public TJDBInfo {
 public:
  explicit TJSqlDBInfo(std::string_view connectionName = {});
  ~TJSqlDBInfo() override;
  std::string_view ClassName() const override { return "TJSqlDBInfo"; }

  const std::string& GetConnectionName() const { return FConnectionName; }
  /// Forgets what was read.
  void SetConnectionName(std::string_view name);
  /// Whether the connection is open.
  bool GetConnected() const override;
  void Update() override;

  /// What `RunQuery` gives at most, whatever the statement: rows (default 1000), and time to begin giving them (default
  /// 10 seconds), beyond which it raises `EConnectError`. Zero: no limit.
  std::size_t GetMaxRows() const { return FMaxRows; }
  void SetMaxRows(std::size_t count) { FMaxRows = count; }
  std::chrono::milliseconds GetTimeout() const { return FTimeout; }
  void SetTimeout(std::chrono::milliseconds timeout) { FTimeout = timeout; }

 protected:
  void AvailableDatabases(TStrings& list) override;
  void TablesByDatabase(TStrings& list) override;
  void LinksByDatabase(TStrings& list) override;
  void ViewsByDatabase(TStrings& list) override;
  void FieldsByTable(std::string_view tableName, TDBFieldList& fieldList) override;
  void KeysByTable(std::string_view tableName, TStrings& list) override;
  /// Runs the statement for reading only: the first column is the value, the second, if there is one, its caption. A
  /// caption of NULL is the value, a row whose value is NULL is left out. Numbers and dates are written as in
  /// `TSqlValue`.
  bool GetSQLValues(std::string_view sql, TStrings& values, TStrings& items) override;
  void DatabaseChanged() override;
  void ConnectionChanged() override;

 private:
  const TSqlCatalogue& Catalogue();

  std::string FConnectionName;
  std::size_t FMaxRows = 1000;
  std::chrono::milliseconds FTimeout{10000};
  std::unique_ptr<TSqlCatalogue> FCatalogue;
};

}  // namespace tolvi
