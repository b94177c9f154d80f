// Compares pieces of SQL by what they say: join conditions and lists of expressions, however they are written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/model/link.h>

namespace tolvi {

class TSQLFormats;

/// A join condition without the words of the next join ("left outer") at its end.
std::string_view WithoutJoinWords(std::string_view condition);

/// The place of the word "having" in what stands behind GROUP BY, outside brackets and literals; the end for none.
std::size_t FindHaving(std::string_view text);

/// The comparisons of a join condition, in a form that is equal for equal conditions: without quotes and white space,
/// in lower case, each with its sides in one order, sorted.
std::vector<std::string> ComparisonsOf(std::string_view condition, const TSQLFormats& formats);

/// The expressions of a list, in such a form. A name without a table gets that of `table`.
std::vector<std::string> ExpressionsOf(std::string_view list, std::string_view table, const TSQLFormats& formats);

/// How a table is joined, by the words of the statement that end before its name. "A left join B" is `ltOuterLeft`.
TDSLinkType JoinTypeBefore(std::string_view words);

/// The comparison symbol that says the same with the sides exchanged; empty for what is none.
std::string_view MirroredSymbol(std::string_view symbol);

/// The name without quote symbols.
std::string UnquotedName(std::string_view name, const TSQLFormats& formats);

}  // namespace tolvi
