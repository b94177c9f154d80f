#pragma once

#include <cstdint>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/sets.h>

namespace tolvi {

/// The dialects in which statements are written: joins in comma style (`ssSQL1`, `ssOracle`, the latter with " (+)"
/// for outer joins) or with JOIN (the others); dates as each of them wants.
enum TSQLSyntax : std::uint8_t { ssSQL1, ssSQL2, ssOracle, ssAccess, ssNexusDB };

/// Whether tables are joined in comma style.
constexpr bool IsCommaStyle(TSQLSyntax syntax) { return syntax == ssSQL1 || syntax == ssOracle; }

/// How a statement is written. Default: none.
enum TSQLOption : std::uint8_t {
  /// Result columns whose alias is not ASCII get the alias "C" and their number. Not stored.
  soASCIIRFields,
  soSelectDistinct,
  /// Aliases are quoted.
  soQuoteAliases,
  /// Joins are nested in brackets.
  soBracketJoins,
  /// Each condition stands in brackets.
  soBracketConditions,
  /// ORDER BY names expressions, not column numbers.
  soSortByNames,
  /// In a statement with one table, conditions name columns without their table. Not stored.
  soFilter,
};
using TSQLOptions = TSet<TSQLOption>;

/// The number by which query texts store options: 2 distinct, 8 quoted aliases, 16 bracketed joins, 32 bracketed
/// conditions, 64 sort by names. Reading ignores all other bits.
TOLVI_CORE_API int SQLOptionsToInt(TSQLOptions options);
TOLVI_CORE_API TSQLOptions IntToSQLOptions(std::int64_t number);

}  // namespace tolvi
