#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <tolvi/connect/columntypes.h>
#include <tolvi/connect/sqlaccess.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>

// A database's catalogue, read with a handful of statements whatever its size.

namespace tolvi {

struct TSqlColumn {
  std::string Name;
  TColumnType Type;
};

struct TSqlTable {
  std::string Schema, Name;
  bool IsView = false;
  /// Whether statements of the connection need the schema before the name.
  bool IsQualified = false;
  std::vector<TSqlColumn> Columns;
  /// The columns of the primary key, in its order.
  std::vector<std::string> Key;
};

/// The table of `From` refers to that of `To`: pairs of columns.
struct TSqlForeignKey {
  std::size_t From = 0, To = 0;
  std::vector<std::pair<std::string, std::string>> Columns;
};

class TSqlCatalogue final {
 public:
  static constexpr std::size_t None = static_cast<std::size_t>(-1);

  const std::vector<TSqlTable>& Tables() const { return FTables; }
  const std::vector<TSqlForeignKey>& ForeignKeys() const { return FForeignKeys; }
  /// The table of that schema and name, exactly so or else ignoring case; `None` when there is none.
  std::size_t Find(std::string_view schema, std::string_view name) const;
  /// By "name" or "schema.name", parts in quotes or not, as `ShownName` writes it. Null when there is none.
  const TSqlTable* ByShownName(std::string_view name) const;

  /// For reading. Adding a table that is there returns its number.
  std::size_t AddTable(std::string_view schema, std::string_view name, bool isView, bool isQualified);
  TSqlTable& Table(std::size_t number) { return FTables[number]; }
  /// The next pair of columns of a foreign key. `isNew`: it is the first pair.
  void AddReference(bool isNew, std::size_t from, std::string_view column, std::size_t to,
                    std::string_view otherColumn);
  /// Takes the last foreign key out again.
  void DropReference() { FForeignKeys.pop_back(); }

 private:
  std::vector<TSqlTable> FTables;
  std::vector<TSqlForeignKey> FForeignKeys;
  // By schema, a line break, name; and by name alone, with an empty schema: one reading has no two tables of a name.
  std::unordered_map<std::string, std::size_t> FExact;
  std::unordered_map<std::string, std::size_t, TFoldedHash, TFoldedEqual> FFolded;
};

/// The name of a table for lists: "name", or "schema.name" where it is qualified. A part that would be misread stands
/// in double quotes.
std::string ShownName(const TSqlTable& table);
/// The join condition "Orders.CustNo = Customers.CustNo and ...". What is no plain word stands in double quotes.
std::string ShownLink(const TSqlCatalogue& catalogue, const TSqlForeignKey& key);

/// The schemas, of MySQL the databases, that a user may have; none of ODBC.
TStrings ReadSchemaNames(const TSqlSession& session);
/// The tables of a schema; with an empty name, those that statements find without one. Raises `EConnectError`.
TSqlCatalogue ReadCatalogue(const TSqlSession& session, std::string_view schema);

/// The same for one kind of database.
TSqlCatalogue ReadSQLiteCatalogue(const QSqlDatabase& database, std::string_view schema);
TSqlCatalogue ReadPostgreSQLCatalogue(const QSqlDatabase& database, std::string_view schema);
TSqlCatalogue ReadMySQLCatalogue(const QSqlDatabase& database, std::string_view schema);
/// All tables, whatever the schema, without foreign keys, and a table at a time: more is not to be had of all drivers.
TSqlCatalogue ReadOdbcCatalogue(const QSqlDatabase& database, std::string_view schema);

}  // namespace tolvi
