// Finds out whether a comparison of an SQL statement is what an operator's template writes, and with which values.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/sqlimport/scanner.h>

namespace tolvi {

class TDSOperator;
class TJCustomDBStructure;
class TSQLCondition;

/// Where a "not" stands in a comparison: "not(a like b)", "a not like b" ("a is not null").
enum TNegation : std::uint8_t { ngNone, ngBefore, ngInside };

/// A value that stands in a comparison in the place of "@1" or "@2".
struct TValueCapture {
  /// Decoded if it was a literal, else as it stands.
  std::string Text;
  bool IsLiteral = false;
  /// What the template has beside it within the quotes of that literal.
  std::string Before, After;
  /// Its first and, behind its last one, its end among the comparison's tokens; equal when there is no such value.
  std::size_t Begin = 0, End = 0;

  [[nodiscard]] bool IsSet() const { return End > Begin; }
};
using TValueCaptures = std::array<TValueCapture, 2>;

/// A comparison in the form that templates are compared with: its text in tokens, "!=" and a negated "=" as "<>".
/// Reused from comparison to comparison.
class TComparisonTokens final {
 public:
  struct TToken {
    std::string_view Text;
    std::size_t Pos;
    TTokenType Type;
  };

  void Assign(const TSQLCondition& condition);
  /// Without an operation and a right value, `left` is the whole.
  void Assign(std::string_view left, std::string_view operation, std::string_view right, TNegation negation);

  [[nodiscard]] const std::vector<TToken>& Tokens() const { return FTokens; }
  [[nodiscard]] const std::string& Operation() const { return FOperation; }
  /// The tokens of the left value.
  [[nodiscard]] std::size_t GetLeftBegin() const { return FLeftBegin; }
  [[nodiscard]] std::size_t GetLeftCount() const { return FLeftCount; }
  /// Takes other tokens for the field of templates.
  void SetLeft(std::size_t begin, std::size_t count) {
    FLeftBegin = begin;
    FLeftCount = count;
  }
  /// The text from one token to the end of the token before another.
  [[nodiscard]] std::string_view TextOf(std::size_t begin, std::size_t end) const;

 private:
  std::string FText, FOperation;
  std::vector<TToken> FTokens;
  std::size_t FLeftBegin = 0, FLeftCount = 0;
  TJScanner FScanner;
};

/// An operator's template, scanned once. White space between tokens means nothing, words match in any case.
class TSQLTemplate final {
 public:
  /// `wildcard` is what the statement has for "%" between the quotes of the template.
  TSQLTemplate(std::string_view pattern, char wildcard);

  /// Whether the template has that operation as a token outside literals.
  [[nodiscard]] bool HasToken(std::string_view operation) const;

  [[nodiscard]] std::size_t Count() const { return FItems.size(); }
  /// Whether the field stands within an expression, and not alone on the left, be it behind "not(".
  [[nodiscard]] bool HasFieldInside() const;

  /// Whether the template is nothing but the field, that operation and a value in quotes.
  [[nodiscard]] bool IsFieldAndValue(std::string_view operation) const;

  /// Whether the comparison is the template with its left value for "@f" and values for "@1" and "@2", which go to
  /// `captures`. Values within the template's quotes are whole literals or, where the statement has no quotes, hold
  /// none. Without `withWildcards`, values that hold the wildcard do not count.
  [[nodiscard]] bool Match(const TComparisonTokens& comparison, bool withWildcards, TValueCaptures& captures) const;

 private:
  class TWalk;
  enum TItemKind { tiText, tiField, tiValue, tiQuotedValue };
  struct TItem {
    TItemKind Kind;
    std::string Text;           // of tiText
    std::size_t Value = 0;      // 0 for "@1", 1 for "@2"
    std::string Before, After;  // within the quotes
  };

  void AddLiteral(std::string_view literal);
  std::size_t AddPlaceholder(char what);

  std::vector<TItem> FItems;
  char FWildcard;
  bool FUsable = true;
};

/// The templates of a model's operators, in its order.
struct TOperatorTemplate {
  TDSOperator* Operator;
  TSQLTemplate Template;
};
[[nodiscard]] std::vector<TOperatorTemplate> OperatorTemplatesOf(const TJCustomDBStructure& model);

/// The text of a literal in single quotes; whether it is one as a whole is the caller's matter.
[[nodiscard]] std::string DecodeLiteral(std::string_view literal);

/// Whether the text is one literal in single quotes.
[[nodiscard]] bool IsWholeLiteral(std::string_view text);

}  // namespace tolvi
