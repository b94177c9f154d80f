#include "shoploader.h"

#include <string>
#include <vector>

#include "databases.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/connect/sqlconnection.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/values.h>

namespace tolvi {
namespace {

using TSqlRow = std::vector<TSqlValue>;

const TConnectionUrl ShopFile{.Kind = dkSQLite, .Database = TOLVI_SHOP_DATABASE};

std::vector<TSqlRow> RowsOf(TJQueryRunner& runner, const std::string& sql) {
  std::vector<TSqlRow> rows;
  runner.Run(TBoundStatement{sql, {}});
  while (runner.Next()) {
    TSqlRow& row = rows.emplace_back();
    for (std::size_t i = 0; i < runner.Columns().size(); ++i) row.push_back(runner.Value(i));
  }
  return rows;
}

/// What the values of a column declared so are bound as; texts where the database reads them as what it wants.
TFieldType BoundType(std::string_view declared) {
  if (declared == "INTEGER") return ftLargeint;
  if (declared == "BOOLEAN") return ftBoolean;
  return declared.starts_with("DECIMAL") ? ftBCD : ftString;
}

TBoundValue BoundValue(const TSqlValue& value, TFieldType type) {
  TBoundValue result{
      .Name = {}, .IsMissing = value.Kind == svNull, .Type = type, .Value = value.Text, .Text = value.Text};
  if (type == ftBoolean) result.Text = value.Text == "1" ? "true" : "false";
  return result;
}

/// `name` is the table's as statements write it.
void CopyRows(TJQueryRunner& from, TJQueryRunner& to, const std::string& table, const std::string& name) {
  constexpr std::size_t MaxValues = 3000;
  std::vector<TFieldType> types;
  for (const TSqlRow& column : RowsOf(from, "SELECT type FROM pragma_table_info(" + QuotedString(table) + ")")) {
    types.push_back(BoundType(column[0].Text));
  }
  TBoundStatement insert;
  const auto flush = [&] {
    if (!insert.Values.empty()) to.Run(insert);
    insert = {};
  };
  for (const TSqlRow& row : RowsOf(from, "SELECT * FROM " + name)) {
    insert.SQL += insert.SQL.empty() ? "INSERT INTO " + name + " VALUES " : ",";
    for (std::size_t i = 0; i < row.size(); ++i) {
      insert.SQL += i == 0 ? "(?" : ",?";
      insert.Values.push_back(BoundValue(row[i], types[i]));
    }
    insert.SQL += ')';
    if (insert.Values.size() > MaxValues) flush();
  }
  flush();
}

TConnectionUrl LoadShop(TDatabaseKind kind) {
  const bool isMySQL = kind == dkMySQL;
  ConnectTo(kind).Execute(isMySQL ? "CREATE DATABASE shop CHARACTER SET utf8mb4 COLLATE utf8mb4_bin"
                                  : "CREATE DATABASE shop");
  TConnectionUrl url = TestDatabase(kind);
  url.Database = "shop";
  TSqlConnection file(ShopFile, {.ReadOnly = true}), server(url);
  TJQueryRunner from(file.GetName()), to(server.GetName());
  // The staff refer to those hired later.
  if (isMySQL) server.Execute("SET foreign_key_checks = 0");
  server.Execute("BEGIN");
  for (const TSqlRow& made : RowsOf(from, "SELECT type, name, sql FROM sqlite_master WHERE sql <> '' ORDER BY rowid")) {
    server.Execute(ReplaceStr(made[2].Text, " DATETIME", isMySQL ? " DATETIME" : " TIMESTAMP"));
    constexpr std::size_t nameStart = std::string_view("CREATE TABLE ").size();
    const std::string name = made[2].Text.substr(nameStart, made[2].Text.find(" (") - nameStart);
    if (made[0].Text == "table") CopyRows(from, to, made[1].Text, name);
  }
  server.Execute("COMMIT");
  return url;
}

}  // namespace

TConnectionUrl ShopDatabase(TDatabaseKind kind) {
  if (kind == dkSQLite) return ShopFile;
  if (kind == dkPostgreSQL) {
    static const TConnectionUrl url = LoadShop(dkPostgreSQL);
    return url;
  }
  static const TConnectionUrl url = LoadShop(dkMySQL);
  return url;
}

}  // namespace tolvi
