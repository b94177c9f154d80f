#include <algorithm>
#include <iterator>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/selectcursor.h>
#include <tolvi/sqlimport/selectreader.h>
#include <tolvi/sqlimport/selectwords.h>

namespace tolvi {

namespace {

// Names that stand between two values without comparing them.
constexpr std::string_view NoOperations[] = {"at",  "collate", "div", "escape", "filter",
                                             "mod", "over",    "to",  "within", "zone"};

bool IsOperationName(const TSelectToken& token) {
  return token.Kind == stkName && std::none_of(std::begin(NoOperations), std::end(NoOperations),
                                               [&token](std::string_view name) { return IsNameText(token, name); });
}

constexpr bool IsOperation(TSelectWord word) {
  return word == swCompare || word == swLike || word == swIn || word == swIs || word == swBetween;
}

class TConditionReader {
 public:
  explicit TConditionReader(const TSelectText& text) : FText(text) {}

  // Conditions with "or" and "and" between them. Recursive by brackets.
  TSelectCondition Read(TTokenRange range) const {
    std::vector<std::vector<TTokenRange>> terms = Split(range);
    if (terms.size() == 1) return ReadAll(terms.front());
    TSelectCondition any;
    any.Kind = TSelectCondition::ckAny;
    any.Range = range;
    any.Nodes.reserve(terms.size());
    for (const auto& factors : terms) any.Nodes.push_back(ReadAll(factors));
    return any;
  }

 private:
  // The parts between "or", and in each of them those between "and".
  [[nodiscard]] std::vector<std::vector<TTokenRange>> Split(TTokenRange range) const {
    std::vector<std::vector<TTokenRange>> terms(1);
    TSelectCursor at(FText, range);
    std::size_t begin = range.Begin;
    std::size_t betweens = 0;
    for (; !at.EndsExpression(); at.Jump()) {
      const TSelectWord word = at.Word();
      if (word == swBetween) ++betweens;
      if (IsNameText(at.Token(), "xor") && at.At() > begin && FText[at.At() - 1].EndsOperand()) {
        at.Fail("XOR: a query joins conditions by AND and OR alone; write it with them");
      }
      if (word != swAnd && word != swOr) continue;
      if (word == swAnd && betweens > 0) {
        --betweens;
        continue;
      }
      terms.back().push_back({begin, at.At()});
      begin = at.At() + 1;
      betweens = 0;
      if (word == swOr) terms.emplace_back();
    }
    terms.back().push_back({begin, at.At()});
    if (!at.AtEnd() && begin < at.At()) at.FailUnexpected();
    return terms;
  }

  [[nodiscard]] TSelectCondition ReadAll(const std::vector<TTokenRange>& factors) const {
    if (factors.size() == 1) return ReadFactor(factors.front());
    TSelectCondition all;
    all.Kind = TSelectCondition::ckAll;
    all.Range = {factors.front().Begin, factors.back().End};
    all.Nodes.reserve(factors.size());
    for (const TTokenRange& factor : factors) all.Nodes.push_back(ReadFactor(factor));
    return all;
  }

  [[nodiscard]] TSelectCondition ReadFactor(TTokenRange range) const {
    bool negated = false;
    for (; !range.Empty() && FText[range.Begin].Word == swNot; ++range.Begin) negated = !negated;
    if (range.Empty()) FText.Fail(range.End, "A condition is missing here");
    TSelectCondition condition =
        IsGroup(range) ? Read({range.Begin + 1, range.End - 1}) : ReadPredicate(range, negated);
    condition.Negated = condition.Negated != negated;
    return condition;
  }

  [[nodiscard]] bool IsGroup(TTokenRange range) const {
    const TSelectToken& first = FText[range.Begin];
    return first.Word == swOpen && first.Partner == range.End - 1 && FText[range.Begin + 1].Word != swSelect;
  }

