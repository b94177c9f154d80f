#include <algorithm>
#include <map>

#include <tolvi/connect/catalogue.h>

namespace tolvi {
namespace {

constexpr std::string_view DefaultSchema = "main";

constexpr std::string_view TablesSql =
    "SELECT name, type = 'view', wr FROM pragma_table_list "
    "WHERE schema = ? AND type IN ('table', 'view', 'virtual') AND substr(name, 1, 7) <> 'sqlite_' "
    "ORDER BY name COLLATE NOCASE, name";
// Hidden columns are the arguments of table functions.
constexpr std::string_view ColumnsSql =
    "SELECT t.name, c.name, c.type, c.pk FROM pragma_table_list AS t "
    "JOIN pragma_table_xinfo(t.name, t.schema) AS c WHERE t.schema = ? AND c.hidden <> 1 ORDER BY t.name, c.cid";
constexpr std::string_view ColumnsOfOneSql =
    "SELECT ?, name, type, pk FROM pragma_table_xinfo(?, ?) WHERE hidden <> 1 ORDER BY cid";
// SQLite numbers foreign keys from the last one that was declared.
constexpr std::string_view ReferencesSql =
    "SELECT t.name, f.seq, f.\"from\", f.\"table\", f.\"to\" FROM pragma_table_list AS t "
    "JOIN pragma_foreign_key_list(t.name, t.schema) AS f WHERE t.schema = ? AND t.type = 'table' "
    "ORDER BY t.name COLLATE NOCASE, t.name, f.id DESC, f.seq";

class TReader final {
 public:
  TReader(const QSqlDatabase& database, std::string_view schema)
      : FDatabase(database), FSchema(schema.empty() ? DefaultSchema : schema), FIsQualified(FSchema != DefaultSchema) {}

  TSqlCatalogue Read() {
    ReadTables();
    try {
      ReadColumns(ColumnsSql, {ToQString(FSchema)});
    } catch (const EConnectError&) {
      ReadColumnsOneByOne();
    }
    TakeKeys();
    ReadReferences();
    return std::move(FResult);
  }

 private:
  void ReadTables() {
    QSqlQuery query = RunSql(FDatabase, TablesSql, {ToQString(FSchema)});
    while (NextRow(query, TablesSql)) {
      const std::size_t number = FResult.AddTable(FSchema, TextAt(query, 0), query.value(1).toBool(), FIsQualified);
      if (query.value(2).toBool()) FWithoutRowid.push_back(number);
    }
  }

  void ReadColumns(std::string_view sql, const QVariantList& values) {
    QSqlQuery query = RunSql(FDatabase, sql, values);
    while (NextRow(query, sql)) {
      const std::size_t number = FResult.Find(FSchema, TextAt(query, 0));
      if (number == TSqlCatalogue::None) continue;
      const std::string name = TextAt(query, 1), declared = TextAt(query, 2);
      FResult.Table(number).Columns.push_back({name, SQLiteColumnType(declared)});
      const int place = query.value(3).toInt();
      if (place > 0) FKeys[number][place] = {name, AsciiSameText(Trim(declared), "integer")};
    }
  }

  /// One view whose tables are gone, or a table of a module that is not there, fails the statement for all.
  void ReadColumnsOneByOne() {
    for (std::size_t number = 0; number < FResult.Tables().size(); ++number) {
      FResult.Table(number).Columns.clear();
    }
    FKeys.clear();
    for (std::size_t number = 0; number < FResult.Tables().size(); ++number) {
      const QString name = ToQString(FResult.Tables()[number].Name);
      try {
        ReadColumns(ColumnsOfOneSql, {name, name, ToQString(FSchema)});
      } catch (const EConnectError&) {
        // It stays without columns.
      }
    }
  }

  void TakeKeys() {
    for (const auto& [number, parts] : FKeys) {
      TSqlTable& table = FResult.Table(number);
      for (const auto& [place, part] : parts) table.Key.push_back(part.Name);
      // SQLite itself gives the values of such a column.
      const bool hasRowid = std::find(FWithoutRowid.begin(), FWithoutRowid.end(), number) == FWithoutRowid.end();
      if (parts.size() != 1 || !parts.begin()->second.IsInteger || !hasRowid) continue;
      for (TSqlColumn& column : table.Columns) {
        if (column.Name == table.Key[0]) column.Type = {ftAutoInc};
      }
    }
  }

  void ReadReferences() {
    QSqlQuery query = RunSql(FDatabase, ReferencesSql, {ToQString(FSchema)});
    bool isKnown = false;
    while (NextRow(query, ReferencesSql)) {
      const std::size_t from = FResult.Find(FSchema, TextAt(query, 0));
      const std::size_t to = FResult.Find(FSchema, TextAt(query, 3));
      const int place = query.value(1).toInt();
      if (place == 0) isKnown = from != TSqlCatalogue::None && to != TSqlCatalogue::None;
      if (!isKnown) continue;
      std::string column = SpellingOf(from, TextAt(query, 2));
      std::string other = SpellingOf(to, TextAt(query, 4));
      // Without a column, the primary key is meant.
      const std::vector<std::string>& key = FResult.Tables()[to].Key;
      if (query.isNull(4) && static_cast<std::size_t>(place) < key.size()) {
        other = key[static_cast<std::size_t>(place)];
      }
      if (other.empty()) {
        if (place > 0) FResult.DropReference();
        isKnown = false;
        continue;
      }
      FResult.AddReference(place == 0, from, column, to, other);
    }
  }

  /// References may spell a column in other case than its table does.
  std::string SpellingOf(std::size_t number, std::string_view name) const {
    for (const TSqlColumn& column : FResult.Tables()[number].Columns) {
      if (AsciiSameText(column.Name, name)) return column.Name;
    }
    return std::string(name);
  }

  struct TKeyPart {
    std::string Name;
    bool IsInteger = false;
  };

  QSqlDatabase FDatabase;
  std::string FSchema;
  bool FIsQualified;
  TSqlCatalogue FResult;
  std::vector<std::size_t> FWithoutRowid;
  // By table and place in the key.
  std::map<std::size_t, std::map<int, TKeyPart>> FKeys;
};

}  // namespace

TSqlCatalogue ReadSQLiteCatalogue(const QSqlDatabase& database, std::string_view schema) {
  return TReader(database, schema).Read();
}

}  // namespace tolvi
