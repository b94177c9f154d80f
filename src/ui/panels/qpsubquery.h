#pragma once

#include <optional>

#include <tolvi/foundation/strings.h>
class QWidget;

namespace tolvi {

class TFilterCond;

/// Lets the user edit the sub-query of a condition in a dialog: the column that it yields, and its conditions. Returns
/// the query text, nothing when the user gave up.
std::optional<TStrings> RunSubQueryDialog(QWidget& parent, const TFilterCond& condition);

}  // namespace tolvi
