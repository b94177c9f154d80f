#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_set>

#include <tolvi/foundation/format.h>
#include <tolvi/model/modelfill_catalogue.h>
#include <tolvi/model/modelfill_names.h>
#include <tolvi/schema/dbinfo.h>

namespace tolvi {
namespace {

/// Stands in `FBareNames` for a name that several schemas have.
constexpr std::size_t Ambiguous = None - 1;

/// Words that say nothing of the table whose key is called so.
constexpr std::string_view GenericKeys[] = {"id", "no",   "nr",  "num",  "number", "code", "key",
                                            "pk", "guid", "oid", "uuid", "name",   "rowid"};

/// One side of a comparison: "schema.table.column".
struct TLinkSide {
  std::string Table, Column;
};

std::optional<TLinkSide> ReadSide(std::string_view text) {
  const std::vector<std::string> parts = NameParts(Trim(text));
  if (parts.size() < 2 || parts.back().empty()) return std::nullopt;
  return TLinkSide{WithDots(parts, parts.size() - 1), parts.back()};
}

bool IsBlank(std::string_view text, std::size_t pos) {
  return pos < text.size() && static_cast<unsigned char>(text[pos]) <= ' ';
}

bool IsAnd(std::string_view text, std::size_t pos) {
  return pos > 0 && IsBlank(text, pos - 1) && AsciiSameText(text.substr(pos, 3), "and") && IsBlank(text, pos + 3);
}

/// The comparisons of a join condition, cut at "and" outside of quotes, and each cut at its only "=". Nothing when that
/// fails. Names with blanks need no quotes.
std::optional<std::vector<std::pair<TLinkSide, TLinkSide>>> ReadJoin(std::string_view text) {
  std::vector<std::pair<TLinkSide, TLinkSide>> pairs;
  std::size_t start = 0, equals = None;
  char closer = '\0';
  for (std::size_t pos = 0; pos <= text.size(); ++pos) {
    const char c = pos < text.size() ? text[pos] : '\0';
    if (closer != '\0' && pos < text.size()) {
      if (c == closer) closer = '\0';
    } else if (c == '"' || c == '`') {
      closer = c;
    } else if (c == '[') {
      closer = ']';
    } else if (c == '=') {
      if (equals != None) return std::nullopt;
      equals = pos;
    } else if (pos == text.size() || IsAnd(text, pos)) {
      if (equals == None) return std::nullopt;
      const auto left = ReadSide(text.substr(start, equals - start));
      const auto right = ReadSide(text.substr(equals + 1, pos - equals - 1));
      if (!left || !right) return std::nullopt;
      pairs.emplace_back(*left, *right);
      equals = None;
      start = pos + 3;
    }
  }
  return pairs;
}

bool AreComparable(TFieldType a, TFieldType b) {
  return a == b || (NumberTypes.Contains(a) && NumberTypes.Contains(b)) ||
         (NameTypes.Contains(a) && NameTypes.Contains(b));
}

}  // namespace

std::size_t NumberOf(const TNameNumbers& numbers, std::string_view name) {
  const auto found = numbers.find(std::string(name));
  return found == numbers.end() ? None : found->second;
}

std::size_t TCatalogue::TableByName(std::string_view name) const {
  const std::size_t full = NumberOf(FFullNames, name);
  if (full != None) return full;
  const std::size_t bare = NumberOf(FBareNames, name);
  return bare == Ambiguous ? None : bare;
}

class TCatalogueReader final {
 public:
  TCatalogueReader(TJDBInfo& info, const TFillOptions& options, const std::function<bool(const TCatTable&)>& isKnown)
      : FInfo(info), FOptions(options), FIsKnown(isKnown) {}

  TCatalogue Read() {
    if (!FInfo.GetConnected()) {
      Note("The catalogue is not connected", {});
      FCat.Connected = false;
      return std::move(FCat);
    }
    ReadTables();
    ReadColumns();
    ReadLinks();
    MarkKeys();
    if (FOptions.LinksFromNames) {
      GuessLinks();
      MarkKeys();
    }
    return std::move(FCat);
  }

  TCatalogue ReadNames() {
    ReadTables();
    return std::move(FCat);
  }

 private:
  using TNames = std::unordered_set<std::string, TFoldedHash, TFoldedEqual>;

  void Note(std::string_view text, std::initializer_list<TFormatArg> args) { FCat.Notes.Add(Format(text, args)); }

