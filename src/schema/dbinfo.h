// The catalogue source: what designers ask about a database, answered by the host.
//
//   TJDBInfo info;
//   info.OnTablesRequest = [](TJDBInfo&, TStrings& tables) { tables.Add("orders"); };
//   info.OnFieldsRequest = [](TJDBInfo&, std::string_view, TDBFieldList& fields) { fields.Add("id", ftInteger); };
//   info.GetFieldList("orders").FindByName("ID");
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

/// The codes of `EJDBInfoError`.
enum TDBInfoErrorCode : std::int32_t {
  /// "Field list: count %d is too large for %d lines"
  dieWrongCount = 1,
  /// "Field list, line %d: unknown field type \"%s\""
  dieUnknownType = 2,
};

/// One field of a table, as the catalogue has it.
class TDBFieldInfo final {
 public:
  TDBFieldInfo() = default;
  explicit TDBFieldInfo(std::string_view fieldName, TFieldType fieldType = ftUnknown, int fieldSize = 0)
      : FFieldName(fieldName), FFieldSize(fieldSize), FFieldType(fieldType) {}

  const std::string& GetFieldName() const { return FFieldName; }
  void SetFieldName(std::string_view name) { FFieldName = name; }
  /// In characters or bytes, as the database counts; 0 for types without a size. Default 0.
  int GetFieldSize() const { return FFieldSize; }
  void SetFieldSize(int size) { FFieldSize = size; }
  /// Default `ftUnknown`.
  TFieldType GetFieldType() const { return FFieldType; }
  void SetFieldType(TFieldType type) { FFieldType = type; }

  void Assign(const TDBFieldInfo& source) { *this = source; }
  bool operator==(const TDBFieldInfo&) const = default;

 private:
  std::string FFieldName;
  int FFieldSize = 0;
  TFieldType FFieldType = ftUnknown;
};

/// The fields of one table, in the catalogue's order. Owns its entries, which do not change while they are in it.
/// Indexes count from 0; one outside the list raises `EListError`.
class TOLVI_CORE_API TDBFieldList final {
 public:
  std::size_t Count() const { return FItems.Count(); }
  bool Empty() const { return FItems.Empty(); }
  const TDBFieldInfo& operator[](std::size_t index) const { return FItems[index]; }

  const TDBFieldInfo& Add(std::string_view fieldName, TFieldType fieldType = ftUnknown, int fieldSize = 0);
  const TDBFieldInfo& Add(std::unique_ptr<TDBFieldInfo> field);
  /// `index` may be `Count()`.
  const TDBFieldInfo& Insert(std::size_t index, std::unique_ptr<TDBFieldInfo> field);
  /// Replaces an entry; the old one is handed back.
  std::unique_ptr<TDBFieldInfo> Replace(std::size_t index, std::unique_ptr<TDBFieldInfo> field);
  [[nodiscard]] std::unique_ptr<TDBFieldInfo> Delete(std::size_t index);
  void Clear();

  /// The first field of that name, ignoring case; null when there is none. Uses an index, built on first use.
  const TDBFieldInfo* FindByName(std::string_view fieldName) const;

  /// Replaces all lines by the text form: "Count=" and the number of fields, then for each field, numbered from 1, the
  /// lines "F1Name=", "F1Size=" and "F1Type=" (an identifier as "ftString").
  void SaveToStrings(TStrings& strings) const;
  /// Replaces all fields by those of the text form. A missing or wrong count or size is 0, a missing name empty, a
  /// missing type `ftUnknown`. Raises `EJDBInfoError` for a type that does not exist and for a count far beyond what
  /// the lines can hold; the fields then stay as they were.
  void LoadFromStrings(const TStrings& strings);
  /// Makes `dest` equal to this list.
  void CopyTo(TDBFieldList& dest) const;
  /// The text form as one text with CR LF line breaks. Setting raises as `LoadFromStrings`.
  std::string GetText() const;
  void SetText(std::string_view text);

  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }

 private:
  TJObjectList<TDBFieldInfo> FItems;
  // Views of the entries' names; empty until it is needed.
  mutable std::unordered_map<std::string_view, const TDBFieldInfo*, TFoldedHash, TFoldedEqual> FIndex;
};

class TJDBInfo;

using TDBNamesRequestEvent = std::function<void(TJDBInfo& sender, TStrings& dbNames)>;
using TTablesRequestEvent = std::function<void(TJDBInfo& sender, TStrings& tableList)>;
using TLinksRequestEvent = std::function<void(TJDBInfo& sender, TStrings& links)>;
using TFieldsRequestEvent = std::function<void(TJDBInfo& sender, std::string_view tableName, TDBFieldList& fieldList)>;
using TViewsRequestEvent = std::function<void(TJDBInfo& sender, TStrings& views)>;
using TKeysRequestEvent = std::function<void(TJDBInfo& sender, std::string_view tableName, TStrings& keys)>;
using TGetSQLValueEvent =
    std::function<void(TJDBInfo& sender, std::string_view sql, TStrings& values, TStrings& captions)>;

