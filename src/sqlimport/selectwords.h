// Which words of a SELECT statement are more than names.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <tolvi/sqlimport/selecttext.h>

namespace tolvi {

/// The word that a text may be, in any case of letters; swNone for a name.
[[nodiscard]] TSelectWord SelectWordOf(std::string_view text);

/// Whether the word at `index` has its meaning in this place. The words before it are settled, those behind it are not.
/// `inCase` tells whether a "case" is open.
[[nodiscard]] bool IsSelectWordHere(const std::vector<TSelectToken>& tokens, std::size_t index, bool inCase);

/// Whether a name behind this one belongs to the same expression: "collate", "over", "mod".
[[nodiscard]] bool TakesNameBehind(const TSelectToken& token);

/// Whether an unquoted name is this word, which is in lower case.
[[nodiscard]] bool IsNameText(const TSelectToken& token, std::string_view word);

}  // namespace tolvi
