#pragma once

#include <cstdint>
#include <string>

namespace tolvi {

/// What a value of a row is. A database without a type for dates or booleans gives texts or numbers for them.
enum TSqlValueKind : std::uint8_t { svNull, svNumber, svBoolean, svDate, svTime, svDateTime, svText, svBytes };

/// One value of a row. `Text` is, whatever the locale: a number with a point, "true" or "false", "yyyy-mm-dd",
/// "hh:mm:ss" with milliseconds where there are any, both with a blank between; bytes as they are. A date that is no
/// day of a calendar ("infinity") has an empty text.
struct TSqlValue {
  TSqlValueKind Kind = svNull;
  std::string Text;

  bool operator==(const TSqlValue&) const = default;
};

}  // namespace tolvi
