#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/model/conditions.h>
#include <tolvi/model/field.h>
#include <tolvi/model/fieldgroups.h>
#include <tolvi/model/link.h>
#include <tolvi/model/nameindex.h>
#include <tolvi/model/operators.h>
#include <tolvi/model/path.h>
#include <tolvi/model/sqlformats.h>
#include <tolvi/model/table.h>
#include <tolvi/schema/dbinfo.h>

namespace tolvi {

class TPathFinder;

/// Buttons of the model editor dialog.
enum TDMEButton : std::uint8_t { dmbOpenSave, dmbConnect };
using TDMEButtons = TSet<TDMEButton>;

/// Which name of a table or field a look-up compares, ignoring case. `fnSQLExpr` ignores the quote symbols too.
enum TTableNameKind : std::uint8_t { tnName, tnAlias, tnDisplayName, tnCompoundName, tnFromExpr, tnFullName };
enum TFieldNameKind : std::uint8_t { fnFieldExpr, fnDisplayName, fnFullName, fnSQLExpr };

/// What those who refer to parts of a model must know in time. All but `ModelChanged` are called in the middle of a
/// change, before the part goes: they must not throw, nor look anything up in the model.
class TOLVI_CORE_API TDSListener {
 public:
  virtual void FieldRemoved(TDSField&) {}
  virtual void OperatorRemoved(TDSOperator&) {}
  virtual void ConditionRemoved(TDSCondition&) {}
  /// A table or a link is about to go.
  virtual void TablesChanging() {}
  /// All parts are about to go.
  virtual void StructureClearing() {}
  /// A model text has been loaded.
  virtual void StructureLoaded() {}
  /// A change is complete, before the model's `OnChange`.
  virtual void ModelChanged() {}

 protected:
  ~TDSListener() = default;
};

/// The data model: what of a database end users may query, in their words. It owns tables, fields, links, operators,
/// groups and predefined conditions.
///
/// 1. Every mutating operation, here and on the parts, calls `Changed`, which fires `OnChange`. Value editors and the
///    values of conditions do not know their model: who changes one calls `Changed`.
/// 2. A part that is deleted leaves no reference in the model: links and data fields go with their table, fields and
///    groups forget a deleted operator or field.
/// 3. Look-ups by name or number take constant time and give the first match in list order.
class TOLVI_CORE_API TJCustomDBStructure : public TComponent {
 public:
  /// A handler that sets `processed` replaces the built-in loading or saving.
  using TInOutModelEvent = std::function<void(const TJCustomDBStructure&, TStrings& dataModelStrings, bool& processed)>;
  using TModelEvent = std::function<void(TJCustomDBStructure&)>;

  TJCustomDBStructure();
  ~TJCustomDBStructure() override;
  std::string_view ClassName() const override { return "TJCustomDBStructure"; }

  // Tables

  /// Adds a table whose name and alias are `tableName` (in the alias blanks become "_"); a name with a blank is
  /// quoted. Returns its index.
  std::size_t AddTable(std::string_view tableName, std::string_view displayName);
  std::size_t AddTableRef(std::unique_ptr<TDSTable> table);
  /// Deletes the table with its links and its data fields; virtual fields and conditions forget it.
  void DelTable(std::size_t index);
  void MoveTable(std::size_t from, std::size_t to);
  /// Raises `EJDBStructError` 1 on a bad index, as do the two above.
  TDSTable& GetTable(std::size_t index) const;
  std::size_t GetTableCount() const { return FTables.Count(); }
  const TJObjectList<TDSTable>& Tables() const { return FTables; }
  /// The first table whose name of that kind equals `name`; null when there is none. A number that is no kind matches
  /// nothing.
  TDSTable* TableByName(int what, std::string_view name) const;
  void GetTableNames(int what, TStrings& names) const;

  // Fields

