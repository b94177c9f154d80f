#include <tolvi/connect/catalogue.h>

namespace tolvi {
namespace {

constexpr std::string_view DefaultSchemaSql = "SELECT DATABASE()";

// Each statement names the schema by itself: joined with each other, these tables are computed once for every row.
constexpr std::string_view TablesSql =
    "SELECT TABLE_NAME, TABLE_TYPE IN ('VIEW', 'SYSTEM VIEW') FROM information_schema.TABLES "
    "WHERE TABLE_SCHEMA = ? AND TABLE_TYPE <> 'SEQUENCE' ORDER BY TABLE_NAME";
constexpr std::string_view ColumnsSql =
    "SELECT TABLE_NAME, COLUMN_NAME, DATA_TYPE, COLUMN_TYPE, CHARACTER_MAXIMUM_LENGTH, NUMERIC_SCALE, "
    "EXTRA LIKE '%auto_increment%' FROM information_schema.COLUMNS WHERE TABLE_SCHEMA = ? "
    "ORDER BY TABLE_NAME, ORDINAL_POSITION";
constexpr std::string_view KeysSql =
    "SELECT TABLE_NAME, CONSTRAINT_NAME = 'PRIMARY', ORDINAL_POSITION, COLUMN_NAME, REFERENCED_TABLE_SCHEMA, "
    "REFERENCED_TABLE_NAME, REFERENCED_COLUMN_NAME FROM information_schema.KEY_COLUMN_USAGE "
    "WHERE TABLE_SCHEMA = ? AND (CONSTRAINT_NAME = 'PRIMARY' OR REFERENCED_TABLE_NAME IS NOT NULL) "
    "ORDER BY TABLE_NAME, CONSTRAINT_NAME, ORDINAL_POSITION";

class TReader final {
 public:
  TReader(const QSqlDatabase& database, std::string_view schema) : FDatabase(database), FSchema(schema) {}

  TSqlCatalogue Read() {
    FindSchema();
    ReadTables();
    ReadColumns();
    ReadKeys();
    return std::move(FResult);
  }

 private:
  void FindSchema() {
    QSqlQuery query = RunSql(FDatabase, DefaultSchemaSql);
    const std::string byDefault = NextRow(query, DefaultSchemaSql) ? TextAt(query, 0) : std::string();
    if (FSchema.empty()) FSchema = byDefault;
    FIsQualified = FSchema != byDefault;
  }

  void ReadTables() {
    QSqlQuery query = RunSql(FDatabase, TablesSql, {ToQString(FSchema)});
    while (NextRow(query, TablesSql)) {
      FResult.AddTable(FSchema, TextAt(query, 0), query.value(1).toBool(), FIsQualified);
    }
  }

  void ReadColumns() {
    QSqlQuery query = RunSql(FDatabase, ColumnsSql, {ToQString(FSchema)});
    while (NextRow(query, ColumnsSql)) {
      const std::size_t number = FResult.Find(FSchema, TextAt(query, 0));
      if (number == TSqlCatalogue::None) continue;
      FResult.Table(number).Columns.push_back(
          {TextAt(query, 1), MySQLColumnType(TextAt(query, 2), TextAt(query, 3), query.value(4).toLongLong(),
                                             query.value(5).toLongLong(), query.value(6).toBool())});
    }
  }

  void ReadKeys() {
    QSqlQuery query = RunSql(FDatabase, KeysSql, {ToQString(FSchema)});
    while (NextRow(query, KeysSql)) {
      const std::size_t number = FResult.Find(FSchema, TextAt(query, 0));
      if (number == TSqlCatalogue::None) continue;
      if (query.value(1).toBool()) {
        FResult.Table(number).Key.push_back(TextAt(query, 3));
        continue;
      }
      const std::size_t other = FResult.Find(TextAt(query, 4), TextAt(query, 5));
      if (other == TSqlCatalogue::None) continue;
      FResult.AddReference(query.value(2).toInt() == 1, number, TextAt(query, 3), other, TextAt(query, 6));
    }
  }

  QSqlDatabase FDatabase;
  std::string FSchema;
  bool FIsQualified = false;
  TSqlCatalogue FResult;
};

}  // namespace

TSqlCatalogue ReadMySQLCatalogue(const QSqlDatabase& database, std::string_view schema) {
  return TReader(database, schema).Read();
}

}  // namespace tolvi
