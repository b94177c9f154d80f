#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TJCustomDBStructure;

/// How a field's value is entered. The ordinals are stored in model texts.
enum TDSEditType : std::uint8_t { etAuto, etEdit, etList, etCustom, etSQL };

/// Base of the descriptions of how a value is entered. The field or value that holds an editor owns it.
class TOLVI_CORE_API TDSValueEditor {
 public:
  virtual ~TDSValueEditor() = default;
  /// Fetches again what the editor offers. Does nothing in the base.
  virtual void Refresh() {}
};

enum TTextEditorKind : std::uint8_t { tekSimple, tekMask, tekDate, tekTime };

/// Free text, with an optional mask.
class TOLVI_CORE_API TDSTextEditor final : public TDSValueEditor {
 public:
  /// Option bits as stored: 1 upper case, 2 lower case.
  int GetOptions() const { return FOptions; }
  void SetOptions(int options) { FOptions = options; }
  /// Letters are turned to upper (lower) case as typed. Setting one clears the other.
  bool GetAutoUpperCase() const { return (FOptions & UpperCaseBit) != 0; }
  void SetAutoUpperCase(bool on) { SetCaseBit(UpperCaseBit, LowerCaseBit, on); }
  bool GetAutoLowerCase() const { return (FOptions & LowerCaseBit) != 0; }
  void SetAutoLowerCase(bool on) { SetCaseBit(LowerCaseBit, UpperCaseBit, on); }

  const std::string& GetDefaultValue() const { return FDefaultValue; }
  void SetDefaultValue(std::string_view value) { FDefaultValue = value; }
  const std::string& GetEditMask() const { return FEditMask; }
  void SetEditMask(std::string_view mask) { FEditMask = mask; }
  TTextEditorKind GetKind() const { return FKind; }
  void SetKind(TTextEditorKind kind) { FKind = kind; }
  TFieldType GetValueType() const { return FValueType; }
  void SetValueType(TFieldType type) { FValueType = type; }
  /// Whether the value is taken with the literal characters of the mask. Default false.
  bool GetUseFormattedValue() const { return FUseFormattedValue; }
  void SetUseFormattedValue(bool on) { FUseFormattedValue = on; }

 private:
  static constexpr int UpperCaseBit = 1, LowerCaseBit = 2;
  void SetCaseBit(int bit, int other, bool on) { FOptions = on ? (FOptions | bit) & ~other : FOptions & ~bit; }

  int FOptions = 0;
  std::string FDefaultValue, FEditMask;
  TTextEditorKind FKind = tekSimple;
  TFieldType FValueType = ftUnknown;
  bool FUseFormattedValue = false;
};

/// A fixed list: the texts shown and, index by index, the values used in SQL.
class TOLVI_CORE_API TDSListEditor : public TDSValueEditor {
 public:
  TStrings& Items() { return FItems; }
  const TStrings& Items() const { return FItems; }
  TStrings& Values() { return FValues; }
  const TStrings& Values() const { return FValues; }
  void ClearList();

 private:
  TStrings FItems, FValues;
};

/// A list filled by a query through the model's database information.
class TOLVI_CORE_API TDSSQLEditor final : public TDSListEditor {
 public:
  explicit TDSSQLEditor(TJCustomDBStructure* dbStruct) : FDBStruct(dbStruct) {}

  const TStrings& GetSQL() const { return FSQL; }
  void SetSQL(const TStrings& sql) { FSQL = sql; }
  /// "name=value" lines; each replaces ":" + name in the query. Setting other lines closes the editor.
  const TStrings& GetSQLParams() const { return FSQLParams; }
  void SetSQLParams(const TStrings& params);
  /// The query with the parameters applied.
  std::string GetSQLText() const { return ApplyParams(FSQL.GetText()); }
  /// Whether ":" + name occurs in the query, compared exactly.
  bool HasParameter(std::string_view name) const;
  std::string ApplyParams(std::string_view text) const;

  /// Opening runs the query, which fills `Items` and `Values`; it raises `EJDBStructError` 11 when the model has no
  /// database information. Closing empties both lists. Default closed.
  bool GetOpened() const { return FOpened; }
  void SetOpened(bool opened);
  /// Closes and opens again.
  void Refresh() override;

 private:
  friend class TJCustomDBStructure;
  TJCustomDBStructure* FDBStruct;
  TStrings FSQL, FSQLParams;
  bool FOpened = false;
};

/// Data of the host's own.
class TOLVI_CORE_API TDSCustomEditor final : public TDSValueEditor {
 public:
  TStrings& Data() { return FData; }
  const TStrings& Data() const { return FData; }

 private:
  TStrings FData;
};

/// A sub-query, stored as a query text.
class TOLVI_CORE_API TDSSubQueryEditor final : public TDSValueEditor {
 public:
  TStrings& QueryData() { return FQueryData; }
  const TStrings& QueryData() const { return FQueryData; }

 private:
  TStrings FQueryData;
};

/// A new editor of that type; null for `etAuto`.
TOLVI_CORE_API std::unique_ptr<TDSValueEditor> CreateValueEditor(TDSEditType editType, TJCustomDBStructure* dbStruct);

}  // namespace tolvi
