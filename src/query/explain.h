#pragma once

#include <string>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TFilterCond;
class TJQueryPanel;

/// The query in the panel's sentences, two blanks more for each level: "Choose records where all of the following
/// apply", the rows of the tree, then the result columns, with the expression where it is more than a field, and the
/// sorting. The words are those of the panel's titles.
///
/// A row that is off is marked "(off)". A parameter is shown as <Name>, with its value (<Name: 42>) where it has one,
/// a value without text as <empty>; line breaks in values become blanks. The rows of a sub-query follow its condition.
/// A field whose display name is not the only one in the model is shown with its group.
TOLVI_CORE_API TStrings Explain(const TJQueryPanel& panel);

/// The line of one condition.
TOLVI_CORE_API std::string ExplainCondition(const TFilterCond& condition);

}  // namespace tolvi
