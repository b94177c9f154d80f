#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/schema/dbinfo.h>

namespace tolvi {

namespace {

constexpr TMessage SWrongCount{"SWrongCount", "Field list: count %d is too large for %d lines"};
constexpr TMessage SUnknownType{"SUnknownType", "Field list, line %d: unknown field type \"%s\""};

// A field may lack its lines, so that a count cannot be told wrong by the lines alone; but not so many fields do.
constexpr std::size_t FieldsWithoutLines = 1000;

constexpr std::string_view CountKey = "Count";
constexpr std::string_view NameKey = "Name";
constexpr std::string_view SizeKey = "Size";
constexpr std::string_view TypeKey = "Type";

std::string FieldKey(std::size_t number, std::string_view key) {
  return std::string("F").append(std::to_string(number)).append(key);
}

// The name=value lines of a text form; of equal names, the first counts. The lines must outlive it.
class TKeyedLines final {
 public:
  explicit TKeyedLines(const TStrings& lines) : FLines(lines) {
    FIndex.reserve(lines.Count());
    for (std::size_t i = 0; i < lines.Count(); ++i) FIndex.try_emplace(lines.NameAt(i), i);
  }

  std::string_view Value(std::string_view key) const {
    const auto found = FIndex.find(key);
    return found == FIndex.end() ? std::string_view() : FLines.ValueAt(found->second);
  }

  std::size_t Count() const {
    const std::int64_t count = TryStrToInt(Value(CountKey)).value_or(0);
    if (count <= 0) return 0;
    if (static_cast<std::uint64_t>(count) > FLines.Count() + FieldsWithoutLines) {
      throw EJDBInfoError(dieWrongCount, SWrongCount, {count, FLines.Count()});
    }
    return static_cast<std::size_t>(count);
  }

  int Size(std::size_t number) const {
    const std::int64_t size = TryStrToInt(Value(FieldKey(number, SizeKey))).value_or(0);
    const bool fits = size >= std::numeric_limits<int>::min() && size <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(size) : 0;
  }

  TFieldType Type(std::size_t number) const {
    const std::string key = FieldKey(number, TypeKey);
    const std::string_view text = Value(key);
    if (text.empty()) return ftUnknown;
    const std::optional<TFieldType> type = TryStrToFldType(text);
    if (!type) {
      throw EJDBInfoError(dieUnknownType, SUnknownType, {FIndex.find(key)->second + 1, text});
    }
    return *type;
  }

