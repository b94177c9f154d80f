#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/numbers.h>

namespace tolvi {

/// Types whose values have more digits than a double can keep.
inline constexpr TFieldTypes DecimalFieldTypes{ftCurrency, ftBCD, ftFMTBcd};

/// Reads a whole number in the range of the type, one of `IntegerFieldTypes`; an empty text is 0. Nothing for any other
/// text.
TOLVI_CORE_API std::optional<std::int64_t> TryReadWhole(std::string_view text, TFieldType type);

/// Reads a number of one of `FloatFieldTypes`, with a point or the locale's separator, and writes it anew: every digit
/// kept, no plus sign, no leading zeros. An empty text is "0". Nothing for a text that is no number, or none of the
/// type.
TOLVI_CORE_API std::optional<std::string> TryReadNumber(std::string_view text, TFieldType type,
                                                        const TFormatSettings& settings);

/// The nearest double to a number that `TryReadNumber` has written.
TOLVI_CORE_API double NumberValue(std::string_view number);

/// What the refused text ought to be: "a whole number from -128 to 127", "a number such as 12.5".
TOLVI_CORE_API std::string ExpectedNumber(std::string_view text, TFieldType type, const TFormatSettings& settings);

}  // namespace tolvi
