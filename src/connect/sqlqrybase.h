#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/connect/api.h>
#include <tolvi/store/storedqueries.h>

namespace tolvi {

/// Queries in the table "tolvi_queries" of an open SQLite, PostgreSQL or MySQL database. The connection is the host's
/// own QSqlDatabase, or that of a `TSqlConnection`; it is found by its name each time, in the thread of the call.
///
///   TSqlConnection connection(ParseConnectionUrl("postgresql://anna@db/shop"));
///   TJSqlQueryBase base(connection.GetName());
///   base.Open();
///
/// 1. The table is the one that statements of the connection find without a schema. The first query that is added makes
///    it; reading never does: without a table there are no queries.
/// 2. Its columns are id, name, name_key (the name with its case folded, unique), description, text, owner, changed_at
///    (UTC) and revision, a number that grows by 1 with each change. It may have more of them.
/// 3. Each change is one statement that is committed with it. The host has no transaction open on the connection
///    meanwhile: the change would go with it, and on MySQL, the table that is made would commit it.
/// 4. Texts come back byte for byte. Those that would not are refused with `EQueryStoreError`: what is no UTF-8, begins
///    with a byte order mark or holds U+0000, U+FFFE or U+FFFF. So is a table that has other columns.
///
/// `EConnectError`: there is no open connection of that name, or the database refuses, as when it is read-only, or
/// locked by another for longer than the connection waits. Nothing was changed then, unless the connection broke.
class TOLVI_CONNECT_API TJSqlQueryBase final : public TJStoredQueryBase {
 public:
  explicit TJSqlQueryBase(std::string_view connectionName = {});
  std::string_view ClassName() const override { return "TJSqlQueryBase"; }

  const std::string& GetConnectionName() const { return FConnectionName; }
  /// Closes the base when it is another one.
  void SetConnectionName(std::string_view name);
  /// Whom queries belong to that are added or changed. Default: the user name of the environment.
  const std::string& GetQueryOwner() const { return FQueryOwner; }
  void SetQueryOwner(std::string_view owner);

 protected:
  std::vector<TQueryEntry> ReadEntries() override;
  std::optional<TQueryCopy> ReadCopy(std::string_view id) override;
  TQueryEntry InsertCopy(std::string_view name, std::string_view description, std::string_view text) override;
  std::optional<TQueryEntry> ReplaceCopy(const TQueryEntry& seen, std::string_view name, std::string_view description,
                                         std::string_view text) override;
  bool EraseCopy(const TQueryEntry& seen) override;

 private:
  std::string FConnectionName, FQueryOwner;
};

}  // namespace tolvi
