#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/query/templatematch.h>

namespace tolvi {

class TJQueryPanel;

/// A value of an SQL comparison, a scalar or a list, in the form in which conditions keep it. Nothing when a condition
/// with it would not write the same SQL again: for an expression, a text in the place of a number, or a date in another
/// form than that of the model's formats or of SQL.
std::optional<std::string> FitValue(const TJQueryPanel& panel, const TValueCapture& capture, TFieldType type);
std::optional<std::string> FitList(const TJQueryPanel& panel, const TValueCapture& capture, TFieldType type);

}  // namespace tolvi