  /// Adds a field to the root group and completes it: a virtual field from its expression (`ftString`, size 100), a
  /// data field from the catalogue when one is set and connected. Raises `EJDBStructError` 10 when the catalogue does
  /// not know the column; nothing is added then. Returns the index.
  std::size_t AddField(TJFieldKind kind, std::string_view sqlExpr, std::string_view displayName, TDSTable* table);
  /// Adds an existing field to the root group and completes it: the tables of a virtual field, the type and size of a
  /// data field from a connected catalogue (raises `EJDBStructError` 10). An ID of 0 becomes the next free one.
  std::size_t AddFieldRef(std::unique_ptr<TDSField> field);
  void DelField(std::size_t index);
  /// Raises `EListError` on a bad index.
  TDSField& GetField(std::size_t index) const { return FFields[index]; }
  const TDSFieldList& Fields() const { return FFields; }
  TDSField* FieldByName(int what, std::string_view name) const;
  TDSField* FieldByID(std::int32_t id) const;
  void GetFieldNames(int what, TStrings& names) const;
  /// The largest field ID; 0 without fields.
  std::int32_t GetLastFieldID() const;
  /// Whether the expression calls an aggregate function.
  static bool CheckIfAggregate(std::string_view expr);

  // Links

  /// Adds the link, known to both its tables; one without operators gets "=" for every pair. Both tables must be in
  /// the model (`EJDBStructError` 4 otherwise). Returns the index.
  std::size_t AddLinkByRef(std::unique_ptr<TDSLink> link);
  /// Builds a link from a join condition such as "Orders.CustNo = Customers.CustNo and ...": comparisons (= <> != < >
  /// <= >=) of qualified columns of two tables of the model or, on one side, of a constant. Raises `EJDBStructError`
  /// when the text is no such condition; the message says where. Returns the index.
  std::size_t AddLinkByExpr(std::string_view expr, TDSLinkType linkType = ltInner);
  /// Raises `EJDBStructError` 2 on a bad index.
  void DelLink(std::size_t index);
  TDSLink& GetLink(std::size_t index) const;
  std::size_t GetLinkCount() const { return FLinks.Count(); }
  const TJObjectList<TDSLink>& Links() const { return FLinks; }
  /// The first link between tables of these table names, in either order, compared exactly; null when there is none.
  TDSLink* FindLink(std::string_view table1Name, std::string_view table2Name) const;

  // Operators

  std::size_t AddOperator(std::string_view name, std::string_view displayName, std::string_view sqlExpr,
                          std::string_view valFormat, TFieldTypes appliedTypes);
  std::size_t AddOperatorRef(std::unique_ptr<TDSOperator> op);
  /// With `onlyIfAbsent` an operator of that name is left as it is and its index returned.
  std::size_t AddUpdateOperator(bool onlyIfAbsent, std::string_view name, std::string_view displayName,
                                std::string_view sqlExpr, std::string_view valFormat, TFieldTypes appliedTypes);
  /// The operators that every model has, then the groups that `ExOperators` enables.
  void AddDefOperators(bool onlyIfAbsent);
  void AddInListOperator(bool onlyIfAbsent);
  void AddNotInListOperator(bool onlyIfAbsent);
  void AddStartsWithOperator(bool onlyIfAbsent);
  void AddNotStartsWithOperator(bool onlyIfAbsent);
  void AddContainsOperator(bool onlyIfAbsent);
  void AddNotContainsOperator(bool onlyIfAbsent);
  void AddBetweenOperator(bool onlyIfAbsent);
  void AddNotBetweenOperator(bool onlyIfAbsent);
  /// Adds or deletes the operators of each optional group as `ExOperators` says.
  void UpdateExOperators();
  /// Takes the display names from `DefOperators`. Deletes the operators of disabled groups, except those of the
  /// StartsWith group.
  void UpdateDefOperators();
  void UpdateOperatorCaption(std::string_view name, std::string_view caption);
  void DelOperator(std::size_t index);
  void DeleteOperatorByName(std::string_view name);
  void MoveOperator(std::size_t from, std::size_t to);
  /// Raises `EJDBStructError` 3 on a bad index.
  TDSOperator& GetOperator(std::size_t index) const;
  std::size_t GetOperatCount() const { return FOperators.Count(); }
  const TJObjectList<TDSOperator>& Operators() const { return FOperators; }
  std::ptrdiff_t IndexOfOperator(const TDSOperator& op) const { return FOperators.IndexOf(&op); }
  /// "EqualTo", written exactly so, means "Equal". -1, null when there is none.
  std::ptrdiff_t OperatorIndexByName(std::string_view name) const;
  TDSOperator* OperatorByName(std::string_view name) const;
  /// The first operator whose template contains `expr`; null when there is none.
  TDSOperator* OperatorByExpr(std::string_view expr) const;
  void GetOperatorNames(TStrings& names) const;

