// Splits SQL text into tokens.
//
//   TJScanner scanner;
//   scanner.Keywords().Add("select");
//   scanner.SetSource("SELECT Name FROM t");
//   for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) Use(scanner.GetTokStr());
//
// Nothing here throws on what a text holds: every text, also one with stray bytes, is a sequence of tokens.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

class TStrings;

/// The lexical rules of a source. SQL is the only style.
enum TSourceStyle : std::uint8_t {
  /// Words, numbers, 'literals', comments, and punctuation; see TTokenType.
  ssSQL = 3,
};

/// The kinds of tokens.
enum TTokenType : std::uint8_t {
  /// No token: the end of the text.
  ttUnknown = 0,
  /// A word that is no keyword. A word is a letter or an underscore, then letters, digits and underscores; every
  /// byte from 0x80 up counts as a letter, so that words may be of any script.
  ttIdentifier = 1,
  /// A word in TJScanner::Keywords.
  ttKeyword = 2,
  /// One of "<>", "!=", ">=", "<=", or any other single character, the double quote and unknown ones included.
  ttDelimiter = 3,
  /// A text in single quotes, in which a doubled quote stands for one. Between double quotes, a single quote whose
  /// partner is missing there is a delimiter, so that "Customer's" ends at its double quote.
  ttString = 4,
  /// Digits with a decimal point between them, or with an exponent, or both: 1.5, 1e5, 1.5e-3.
  ttReal = 5,
  /// From "--" to the end of the line, or from "/*" to the next "*/"; none between double quotes. Reported only if
  /// comments are not skipped.
  ttComment = 6,
  /// A run of digits.
  ttInteger = 7,
};

/// A set of words that are looked up ignoring case.
class TOLVI_CORE_API TKeywordList final {
 public:
  void Add(std::string_view word);
  void Clear();
  [[nodiscard]] std::size_t Count() const { return FWords.size(); }
  /// Takes an ASCII word in any case, or any word in folded form.
  [[nodiscard]] bool Contains(std::string_view word) const;

 private:
  std::vector<std::string> FWords;  // folded
  // Which lengths the words have, by the low bits of their first letter, which are the same in both cases. Nearly
  // every word of a text that is no keyword is told by this alone.
  std::array<std::uint32_t, 32> FLengths{};
};

/// What a scanner tells about a token that need not be the current one.
struct TJScannerToken {
  TTokenType Type = ttUnknown;
  /// As written; points into the scanner's source.
  std::string_view Text;
  /// The byte offset of the first character in the source.
  std::size_t Pos = 0;
};

/// A position that a scanner remembers. Meaningful only to the scanner that gave it, until its next SetSource.
struct TJScannerBookmark {
  std::size_t Pos = 0;
  std::size_t End = 0;
  std::size_t EndOfPrevious = 0;
};

/// Reads a text token by token. The text is copied once; tokens are views of it, which the next SetSource ends.
/// Not safe for use by several threads at once, not even through const operations.
class TOLVI_CORE_API TJScanner final {
 public:
  /// Selects the lexical rules; `ssSQL` by default. Takes effect at FirstToken.
  void SetSourceStyle(TSourceStyle style) { FStyle = style; }
  [[nodiscard]] TSourceStyle GetSourceStyle() const { return FStyle; }

  /// Whether comments are passed over like white space (the default) or reported as tokens. Takes effect at FirstToken.
  void SetSkipComments(bool skip) { FSkipComments = skip; }
  [[nodiscard]] bool GetSkipComments() const { return FSkipComments; }

  /// The words reported as `ttKeyword`; empty by default. Changes take effect at FirstToken.
  [[nodiscard]] TKeywordList& Keywords() { return FKeywords; }
  [[nodiscard]] const TKeywordList& Keywords() const { return FKeywords; }

  /// Copies a text whose lines end with LF or CR LF; a UTF-8 byte order mark before it is no token. There is no
  /// current token until FirstToken.
  void SetSource(std::string_view text);
  /// Copies lines, which are then joined by CR LF.
  void SetSource(const TStrings& lines);
  /// The whole text.
  [[nodiscard]] std::string_view GetSource() const { return FText; }

