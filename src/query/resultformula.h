#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include <tolvi/model/sqlformats.h>
#include <tolvi/query/querytext.h>

namespace tolvi {

class TDSField;
class TJCustomDBStructure;

/// The functions whose call makes a formula an aggregate.
inline constexpr std::string_view AggregateFunctions[] = {"sum", "count", "max", "min", "avg"};

/// The call that begins the model's own function for listing values, "list("; empty where there is none.
inline std::string_view ListCall(const TSQLFormats& formats) {
  return std::string_view(formats.GetListFunction()).substr(0, formats.GetListFunction().find('(') + 1);
}

/// Splits a formula at its placeholders "@1" to "@9" for the first `count` fields: calls `literal(text)` and
/// `place(index from 0)` in the order of the text. Of a longer number the first digit counts.
template <typename TLiteral, typename TPlace>
void ForEachPlaceholder(std::string_view formula, std::size_t count, TLiteral literal, TPlace place) {
  std::size_t done = 0;
  for (std::size_t at = formula.find('@'); at != std::string_view::npos; at = formula.find('@', at + 1)) {
    const std::size_t digit = at + 1 < formula.size() ? static_cast<std::size_t>(formula[at + 1] - '0') : 0;
    if (digit < 1 || digit > std::min<std::size_t>(count, 9)) continue;
    if (at > done) literal(formula.substr(done, at - done));
    place(digit - 1);
    done = at + 2;
  }
  if (done < formula.size()) literal(formula.substr(done));
}

/// The field that a query text of that version means: by its ID since version 2.0, by its name before; newer texts name
/// a field that an old text named and the model lacked. Null when the model lacks it.
TDSField* FindStoredField(const TJCustomDBStructure& model, std::string_view text,
                          double version = CurrentQueryVersion);

/// The same for a text that is never an ID: the full name, else the column name; before 1.4 the column name first. What
/// one version does not find, none does: otherwise a query that is written anew would turn into another one.
TDSField* FindNamedField(const TJCustomDBStructure& model, std::string_view name, double version = CurrentQueryVersion);

}  // namespace tolvi
