#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/datetime.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/query/sqltypes.h>

namespace tolvi {

class TSQLFormats;

/// A value of one of `DateFieldTypes`, read.
struct TDateValue {
  TDateTime Value = 0;
  TDateTimeParts Parts;
};

/// Reads a day number or, if the text is none, a date and time of the locale; an empty text is day 0. Nothing for any
/// other text, or outside the years 1 to 9999.
TOLVI_CORE_API std::optional<TDateValue> TryReadDate(std::string_view text, const TFormatSettings& settings);

/// The literal as the syntax or else the formats want it, whatever the locale.
TOLVI_CORE_API std::string DateLiteral(const TDateValue& date, TFieldType type, TSQLSyntax syntax,
                                       const TSQLFormats& formats);

/// "yyyy-mm-dd", "hh:nn:ss" or both.
TOLVI_CORE_API std::string PlainDate(const TDateValue& date, TFieldType type);

/// What a refused text ought to be: "a date such as 1999-12-31".
TOLVI_CORE_API std::string ExpectedDate(TFieldType type, const TFormatSettings& settings);

}  // namespace tolvi