  /// Moves to the first token.
  void FirstToken();
  /// Moves to the next token, after the last one to the end of the text; there it does nothing.
  void NextToken();
  /// Moves to the first token at or behind a byte offset after the current token's, read as if no quote were open
  /// there: for a piece of text that has rules of its own. GetToken then looks back over at most 7 tokens.
  void SkipTo(std::size_t pos);
  /// Whether there is no current token.
  [[nodiscard]] bool EOS() const { return Current().Type == ttUnknown; }

  /// The type of the current token, `ttUnknown` at the end of the text.
  [[nodiscard]] TTokenType GetTokType() const { return Current().Type; }
  /// The current token, words folded to lower case, all others as written; empty at the end of the text. Valid until
  /// the scanner moves.
  [[nodiscard]] std::string_view GetTokStr() const;
  /// The current token as written; empty at the end of the text.
  [[nodiscard]] std::string_view GetRealStr() const { return Text(Current()); }
  /// Whether the text ends inside the current token, a literal or a comment; at the end of the text, whether it ends
  /// inside a comment that was skipped.
  [[nodiscard]] bool Unterminated() const { return Current().Unterminated; }

  /// The byte offsets of the current token and of what follows it; at the end of the text, both are its size.
  [[nodiscard]] std::size_t GetTokPos() const { return Current().Pos; }
  [[nodiscard]] std::size_t GetTokEnd() const { return Current().End; }
  /// The line on which the current token begins, counted from 1; at the end of the text, that of the last token.
  [[nodiscard]] int GetTokLine() const;
  /// The column in bytes at which the current token begins, counted from 1; at the end of the text, that of the last
  /// token.
  [[nodiscard]] int GetTokColumn() const;

  /// The token so many tokens after the current one, or before it if the offset is negative; `ttUnknown` without text
  /// if there is none. Short ways are quick; from 8 tokens back on, the text is scanned again from its beginning.
  [[nodiscard]] TJScannerToken GetToken(int offset) const;

  /// Remembers the current token, or the end of the text.
  [[nodiscard]] TJScannerBookmark GetBookmark() const;
  /// The text as written from the token at `from` to the end of the last token before `to`; with `includeTo`, to the
  /// end of the token at `to`. What lies between tokens is kept. Empty if no token lies there, so always if `to` is
  /// not after `from` and is not included.
  [[nodiscard]] std::string ExtractPiece(const TJScannerBookmark& from, const TJScannerBookmark& to,
                                         bool includeTo) const;

 private:
  struct TSpan {
    std::size_t Pos = 0;
    std::size_t End = 0;
    TTokenType Type = ttUnknown;
    std::uint8_t Characters = 0;  // of a word: the classes of all its characters
    bool Unterminated = false;
    bool InQuotes = false;  // whether what follows stands between double quotes
  };
  // A line number that is known, from which others are counted.
  struct TLineMark {
    std::size_t Pos = 0;
    int Line = 1;
  };
  static constexpr std::size_t KeptTokens = 8;

  // Finds the token after `previous`, and writes it where it is kept: this is done for every token, and returning it
  // would cost a copy each time. Both may be the same object.
  void ScanAfter(const TSpan& previous, TSpan& span) const;
  [[nodiscard]] TSpan BeforeFirst() const;
  [[nodiscard]] bool IsKeyword(std::string_view word, std::uint8_t characters) const;

  [[nodiscard]] const TSpan& Kept(std::size_t index) const { return FKept[index % KeptTokens]; }
  [[nodiscard]] const TSpan& Current() const { return Kept(FIndex); }
  [[nodiscard]] const TSpan& CurrentOrLast() const { return EOS() && FIndex > 0 ? Kept(FIndex - 1) : Current(); }
  [[nodiscard]] std::string_view Text(const TSpan& span) const {
    return std::string_view(FText).substr(span.Pos, span.End - span.Pos);
  }
  void MoveAfter(const TSpan& previous, std::size_t index);

  std::string FText;
  TKeywordList FKeywords;
  TSourceStyle FStyle = ssSQL;
  bool FSkipComments = true;
  std::size_t FIndex = 0;                 // of the current token
  std::array<TSpan, KeptTokens> FKept{};  // the current token and those before it, each at its index modulo KeptTokens
  mutable std::string FFolded;            // the current token folded, once asked for
  mutable bool FFoldedKnown = false;
  mutable TLineMark FLineMark;
};

}  // namespace tolvi
