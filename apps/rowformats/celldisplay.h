// Values of rows on lines of text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tolvi {

/// How many columns of a terminal the UTF-8 text takes.
std::size_t DisplayWidth(std::string_view text);

/// Text that can neither break a line nor steer a terminal: control characters become blanks.
std::string Harmless(std::string_view text);

std::string HexDigits(std::string_view bytes);

}  // namespace tolvi
