#include <QSqlRecord>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <set>
#include <utility>

#include <tolvi/connect/sqlaccess.h>
#include <tolvi/connect/sqlqrybase.h>
#include <tolvi/foundation/components.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

/// What the kinds of databases say differently.
struct TDialect {
  std::string_view CreateSql;
  /// The columns of the table that statements find; none when there is none. With `HeadSql`, only whether there is one.
  std::string_view ColumnsSql;
  /// The time as text.
  std::string_view TimeSql;
  /// `changed_at` as text.
  std::string_view ChangedAt;
  /// Yields all columns and no row.
  std::string_view HeadSql = {};
};

constexpr TDialect SQLite{
    "CREATE TABLE IF NOT EXISTS tolvi_queries (id TEXT NOT NULL PRIMARY KEY, name TEXT NOT NULL, "
    "name_key TEXT NOT NULL UNIQUE, description TEXT NOT NULL, text TEXT NOT NULL, owner TEXT NOT NULL, "
    "changed_at DATETIME NOT NULL, revision INTEGER NOT NULL)",
    "SELECT name FROM pragma_table_info('tolvi_queries')", "SELECT CURRENT_TIMESTAMP", "changed_at"};

constexpr TDialect PostgreSQL{
    "CREATE TABLE IF NOT EXISTS tolvi_queries (id TEXT COLLATE \"C\" PRIMARY KEY, name TEXT NOT NULL, "
    "name_key TEXT COLLATE \"C\" NOT NULL UNIQUE, description TEXT NOT NULL, text TEXT NOT NULL, owner TEXT NOT NULL, "
    "changed_at TIMESTAMP NOT NULL, revision BIGINT NOT NULL)",
    "SELECT attname FROM pg_catalog.pg_attribute WHERE attrelid = pg_catalog.to_regclass('tolvi_queries') "
    "AND attnum > 0 AND NOT attisdropped",
    "SELECT to_char(clock_timestamp() AT TIME ZONE 'UTC', 'YYYY-MM-DD HH24:MI:SS')",
    "to_char(changed_at, 'YYYY-MM-DD HH24:MI:SS')"};

constexpr TDialect MySQL{
    "CREATE TABLE IF NOT EXISTS tolvi_queries (id CHAR(32) NOT NULL PRIMARY KEY, name VARCHAR(200) NOT NULL, "
    "name_key VARCHAR(200) NOT NULL UNIQUE, description LONGTEXT NOT NULL, text LONGTEXT NOT NULL, "
    "owner LONGTEXT NOT NULL, changed_at DATETIME NOT NULL, revision BIGINT NOT NULL) "
    "ENGINE=InnoDB CHARACTER SET utf8mb4 COLLATE utf8mb4_bin",
    // Its catalogue of columns has crashed MariaDB 10.11 while another connection made the table.
    "SHOW TABLES LIKE 'tolvi_queries'", "SELECT DATE_FORMAT(UTC_TIMESTAMP(), '%Y-%m-%d %H:%i:%s')",
    "DATE_FORMAT(changed_at, '%Y-%m-%d %H:%i:%s')", "SELECT * FROM tolvi_queries WHERE 1 = 0"};

/// By `TDatabaseKind`.
constexpr const TDialect* Dialects[] = {&SQLite, &PostgreSQL, &MySQL};

const TDialect& DialectOf(TDatabaseKind kind) {
  if (kind == dkODBC) {
    throw EConnectError("Queries are not kept in a database that is reached by ODBC: keep them in a folder");
  }
  return *Dialects[kind];
}

constexpr std::string_view Columns[] = {"id",   "name",  "name_key",   "description",
                                        "text", "owner", "changed_at", "revision"};

constexpr int TextColumn = 6;

// name, name_key, description, text, owner, changed_at, id; or id and the revision that was seen.
constexpr std::string_view InsertSql =
    "INSERT INTO tolvi_queries (name, name_key, description, text, owner, changed_at, id, revision) "
    "VALUES (?, ?, ?, ?, ?, ?, ?, 1)";
constexpr std::string_view UpdateSql =
    "UPDATE tolvi_queries SET name = ?, name_key = ?, description = ?, text = ?, owner = ?, changed_at = ?, "
    "revision = revision + 1 WHERE id = ? AND revision = ?";
constexpr std::string_view DeleteSql = "DELETE FROM tolvi_queries WHERE id = ? AND revision = ?";
constexpr std::string_view OtherOfNameSql = "SELECT id FROM tolvi_queries WHERE name_key = ? AND id <> ?";

