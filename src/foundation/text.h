#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// Line break of stored texts and of generated SQL.
inline constexpr std::string_view CrLf = "\r\n";

/// The byte order mark that may stand before a UTF-8 text.
inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// The text with every letter folded by Unicode simple case folding. Bytes that are not UTF-8 stay as they are.
TOLVI_CORE_API std::string FoldCase(std::string_view text);

/// Equality ignoring case (by `FoldCase`), without building the folded texts.
TOLVI_CORE_API bool SameText(std::string_view a, std::string_view b);

/// Lower case of ASCII letters only: for SQL keywords.
TOLVI_CORE_API std::string AsciiLower(std::string_view text);
TOLVI_CORE_API bool AsciiSameText(std::string_view a, std::string_view b);

/// Hash that agrees with `SameText`, and the pair of functors for unordered containers keyed by names.
TOLVI_CORE_API std::size_t FoldedHash(std::string_view text);
struct TFoldedHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return FoldedHash(text); }
};
struct TFoldedEqual {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return SameText(a, b); }
};

/// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates).
TOLVI_CORE_API bool IsValidUtf8(std::string_view text);

/// The text with every letter outside ASCII replaced by its plain letter where it has one ("Ż" by "Z"), and dropped
/// otherwise.
TOLVI_CORE_API std::string ReduceToAscii(std::string_view text);

/// White space at both ends removed (all bytes up to and including the blank).
TOLVI_CORE_API std::string_view Trim(std::string_view text);

/// The text before and after the first occurrence of `separator`; without one, the whole text and nothing.
TOLVI_CORE_API std::pair<std::string_view, std::string_view> GetNameAndValueSep(std::string_view text,
                                                                                std::string_view separator);
TOLVI_CORE_API std::string_view GetBeforeSep(std::string_view text, std::string_view separator);
TOLVI_CORE_API std::string_view GetAfterSep(std::string_view text, std::string_view separator);

/// Replaces every occurrence of `from`, scanning from the left over the original text. An empty `from` changes nothing.
TOLVI_CORE_API std::string ReplaceStr(std::string_view text, std::string_view from, std::string_view to);
TOLVI_CORE_API std::string XReplaceStr(std::string_view text, std::string_view from, std::string_view to,
                                       bool ignoreCase);

/// Position of `part` in `text` at or after `start`, ignoring case where asked; npos when there is none.
TOLVI_CORE_API std::size_t CXPos(std::string_view part, std::string_view text, std::size_t start = 0,
                                 bool ignoreCase = false);

/// Whether `text` is one of `list`, compared exactly.
TOLVI_CORE_API bool StrInList(std::string_view text, std::initializer_list<std::string_view> list);

/// Whether the texts are equal when every white space is left out.
TOLVI_CORE_API bool EqualToSpaces(std::string_view a, std::string_view b);

/// Occurrences of the character.
TOLVI_CORE_API std::size_t CharCount(std::string_view text, char character);

/// The text enclosed in quotes, inner quotes doubled; and the reverse, for a text that is enclosed so (any other text
/// is returned as it stands).
TOLVI_CORE_API std::string QuotedString(std::string_view text, char quote = '\'');
TOLVI_CORE_API std::string UnquotedString(std::string_view text, char quote = '\'');

/// Joins items as comma text: an item that is empty or holds a comma, a blank, a control character or a double quote
/// is written in double quotes with inner ones doubled. A single empty item is written as two double quotes.
TOLVI_CORE_API std::string ComposeCommaText(const std::vector<std::string>& items);

/// Splits comma text: outside quotes, commas and blanks separate; "" yields nothing.
TOLVI_CORE_API std::vector<std::string> SplitCommaText(std::string_view text);

/// Splits at LF, CR LF or CR; a last line without a break counts, an empty text has no lines. The views point into
/// `text`.
TOLVI_CORE_API std::vector<std::string_view> SplitLines(std::string_view text);

/// Writes CR, LF and the backslash as "\r", "\n" and "\\"; and the reverse.
TOLVI_CORE_API std::string EscapeLineBreaks(std::string_view text);
TOLVI_CORE_API std::string UnescapeLineBreaks(std::string_view text);

}  // namespace tolvi