  void ReadTables() {
    FCat.Schemas.insert(FInfo.GetCurrentDBName());
    TStrings names, views;
    FInfo.GetTableNames(names);
    FInfo.GetViewNames(views);
    const TNames isTable(names.begin(), names.end());
    const TNames isView(views.begin(), views.end());
    const TNames wanted(FOptions.Tables.begin(), FOptions.Tables.end());
    for (const std::string& view : views) {
      if (!isTable.contains(view)) names.Add(view);
    }
    for (const std::string& name : names) AddTable(name, wanted, isView.contains(name));
    for (const std::string& name : FOptions.Tables) {
      if (TableOf(name) == None) Note("Table \"%s\" is not in the catalogue", {name});
    }
  }

  std::size_t TableOf(std::string_view name) const { return NumberOf(FCat.FFullNames, PlainName(name)); }

  void AddTable(const std::string& name, const TNames& wanted, bool view) {
    const std::vector<std::string> parts = NameParts(Trim(name));
    TCatTable table;
    table.FullName = name;
    table.Schema = WithDots(parts, parts.size() - 1);
    table.View = view;
    table.Name = parts.back();
    if (table.Name.empty()) return Note("A table without a name is left out: \"%s\"", {name});
    const std::size_t number = FCat.Tables.size();
    if (!FCat.FFullNames.try_emplace(table.PlainName(), number).second) {
      return Note("Table \"%s\" is in the catalogue twice", {name});
    }
    const auto [bare, first] = FCat.FBareNames.try_emplace(table.Name, number);
    if (!first) bare->second = Ambiguous;
    table.Used = (wanted.empty() || wanted.contains(name)) && (!view || FOptions.Views || FIsKnown(table));
    FCat.Schemas.insert(table.Schema);
    FCat.Tables.push_back(std::move(table));
  }

  void ReadColumns() {
    // What the source keeps of a table may be older than its other answers.
    FInfo.ForgetFields();
    for (TCatTable& table : FCat.Tables) {
      if (!table.Used) continue;
      for (const TDBFieldInfo& field : FInfo.GetFieldList(table.FullName)) AddColumn(table, field);
      if (table.Columns.empty()) {
        Note("Table \"%s\" has no columns in the catalogue", {table.FullName});
        table.Used = false;
        continue;
      }
      TStrings keys;
      FInfo.GetKeyNames(table.FullName, keys);
      for (const std::string& key : keys) AddKey(table, key);
    }
  }

  void AddColumn(TCatTable& table, const TDBFieldInfo& field) {
    const std::string& name = field.GetFieldName();
    if (Trim(name).empty()) return Note("Table \"%s\" has a column without a name", {table.FullName});
    if (!table.ColumnNumbers.try_emplace(name, table.Columns.size()).second) {
      return Note("Table \"%s\" has the column \"%s\" twice", {table.FullName, name});
    }
    table.Columns.push_back({name, field.GetFieldType(), field.GetFieldSize()});
  }

  void AddKey(TCatTable& table, const std::string& key) {
    const std::size_t column = table.ColumnByName(key);
    if (column == None) {
      return Note("Table \"%s\" has no column \"%s\" for its primary key", {table.FullName, key});
    }
    std::vector<std::size_t>& columns = table.PrimaryKey;
    if (std::find(columns.begin(), columns.end(), column) == columns.end()) columns.push_back(column);
  }

  void ReadLinks() {
    TStrings lines;
    FInfo.GetLinkList(lines);
    for (const std::string& line : lines) {
      if (Trim(line).empty()) continue;
      const auto pairs = ReadJoin(line);
      if (!pairs) {
        Note("Link \"%s\" is not of the form \"table.column = table.column [and ...]\"", {line});
      } else {
        AddLink(line, *pairs);
      }
    }
  }

