#include <tolvi/foundation/errors.h>

namespace tolvi {

EListError EListError::OutOfBounds(std::int64_t index) { return EListError("List index out of bounds (%d)", {index}); }

ESQLParserError::ESQLParserError(std::string_view message, std::int32_t line)
    : EException("%s\r\nLine:%d", {message, line}), FLine(line) {}

}  // namespace tolvi
