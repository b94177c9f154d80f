#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/query/sqltypes.h>

namespace tolvi {

class TSQLFormats;

/// What a value belongs to, for its error messages and its literal.
struct TValueContext {
  const TSQLFormats& Formats;
  const TFormatSettings& Settings;
  TSQLSyntax Syntax = ssSQL2;
  /// The field or condition, as people know it.
  std::string_view Name;
};

/// How a bound statement marks its values: "?", ":name", or "$1".
enum TMarkerStyle : std::uint8_t { msQuestion, msColonName, msDollarNumber };

/// A value of a bound statement.
struct TBoundValue {
  /// The parameter's name; for other values "Value" and a number.
  std::string Name;
  /// Whether the value is a parameter of the query.
  bool IsParam = false;
  /// A parameter that has no value yet.
  bool IsMissing = false;
  TFieldType Type = ftUnknown;
  /// Nothing for a missing value; date types hold a `TDateTime`, types with digits beyond a double's (BCD, currency)
  /// their digits as text.
  std::variant<std::monostate, bool, std::int64_t, double, std::string> Value;
  /// The value as SQL writes it, without quotes: 'O''Hara' is O'Hara, a date as its format writes it.
  std::string Text;
};

/// A statement with markers in place of its values, and the values in the order of their markers. With `:name` a
/// name stands in the list once.
struct TBoundStatement {
  std::string SQL;
  std::vector<TBoundValue> Values;
};

/// The one place where a value's text becomes SQL. Whatever the text holds, the result is one literal of the type, or
/// an `EJQueryPanelError` says which value of which field cannot be one and why.
///
/// An empty text is 0, False or day 0. Numbers are read in the locale of the settings or with a point and written
/// with a point; booleans as `TrueValue` or `FalseValue`; dates (a day number, or a text of the locale) in the form of
/// the syntax; everything else as text in single quotes, inner ones doubled. Text with a NUL or with bytes that are
/// no UTF-8 is an error.
///
/// `before` and `after` are what stands beside the value within the template's quotes (wildcards): they are put inside
/// the literal, which then is one of text.
TOLVI_CORE_API void AppendLiteral(std::string& out, std::string_view value, TFieldType type,
                                  const TValueContext& context, std::string_view before = {},
                                  std::string_view after = {});

/// The literals of the items of a comma text, joined by ",". An empty list is an error.
TOLVI_CORE_API void AppendLiteralList(std::string& out, std::string_view list, TFieldType type,
                                      const TValueContext& context, std::string_view before = {},
                                      std::string_view after = {});

/// The same conversion for a bound statement; `Name` is left empty. With text beside it, the value is one of text.
TOLVI_CORE_API TBoundValue ToBoundValue(std::string_view value, TFieldType type, const TValueContext& context,
                                        std::string_view before = {}, std::string_view after = {});

/// The value in words: dates as the locale writes them, anything else, also what cannot be read, as it stands.
TOLVI_CORE_API std::string ValueToDisplay(std::string_view value, TFieldType type, const TFormatSettings& settings);

/// The value written anew in the stored form of its type (a date as day number); what cannot be read stays.
TOLVI_CORE_API std::string NormalizeValue(std::string_view value, TFieldType type, const TFormatSettings& settings);

/// Types whose values are whole numbers, numbers with digits after the point.
inline constexpr TFieldTypes IntegerFieldTypes{ftSmallint, ftInteger,  ftWord,     ftAutoInc,
                                               ftLargeint, ftLongWord, ftShortint, ftByte};
inline constexpr TFieldTypes FloatFieldTypes{ftFloat, ftCurrency, ftBCD, ftFMTBcd, ftExtended, ftSingle};

}  // namespace tolvi
