#pragma once

#include <any>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/global.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/operators.h>
#include <tolvi/model/table.h>
#include <tolvi/model/valueeditors.h>

namespace tolvi {

class TDSFieldGroup;

/// A field that users choose: a column of a table, or a value computed by an SQL expression. The model owns it; every
/// setter tells the model, which fires `OnChange`.
class TOLVI_CORE_API TDSField final {
 public:
  explicit TDSField(TJFieldKind kind = jfkData) : FFieldKind(kind) {}
  TDSField(const TDSField&) = delete;
  TDSField& operator=(const TDSField&) = delete;

  /// The model that owns the field; null until it is added to one.
  TJCustomDBStructure* GetDBStruct() const { return FDBStruct; }

  /// The number by which stored queries and groups know the field; 0 until it is in a model, where setting 0 gives it
  /// the next free one.
  std::int32_t GetID() const { return FID; }
  void SetID(std::int32_t id);
  TJFieldKind GetFieldKind() const { return FFieldKind; }
  /// Changes what the expression means; the tables stay.
  void SetFieldKind(TJFieldKind kind) { Set(FFieldKind, kind); }

  /// The column name of a data field, the SQL expression of a virtual one, as stored.
  const std::string& GetFieldExpr() const { return FFieldExpr; }
  /// The column name. Setting that of a virtual field raises `EJDBStructError` 7.
  const std::string& GetFieldName() const { return FFieldExpr; }
  void SetFieldName(std::string_view name);
  /// The SQL that stands for the field: the qualified column, or the expression of a virtual field.
  const std::string& GetSQLExpr() const;
  /// Setting finds the tables and columns that the expression mentions anew, also when it stays the same; that of a
  /// data field raises `EJDBStructError` 8.
  void SetSQLExpr(std::string_view expr);
  /// The column in the quote symbols where it needs them; without its table.
  std::string GetFilterSQLExpr() const;
  /// As `SQLExpr` with the column always in double quotes, whatever the formats say.
  std::string GetNormalSQLExpr() const;
  /// "table.column" of a data field, the expression of a virtual one.
  std::string GetFullName() const;
  /// The name of the field's group, the separator and the display name; without a named group the display name.
  std::string GetCompoundName(std::string_view separator = ".") const;
  /// What GROUP BY holds for the field: the expression of a data field, the columns of a virtual one joined by ", ".
  std::string GetGroupByFields() const;

  const std::string& GetDisplayName() const { return FDisplayName; }
  void SetDisplayName(std::string_view name) { Set(FDisplayName, name); }

  /// The table of a data field; the tables that a virtual field's expression mentions.
  const TSimpleDSTableList& Tables() const {
    if (FFieldKind == jfkVirtual) RefreshTables();
    return FTables;
  }
  /// The first table; null when there is none.
  TDSTable* GetTable() const { return Tables().Empty() ? nullptr : &FTables[0]; }
  /// Makes `table` the only table; null leaves none.
  void SetTable(TDSTable* table);
  /// The qualified columns that a virtual field's expression mentions.
  const TStrings& DBFields() const {
    Tables();
    return FDBFields;
  }

  /// Whether the column name needs quoting.
  bool GetQuoted() const { return FQuoted; }
  void SetQuoted(bool quoted) { Set(FQuoted, quoted); }
  TFieldType GetFieldType() const { return FFieldType; }
  void SetFieldType(TFieldType type) { Set(FFieldType, type); }
  int GetFieldSize() const { return FFieldSize; }
  void SetFieldSize(int size) { Set(FFieldSize, size); }
  /// Whether conditions, result columns may use the field. Default true.
  bool GetUseInConditions() const { return FUseInConditions; }
  void SetUseInConditions(bool on) { Set(FUseInConditions, on); }
  bool GetUseInResult() const { return FUseInResult; }
  void SetUseInResult(bool on) { Set(FUseInResult, on); }
  /// Whether the expression is an aggregate (conditions on it go to HAVING). Default false.
  bool GetIsAggregate() const { return FIsAggregate; }
  void SetIsAggregate(bool on) { Set(FIsAggregate, on); }

  /// How values are entered. Setting another type replaces the editor by a new one of that type.
  TDSEditType GetEditType() const { return FEditType; }
  void SetEditType(TDSEditType type);
  /// The editor of `EditType`, owned by the field; null for `etAuto`.
  TDSValueEditor* GetValueEditor() const { return FValueEditor.get(); }

  /// The operators offered for the field, in order. The model owns them.
  const std::vector<TDSOperator*>& Operators() const { return FOperators; }
  std::size_t GetOperatCount() const { return FOperators.size(); }
  /// A bad index raises `EJDBStructError` 3, here and in the operations below.
  TDSOperator& GetOperator(std::size_t index) const;
  /// -1 when the field does not offer the operator.
  std::ptrdiff_t IndexOfOperator(const TDSOperator& op) const;
  void AddOperator(TDSOperator& op);
  /// Raises `EJDBStructError` 6 when the model has no operator of that name.
  void AddOperatorByName(std::string_view name);
  void DelOperator(std::size_t index);
  void RemoveOperator(const TDSOperator& op);
  void MoveOperat(std::size_t curIndex, std::size_t newIndex);
  void ClearOperators();
  /// Replaces the operators by all those of the model that apply to the field's type, in the model's order.
  void AddAppliedOperators();

  /// The group that lists the field; null before the field is in a model and when its group has deleted it. Setting
  /// takes it out of its old group.
  TDSFieldGroup* GetGroup() const { return FGroup; }
  void SetGroup(TDSFieldGroup& group);
  /// The name of the group; empty in the root group.
  const std::string& GetGroupName() const;

  /// An object and a value of the host's own; not stored.
  const std::any& GetOleObject() const { return FOleObject; }
  void SetOleObject(std::any object) { FOleObject = std::move(object); }
  std::uintptr_t GetUserData() const { return FUserData; }
  void SetUserData(std::uintptr_t data) { FUserData = data; }

 private:
  friend class TJCustomDBStructure;
  friend class TDSFieldGroup;
  friend class TDSFieldGroupList;
  template <typename T, typename V>
  void Set(T& property, const V& value) {
    if (property == value) return;
    property = value;
    Modified();
  }
  void Modified();
  void UpdateTables() const;
  // The model's tables may have come, gone or been renamed since the expression was read.
  void RefreshTables() const;
  std::size_t CheckedOperator(std::size_t index) const;

  TJCustomDBStructure* FDBStruct = nullptr;
  std::int32_t FID = 0;
  TJFieldKind FFieldKind;
  TFieldType FFieldType = ftUnknown;
  TDSEditType FEditType = etAuto;
  bool FQuoted = false, FUseInConditions = true, FUseInResult = true, FIsAggregate = false;
  int FFieldSize = 0;
  std::string FFieldExpr, FDisplayName;
  mutable TSimpleDSTableList FTables;
  std::vector<TDSOperator*> FOperators;
  mutable TStrings FDBFields;
  std::unique_ptr<TDSValueEditor> FValueEditor;
  TDSFieldGroup* FGroup = nullptr;
  std::any FOleObject;
  std::uintptr_t FUserData = 0;
  // The qualified column, kept for the revision of the model in which it was made.
  mutable std::string FSQLExpr;
  mutable std::uint64_t FSQLExprRevision = 0;
  mutable std::uint64_t FTablesStamp = 0;
};

/// The fields of a model, owned, in the order in which they were added.
using TDSFieldList = TJObjectList<TDSField>;

}  // namespace tolvi
