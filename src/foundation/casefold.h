#pragma once

namespace tolvi {

/// The code point that `code` folds to by Unicode simple case folding; itself when it has no case.
char32_t FoldCodePoint(char32_t code);

/// The ASCII letter that remains of a letter outside ASCII without its accents ('Z' for "Ż"); 0 when there is none.
char PlainLetter(char32_t code);

}  // namespace tolvi
