#include <tolvi/foundation/errors.h>

namespace tolvi {

EListError EListError::OutOfBounds(std::int64_t index) { return EListError("List index out of bounds (%d)", {index}); }

ESQLParserError::ESQLParserError(std::string_view message, std::int32_t line)
    : EException("%s\r\nLine:%d", {message, line}), FLine(line) {}

ESQLImportError::ESQLImportError(std::int32_t line, std::int32_t column, std::string_view reason)
    : EException("Line %d, column %d: %s", {line, column, reason}), FLine(line), FColumn(column), FReason(reason) {}

}  // namespace tolvi
