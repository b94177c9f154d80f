#include <algorithm>
#include <iterator>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/selectcursor.h>
#include <tolvi/sqlimport/selectreader.h>
#include <tolvi/sqlimport/selectsources.h>
#include <tolvi/sqlimport/selectwords.h>

namespace tolvi {

namespace {

struct TRefusal {
  TSelectWord Word;
  std::string_view Reason;
};
constexpr std::string_view OneSelect = "a query is one SELECT; import each of them on its own";
constexpr TRefusal Refusals[] = {
    {swUnion, OneSelect},
    {swIntersect, OneSelect},
    {swExcept, OneSelect},
    {swOffset, "a query leaves out rows only together with LIMIT; write LIMIT n OFFSET m"},
    {swFetch, "a query limits its rows by LIMIT or TOP; write one of them"},
    {swFor, "a query only reads; leave this clause out"},
    {swWindow, "a query has no named windows; write the window behind each OVER"},
    {swClause, "a query cannot say this; leave it out"},
};
constexpr std::string_view WithReason = "a query has no named sub-queries; write each of them where it is used";

bool IsWholeNumber(const TSelectToken& token) {
  return token.Kind == stkNumber &&
         std::all_of(token.Text.begin(), token.Text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

class TSelectReader {
 public:
  TSelectReader(const TSelectText& text, TTokenRange range, std::vector<TSelectSkipped>* skipped)
      : FText(text), FAt(text, range), FSkipped(skipped) {}

  TSelectStatement Read() {
    FStatement.Range = FAt.Rest();
    if (FAt.Word() == swOpen && (FAt.Word(1) == swSelect || FAt.Word(1) == swOpen)) {
      FStatement = ReadSelect(FText, FAt.TakeBrackets(), FSkipped);
    } else {
      ReadClauses();
    }
    if (!FAt.AtEnd()) Skip(FAt.At(), ReasonHere());
    return std::move(FStatement);
  }

 private:
  void ReadClauses() {
    ReadBeginning();
    ReadTop();
    ReadColumns();
    if (!FAt.Pass(swFrom)) {
      FAt.Fail(FAt.AtEnd() ? "FROM is missing: a query shows columns of tables" : ReasonHere());
    }
    ReadSelectSources(FAt, FStatement);
    if (FAt.Pass(swWhere)) FStatement.Where = ReadSelectCondition(FText, FAt.TakeExpression());
    if (FAt.Word() == swGroup) ReadGroupBy();
    if (FAt.Pass(swHaving)) FStatement.Having = ReadSelectCondition(FText, FAt.TakeExpression());
    if (FAt.Word() == swOrder) ReadOrderBy();
    if (FAt.Word() == swLimit) ReadLimit();
  }

  // ---- What a query cannot say ----

  [[nodiscard]] std::string ReasonHere() const {
    const TSelectToken& token = FAt.Token();
    const auto* const refusal = std::find_if(std::begin(Refusals), std::end(Refusals),
                                             [&token](const TRefusal& entry) { return entry.Word == token.Word; });
    if (refusal != std::end(Refusals)) return Refusal(token, refusal->Reason);
    if (token.Text == ";") return "Only one statement can be read: import what follows \";\" on its own";
    return ShownToken(token) + " does not belong here";
  }

  static std::string Refusal(const TSelectToken& token, std::string_view reason) {
    return ShownWord(token) + ": " + std::string(reason);
  }

  // Leaves out all from a token on, or raises the error.
  void Skip(std::size_t begin, const std::string& reason) {
    if (FSkipped == nullptr) FText.Fail(begin, reason);
    FAt.Finish();
    FSkipped->push_back({{begin, FAt.At()}, reason});
  }

  // ---- The select list ----

  void ReadBeginning() {
    if (FAt.AtEnd()) FAt.Fail("There is no statement here");
    if (IsNameText(FAt.Token(), "with")) FAt.Fail(Refusal(FAt.Token(), WithReason));
    if (!FAt.Pass(swSelect)) FAt.Fail(ShownToken(FAt.Token()) + " begins no query: write a SELECT");
    if (FAt.Pass(swAll)) return;
    FStatement.Distinct = FAt.Pass(swDistinct);
    if (FStatement.Distinct && FAt.Word() == swOn) {
      FAt.Fail("DISTINCT ON: a query leaves out equal rows alone; write DISTINCT or GROUP BY");
    }
  }

  void ReadTop() {
    if (!FAt.Pass(swTop)) return;
    const std::size_t begin = FAt.At();
    const bool inBrackets = FAt.Word() == swOpen;
    const TTokenRange number = inBrackets ? FAt.TakeBrackets() : TTokenRange{begin, begin + 1};
    if (number.Count() != 1 || !IsWholeNumber(FText[number.Begin])) {
      FText.Fail(number.Begin, "TOP: a query limits its rows by a whole number; write one");
    }
    if (!inBrackets) FAt.Next();
    if (IsNameText(FAt.Token(), "percent") && FAt.Word(1) != swComma && FAt.Word(1) != swFrom && FAt.Word(1) != swAs &&
        FAt.Word(1) != swPoint) {
      FAt.Next();
    }
    FStatement.Top = {begin, FAt.At()};
    if (IsNameText(FAt.Token(), "with") && AsciiSameText(FAt.Token(1).Text, "ties")) {
      FAt.Fail("WITH TIES: a query limits its rows by a number alone; leave it out");
    }
  }

  void ReadColumns() {
    do ReadColumn();
    while (FAt.Pass(swComma));
  }

  void ReadColumn() {
    TSelectColumn column;
    column.Expr = FAt.TakeExpression();
    if (column.Expr.Empty()) FAt.Fail(FAt.Word() == swClause ? ReasonHere() : "A column is missing here");
    if (FText[column.Expr.Begin].Word == swStar) {
      ReadAllColumns(column.Expr);
      return;
    }
    if (FAt.Pass(swAs)) {
      SetAlias(column, FAt.At());
      FAt.Next();
    } else if (const std::size_t last = column.Expr.End - 1; EndsInStrayName(FText, column.Expr)) {
      column.Expr.End = last;
      SetAlias(column, last);
    }
    if (column.Expr.Count() > 2 && FText[column.Expr.End - 1].Word == swStar &&
        FText[column.Expr.End - 2].Word == swPoint) {
      CheckTableColumns(column);
    }
    FStatement.Columns.push_back(std::move(column));
  }

  void CheckTableColumns(const TSelectColumn& column) const {
    for (std::size_t at = column.Expr.Begin; at + 1 < column.Expr.End; ++at) {
      const bool isTable = (at - column.Expr.Begin) % 2 == 0 ? FText[at].IsName() : FText[at].Word == swPoint;
      if (!isTable) FText.Fail(at, ShownToken(FText[at]) + " does not belong here");
    }
    if (!column.Alias.empty()) {
      FText.Fail(column.AliasToken, ShownToken(FText[column.AliasToken]) + ": all columns of a table take no alias");
    }
  }

  void ReadAllColumns(TTokenRange star) {
    if (star.Count() > 1) {
      FText.Fail(star.Begin + 1, ShownToken(FText[star.Begin + 1]) + " does not belong here");
    }
    if (!FStatement.Columns.empty() || FAt.Word() == swComma) {
      FText.Fail(star.Begin, "\"*\" can only stand alone: write the columns, or put a table before it");
    }
    FStatement.AllColumns = true;
  }

  void SetAlias(TSelectColumn& column, std::size_t token) const {
    const TSelectToken& alias = FText[token];
    if (token >= FStatement.Range.End || !(alias.IsName() || alias.Kind == stkString)) {
      FText.Fail(std::min(token, FStatement.Range.End), "A name is missing after AS");
    }
    column.Alias = alias.Name();
    if (column.Alias.empty()) FText.Fail(token, "The name between the quotes is empty");
    column.AliasQuoted = alias.Kind != stkName;
    column.AliasToken = token;
  }

  // ---- The clauses behind FROM ----

  // The first word of two; stands behind both then.
  void PassWithBy() {
    const std::string word = ShownWord(FAt.Token());
    FAt.Next();
    if (!FAt.Pass(swBy)) FAt.Fail("BY is missing after " + word);
  }

  void ReadGroupBy() {
    PassWithBy();
    do {
      const TSelectToken& first = FAt.Token();
      if ((FAt.Word(1) == swOpen && (IsNameText(first, "rollup") || IsNameText(first, "cube"))) ||
          (IsNameText(first, "grouping") && IsNameText(FAt.Token(1), "sets"))) {
        FAt.Fail(Refusal(first, "a query has no subtotals; group by columns alone"));
      }
      FStatement.GroupBy.push_back(TakeTerm());
    } while (FAt.Pass(swComma));
  }

  TTokenRange TakeTerm() {
    const TTokenRange term = FAt.TakeExpression();
    if (term.Empty()) FAt.Fail("An expression is missing here");
    if (EndsInStrayName(FText, term)) {
      FText.Fail(term.End - 1, ShownToken(FText[term.End - 1]) + " does not belong here");
    }
    return term;
  }

  void ReadOrderBy() {
    PassWithBy();
    do {
      TSelectOrder order;
      order.Expr = TakeTerm();
      order.Descending = FAt.Word() == swDesc;
      if (order.Descending || FAt.Word() == swAsc) FAt.Next();
      FStatement.OrderBy.push_back(order);
      if (FAt.Word() == swNulls) ReadNulls();
    } while (FAt.Pass(swComma));
  }

  void ReadNulls() {
    const std::string reason =
        "NULLS " + ShownWord(FAt.Token(1)) + ": a query leaves the place of NULL to the database; leave it out";
    if (FSkipped == nullptr) FAt.Fail(reason);
    FSkipped->push_back({{FAt.At(), FAt.At() + 2}, reason});
    FAt.Next();
    FAt.Next();
  }

  void ReadLimit() {
    const std::size_t word = FAt.At();
    FAt.Next();
    const std::size_t begin = FAt.At();
    bool isRead = PassWholeNumber();
    if (isRead && (FAt.Pass(swOffset) || FAt.Pass(swComma))) isRead = PassWholeNumber();
    if (isRead) {
      FStatement.Limit = {begin, FAt.At()};
    } else if (FSkipped == nullptr) {
      FAt.Fail("LIMIT: a query limits its rows by whole numbers; write them");
    } else {
      Skip(word, "LIMIT: a query limits its rows by whole numbers; write them");
    }
  }

  bool PassWholeNumber() {
    if (!IsWholeNumber(FAt.Token())) return false;
    FAt.Next();
    return true;
  }

  const TSelectText& FText;
  TSelectCursor FAt;
  std::vector<TSelectSkipped>* const FSkipped;
  TSelectStatement FStatement;
};

}  // namespace

TSelectStatement ReadSelect(const TSelectText& text, TTokenRange range, std::vector<TSelectSkipped>* skipped) {
  range.End = std::min(range.End, text.Count());
  return TSelectReader(text, text.WithoutBrackets(range), skipped).Read();
}

}  // namespace tolvi
