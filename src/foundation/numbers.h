#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// The settings of a locale that numbers and dates are written and read by. The default is the C locale's.
struct TFormatSettings {
  char DecimalSeparator = '.';
  char DateSeparator = '/';
  char TimeSeparator = ':';
  std::string ShortDateFormat = "yyyy-mm-dd";
  std::string LongTimeFormat = "hh:nn:ss";
  std::string ShortTimeFormat = "hh:nn";

  bool operator==(const TFormatSettings&) const = default;
};

/// Writes with up to 15 significant digits and the decimal separator of `settings`; never an exponent for values
/// below 1e15 ("0.5", "36526", "-12.25").
TOLVI_CORE_API std::string FloatToStr(double value, const TFormatSettings& settings = {});

/// Reads a number with the decimal separator of `settings`, blanks around it ignored; nothing when the text is not a
/// number or not finite. `StrToFloat` raises `EConvertError` instead: "'%s' is not a valid floating point value".
TOLVI_CORE_API std::optional<double> TryStrToFloat(std::string_view text, const TFormatSettings& settings = {});
TOLVI_CORE_API double StrToFloat(std::string_view text, const TFormatSettings& settings = {});

/// Reads a whole decimal number, blanks around it ignored. `StrToInt` raises `EConvertError`:
/// "'%s' is not a valid integer value".
TOLVI_CORE_API std::optional<std::int64_t> TryStrToInt(std::string_view text);
TOLVI_CORE_API std::int64_t StrToInt(std::string_view text);

/// Numbers with a point as the decimal separator, whatever the locale ("3.6").
TOLVI_CORE_API std::int64_t XStrToInt(std::string_view text, std::int64_t byDefault);
TOLVI_CORE_API double XStrToFloat(std::string_view text);
TOLVI_CORE_API std::string XFloatToStr(double value);

/// Reads a boolean of the text formats: 0, 1, true, false, yes, no, T, F, Y, N in any case. Nothing for other texts;
/// `XStrToBool` raises `EConvertError`: "'%s' is not a valid boolean value".
TOLVI_CORE_API std::optional<bool> TryXStrToBool(std::string_view text);
TOLVI_CORE_API bool XStrToBool(std::string_view text);

/// "0" or "1".
TOLVI_CORE_API std::string_view XBoolToStr(bool value);

}  // namespace tolvi