std::string NewId() {
  constexpr int Words = 4, DigitsOfWord = 8, BitsOfDigit = 4;
  std::random_device random;
  std::string id;
  for (int i = 0; i < Words; ++i) {
    std::uint32_t word = random();
    for (int digit = 0; digit < DigitsOfWord; ++digit, word >>= BitsOfDigit) id += "0123456789abcdef"[word & 0xF];
  }
  return id;
}

std::string UserName() {
  for (const char* variable : {"USER", "USERNAME"}) {
    if (const char* name = std::getenv(variable); name != nullptr) return name;
  }
  return {};
}

/// Of a revision that none has, 0.
std::int64_t NumberOf(std::string_view revision) { return TryStrToInt(revision).value_or(0); }

TQueryEntry EntryAt(const QSqlQuery& query) {
  return {TextAt(query, 0), TextAt(query, 1), TextAt(query, 2), TextAt(query, 3), TextAt(query, 4), TextAt(query, 5)};
}

/// The table of one connection.
class TQueryTable final {
 public:
  explicit TQueryTable(std::string_view connectionName)
      : FSession(SessionOf(connectionName)), FDialect(DialectOf(FSession.Kind)) {}

  /// Raises `EQueryStoreError` when it is another table.
  bool Exists() const {
    const std::set<std::string, std::less<>> columns = ColumnNames();
    if (columns.empty()) return false;
    for (const std::string_view column : Columns) {
      if (!columns.contains(column)) {
        throw EQueryStoreError("The table \"tolvi_queries\" has no column \"%s\": it is not one that keeps queries",
                               {column});
      }
    }
    return true;
  }

  void Create() const {
    if (Exists()) return;
    try {
      RunSql(FSession.Database, FDialect.CreateSql);
    } catch (const EConnectError&) {
      // PostgreSQL fails when another makes it at the same time.
      if (!Exists()) throw;
    }
  }

  std::vector<TQueryEntry> Entries() const {
    std::vector<TQueryEntry> entries;
    const std::string sql = SelectSql("") + " ORDER BY name_key";
    QSqlQuery query = RunSql(FSession.Database, sql);
    while (NextRow(query, sql)) entries.push_back(EntryAt(query));
    return entries;
  }

  std::optional<TQueryCopy> Copy(std::string_view id) const {
    const std::string sql = SelectSql(", text") + " WHERE id = ?";
    QSqlQuery query = RunSql(FSession.Database, sql, {ToQString(id)});
    if (!NextRow(query, sql)) return std::nullopt;
    return TQueryCopy{EntryAt(query), TextAt(query, TextColumn)};
  }

  std::string Time() const {
    QSqlQuery query = RunSql(FSession.Database, FDialect.TimeSql);
    return NextRow(query, FDialect.TimeSql) ? TextAt(query, 0) : std::string();
  }

  void Insert(const TQueryEntry& entry, std::string_view text) const {
    CheckName(entry);
    Write(InsertSql, entry, text, {ToQString(entry.Id)});
  }

  /// False when another revision is stored, or none.
  bool Replace(const TQueryEntry& seen, const TQueryEntry& entry, std::string_view text) const {
    if (!SameText(seen.Name, entry.Name)) CheckName(entry);
    return Write(UpdateSql, entry, text, KeyOf(seen)) > 0;
  }

  bool Erase(const TQueryEntry& seen) const {
    return RunSql(FSession.Database, DeleteSql, KeyOf(seen)).numRowsAffected() > 0;
  }

 private:
  std::set<std::string, std::less<>> ColumnNames() const {
    QSqlQuery query = RunSql(FSession.Database, FDialect.ColumnsSql);
    std::set<std::string, std::less<>> columns;
    while (NextRow(query, FDialect.ColumnsSql)) columns.insert(TextAt(query, 0));
    if (columns.empty() || FDialect.HeadSql.empty()) return columns;
    columns.clear();
    const QSqlRecord head = RunSql(FSession.Database, FDialect.HeadSql).record();
    for (int i = 0; i < head.count(); ++i) columns.insert(FromQString(head.fieldName(i)));
    return columns;
  }

  std::string SelectSql(std::string_view more) const {
    return std::string("SELECT id, name, description, owner, ")
        .append(FDialect.ChangedAt)
        .append(", revision")
        .append(more)
        .append(" FROM tolvi_queries");
  }

  static QVariantList KeyOf(const TQueryEntry& seen) {
    return {ToQString(seen.Id), QVariant::fromValue(static_cast<qlonglong>(NumberOf(seen.Revision)))};
  }

  static QString NameKeyOf(const TQueryEntry& entry) { return ToQString(FoldCase(entry.Name)); }

  void CheckName(const TQueryEntry& entry) const {
    QSqlQuery query = RunSql(FSession.Database, OtherOfNameSql, {NameKeyOf(entry), ToQString(entry.Id)});
    if (NextRow(query, OtherOfNameSql)) throw EQueryNameTakenError(entry.Name);
  }

