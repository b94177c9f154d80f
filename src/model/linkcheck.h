// What is wrong with the column pairs of a link, as plain values: for the check of a model and for editors.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/modelcheck.h>

namespace tolvi {

class TDSLink;

/// The symbols by which a pair can be compared; "=" first.
TOLVI_CORE_API std::span<const std::string_view> LinkSymbols();

enum TLinkPart : std::uint8_t { lpSide1, lpSymbol, lpSide2 };

struct TLinkSpot {
  std::size_t Pair = 0;
  TLinkPart Part = lpSide1;
  bool operator==(const TLinkSpot&) const = default;
};

struct TLinkFinding {
  TCheckSeverity Severity = csError;
  std::string Text;
  /// Where it is wrong; empty: the link as a whole.
  std::vector<TLinkSpot> Spots;
};
using TLinkFindings = std::vector<TLinkFinding>;

/// What can be told from the pairs alone.
TOLVI_CORE_API TLinkFindings CheckLinkPairs(const TStrings& fields1, const TStrings& symbols, const TStrings& fields2);

/// A link has no other effect than the first one between its tables.
inline constexpr std::string_view LinkComesTooLate =
    "the two tables have a link before this one: joins always use that";

/// What an editor knows of one side of a link.
struct TLinkSideInfo {
  const TDSTable* Table = nullptr;
  /// The columns that the table has; empty when nobody knows.
  TStrings Columns;
  /// Whether they come from the catalogue; else they are those on which the model has fields.
  bool FromCatalogue = false;
};

/// What can be told besides when the tables are known: columns that they lack, pairs that stand twice or join nothing,
/// and, for the link `self` (null: a new one), a link before it. Pairs beyond the shorter list are not looked at.
TOLVI_CORE_API TLinkFindings CheckLinkSides(const TStrings& fields1, const TStrings& symbols, const TStrings& fields2,
                                            const TLinkSideInfo& side1, const TLinkSideInfo& side2,
                                            const TDSLink* self);

}  // namespace tolvi