 private:
  const TStrings& FLines;
  std::unordered_map<std::string_view, std::size_t, TFoldedHash, TFoldedEqual> FIndex;
};

}  // namespace

const TDBFieldInfo& TDBFieldList::Add(std::string_view fieldName, TFieldType fieldType, int fieldSize) {
  return Add(std::make_unique<TDBFieldInfo>(fieldName, fieldType, fieldSize));
}

const TDBFieldInfo& TDBFieldList::Add(std::unique_ptr<TDBFieldInfo> field) { return Insert(Count(), std::move(field)); }

const TDBFieldInfo& TDBFieldList::Insert(std::size_t index, std::unique_ptr<TDBFieldInfo> field) {
  FIndex.clear();
  return FItems.Insert(index, std::move(field));
}

std::unique_ptr<TDBFieldInfo> TDBFieldList::Replace(std::size_t index, std::unique_ptr<TDBFieldInfo> field) {
  FIndex.clear();
  return FItems.Replace(index, std::move(field));
}

std::unique_ptr<TDBFieldInfo> TDBFieldList::Delete(std::size_t index) {
  FIndex.clear();
  return FItems.Delete(index);
}

void TDBFieldList::Clear() {
  FIndex.clear();
  FItems.Clear();
}

const TDBFieldInfo* TDBFieldList::FindByName(std::string_view fieldName) const {
  if (FIndex.empty()) {
    FIndex.reserve(Count());
    for (const TDBFieldInfo& field : FItems) FIndex.try_emplace(field.GetFieldName(), &field);
  }
  const auto found = FIndex.find(fieldName);
  return found == FIndex.end() ? nullptr : found->second;
}

void TDBFieldList::SaveToStrings(TStrings& strings) const {
  strings.Clear();
  strings.Reserve(1 + 3 * Count());
  const auto addLine = [&strings](std::string line, std::string_view value) {
    strings.Add(line.append("=").append(value));
  };
  addLine(std::string(CountKey), std::to_string(Count()));
  for (std::size_t i = 0; i < Count(); ++i) {
    const TDBFieldInfo& field = FItems[i];
    addLine(FieldKey(i + 1, NameKey), field.GetFieldName());
    addLine(FieldKey(i + 1, SizeKey), std::to_string(field.GetFieldSize()));
    addLine(FieldKey(i + 1, TypeKey), FldTypeToStr(field.GetFieldType()));
  }
}

void TDBFieldList::LoadFromStrings(const TStrings& strings) {
  const TKeyedLines lines(strings);
  const std::size_t count = lines.Count();
  TDBFieldList loaded;
  loaded.FItems.Reserve(count);
  for (std::size_t number = 1; number <= count; ++number) {
    loaded.Add(lines.Value(FieldKey(number, NameKey)), lines.Type(number), lines.Size(number));
  }
  *this = std::move(loaded);
}

void TDBFieldList::CopyTo(TDBFieldList& dest) const {
  TStrings lines;
  SaveToStrings(lines);
  dest.LoadFromStrings(lines);
}

std::string TDBFieldList::GetText() const {
  TStrings lines;
  SaveToStrings(lines);
  return lines.GetText();
}

void TDBFieldList::SetText(std::string_view text) {
  TStrings lines;
  lines.SetText(text);
  LoadFromStrings(lines);
}

void TJDBInfo::SetCurrentDBName(std::string_view name) {
  if (name == FCurrentDBName) return;
  FCurrentDBName = name;
  ForgetFields();
  DatabaseChanged();
}

void TJDBInfo::GetDatabaseNames(TStrings& list) {
  if (OnDBNamesRequest) {
    OnDBNamesRequest(*this, list);
  } else {
    AvailableDatabases(list);
  }
}

void TJDBInfo::GetTableNames(TStrings& tables) {
  if (OnTablesRequest) {
    OnTablesRequest(*this, tables);
  } else {
    TablesByDatabase(tables);
  }
}

void TJDBInfo::GetLinkList(TStrings& links) {
  if (OnLinksRequest) OnLinksRequest(*this, links);
  LinksByDatabase(links);
}

void TJDBInfo::GetViewNames(TStrings& views) {
  if (OnViewsRequest) {
    OnViewsRequest(*this, views);
  } else {
    ViewsByDatabase(views);
  }
}

void TJDBInfo::GetKeyNames(std::string_view tableName, TStrings& keys) {
  if (OnKeysRequest) {
    OnKeysRequest(*this, tableName, keys);
  } else {
    KeysByTable(tableName, keys);
  }
}

const TDBFieldList& TJDBInfo::GetFieldList(std::string_view tableName) {
  if (tableName == FCurrentTableName) return FFields;
  FCurrentTableName = tableName;
  FFields.Clear();
  try {
    if (OnFieldsRequest) {
      OnFieldsRequest(*this, tableName, FFields);
    } else {
      FieldsByTable(tableName, FFields);
    }
  } catch (...) {
    ForgetFields();
    throw;
  }
  return FFields;
}

void TJDBInfo::GetFieldNamesByTable(std::string_view tableName, TStrings& fields) {
  fields.Clear();
  for (const TDBFieldInfo& field : GetFieldList(tableName)) fields.Add(field.GetFieldName());
}

void TJDBInfo::ForgetFields() {
  FCurrentTableName.clear();
  FFields.Clear();
}

bool TJDBInfo::RunQuery(std::string_view sql, TStrings& values, TStrings& items) {
  if (!OnGetSQLValues) return GetSQLValues(sql, values, items);
  OnGetSQLValues(*this, sql, values, items);
  return true;
}

std::string TJDBInfo::GetDatabaseNamesAsText() {
  TStrings lines;
  GetDatabaseNames(lines);
  return lines.GetText();
}

std::string TJDBInfo::GetTableNamesAsText() {
  TStrings lines;
  GetTableNames(lines);
  return lines.GetText();
}

std::string TJDBInfo::GetLinksAsText() {
  TStrings lines;
  GetLinkList(lines);
  return lines.GetText();
}

std::string TJDBInfo::GetFieldsAsText(std::string_view tableName) { return GetFieldList(tableName).GetText(); }

std::string TJDBInfo::GetInfoText() {
  TStrings lines;
  LoadInfo(lines);
  return lines.GetText();
}

void TJDBInfo::LoadInfo(TStrings& info) { info.Clear(); }

void TJDBInfo::SaveInfo(const TStrings& /*info*/) {}

void TJDBInfo::DefineProperties(TPropertyFiler& filer) {
  TComponent::DefineProperties(filer);
  filer.Text(
      "TableNameFormat", [this] { return FTableNameFormat; },
      [this](const std::string& format) { SetTableNameFormat(format); }, DefaultTableNameFormat);
}

void TJDBInfo::AvailableDatabases(TStrings& /*list*/) {}

void TJDBInfo::TablesByDatabase(TStrings& /*list*/) {}

void TJDBInfo::LinksByDatabase(TStrings& /*list*/) {}

void TJDBInfo::ViewsByDatabase(TStrings& /*list*/) {}

void TJDBInfo::FieldsByTable(std::string_view /*tableName*/, TDBFieldList& /*fieldList*/) {}

void TJDBInfo::KeysByTable(std::string_view /*tableName*/, TStrings& /*list*/) {}

bool TJDBInfo::GetSQLValues(std::string_view /*sql*/, TStrings& /*values*/, TStrings& /*items*/) { return false; }

}  // namespace tolvi
