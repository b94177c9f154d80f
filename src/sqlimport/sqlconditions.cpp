// The conditions: what the parser reads after WHERE and after ON.
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {

namespace {

constexpr int MaxDepth = 1000;
constexpr std::size_t UsualCount = 4;  // of operands
constexpr std::string_view TooManyBrackets = "Brackets are nested more than 1000 levels deep";

// A text in double quotes becomes a literal.
TSQLText WithSingleQuotes(std::string_view value) {
  if (value.empty() || value.front() != '"' || value.back() != '"') return TSQLText::ViewOf(value);
  std::string literal(value);
  literal.front() = literal.back() = '\'';
  return literal;
}

}  // namespace

void TJSQLParser::ProcessWhere() {
  const std::size_t begin = FScanner.GetTokPos();
  Expect(wdWhere);
  std::unique_ptr<TSQLNode> node = ProcessBoolExpr();
  std::unique_ptr<TSQLBracket> root;
  if (TSQLBracket* bracket = node->AsBracket()) {
    static_cast<void>(node.release());  // owned by the root from here on
    root.reset(bracket);
  } else {
    root = std::make_unique<TSQLBracket>();
    root->SetPos(begin);
    root->Nodes().Add(std::move(node));
  }
  FResult.SetWhereClause(std::move(root));
}

std::unique_ptr<TSQLNode> TJSQLParser::ProcessBoolExpr() {
  return ProcessOperands(wdOr, "or", &TJSQLParser::ProcessBoolTerm);
}

std::unique_ptr<TSQLNode> TJSQLParser::ProcessBoolTerm() {
  return ProcessOperands(wdAnd, "and", &TJSQLParser::ProcessBoolFactor);
}

// One operand as it is, several in a bracket.
std::unique_ptr<TSQLNode> TJSQLParser::ProcessOperands(TSQLWord word, std::string_view name,
                                                       std::unique_ptr<TSQLNode> (TJSQLParser::*next)()) {
  const std::size_t begin = FScanner.GetTokPos();
  std::unique_ptr<TSQLNode> first = (this->*next)();
  if (FWord != word) return first;
  auto bracket = std::make_unique<TSQLBracket>(std::string(name));
  bracket->SetPos(begin);
  bracket->Nodes().Reserve(UsualCount);
  bracket->Nodes().Add(std::move(first));
  while (FWord == word) {
    NextToken();
    if (FWord == wdEnd) break;
    bracket->Nodes().Add((this->*next)());
  }
  return bracket;
}

std::unique_ptr<TSQLNode> TJSQLParser::ProcessBoolFactor() {
  const bool negative = FWord == wdNot;
  if (negative) NextToken();
  std::unique_ptr<TSQLNode> node;
  if (FWord == wdOpen) {
    if (++FDepth > MaxDepth) Error(TooManyBrackets);
    NextToken();
    node = ProcessBoolExpr();
    if (FWord != wdClose) Error(SLostBracket);
    NextToken();
    --FDepth;
  } else {
    node = ProcessCondition();
  }
  // Only the outermost "not" stays, also none.
  node->SetNegative(negative);
  node->SetWrittenNegative(node->GetWrittenNegative() != negative);
  return node;
}

std::unique_ptr<TSQLNode> TJSQLParser::ProcessCondition() {
  auto condition = std::make_unique<TSQLCondition>();
  condition->SetPos(FScanner.GetTokPos());
  const TValue left = ProcessConditionValue();
  condition->SetLeftExpr(TSQLText::ViewOf(left.Text));
  if (FWord == wdEnd) Error(SWrongSQLStatement);
  bool negative = FWord == wdNot;
  if (negative) NextToken();
  const TSQLWord operation = FWord;
  condition->SetOperation(std::string(FScanner.GetTokStr()));
  NextToken();
  if (FWord == wdEnd) Error(SWrongSQLStatement);
  if (operation == wdIs && FWord == wdNot) {
    negative = true;
    NextToken();
  }
  condition->SetNegative(negative);
  condition->SetWrittenNegative(negative);
  const TValue right = ProcessConditionValue();
  condition->SetContainsSubQuery(left.IsSubQuery || right.IsSubQuery);
  TSQLText value = WithSingleQuotes(right.Text);
  if (operation == wdIs) value = FoldCase(value.Get());
  if (operation == wdBetween) {
    Expect(wdAnd);
    const TValue last = ProcessConditionValue();
    condition->SetContainsSubQuery(condition->GetContainsSubQuery() || last.IsSubQuery);
    std::string bounds(value.Get());
    value = bounds.append(" and ").append(WithSingleQuotes(last.Text).Get());
  }
  condition->SetRightExpr(std::move(value));
  return condition;
}

TJSQLParser::TValue TJSQLParser::ProcessConditionValue() {
  const std::size_t begin = FScanner.GetTokPos();
  std::ptrdiff_t depth = 0;
  for (; FWord == wdOpen; NextToken()) ++depth;
  const bool isSubQuery = FWord == wdSelect;
  for (; FWord != wdEnd; SkipToken()) {
    if (FWord == wdOpen) ++depth;
    // Without an opening one in the value, a bracket belongs to what is around it.
    if (FWord == wdClose && depth-- <= 0) break;
    if (depth == 0 && (FScanner.GetTokType() == ttKeyword || EndsValue(FWord))) break;
  }
  return {PieceFrom(begin), isSubQuery};
}

}  // namespace tolvi