  /// Lines "name=display name" of the default operators. Setting calls `UpdateDefOperators`.
  const TStrings& GetDefOperators() const { return FDefOperators; }
  void SetDefOperators(const TStrings& lines);
  /// The display name of a default operator in `DefOperators`; empty when it has none there.
  std::string GetDefOperator(std::string_view name) const { return FDefOperators.Value(name); }
  /// Sets `DefOperators` to the fifteen default lines; adds those whose name has no value there.
  void LoadDefsOpertors();
  void MergeDefOperators();
  /// The optional groups. Default all. Setting another set calls `UpdateExOperators` and `UpdateDefOperators`.
  TExOperators GetExOperators() const { return FExOperators; }
  void SetExOperators(TExOperators groups);

  // Conditions and groups

  TDSConditionList& Conditions() { return FConditions; }
  const TDSConditionList& Conditions() const { return FConditions; }
  TDSCondition* ConditionByID(std::int32_t id) const;
  void GetConditionCaptions(TStrings& captions) const;
  TDSFieldGroupList& FieldGroups() { return FFieldGroups; }
  const TDSFieldGroupList& FieldGroups() const { return FFieldGroups; }
  /// Lists the fields that belong to no named group.
  TDSFieldGroup& RootGroup() { return FRootGroup; }
  const TDSFieldGroup& RootGroup() const { return FRootGroup; }

  // Paths

  /// The chain of linked tables from one alias to the other, both included, with the fewest links; among those the
  /// one whose links come first, table by table, in the order of each table's links. With both aliases naming one
  /// table, the shortest way round back to it. Null when there is no chain. The result belongs to the model and is
  /// overwritten by the next call. Raises `EJDBStructError` 4 for an unknown alias.
  const TDSPath* GetPath(std::string_view alias1, std::string_view alias2) const;
  const TDSPath* GetPath(const TDSTable& table1, const TDSTable& table2) const;
  /// Finds the qualified names "table.column" in an SQL expression whose first part is the alias or else the name of
  /// a table of the model. Adds each table once to `tables` and each qualified name, with its dot, to `references`.
  void ExcludeTablesBySQLExpr(std::string_view expr, TSimpleDSTableList& tables, TStrings& references) const;

  // Placeholders for what a query names and the model lacks

  TDSField& GetNullField() const { return *FNullField; }
  TDSOperator& GetNullOperator() const { return *FNullOperator; }
  TDSCondition& GetNullCondition() const { return *FNullCondition; }

  // Clearing, text and files

  void ClearFields();
  void ClearTables();
  void ClearLinks();
  void ClearOperators();
  /// Everything, operators included.
  void ClearStructure();
  /// Whether the model has at most one field.
  bool GetEmpty() const { return FFields.Count() <= 1; }

  /// The whole model as text. Loading replaces the model's content; it raises `EJDBStructError` (`EConvertError` for
  /// a value of the wrong kind), naming section and line, and then leaves the model as it was. `OnSaveModel` and
  /// `OnLoadModel` may take over. Loading fires `OnChange` once.
  void SaveToStrings(TStrings& lines) const;
  void LoadFromStrings(const TStrings& lines);
  void SaveToFile(const std::filesystem::path& file) const;
  void LoadFromFile(const std::filesystem::path& file);
  std::string GetStructString() const;
  void SetStructString(std::string_view text);
  /// Replaces the content of `target` by a copy of this model, as by saving and loading.
  void AssignTo(TJCustomDBStructure& target) const;
  /// Exchanges everything that a model text holds, settings are copied: for readers of other formats, which fill a
  /// model of their own. Fires `OnChange` once.
  void TakeContent(TJCustomDBStructure& source);
  /// The version of the text last read; that of the current format for a new model.
  double GetVersion() const { return FVersion; }

