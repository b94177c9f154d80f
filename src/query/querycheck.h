#pragma once

#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/model/modelcheck.h>

namespace tolvi {

class TJQueryPanel;

/// Everything that is wrong or suspicious in the query that the panel holds: what reading it found, what the model
/// lacks, operators and fields used where the model does not offer them, values that cannot be literals of their type
/// or are empty, whatever keeps the statement from being built, and what it leaves out. What concerns only rows that
/// are off is a warning. Sub-queries are checked too. Builds the statement.
TOLVI_CORE_API std::vector<TCheckFinding> CheckQuery(TJQueryPanel& panel);

}  // namespace tolvi
