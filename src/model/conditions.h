#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/model/operators.h>
#include <tolvi/model/table.h>
#include <tolvi/model/valueeditors.h>

namespace tolvi {

/// One value of a predefined condition.
class TDSValue final {
 public:
  TFieldType GetDataType() const { return FDataType; }
  void SetDataType(TFieldType type) { FDataType = type; }
  TValueKind GetDataKind() const { return FDataKind; }
  void SetDataKind(TValueKind kind) { FDataKind = kind; }
  /// The literal text of the display format before the value's place.
  const std::string& GetText() const { return FText; }
  void SetText(std::string_view text) { FText = text; }
  /// How the value is entered; null for the automatic way.
  TDSValueEditor* GetValueEditor() const { return FValueEditor.get(); }
  void SetValueEditor(std::unique_ptr<TDSValueEditor> editor) { FValueEditor = std::move(editor); }

 private:
  TFieldType FDataType = ftString;
  TValueKind FDataKind = vkScalar;
  std::unique_ptr<TDSValueEditor> FValueEditor;
  std::string FText;
};

using TDSValueList = TJObjectList<TDSValue>;

/// A predefined condition: a named SQL predicate with places for values. The model's `Conditions` own it; the setters
/// tell the model, which fires `OnChange`.
class TOLVI_CORE_API TDSCondition final {
 public:
  explicit TDSCondition(TJCustomDBStructure* dbStruct = nullptr) : FDBStruct(dbStruct) {}
  TDSCondition(const TDSCondition&) = delete;
  TDSCondition& operator=(const TDSCondition&) = delete;

  TJCustomDBStructure* GetDBStruct() const { return FDBStruct; }
  /// Unique within the list; 0 until added.
  std::int32_t GetID() const { return FID; }
  void SetID(std::int32_t id);
  /// The predicate. Setting finds the tables it mentions anew.
  const std::string& GetSQLExpr() const { return FSQLExpr; }
  void SetSQLExpr(std::string_view expr);
  /// The sentence, with "@" at the place of each value. Setting gives each value its text and creates missing values
  /// (`ftString`); values beyond the number of places stay.
  const std::string& GetDisplayFormat() const { return FDisplayFormat; }
  void SetDisplayFormat(std::string_view format);
  TDSValueList& Values() { return FValues; }
  const TDSValueList& Values() const { return FValues; }
  /// The model's tables that the predicate mentions.
  const TSimpleDSTableList& Tables() const;
  /// Without values the display format, else the values' texts joined by single blanks.
  std::string GetCaption() const;

 private:
  friend class TDSConditionList;
  friend class TJCustomDBStructure;
  void Modified();
  /// Also the editors of the values that ask the model's database.
  void BindTo(TJCustomDBStructure* dbStruct);
  void UpdateTables() const;

  TJCustomDBStructure* FDBStruct;
  std::int32_t FID = 0;
  std::string FSQLExpr, FDisplayFormat;
  TDSValueList FValues;
  mutable TSimpleDSTableList FTables;
  mutable std::uint64_t FTablesStamp = 0;
};

/// The predefined conditions of a model.
class TOLVI_CORE_API TDSConditionList final {
 public:
  explicit TDSConditionList(TJCustomDBStructure& dbStruct) : FDBStruct(dbStruct) {}

  std::size_t Count() const { return FItems.Count(); }
  TDSCondition& operator[](std::size_t index) const { return FItems[index]; }
  /// A condition whose ID is 0 gets the largest ID handed out plus 1. Fires the model's `OnChange`.
  TDSCondition& Add(std::unique_ptr<TDSCondition> condition);
  /// Hands the condition out. Query panels keep their rows as unrecognized ones. Fires the model's `OnChange`.
  std::unique_ptr<TDSCondition> Delete(std::size_t index);
  void Clear();
  /// Index of the first condition with that ID, -1 when there is none.
  std::ptrdiff_t IndexByID(std::int32_t id) const;
  std::ptrdiff_t IndexOf(const TDSCondition& condition) const { return FItems.IndexOf(&condition); }
  std::int32_t GetMaxID() const { return FMaxID; }

  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }

 private:
  friend class TJCustomDBStructure;
  std::int32_t NextID() const;

  TJCustomDBStructure& FDBStruct;
  TJObjectList<TDSCondition> FItems;
  std::int32_t FMaxID = 0;
};

}  // namespace tolvi