  /// Returns the number of rows that were written.
  int Write(std::string_view sql, const TQueryEntry& entry, std::string_view text, const QVariantList& key) const {
    const QVariantList values{ToQString(entry.Name), NameKeyOf(entry),       ToQString(entry.Description),
                              ToQString(text),       ToQString(entry.Owner), ToQString(entry.ChangedAt)};
    try {
      return RunSql(FSession.Database, sql, values + key).numRowsAffected();
    } catch (const EConnectError&) {
      // Somebody else may have taken the name since it was looked for.
      CheckNameAfterError(entry);
      throw;
    }
  }

  void CheckNameAfterError(const TQueryEntry& entry) const {
    try {
      CheckName(entry);
    } catch (const EConnectError&) {
      // The error of the statement tells more.
    }
  }

  TSqlSession FSession;
  const TDialect& FDialect;
};

/// What databases or their drivers would cut or change without a word.
struct TLostCharacter {
  std::string_view Bytes, Name;
};
constexpr TLostCharacter LostCharacters[] = {
    {std::string_view("\0", 1), "U+0000"}, {"\uFFFE", "U+FFFE"}, {"\uFFFF", "U+FFFF"}};

/// Why a text would not come back as it is; empty when it would.
std::string LossOf(std::string_view text) {
  if (!IsValidUtf8(text)) return "it is no UTF-8";
  if (text.starts_with(ByteOrderMark)) return "it begins with a byte order mark";
  for (const TLostCharacter& lost : LostCharacters) {
    if (text.find(lost.Bytes) != std::string_view::npos) return "it holds the character " + std::string(lost.Name);
  }
  return {};
}

void CheckTexts(std::string_view name, std::string_view description, std::string_view text) {
  const std::pair<std::string_view, std::string_view> parts[] = {
      {"name", name}, {"description", description}, {"text", text}};
  for (const auto& [part, content] : parts) {
    const std::string loss = LossOf(content);
    if (!loss.empty()) throw EQueryStoreError("The %s of the query \"%s\" cannot be stored: %s", {part, name, loss});
  }
}

}  // namespace

TJSqlQueryBase::TJSqlQueryBase(std::string_view connectionName) : FConnectionName(connectionName) {
  SetQueryOwner(UserName());
}

void TJSqlQueryBase::SetConnectionName(std::string_view name) {
  if (name == FConnectionName) return;
  const std::string newName(name);
  TRef<TJSqlQueryBase> alive;
  alive.Set(this);
  if (GetActive()) Close();
  if (alive) FConnectionName = newName;
}

// It is written as it is shown: with a character in place of what is no UTF-8.
void TJSqlQueryBase::SetQueryOwner(std::string_view owner) {
  FQueryOwner = FromQString(ToQString(owner.substr(0, owner.find('\0'))));
}

std::vector<TQueryEntry> TJSqlQueryBase::ReadEntries() {
  const TQueryTable table(FConnectionName);
  return table.Exists() ? table.Entries() : std::vector<TQueryEntry>();
}

std::optional<TQueryCopy> TJSqlQueryBase::ReadCopy(std::string_view id) {
  const TQueryTable table(FConnectionName);
  return table.Exists() ? table.Copy(id) : std::nullopt;
}

TQueryEntry TJSqlQueryBase::InsertCopy(std::string_view name, std::string_view description, std::string_view text) {
  CheckTexts(name, description, text);
  const TQueryTable table(FConnectionName);
  table.Create();
  TQueryEntry entry{.Id = NewId(),
                    .Name = std::string(name),
                    .Description = std::string(description),
                    .Owner = FQueryOwner,
                    .ChangedAt = table.Time(),
                    .Revision = "1"};
  table.Insert(entry, text);
  return entry;
}

std::optional<TQueryEntry> TJSqlQueryBase::ReplaceCopy(const TQueryEntry& seen, std::string_view name,
                                                       std::string_view description, std::string_view text) {
  CheckTexts(name, description, text);
  const TQueryTable table(FConnectionName);
  if (!table.Exists()) return std::nullopt;
  TQueryEntry entry{.Id = seen.Id,
                    .Name = std::string(name),
                    .Description = std::string(description),
                    .Owner = FQueryOwner,
                    .ChangedAt = table.Time(),
                    .Revision = std::to_string(NumberOf(seen.Revision) + 1)};
  if (!table.Replace(seen, entry, text)) return std::nullopt;
  return entry;
}

bool TJSqlQueryBase::EraseCopy(const TQueryEntry& seen) {
  const TQueryTable table(FConnectionName);
  return !table.Exists() || table.Erase(seen) || !table.Copy(seen.Id);
}

}  // namespace tolvi
