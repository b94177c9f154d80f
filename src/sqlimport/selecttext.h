// A SELECT statement in tokens that all stay at hand, with its brackets in pairs: what reading it in full needs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// What a token of a statement is. Names are words that SQL does not reserve, and what stands in quotes for names.
enum TSelectTokenKind : std::uint8_t {
  /// Behind the last token.
  stkEnd,
  stkName,
  stkQuotedName,
  /// A word of TSelectWord.
  stkWord,
  stkNumber,
  /// In single quotes.
  stkString,
  /// A place for a value: ":Name", "?", "$1", "@Name".
  stkParam,
  stkSymbol,
};

/// The words and symbols with a meaning to the statement as a whole. Functions, types and the like are names. So is a
/// word that databases differ about ("limit", "left", "end") where its place does not make it more, and every word
/// behind a point.
enum TSelectWord : std::uint8_t {
  swNone,
  swSelect,
  swDistinct,
  swAll,
  swTop,
  swFrom,
  swWhere,
  swGroup,
  swBy,
  swHaving,
  swOrder,
  swLimit,
  swOffset,
  swFetch,
  swFor,
  swWindow,
  swUnion,
  swIntersect,
  /// "minus", too.
  swExcept,
  /// Begins a clause that a query does not have and only some databases do: "into", "qualify", "option".
  swClause,
  swJoin,
  swInner,
  swLeft,
  swRight,
  swFull,
  swOuter,
  swCross,
  swNatural,
  swOn,
  swUsing,
  swAs,
  swAsc,
  swDesc,
  swNulls,
  swAnd,
  swOr,
  swNot,
  swIs,
  swNull,
  swLike,
  swIn,
  swBetween,
  swExists,
  swCase,
  swEnd,
  // Symbols.
  swOpen,
  swClose,
  swComma,
  swPoint,
  swStar,
  // "=", "<>", "!=", "<", ">", "<=", ">=", and those of some databases, such as "==" and "<=>".
  swCompare,
};

struct TOLVI_CORE_API TSelectToken {
  /// As written, quotes included.
  std::string_view Text;
  std::size_t Pos = 0;  // in bytes
  TSelectTokenKind Kind = stkEnd;
  TSelectWord Word = swNone;
  /// Of a bracket, also "[" and "{", of "case" and of "end": the index of the other one of the pair.
  std::uint32_t Partner = 0;

  [[nodiscard]] bool IsName() const { return Kind == stkName || Kind == stkQuotedName; }
  /// Whether a value can end or begin with it: "Price", "1", ")"; to begin with, also "(", "not", a sign.
  [[nodiscard]] bool EndsOperand() const;
  [[nodiscard]] bool BeginsOperand() const;
  /// Of a name or a literal: without its quotes, doubled ones made single.
  [[nodiscard]] std::string Name() const;
};

/// The tokens from one to before another, by their indexes.
struct TTokenRange {
  std::size_t Begin = 0, End = 0;

  [[nodiscard]] bool Empty() const { return Begin >= End; }
  [[nodiscard]] std::size_t Count() const { return Empty() ? 0 : End - Begin; }
};

/// A statement and its tokens. Comments are no tokens; nor is a ";" behind everything else. Operators of several
/// characters, such as "||" and "->>", are one token each.
class TOLVI_CORE_API TSelectText final {
 public:
  /// Copies the text. Names may stand in double quotes, and between `open` and `close` ("[" and "]", "`" and "`"). The
  /// statement's first line has the number `firstLine`. Raises `ESQLImportError` for a literal, a quoted name or a
  /// comment that does not end, for a bracket or "case" without its other one, for brackets nested deeper than
  /// `MaxDepth`, for a text in dollar signs, for a NUL, and for bytes that are no UTF-8.
  explicit TSelectText(std::string_view text, char open = '"', char close = '"', int firstLine = 1);
  TSelectText(const TSelectText&) = delete;
  TSelectText& operator=(const TSelectText&) = delete;

  static constexpr int MaxDepth = 1000;

  [[nodiscard]] const std::string& Text() const { return FText; }
  [[nodiscard]] std::size_t Count() const { return FTokens.size() - 1; }
  /// The token at `index`; behind the last one a token `stkEnd` at the end of the text, for every index.
  [[nodiscard]] const TSelectToken& operator[](std::size_t index) const {
    return FTokens[index < FTokens.size() ? index : FTokens.size() - 1];
  }
  [[nodiscard]] TTokenRange All() const { return {0, Count()}; }
  /// The text as written from the first token of the range to the end of its last one; empty for an empty range.
  [[nodiscard]] std::string_view TextOf(TTokenRange range) const;
  /// The range without the brackets round all of it; those of a select stay.
  [[nodiscard]] TTokenRange WithoutBrackets(TTokenRange range) const;

  /// The line and column of a token; of the end, those behind the last token.
  [[nodiscard]] int LineOf(std::size_t index) const;
  [[nodiscard]] int ColumnOf(std::size_t index) const;
  /// Raises `ESQLImportError` at a token.
  [[noreturn]] void Fail(std::size_t index, const std::string& reason) const;

 private:
  void Scan(char open, char close);
  [[nodiscard]] bool IsBehindOperand(std::size_t pos) const;
  [[nodiscard]] std::size_t EndOfNumber(std::size_t end) const;
  [[nodiscard]] std::size_t EndOfQuoted(std::size_t pos, char close) const;
  [[nodiscard]] std::size_t EndOfParam(std::size_t pos) const;
  [[nodiscard]] std::size_t EndOfOperator(std::size_t pos, std::size_t end) const;
  void PairTokens();
  [[nodiscard]] std::size_t PlaceOf(std::size_t index) const;
  [[nodiscard]] std::size_t LineIndexAt(std::size_t pos) const;
  [[noreturn]] void FailAt(std::size_t pos, const std::string& reason) const;

  std::string FText;
  std::vector<TSelectToken> FTokens;
  int FFirstLine;
  mutable std::vector<std::size_t> FLineStarts;  // once asked for
};

}  // namespace tolvi
