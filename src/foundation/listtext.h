#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// Adds an item to a list joined by commas. An item that is empty, holds a comma or a double quote, or has a blank at
/// an end is written in double quotes with inner ones doubled, so that plain names stand as they are.
TOLVI_CORE_API void AppendListItem(std::string& list, std::string_view item);
/// The inverse; blanks round an item without quotes do not count, nor do empty items without quotes.
TOLVI_CORE_API std::vector<std::string> SplitList(std::string_view list);

}  // namespace tolvi