  // Change notification

  /// Between these, `Changed` does not fire `OnChange`. They do not nest, and `EndUpdate` sends no notification.
  void BeginUpdate() { FUpdating = true; }
  void EndUpdate() { FUpdating = false; }
  /// Tells the listeners, then fires `OnChange`, which may destroy the model. A change that the handler of `OnChange`
  /// makes does not fire it again; an operation that makes several changes fires it once, at its end.
  virtual void Changed();
  /// Calls `changes`; all that it changes is one change for listeners and `OnChange`, at the end (also when it raises).
  /// Calls nest.
  void AsOneChange(const std::function<void()>& changes);
  /// A number that grows with every change of the model or its parts.
  std::uint64_t GetRevision() const { return FRevision; }
  /// The listener must remove itself before it goes.
  void AddListener(TDSListener& listener) const { FListeners.push_back(&listener); }
  void RemoveListener(TDSListener& listener) const;

  // Settings

  TSQLFormats& SQLFormats() { return FSQLFormats; }
  const TSQLFormats& SQLFormats() const { return FSQLFormats; }
  TDMOptions& DMOptions() { return FDMOptions; }
  const TDMOptions& DMOptions() const { return FDMOptions; }
  TFieldTypes GetQuotedTypes() const { return FSQLFormats.GetQuotedTypes(); }
  void SetQuotedTypes(TFieldTypes types) { FSQLFormats.SetQuotedTypes(types); }
  /// Alias of the table that queries start from. Default empty.
  const std::string& GetDefaultMainTable() const { return FDefaultMainTable; }
  void SetDefaultMainTable(std::string_view alias);
  /// Whether menus list the root group before the named groups. Default false.
  bool GetRootFieldsFirst() const { return FRootFieldsFirst; }
  void SetRootFieldsFirst(bool on);
  /// Database-specific lines, stored with the model while a database information component is set and
  /// `DMOptions().StoreDBInfo` is on.
  const TStrings& GetSpecInfo() const { return FSpecInfo; }
  void SetSpecInfo(const TStrings& lines);
  /// The catalogue source; not owned.
  TJDBInfo* GetDatabaseInfo() const { return FDBInfo.Get(); }
  void SetDatabaseInfo(TJDBInfo* info) { FDBInfo.Set(info); }
  /// Whether designers add a table's fields with it. Default true.
  bool GetAutoAddFields() const { return FAutoAddFields; }
  void SetAutoAddFields(bool on) { FAutoAddFields = on; }
  /// Whether a component stream holds the model text. Default true.
  bool GetStoreStruct() const { return FStoreStruct; }
  void SetStoreStruct(bool on) { FStoreStruct = on; }
  const std::string& GetHelpFileName() const { return FHelpFileName; }
  void SetHelpFileName(std::string_view name) { FHelpFileName = name; }
  int GetSEHelpContext() const { return FSEHelpContext; }
  void SetSEHelpContext(int context) { FSEHelpContext = context; }
  /// The folder in which the structure editor starts. Default empty.
  const std::string& GetInitialSEPath() const { return FDefSEPath; }
  void SetInitialSEPath(std::string_view folder) { FDefSEPath = folder; }
  TDMEButtons GetDMEButtons() const { return FDMEButtons; }
  void SetDMEButtons(TDMEButtons buttons) { FDMEButtons = buttons; }

  TModelEvent OnChange;
  TModelEvent OnSEHelpClick;
  TModelEvent OnConnectClick;
  TInOutModelEvent OnLoadModel;
  TInOutModelEvent OnSaveModel;

 protected:
  void DefineProperties(TPropertyFiler& filer) override;
  void Loaded() override;
  /// Completes a new data field from the catalogue. Raises `EJDBStructError` 10 for an unknown column.
  virtual void ProcessNewField(TDSField& field);

