#pragma once

#include <optional>

#include <tolvi/foundation/strings.h>
#include <tolvi/query/sqltypes.h>
class QWidget;

namespace tolvi {

class TFilterCond;

struct TSubQuery {
  TStrings Lines;
  TSQLOptions Options;
};

/// Lets the user edit the sub-query of a condition in a dialog: the column that it yields and its conditions, or its
/// SQL. Returns the query, nothing when the user gave up.
std::optional<TSubQuery> RunSubQueryDialog(QWidget& parent, const TFilterCond& condition);

}  // namespace tolvi