  void AddLink(const std::string& line, const std::vector<std::pair<TLinkSide, TLinkSide>>& pairs) {
    TCatLink link;
    for (const auto& [left, right] : pairs) {
      const std::size_t from = FCat.TableByName(left.Table), to = FCat.TableByName(right.Table);
      if (from == None || to == None) {
        return Note("Link \"%s\": there is no table \"%s\"", {line, from == None ? left.Table : right.Table});
      }
      if (link.From != None && (link.From != from || link.To != to)) {
        return Note("Link \"%s\" does not have the same two tables in all comparisons", {line});
      }
      link.From = from;
      link.To = to;
      // Others are none of this filling's business; their columns are unknown.
      if (!FCat.Tables[from].Used || !FCat.Tables[to].Used) return;
      const std::size_t column = FCat.Tables[from].ColumnByName(left.Column);
      const std::size_t target = FCat.Tables[to].ColumnByName(right.Column);
      if (column == None || target == None) {
        const TLinkSide& side = column == None ? left : right;
        return Note("Link \"%s\": table \"%s\" has no column \"%s\"", {line, side.Table, side.Column});
      }
      if (from == to && column == target) return Note("Link \"%s\" compares a column with itself", {line});
      link.Columns.emplace_back(column, target);
    }
    FCat.Links.push_back(std::move(link));
  }

  void MarkKeys() {
    for (TCatTable& table : FCat.Tables) {
      for (const std::size_t column : table.PrimaryKey) table.Columns[column].InKey = true;
    }
    for (std::size_t number = 0; number < FCat.Links.size(); ++number) {
      const TCatLink& link = FCat.Links[number];
      for (const auto& [from, to] : link.Columns) {
        TCatColumn& column = FCat.Tables[link.From].Columns[from];
        if (link.Columns.size() == 1 && column.Link == None) column.Link = number;
        column.InKey = true;
        FCat.Tables[link.To].Columns[to].InKey = true;
      }
    }
  }

  /// The tables by what other tables may call their keys.
  TNameNumbers KeysByName() const {
    TNameNumbers keys;
    const auto add = [&keys](const std::string& name, std::size_t table) {
      const auto [entry, added] = keys.try_emplace(name, table);
      if (!added && entry->second != table) entry->second = Ambiguous;
    };
    for (std::size_t number = 0; number < FCat.Tables.size(); ++number) {
      const TCatTable& table = FCat.Tables[number];
      if (table.PrimaryKey.size() != 1) continue;
      const std::string key = JoinedWords(NameWords(table.Columns[table.PrimaryKey[0]].Name));
      if (std::find(std::begin(GenericKeys), std::end(GenericKeys), key) == std::end(GenericKeys)) add(key, number);
      std::vector<std::string> words = NameWords(WithoutTablePrefix(table.Name));
      if (words.empty()) continue;
      add(JoinedWords(words) + key, number);
      words.back() = Singular(words.back());
      add(JoinedWords(words) + key, number);
    }
    return keys;
  }

  void GuessLinks() {
    const auto pairOf = [](std::size_t a, std::size_t b) {
      return std::to_string(std::min(a, b)) + "-" + std::to_string(std::max(a, b));
    };
    std::unordered_set<std::string> linked;
    for (const TCatLink& link : FCat.Links) linked.insert(pairOf(link.From, link.To));
    const TNameNumbers keys = KeysByName();
    for (std::size_t from = 0; from < FCat.Tables.size(); ++from) {
      const TCatTable& table = FCat.Tables[from];
      for (std::size_t column = 0; column < table.Columns.size(); ++column) {
        const bool isKey = table.PrimaryKey.size() == 1 && table.PrimaryKey[0] == column;
        if (isKey || table.Columns[column].Link != None) continue;
        const std::size_t to = NumberOf(keys, JoinedWords(NameWords(table.Columns[column].Name)));
        if (to >= FCat.Tables.size() || to == from) continue;
        const std::size_t key = FCat.Tables[to].PrimaryKey[0];
        if (!AreComparable(table.Columns[column].Type, FCat.Tables[to].Columns[key].Type)) continue;
        if (linked.insert(pairOf(from, to)).second) FCat.Links.push_back({from, to, {{column, key}}, true});
      }
    }
  }

  TJDBInfo& FInfo;
  const TFillOptions& FOptions;
  const std::function<bool(const TCatTable&)>& FIsKnown;
  TCatalogue FCat;
};

TCatalogue ReadCatalogue(TJDBInfo& info, const TFillOptions& options,
                         const std::function<bool(const TCatTable&)>& isKnown) {
  return TCatalogueReader(info, options, isKnown).Read();
}

TCatalogue ReadCatalogueTables(TJDBInfo& info) {
  const TFillOptions all;
  const std::function<bool(const TCatTable&)> isKnown;
  return TCatalogueReader(info, all, isKnown).ReadNames();
}

}  // namespace tolvi
