// A place in a SELECT statement that moves over its tokens.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include <tolvi/sqlimport/selecttext.h>

namespace tolvi {

/// Moves over the tokens of a range. At its end stands no word, whatever follows in the text.
class TSelectCursor final {
 public:
  TSelectCursor(const TSelectText& text, TTokenRange range)
      : FText(text), FAt(range.Begin), FEnd(std::min(range.End, text.Count())), FBegin(range.Begin) {}

  [[nodiscard]] const TSelectText& Text() const { return FText; }
  [[nodiscard]] std::size_t At() const { return FAt; }
  [[nodiscard]] bool AtEnd() const { return FAt >= FEnd; }
  [[nodiscard]] TTokenRange Rest() const { return {FAt, FEnd}; }
  [[nodiscard]] const TSelectToken& Token(std::size_t distance = 0) const {
    return FText[FAt + distance < FEnd ? FAt + distance : FText.Count()];
  }
  [[nodiscard]] TSelectWord Word(std::size_t distance = 0) const { return Token(distance).Word; }

  void Next() {
    if (!AtEnd()) ++FAt;
  }
  /// Passes the word if it stands here, and tells whether it did.
  bool Pass(TSelectWord word) {
    if (Word() != word) return false;
    Next();
    return true;
  }
  /// Passes what stands in brackets here as a whole, or a single token.
  void Jump() {
    const std::size_t partner = Token().Partner;
    FAt = std::min(partner > FAt ? partner + 1 : FAt + 1, FEnd);
  }
  /// The tokens between the brackets that begin here, which are passed.
  TTokenRange TakeBrackets() {
    const TTokenRange inside{FAt + 1, Token().Partner};
    Jump();
    return inside;
  }
  void Finish() { FAt = FEnd; }

  /// Whether the token can be no part of an expression: a comma, a word that begins something else, the end.
  [[nodiscard]] bool EndsExpression() const;
  /// Passes an expression, and returns it; it may be empty. Raises the error for a number that nothing joins to the
  /// name before it.
  TTokenRange TakeExpression();

  [[noreturn]] void Fail(const std::string& reason) const { FText.Fail(FAt, reason); }
  /// Raises the error for a token that stands in a wrong place.
  [[noreturn]] void FailUnexpected() const;

 private:
  [[nodiscard]] bool IsStrayNumber() const;
  [[nodiscard]] TSelectWord Before(std::size_t distance) const {
    return FAt >= FBegin + distance ? FText[FAt - distance].Word : swNone;
  }

  const TSelectText& FText;
  std::size_t FAt;
  const std::size_t FEnd, FBegin;
};

/// Whether the last token is a name that is no part of the expression before it, but an alias or out of place.
[[nodiscard]] bool EndsInStrayName(const TSelectText& text, TTokenRange expression);

/// A token as messages show it: in double quotes, and shortened if it is long.
[[nodiscard]] std::string ShownToken(const TSelectToken& token);

/// A word as messages show it, in capitals.
[[nodiscard]] std::string ShownWord(const TSelectToken& token);

}  // namespace tolvi
