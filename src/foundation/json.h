#pragma once

#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// Appends a text as a JSON string, its quotes included. A byte that is no UTF-8 becomes U+FFFD.
TOLVI_CORE_API void AppendJsonString(std::string& out, std::string_view text);

}  // namespace tolvi
