#include <tolvi/connect/catalogue.h>

namespace tolvi {
namespace {

// Which tables: those that can be read, of a schema or else of the search path, and no parts of divided tables.
constexpr std::string_view OfSchema = "n.nspname = ? ";
constexpr std::string_view OfPath =
    "pg_catalog.pg_table_is_visible(c.oid) AND n.nspname NOT IN ('pg_catalog', 'information_schema') ";

// A domain has the type that it is made of; its limits are its own.
constexpr std::string_view ColumnsBegin =
    "SELECT n.nspname, c.relname, c.relkind IN ('v', 'm'), NOT pg_catalog.pg_table_is_visible(c.oid), a.attname, "
    "coalesce(b.typname, t.typname), t.typcategory, "
    "CASE WHEN b.oid IS NULL THEN a.atttypmod ELSE t.typtypmod END, "
    "a.attidentity <> '' OR coalesce(pg_catalog.pg_get_expr(d.adbin, d.adrelid) LIKE 'nextval(%', false) "
    "FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace "
    "LEFT JOIN pg_catalog.pg_attribute a ON a.attrelid = c.oid AND a.attnum > 0 AND NOT a.attisdropped "
    "LEFT JOIN pg_catalog.pg_type t ON t.oid = a.atttypid "
    "LEFT JOIN pg_catalog.pg_type b ON b.oid = t.typbasetype AND t.typtype = 'd' "
    "LEFT JOIN pg_catalog.pg_attrdef d ON d.adrelid = c.oid AND d.adnum = a.attnum "
    "WHERE c.relkind IN ('r', 'p', 'v', 'm', 'f') AND NOT c.relispartition "
    "AND pg_catalog.has_any_column_privilege(c.oid, 'SELECT') AND ";
constexpr std::string_view ColumnsEnd = "ORDER BY c.relname, n.nspname, a.attnum";

constexpr std::string_view KeysBegin =
    "SELECT n.nspname, c.relname, con.contype = 'p', k.place, a.attname, fn.nspname, fc.relname, fa.attname "
    "FROM pg_catalog.pg_constraint con JOIN pg_catalog.pg_class c ON c.oid = con.conrelid "
    "JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace "
    "CROSS JOIN LATERAL unnest(con.conkey, con.confkey) WITH ORDINALITY AS k(own, other, place) "
    "JOIN pg_catalog.pg_attribute a ON a.attrelid = c.oid AND a.attnum = k.own "
    "LEFT JOIN pg_catalog.pg_class fc ON fc.oid = con.confrelid "
    "LEFT JOIN pg_catalog.pg_namespace fn ON fn.oid = fc.relnamespace "
    "LEFT JOIN pg_catalog.pg_attribute fa ON fa.attrelid = fc.oid AND fa.attnum = k.other "
    "WHERE con.contype IN ('p', 'f') AND con.conparentid = 0 AND ";
constexpr std::string_view KeysEnd = "ORDER BY c.relname, n.nspname, con.conname, con.oid, k.place";

class TReader final {
 public:
  TReader(const QSqlDatabase& database, std::string_view schema) : FDatabase(database), FSchema(schema) {}

  TSqlCatalogue Read() {
    ReadColumns();
    ReadKeys();
    return std::move(FResult);
  }

 private:
  std::string Statement(std::string_view begin, std::string_view end) const {
    return std::string(begin).append(FSchema.empty() ? OfPath : OfSchema).append(end);
  }

  QVariantList Values() const { return FSchema.empty() ? QVariantList() : QVariantList{ToQString(FSchema)}; }

  void ReadColumns() {
    const std::string sql = Statement(ColumnsBegin, ColumnsEnd);
    QSqlQuery query = RunSql(FDatabase, sql, Values());
    while (NextRow(query, sql)) {
      const std::size_t number =
          FResult.AddTable(TextAt(query, 0), TextAt(query, 1), query.value(2).toBool(), query.value(3).toBool());
      if (query.isNull(4)) continue;
      FResult.Table(number).Columns.push_back(
          {TextAt(query, 4),
           PostgreSQLColumnType(TextAt(query, 5), TextAt(query, 6), query.value(7).toInt(), query.value(8).toBool())});
    }
  }

  void ReadKeys() {
    const std::string sql = Statement(KeysBegin, KeysEnd);
    QSqlQuery query = RunSql(FDatabase, sql, Values());
    while (NextRow(query, sql)) {
      const std::size_t number = FResult.Find(TextAt(query, 0), TextAt(query, 1));
      if (number == TSqlCatalogue::None) continue;
      if (query.value(2).toBool()) {
        FResult.Table(number).Key.push_back(TextAt(query, 4));
        continue;
      }
      const std::size_t other = FResult.Find(TextAt(query, 5), TextAt(query, 6));
      if (other == TSqlCatalogue::None) continue;
      FResult.AddReference(query.value(3).toInt() == 1, number, TextAt(query, 4), other, TextAt(query, 7));
    }
  }

  QSqlDatabase FDatabase;
  std::string FSchema;
  TSqlCatalogue FResult;
};

}  // namespace

TSqlCatalogue ReadPostgreSQLCatalogue(const QSqlDatabase& database, std::string_view schema) {
  return TReader(database, schema).Read();
}

}  // namespace tolvi
