#include <algorithm>

#include <tolvi/connect/catalogue.h>

namespace tolvi {
namespace {

std::string IndexKey(std::string_view schema, std::string_view name) {
  return std::string(schema).append("\n").append(name);
}

bool IsPlainWord(std::string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
  });
}

/// In a list, a name stands for itself, unless it seems to have parts or quotes.
std::string ListedPart(std::string_view name) {
  constexpr std::string_view Openers = "\"[`";
  const bool isClear = !name.empty() && name.find('.') == std::string_view::npos &&
                       Openers.find(name.front()) == std::string_view::npos && Trim(name).size() == name.size();
  return isClear ? std::string(name) : QuotedString(name, '"');
}

std::string LinkPart(std::string_view name) { return IsPlainWord(name) ? std::string(name) : QuotedString(name, '"'); }

/// The parts of a name, cut at points outside of quotes.
std::vector<std::string> PartsOf(std::string_view name) {
  constexpr std::string_view Openers = "\"[`", Closers = "\"]`";
  std::vector<std::string> parts(1);
  for (std::size_t pos = 0; pos < name.size(); ++pos) {
    const std::size_t quote = parts.back().empty() ? Openers.find(name[pos]) : std::string_view::npos;
    if (quote == std::string_view::npos) {
      if (name[pos] == '.') {
        parts.emplace_back();
      } else {
        parts.back() += name[pos];
      }
      continue;
    }
    const char closer = Closers[quote];
    while (++pos < name.size()) {
      if (name[pos] == closer) {
        if (pos + 1 == name.size() || name[pos + 1] != closer) break;
        ++pos;
      }
      parts.back() += name[pos];
    }
  }
  return parts;
}

}  // namespace

std::size_t TSqlCatalogue::Find(std::string_view schema, std::string_view name) const {
  const std::string key = IndexKey(schema, name);
  if (const auto exact = FExact.find(key); exact != FExact.end()) return exact->second;
  const auto folded = FFolded.find(key);
  return folded == FFolded.end() ? None : folded->second;
}

const TSqlTable* TSqlCatalogue::ByShownName(std::string_view name) const {
  const std::vector<std::string> parts = PartsOf(name);
  // Of "database.schema.name", the database is the connection's.
  const std::size_t number = Find(parts.size() > 1 ? parts[parts.size() - 2] : std::string(), parts.back());
  return number == None ? nullptr : &FTables[number];
}

std::size_t TSqlCatalogue::AddTable(std::string_view schema, std::string_view name, bool isView, bool isQualified) {
  const std::size_t number = FTables.size();
  const std::string key = IndexKey(schema, name);
  if (const auto [entry, isNew] = FExact.try_emplace(key, number); !isNew) return entry->second;
  FFolded.try_emplace(key, number);
  const std::string bareKey = IndexKey({}, name);
  FExact.try_emplace(bareKey, number);
  FFolded.try_emplace(bareKey, number);
  FTables.push_back({std::string(schema), std::string(name), isView, isQualified, {}, {}});
  return number;
}

void TSqlCatalogue::AddReference(bool isNew, std::size_t from, std::string_view column, std::size_t to,
                                 std::string_view otherColumn) {
  if (isNew) FForeignKeys.push_back({from, to, {}});
  FForeignKeys.back().Columns.emplace_back(column, otherColumn);
}

std::string ShownName(const TSqlTable& table) {
  std::string name;
  if (table.IsQualified) name = ListedPart(table.Schema) + '.';
  return name += ListedPart(table.Name);
}

std::string ShownLink(const TSqlCatalogue& catalogue, const TSqlForeignKey& key) {
  const auto name = [&catalogue](std::size_t number, const std::string& column) {
    const TSqlTable& table = catalogue.Tables()[number];
    std::string text;
    if (table.IsQualified) text = LinkPart(table.Schema) + '.';
    return text + LinkPart(table.Name) + '.' + LinkPart(column);
  };
  std::string link;
  for (const auto& [column, otherColumn] : key.Columns) {
    if (!link.empty()) link += " and ";
    link += name(key.From, column) + " = " + name(key.To, otherColumn);
  }
  return link;
}

TStrings ReadSchemaNames(const TSqlSession& session) {
  if (session.Kind == dkODBC) return {};
  constexpr std::string_view Statements[] = {
      "SELECT name FROM pragma_database_list WHERE name <> 'temp' ORDER BY seq",
      "SELECT nspname FROM pg_catalog.pg_namespace WHERE left(nspname, 3) <> 'pg_' "
      "AND nspname <> 'information_schema' AND has_schema_privilege(oid, 'USAGE') ORDER BY nspname",
      "SELECT SCHEMA_NAME FROM information_schema.SCHEMATA "
      "WHERE SCHEMA_NAME NOT IN ('information_schema', 'mysql', 'performance_schema', 'sys') ORDER BY SCHEMA_NAME"};
  const std::string_view sql = Statements[session.Kind];
  QSqlQuery query = RunSql(session.Database, sql);
  TStrings names;
  while (NextRow(query, sql)) names.Add(TextAt(query, 0));
  return names;
}

TSqlCatalogue ReadCatalogue(const TSqlSession& session, std::string_view schema) {
  constexpr TSqlCatalogue (*Readers[])(const QSqlDatabase&, std::string_view) = {
      ReadSQLiteCatalogue, ReadPostgreSQLCatalogue, ReadMySQLCatalogue, ReadOdbcCatalogue};
  return Readers[session.Kind](session.Database, schema);
}

}  // namespace tolvi
