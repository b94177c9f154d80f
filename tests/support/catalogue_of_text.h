// A catalogue for tests that fill models, as a text.
#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/schema/dbinfo.h>

namespace tolvi {

inline const std::map<std::string, TFieldType, std::less<>> TypesByLetter = {
    {"i", ftInteger}, {"n", ftBCD},  {"s", ftString}, {"f", ftFloat},  {"d", ftDate},
    {"m", ftMemo},    {"b", ftBlob}, {"g", ftGuid},   {"u", ftUnknown}};

/// A catalogue written as lines "table: column type, key column* type, ..."; a table with "~" before it is a view.
/// Texts have 20 characters. In other databases, which `Databases` names, there are none.
class TCatalogueOfText final : public TJDBInfo {
 public:
  TCatalogueOfText(std::string_view text, TStrings links) : Links(std::move(links)) {
    for (std::string_view line : SplitLines(text)) {
      if (Trim(line).empty()) continue;
      auto [table, columns] = GetNameAndValueSep(Trim(line), ":");
      const bool view = table.starts_with("~");
      if (view) table.remove_prefix(1);
      (view ? Views : Tables).Add(table);
      Columns.try_emplace(std::string(table), columns);
    }
  }

  TStrings Tables, Views, Links, Queries, Databases;
  std::map<std::string, std::string, std::less<>> Columns;
  /// Rows by the end of the query; without an entry, no query runs.
  std::map<std::string, std::string, std::less<>> Rows;
  bool Connected = true, Broken = false;

  bool GetConnected() const override { return Connected; }

 private:
  void AvailableDatabases(TStrings& list) override { list.AddStrings(Databases); }
  void TablesByDatabase(TStrings& list) override {
    if (GetCurrentDBName().empty()) list.AddStrings(Tables);
  }
  void ViewsByDatabase(TStrings& list) override {
    if (GetCurrentDBName().empty()) list.AddStrings(Views);
  }
  void LinksByDatabase(TStrings& list) override { list.AddStrings(Links); }
  void FieldsByTable(std::string_view table, TDBFieldList& fields) override {
    if (Broken && table == "Broken") throw std::runtime_error("connection lost");
    ForColumns(table, [&fields](std::string_view name, std::string_view type, bool) {
      fields.Add(name, TypesByLetter.find(type)->second, type == "s" ? 20 : 0);
    });
  }
  void KeysByTable(std::string_view table, TStrings& keys) override {
    ForColumns(table, [&keys](std::string_view name, std::string_view, bool key) {
      if (key) keys.Add(name);
    });
  }
  bool GetSQLValues(std::string_view sql, TStrings& values, TStrings& items) override {
    Queries.Add(sql);
    if (Rows.empty()) return false;
    const auto found = Rows.find(GetAfterSep(sql, "from "));
    values.Add(found == Rows.end() ? "1000" : found->second);
    items.Add("");
    return true;
  }
  template <typename TCall>
  void ForColumns(std::string_view table, TCall call) {
    const auto found = Columns.find(table);
    std::string_view rest = found == Columns.end() ? std::string_view() : Trim(found->second);
    while (!rest.empty()) {
      std::string_view item = Trim(GetBeforeSep(rest, ","));
      rest = Trim(GetAfterSep(rest, ","));
      std::string_view name = Trim(item.substr(0, item.size() - 1));
      const bool key = name.ends_with("*");
      if (key) name.remove_suffix(1);
      call(name, item.substr(item.size() - 1), key);
    }
  }
};

}  // namespace tolvi
