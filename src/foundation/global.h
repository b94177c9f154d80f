#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/datetime.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

/// What a field of the model is: a column of a table or a value computed by an SQL expression.
enum TJFieldKind : std::uint8_t { jfkData, jfkVirtual };

/// "jfkData" or "jfkVirtual".
TOLVI_CORE_API std::string_view FldKindToStr(TJFieldKind kind);

/// The kind of that name, ignoring case. Raises `EConvertError` for any other text.
TOLVI_CORE_API TJFieldKind StrToFldKind(std::string_view text);

/// The day number of the date-time (days since 30 December 1899, the time as fraction) with up to 15 significant
/// digits and the decimal separator of `settings`: 1 January 2000 is "36526".
TOLVI_CORE_API std::string TvDateTimeToStr(TDateTime value, const TFormatSettings& settings = {});

/// The inverse of `TvDateTimeToStr`. Raises `EConvertError` when the text is no number.
TOLVI_CORE_API TDateTime TvStrToDateTime(std::string_view text, const TFormatSettings& settings = {});

/// The lines, each followed by CR LF, as a new text that ends with a zero byte: for callers that know no C++ text.
TOLVI_CORE_API std::unique_ptr<char[]> GetStringsAsAnsiChar(const TStrings& strings);

}  // namespace tolvi
