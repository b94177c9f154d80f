#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/numbers.h>

namespace tolvi {

/// A date and time as the number of days since 30 December 1899, the time of day as fraction.
using TDateTime = double;

/// Calendar parts of a date-time. Years 1 to 9999.
struct TDateTimeParts {
  int year = 1899, month = 12, day = 30;
  int hour = 0, minute = 0, second = 0, millisecond = 0;
};

/// The parts of `value`, rounded to the millisecond. Raises `EConvertError` outside the years 1 to 9999.
TOLVI_CORE_API TDateTimeParts DecodeDateTime(TDateTime value);

/// The date-time of the parts, or nothing when there is no such day or time.
TOLVI_CORE_API std::optional<TDateTime> TryEncodeDateTime(const TDateTimeParts& parts);

/// The current local date and time.
TOLVI_CORE_API TDateTime Now();

/// Writes `value` by a pattern: y m d h n s z in runs ("yyyy-mm-dd hh:nn:ss.zzz"), "mm" right after an hour means
/// minutes, "/" and ":" stand for the separators of `settings`, parts in single or double quotes are copied without
/// the quotes, "am/pm" and "a/p" select the 12-hour clock, "c", "ddddd" and "t" stand for the short formats of
/// `settings`. Month and day names are English. Any other character stands for itself.
TOLVI_CORE_API std::string FormatDateTime(std::string_view pattern, TDateTime value,
                                          const TFormatSettings& settings = {});

/// Writes the date by the short date format; the date and, unless it is midnight, the long time.
TOLVI_CORE_API std::string DateToStr(TDateTime value, const TFormatSettings& settings = {});
TOLVI_CORE_API std::string TimeToStr(TDateTime value, const TFormatSettings& settings = {});
TOLVI_CORE_API std::string DateTimeToStr(TDateTime value, const TFormatSettings& settings = {});

/// Reads a date, a time, or both as `DateTimeToStr` writes them (the time may lack its seconds); nothing when the
/// text does not fit.
TOLVI_CORE_API std::optional<TDateTime> TryStrToDateTime(std::string_view text, const TFormatSettings& settings = {});

/// Reads by an explicit pattern made of yyyy yy mm dd hh nn ss zzz and separators, such as "dd.mm.yyyy hh:nn:ss".
/// A month, day, hour, minute or second may be written with one digit. Two-digit years lie in the hundred years that
/// begin 50 years before the current year. Nothing when the text does not fit exactly.
TOLVI_CORE_API std::optional<TDateTime> TryStrToDateTimeByFormat(std::string_view text, std::string_view pattern);

}  // namespace tolvi
