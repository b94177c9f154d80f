#pragma once

#include <string>

#include <tolvi/foundation/api.h>
#include <tolvi/sqlimport/sqlresult.h>

namespace tolvi {

/// The result as a JSON object, for other programs and for people: "distinct", "allFields", "justSorting", "fields",
/// "tables", "where". Each field, table and node of the conditions begins a line of its own; after the last line comes
/// a line break, LF.
[[nodiscard]] TOLVI_CORE_API std::string SQLResultToJson(const TJParserResult& result);

}  // namespace tolvi