  [[nodiscard]] TSelectCondition ReadPredicate(TTokenRange range, bool negated) const {
    TSelectCondition predicate;
    predicate.Range = predicate.Left = range;
    const std::size_t operation = FindOperation(range);
    if (negated || operation != range.End) RefuseDoubleAnd(range);
    if (operation == range.End) return predicate;
    const TSelectToken& token = FText[operation];
    predicate.Operation = AsciiLower(token.Text);
    predicate.Left.End = operation;
    predicate.Right = {operation + 1, range.End};
    if (token.Word == swIs) {
      predicate.NotInside = !predicate.Right.Empty() && FText[predicate.Right.Begin].Word == swNot;
      if (predicate.NotInside) ++predicate.Right.Begin;
    } else if (token.Word != swCompare) {
      predicate.NotInside = !predicate.Left.Empty() && FText[operation - 1].Word == swNot;
      if (predicate.NotInside) --predicate.Left.End;
    }
    Check(predicate, operation);
    return predicate;
  }

  // Some databases read it as "and", others as an operator of values: with something else around it, it is not clear
  // what belongs to what.
  void RefuseDoubleAnd(TTokenRange range) const {
    for (TSelectCursor at(FText, range); !at.AtEnd(); at.Jump()) {
      if (at.Token().Text == "&&") at.Fail("\"&&\" can be read in several ways: write AND, or put brackets round it");
    }
  }

  // The first operation or, without any, the first name that stands where one might; the end of the range for none.
  [[nodiscard]] std::size_t FindOperation(TTokenRange range) const {
    std::size_t named = range.End;
    for (TSelectCursor at(FText, range); !at.AtEnd(); at.Jump()) {
      if (IsOperation(at.Word())) return at.At();
      if (named == range.End && at.At() > range.Begin && IsNamedOperation(at)) named = at.At();
    }
    return named;
  }

  [[nodiscard]] bool IsNamedOperation(const TSelectCursor& at) const {
    if (!IsOperationName(at.Token()) || !at.Token(1).BeginsOperand()) return false;
    const TSelectToken* before = &FText[at.At() - 1];
    if (before->Word == swNot && at.At() > 1) before = &FText[at.At() - 2];
    // Not the name of an order behind "collate".
    return before->EndsOperand() && !(before->Kind == stkName && !IsOperationName(*before));
  }

  void Check(const TSelectCondition& predicate, std::size_t operation) const {
    const TSelectToken& token = FText[operation];
    const TSelectToken& last = FText[predicate.Left.Empty() ? operation : predicate.Left.End - 1];
    if (predicate.Left.Empty() || (last.Kind == stkWord && !last.EndsOperand())) {
      FText.Fail(operation, Format("A value is missing before %s", {ShownToken(token)}));
    }
    const TTokenRange right = predicate.Right;
    if (right.Empty() || IsOperation(FText[right.Begin].Word)) {
      FText.Fail(right.Begin, Format("A value is missing after %s", {ShownToken(token)}));
    }
    if (token.Word == swBetween) CheckBounds(right, operation);
    if (token.Word != swIs && EndsInStrayName(FText, right)) {
      FText.Fail(right.End - 1, ShownToken(FText[right.End - 1]) + " does not belong here");
    }
  }

  void CheckBounds(TTokenRange bounds, std::size_t operation) const {
    for (TSelectCursor at(FText, bounds); !at.AtEnd(); at.Jump()) {
      if (at.Word() != swAnd) continue;
      if (at.At() == bounds.Begin) at.Fail("A value is missing before " + ShownToken(at.Token()));
      if (at.At() + 1 == bounds.End) FText.Fail(bounds.End, "A value is missing after " + ShownToken(at.Token()));
      return;
    }
    FText.Fail(operation, "BETWEEN has no AND between its two values");
  }

  const TSelectText& FText;
};

}  // namespace

TSelectCondition ReadSelectCondition(const TSelectText& text, TTokenRange range) {
  range.End = std::min(range.End, text.Count());
  return TConditionReader(text).Read(range);
}

std::vector<const TSelectCondition*> TSelectCondition::Terms() const {
  if (Kind != ckAll || Negated) return {this};
  std::vector<const TSelectCondition*> terms;
  for (const TSelectCondition& node : Nodes) terms.push_back(&node);
  return terms;
}

}  // namespace tolvi
