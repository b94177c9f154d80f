#pragma once

#include <string>
#include <string_view>

#include <tolvi/foundation/strings.h>

namespace tolvi {

// Texts of a model in XML, which has no place for most control characters and for bytes that are no UTF-8. Such a byte
// is written "_xHH_" with two hexadecimal digits, and so is the "_" of a text that itself reads like that.

std::string EscapeForXml(std::string_view text);
/// The inverse. Whatever is no escape stays as it is.
std::string UnescapeFromXml(std::string_view text);

/// Lines as one escaped text, with LF between them; a line break inside a line is escaped, too. No lines and one empty
/// line are the same text.
std::string LinesToXml(const TStrings& lines);
TStrings LinesFromXml(std::string_view text);

}  // namespace tolvi
