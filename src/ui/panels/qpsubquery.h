#pragma once

#include <optional>

#include <tolvi/foundation/strings.h>
#include <tolvi/query/sqltypes.h>

namespace tolvi {

class TFilterCond;
class TJQueryPanelView;

struct TSubQuery {
  TStrings Lines;
  TSQLOptions Options;
};

/// Lets the user edit the sub-query of a condition in a dialog: the column that it yields and its conditions, or its
/// SQL. Returns the query, nothing when the user gave up. The panel in the dialog looks as `outer`, the condition's,
/// and has its events.
std::optional<TSubQuery> RunSubQueryDialog(TJQueryPanelView& outer, const TFilterCond& condition);

}  // namespace tolvi
