#pragma once

#include <tolvi/connect/sqlvalue.h>
#include <tolvi/foundation/fieldtypes.h>

namespace tolvi {

/// The value as one of the type that the query knows its column to have: a database without a type for booleans gives
/// numbers for them, one without dates and times gives texts. What is no value of the type stays as it is.
TSqlValue TypedValue(TSqlValue value, TFieldType type);

}  // namespace tolvi
