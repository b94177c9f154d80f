#pragma once

#include <cstdint>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/sqlimport/scanner.h>

namespace tolvi {

/// What a token means to the SQL parser. Words that are asked for together stand together.
enum TSQLWord : std::uint8_t {
  wdOther,
  wdSelect,
  wdDistinct,
  wdStar,
  wdAs,
  wdFrom,
  wdOuter,
  wdOn,
  wdBy,
  wdAsc,
  wdDesc,
  wdPoint,
  wdOpen,
  wdClose,
  wdQuote,
  wdSemicolon,
  // Begin a joined table.
  wdJoin,
  wdInner,
  wdLeft,
  wdRight,
  wdFull,
  // End a table of the FROM clause.
  wdEnd,
  wdComma,
  wdWhere,
  wdGroup,
  wdOrder,
  // End a value of a comparison.
  wdCompare,
  wdLike,
  wdIn,
  wdIs,
  wdBetween,
  wdOr,
  wdAnd,
  wdNot,
};

constexpr bool BeginsJoin(TSQLWord word) { return word >= wdJoin && word <= wdFull; }
constexpr bool EndsTable(TSQLWord word) { return word >= wdEnd && word <= wdOrder; }
constexpr bool EndsValue(TSQLWord word) { return word >= wdCompare && word <= wdNot; }

/// The meaning of a token as written, in any case of letters. `ttUnknown` is wdEnd.
[[nodiscard]] TOLVI_CORE_API TSQLWord SQLWordOf(TTokenType type, std::string_view text);

}  // namespace tolvi
