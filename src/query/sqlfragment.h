// The SQL that a query may hold itself: conditions as SQL, and its own TOP and LIMIT. Texts of queries may come from
// end users; what is checked here keeps such a text from changing the statement round it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tolvi {

/// Why the text cannot stand as a condition among others; empty when it can. It must be one closed expression: all
/// brackets and quotes closed, no comment, no ";", no comma or clause outside brackets, no place for a value.
///
/// `openQuote` is the opening quote symbol of the model. Where it does not tell whether "`" and "[" quote names, the
/// text must be closed whichever way the database reads them.
[[nodiscard]] std::string FragmentFault(std::string_view sql, char openQuote = '"');

/// The same for the formula of a column, in which "@1" and the like stand for fields. A select in it is SQL of its own,
/// which only queries may hold that may hold conditions as SQL.
[[nodiscard]] std::string FormulaFault(std::string_view formula, char openQuote, bool allowSelects);

/// Whether the condition must stand in brackets not to take in, or be torn apart by, what stands around it.
[[nodiscard]] bool NeedsBrackets(std::string_view sql, char openQuote = '"');

/// The text with blanks for the tables that a select within it has of its own, in "table.column" there: what is left
/// are tables of the statement round it.
[[nodiscard]] std::string WithoutInnerTables(std::string_view sql, char openQuote, char closeQuote);

/// A TOP clause in one form: "n" or "(n)", and "PERCENT" behind it; nothing for any other text.
[[nodiscard]] std::optional<std::string> ReadTopClause(std::string_view text);

/// The same of a LIMIT clause: "n", "n OFFSET m" or "n, m".
[[nodiscard]] std::optional<std::string> ReadLimitClause(std::string_view text);

}  // namespace tolvi
