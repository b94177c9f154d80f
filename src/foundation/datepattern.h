#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tolvi {

/// What an item of a date and time pattern stands for. The kinds from `pkYear` to `pkGeneral` are runs of a letter.
enum TPatternKind : std::uint8_t {
  pkLiteral,
  pkYear,
  pkMonth,
  pkDay,
  pkHour,
  pkMinute,
  pkSecond,
  pkMSec,
  pkShortTime,
  pkGeneral,
  pkAmPm,
  pkDateSep,
  pkTimeSep,
};

/// One run of a letter, one separator or one literal of a pattern, as a view of the pattern.
struct TPatternItem {
  TPatternKind Kind;
  std::string_view Text;

  std::size_t Count() const { return Text.size(); }
};

using TPattern = std::vector<TPatternItem>;

/// The items of the pattern, whose text must outlive them. Quotes are left out; a month right after an hour is a
/// minute.
TPattern ParsePattern(std::string_view pattern);

/// Whether the pattern selects the 12-hour clock.
bool HasHalfDays(const TPattern& pattern);

/// The half of "am/pm" or "a/p" that stands for the morning or the afternoon, in the letters of the pattern.
std::string_view HalfDayText(std::string_view clock, bool afternoon);

}  // namespace tolvi
