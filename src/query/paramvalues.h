#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/fieldtypes.h>

namespace tolvi {

class TJQueryPanel;

/// A parameter that a program gives a value before it runs the statement. `Sentence` is the condition in words,
/// `FullValue` the value in its format.
struct TParamInfo {
  std::string Name, DisplayName, Sentence, Value, FullValue;
  TFieldType Type = ftUnknown;
};

/// The parameters of a query and of the sub-queries that take part in its statement, by the names that the statement
/// gives them. Raises `EJQueryPanelError` or `EConvertError` for a sub-query that cannot be read.
std::vector<TParamInfo> ListParams(TJQueryPanel& panel);

/// Gives all parameters of that name, ignoring case, the value; those of a sub-query by writing its text anew. False
/// when there is none.
bool SetParamValue(TJQueryPanel& panel, std::string_view name, std::string_view value);

}  // namespace tolvi
