#pragma once

#include <any>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>

namespace tolvi {

class TJCustomDBStructure;

/// What a value of a condition is: one value, a list of values, or a sub-query.
enum TValueKind : std::uint8_t { vkScalar, vkList, vkSubQuery };

/// "vkScalar", "vkList" or "vkSubQuery", and back (nothing for another text; case is ignored).
TOLVI_CORE_API std::string_view ValueKindToStr(TValueKind kind);
TOLVI_CORE_API std::optional<TValueKind> TryStrToValueKind(std::string_view text);

/// Optional groups of the default operators.
enum TExOperator : std::uint8_t { xoInList, xoBetween, xoStartsWith, xoContains };
using TExOperators = TSet<TExOperator>;
inline constexpr TExOperators AllExOperators{xoInList, xoBetween, xoStartsWith, xoContains};

/// The type sets of the default operators: general, ordered, nullable, text.
inline constexpr TFieldTypes GeneralFieldTypes{ftString,    ftSmallint,   ftInteger,  ftWord,     ftBoolean,  ftFloat,
                                               ftCurrency,  ftBCD,        ftDate,     ftTime,     ftDateTime, ftAutoInc,
                                               ftFixedChar, ftWideString, ftLargeint, ftTimeStamp};
inline constexpr TFieldTypes OrderedFieldTypes = GeneralFieldTypes - TFieldTypes{ftBoolean};
inline constexpr TFieldTypes NullableFieldTypes = GeneralFieldTypes + TFieldTypes{ftMemo, ftFmtMemo};

/// A comparison that users pick for a field: a phrase and an SQL template in which "@f" stands for the field's
/// expression and "@1", "@2" for the values. The model owns it; every setter tells the model, which fires `OnChange`.
class TOLVI_CORE_API TDSOperator final {
 public:
  TDSOperator() = default;
  TDSOperator(const TDSOperator&) = delete;
  TDSOperator& operator=(const TDSOperator&) = delete;

  /// The key of the operator, compared ignoring case.
  const std::string& GetName() const { return FName; }
  void SetName(std::string_view name) { Set(FName, name); }
  /// The phrase shown to users ("is equal to").
  const std::string& GetDisplayName() const { return FDisplayName; }
  void SetDisplayName(std::string_view name) { Set(FDisplayName, name); }
  /// The SQL template.
  const std::string& GetSQLExpr() const { return FSQLExpr; }
  void SetSQLExpr(std::string_view expr);
  /// Text shown between consecutive values.
  const std::string& GetValFormat() const { return FValFormat; }
  void SetValFormat(std::string_view format) { Set(FValFormat, format); }
  /// Type of the values; `ftUnknown` (the default) means the field's type.
  TFieldType GetExprType() const { return FExprType; }
  void SetExprType(TFieldType type) { Set(FExprType, type); }
  TValueKind GetValueKind() const { return FValueKind; }
  void SetValueKind(TValueKind kind) { Set(FValueKind, kind); }
  /// Whether texts are compared without regard to case. Default false.
  bool GetCaseInsensative() const { return FCaseInsensative; }
  void SetCaseInsensative(bool on) { Set(FCaseInsensative, on); }
  /// Field types to which the operator is applied automatically. Default `NullableFieldTypes`.
  TFieldTypes GetAppliedTypes() const { return FAppliedTypes; }
  void SetAppliedTypes(TFieldTypes types) { Set(FAppliedTypes, types); }
  /// An object of the host's own; not stored.
  const std::any& GetOleObject() const { return FOleObject; }
  void SetOleObject(std::any object) { FOleObject = std::move(object); }

  /// How many of "@1", "@2", ... occur in the template, counted up to the first missing one.
  std::size_t GetParamCount() const { return FParamCount; }

 private:
  friend class TJCustomDBStructure;
  template <typename T, typename V>
  void Set(T& property, const V& value) {
    if (property == value) return;
    property = value;
    Modified();
  }
  void Modified();

  TJCustomDBStructure* FDBStruct = nullptr;
  std::string FName, FDisplayName, FSQLExpr, FValFormat;
  std::size_t FParamCount = 0;
  TFieldType FExprType = ftUnknown;
  TValueKind FValueKind = vkScalar;
  bool FCaseInsensative = false;
  TFieldTypes FAppliedTypes = NullableFieldTypes;
  std::any FOleObject;
};

/// The number of values of a template: "@1", "@2", ... counted up to the first missing one.
TOLVI_CORE_API std::size_t TemplateParamCount(std::string_view sqlTemplate);

/// One row of the table of default operators.
struct TDefOperator {
  std::string_view Name, SQLExpr, DisplayName;
  TFieldTypes Types;
  TValueKind ValueKind;
  std::string_view ValFormat;
  /// The optional group; nothing for operators that every model has.
  std::optional<TExOperator> Group;
};

/// The default operators in the order in which they are added.
TOLVI_CORE_API std::span<const TDefOperator> DefaultOperators();

}  // namespace tolvi
