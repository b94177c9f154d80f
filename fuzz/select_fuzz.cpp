#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "fuzz/targets.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/sqlimport/selectreader.h>

namespace tolvi {
namespace {

bool IsWithin(TTokenRange inner, TTokenRange outer) {
  return !inner.Empty() && inner.Begin >= outer.Begin && inner.End <= outer.End;
}

void CheckTokens(const TSelectText& text) {
  std::size_t end = 0;
  for (std::size_t i = 0; i < text.Count(); end = text[i].Pos + text[i].Text.size(), ++i) {
    Require(!text[i].Text.empty() && text[i].Pos >= end, "a token follows the one before");
    Require(text.Text().substr(text[i].Pos, text[i].Text.size()) == text[i].Text, "a token is part of the text");
    Require(text.LineOf(i) >= 1 && text.ColumnOf(i) >= 1, "lines and columns count from 1");
    const std::size_t partner = text[i].Partner;
    Require(partner == 0 || (partner < text.Count() && (partner == i || text[partner].Partner == i)),
            "brackets belong together in pairs");
    Require(!text[i].IsName() || text[i].Name().size() <= text[i].Text.size(), "a name is part of its token");
  }
}

void CheckPredicate(const TSelectCondition& condition) {
  Require(!condition.Left.Empty() && condition.Left.Begin == condition.Range.Begin, "a predicate begins on the left");
  if (condition.Operation.empty()) {
    Require(condition.Left.End == condition.Range.End, "a predicate without an operation is its left side");
    return;
  }
  Require(!condition.Right.Empty() && condition.Right.End == condition.Range.End, "a predicate ends on the right");
  Require(condition.Left.End + (condition.NotInside ? 2 : 1) == condition.Right.Begin,
          "between both sides is the operation");
}

void CheckCondition(const TSelectCondition& condition, TTokenRange within) {
  Require(IsWithin(condition.Range, within), "a condition is part of the one round it");
  if (condition.Kind == TSelectCondition::ckPredicate) return CheckPredicate(condition);
  Require(condition.Nodes.size() > 1, "a bracket holds several conditions");
  std::size_t end = condition.Range.Begin;
  for (const TSelectCondition& node : condition.Nodes) {
    Require(node.Range.Begin >= end, "conditions follow one another");
    end = node.Range.End;
    CheckCondition(node, condition.Range);
  }
}

/// The words of the error, or nothing for none.
template <typename TAction>
std::optional<ESQLImportError> ErrorOf(const TAction& action) {
  try {
    action();
    return std::nullopt;
  } catch (const ESQLImportError& error) {
    Require(error.Line() >= 1 && error.Column() >= 1 && !error.Reason().empty(), "errors name a place and a reason");
    return error;
  }
}

void CheckStatement(const TSelectText& text) {
  const auto strict = ErrorOf([&text] {
    const TSelectStatement read = ReadSelect(text, text.All());
    Require(read.From != nullptr && !read.Tables.empty(), "a statement has tables");
    Require(read.AllColumns == read.Columns.empty(), "a statement has columns");
    for (const TSelectColumn& column : read.Columns) Require(IsWithin(column.Expr, read.Range), "columns");
    for (const TTokenRange& group : read.GroupBy) Require(IsWithin(group, read.Range), "groups");
    for (const TSelectOrder& order : read.OrderBy) Require(IsWithin(order.Expr, read.Range), "sorting");
    if (read.Where) CheckCondition(*read.Where, read.Range);
    if (read.Having) CheckCondition(*read.Having, read.Range);
  });
  std::vector<TSelectSkipped> skipped;
  const auto lenient = ErrorOf([&text, &skipped] { ReadSelect(text, text.All(), &skipped); });
  Require(strict || (!lenient && skipped.empty()), "what can be read needs no part to be skipped");
  Require(!strict || lenient || !skipped.empty(), "what cannot be read is told");
  for (const TSelectSkipped& part : skipped)
    Require(IsWithin(part.Range, text.All()), "what is skipped is in the text");
}

}  // namespace

void FuzzSelect(std::string_view source) {
  for (const auto& [open, close] : {std::pair('"', '"'), std::pair('[', ']'), std::pair('`', '`')}) {
    ErrorOf([&source, open = open, close = close] {
      const TSelectText text(source, open, close);
      CheckTokens(text);
      CheckStatement(text);
      ErrorOf([&text] { CheckCondition(ReadSelectCondition(text, text.All()), text.All()); });
    });
  }
}

}  // namespace tolvi
