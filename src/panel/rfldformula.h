// Formulas of columns as the result fields editor makes them: aggregate functions round them, fields joined to them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>

namespace tolvi {

class TSQLFormats;

/// The function in which a column stands as a whole, in the order of the editor's buttons.
enum TRFAggregate : std::uint8_t { agAsIs, agSum, agCount, agCountDistinct, agMin, agMax, agAverage, agList };
inline constexpr TRFAggregate AllAggregates[] = {agAsIs, agSum, agCount,   agCountDistinct,
                                                 agMin,  agMax, agAverage, agList};

/// The key of its text in the titles.
TOLVI_CORE_API std::string_view AggregateTitle(TRFAggregate aggregate);
/// Its SQL with "@1" in the place of what it takes; empty for a list where the database has no function for it.
TOLVI_CORE_API std::string AggregatePattern(TRFAggregate aggregate, const TSQLFormats& formats);

/// A formula taken apart. What is counted may be "*".
struct TRFAggregated {
  TRFAggregate Aggregate = agAsIs;
  std::string Inner;
  bool operator==(const TRFAggregated&) const = default;
};

/// Tells the function that the formula is a call of; `agAsIs` with the whole formula when it is more or less than one
/// call with one value.
TOLVI_CORE_API TRFAggregated SplitAggregate(std::string_view formula, const TSQLFormats& formats);
TOLVI_CORE_API std::string WithAggregate(TRFAggregate aggregate, std::string_view inner, const TSQLFormats& formats);

enum TRFOperation : std::uint8_t { opAdd, opSubtract, opMultiply, opDivide };

/// How tightly an expression holds together: by the loosest operator outside brackets.
enum TRFBinding : std::uint8_t { bdLoose, bdSum, bdProduct, bdOperand };
TOLVI_CORE_API TRFBinding BindingOf(std::string_view sql);

/// `left + right` and so on, with brackets round the sides that would be torn apart. The bindings are those of the SQL
/// for which the sides stand.
TOLVI_CORE_API std::string Joined(TRFOperation operation, std::string_view left, TRFBinding leftBinding,
                                  std::string_view right, TRFBinding rightBinding);

}  // namespace tolvi