/// Answers questions about the catalogue of a database. Each question goes to the host's handler; without a handler, to
/// a virtual operation that a descendant for one kind of connection overrides. The base knows no database: it adds
/// nothing to any list.
///
/// Whatever handlers and descendants raise reaches the caller.
class TOLVI_CORE_API TJDBInfo : public TComponent {
 public:
  std::string_view ClassName() const override { return "TJDBInfo"; }

  /// Asked for the names of databases, of tables, and of links, to be added to a list.
  TDBNamesRequestEvent OnDBNamesRequest;
  TTablesRequestEvent OnTablesRequest;
  TLinksRequestEvent OnLinksRequest;
  /// Asked for the fields of a table, to be added to a list that is empty.
  TFieldsRequestEvent OnFieldsRequest;
  /// Asked which of the tables are views, and for the columns of a table's primary key, to be added to a list.
  TViewsRequestEvent OnViewsRequest;
  TKeysRequestEvent OnKeysRequest;
  /// Asked to run a query and to add, row by row, the values for SQL and the texts shown for them.
  TGetSQLValueEvent OnGetSQLValues;

  /// Whether questions can be answered now. True in the base.
  virtual bool GetConnected() const { return true; }

  /// The database in use. Setting another name (compared exactly) forgets the fields and calls `DatabaseChanged`.
  /// Default empty.
  const std::string& GetCurrentDBName() const { return FCurrentDBName; }
  void SetCurrentDBName(std::string_view name);
  /// The table last asked for; empty at first.
  const std::string& GetCurrentTableName() const { return FCurrentTableName; }
  /// How full table names are composed. Default "DB.OWNER.TABLE".
  const std::string& GetTableNameFormat() const { return FTableNameFormat; }
  void SetTableNameFormat(std::string_view format) { FTableNameFormat = format; }

  /// Add the names to a list of the caller's.
  void GetDatabaseNames(TStrings& list);
  void GetTableNames(TStrings& tables);
  /// Adds the links, each as a join condition, the table that refers to the other one first. Asks the handler and then
  /// the virtual operation too.
  void GetLinkList(TStrings& links);
  /// Adds the names of the views, which may stand among those of the tables or not.
  void GetViewNames(TStrings& views);
  /// Adds the columns of the table's primary key, in its order.
  void GetKeyNames(std::string_view tableName, TStrings& keys);

  /// The fields of a table. They are asked for only when the name differs (compared exactly) from the one before; if
  /// that fails, the next call asks again. The result is this component's own list, which the next call for another
  /// table fills anew.
  const TDBFieldList& GetFieldList(std::string_view tableName);
  /// Replaces the lines by the names of the table's fields.
  void GetFieldNamesByTable(std::string_view tableName, TStrings& fields);
  /// The fields of the table last asked for.
  const TDBFieldList& Fields() const { return FFields; }
  /// Empties `Fields`; the next `GetFieldList` asks for any table. For a catalogue that has changed.
  void ForgetFields();

  /// Runs a query and adds, row by row, its values and the texts shown for them. False when nobody ran it.
  bool RunQuery(std::string_view sql, TStrings& values, TStrings& items);

  /// The lists as texts of lines that end with CR LF.
  std::string GetDatabaseNamesAsText();
  std::string GetTableNamesAsText();
  std::string GetLinksAsText();
  /// The text form of the table's field list.
  std::string GetFieldsAsText(std::string_view tableName);
  /// What `LoadInfo` gives, as one text.
  std::string GetInfoText();

  /// Reads the catalogue again. Does nothing in the base.
  virtual void Update() {}
  /// Replaces the lines by the settings of the connection, to be stored with a model; takes such lines over. In the
  /// base there are none.
  virtual void LoadInfo(TStrings& info);
  virtual void SaveInfo(const TStrings& info);

 protected:
  void DefineProperties(TPropertyFiler& filer) override;

  /// What descendants answer when there is no handler: they add to the list that they are given.
  virtual void AvailableDatabases(TStrings& list);
  virtual void TablesByDatabase(TStrings& list);
  virtual void LinksByDatabase(TStrings& list);
  virtual void ViewsByDatabase(TStrings& list);
  virtual void FieldsByTable(std::string_view tableName, TDBFieldList& fieldList);
  virtual void KeysByTable(std::string_view tableName, TStrings& list);
  /// Returns whether the query was run; false in the base.
  virtual bool GetSQLValues(std::string_view sql, TStrings& values, TStrings& items);

  /// Called after the database in use has changed.
  virtual void DatabaseChanged() {}
  /// For descendants, to be called after connecting and disconnecting.
  virtual void ConnectionChanged() {}

 private:
  TDBFieldList FFields;
  std::string FCurrentDBName;
  std::string FCurrentTableName;
  std::string FTableNameFormat{DefaultTableNameFormat};

  static constexpr std::string_view DefaultTableNameFormat = "DB.OWNER.TABLE";
};

}  // namespace tolvi