 private:
  friend class TDSTable;
  friend class TDSField;
  friend class TDSLink;
  friend class TDSOperator;
  friend class TDSCondition;
  friend class TDSConditionList;
  friend class TDSFieldGroup;
  friend class TDSFieldGroupList;

  // Changes that make look-ups by name stale; adding at the end does not.
  void TablesModified();
  void FieldsModified();
  void OperatorsModified();
  void ConditionsModified();
  void LinksModified();
  void SettingsModified();
  void AddDefOperator(std::string_view name, bool onlyIfAbsent);
  void AddDefOperatorRow(const TDefOperator& row, bool onlyIfAbsent);
  std::int32_t NextFieldID() const;
  TDSField& AppendField(std::unique_ptr<TDSField> field);
  static void BindEditor(TDSValueEditor* editor, TJCustomDBStructure* model);
  void ForgetField(TDSField& field);
  void DropField(std::size_t index);
  void DropLink(std::size_t index);
  template <typename TCall>
  void Tell(TCall call) const {
    const std::vector<TDSListener*> listeners = FListeners;
    for (TDSListener* listener : listeners) {
      // What another one does may have removed it.
      if (std::find(FListeners.begin(), FListeners.end(), listener) != FListeners.end()) call(*listener);
    }
  }
  void ReleaseChanges();
  void LoadText(std::string_view text);

  // Stands on the stack while others hear of a change, one of whom may destroy the model.
  struct TFiring;
  // Another number whenever a table was added, deleted or changed.
  std::uint64_t TablesStamp() const { return (FRevisions.tables << 32) + FTables.Count(); }

  struct TRevisions {
    std::uint64_t tables = 1, fields = 1, operators = 1, conditions = 1, links = 1;
  };

  double FVersion;
  TSQLFormats FSQLFormats;
  TDMOptions FDMOptions;
  TJObjectList<TDSTable> FTables;
  TDSFieldList FFields;
  TJObjectList<TDSOperator> FOperators;
  TJObjectList<TDSLink> FLinks;
  TDSConditionList FConditions;
  TDSFieldGroupList FFieldGroups;
  TDSFieldGroup FRootGroup;
  std::unique_ptr<TDSField> FNullField;
  std::unique_ptr<TDSOperator> FNullOperator;
  std::unique_ptr<TDSCondition> FNullCondition;
  std::string FDefaultMainTable, FHelpFileName, FDefSEPath;
  TStrings FDefOperators, FSpecInfo, FStoredStructureBuf;
  TExOperators FExOperators = AllExOperators;
  TDMEButtons FDMEButtons;
  TRef<TJDBInfo> FDBInfo;
  int FSEHelpContext = 0;
  bool FStoreStruct = true, FAutoAddFields = true, FRootFieldsFirst = false, FUpdating = false;

  TFiring* FFiring = nullptr;
  int FHeldChanges = 0;
  bool FChangePending = false, FInOnChange = false;
  std::uint64_t FRevision = 1;
  TRevisions FRevisions;
  mutable std::optional<std::int32_t> FLastFieldID = 0;
  std::array<TNameIndex<TDSTable>, 6> FTableIndexes;
  std::array<TNameIndex<TDSField>, 4> FFieldIndexes;
  TFirstIndex<std::int32_t, TDSField> FFieldIDs;
  TNameIndex<TDSOperator> FOperatorNames;
  TFirstIndex<std::int32_t, TDSCondition> FConditionIDs;
  mutable std::vector<TDSListener*> FListeners;
  mutable TDSPath FCurPath;
  std::unique_ptr<TPathFinder> FPathFinder;
};

/// The formats of the model; the default formats without one.
TOLVI_CORE_API const TSQLFormats& FormatsOf(const TJCustomDBStructure* model);

/// The data model as hosts place it on a form: the same, with all its settings published.
class TOLVI_CORE_API TJDBStructure : public TJCustomDBStructure {
 public:
  std::string_view ClassName() const override { return "TJDBStructure"; }

 protected:
  void DefineProperties(TPropertyFiler& filer) override;
};

}  // namespace tolvi
