#include <algorithm>

#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/sqlresult.h>

namespace tolvi {

namespace {

template <typename TGetText>
std::ptrdiff_t IndexOfText(const TSQLResultFieldList& fields, std::string_view text, TGetText getText) {
  for (std::size_t i = 0; i < fields.Count(); ++i) {
    if (SameText(getText(fields[i]), text)) return static_cast<std::ptrdiff_t>(i);
  }
  return -1;
}

}  // namespace

void TSQLResultField::SetSQLExpr(TSQLText expr) {
  FSQLExpr = std::move(expr);
  // After an opening bracket, a point belongs to an argument.
  const std::string_view text = FSQLExpr.Get();
  const auto found = std::find_if(text.begin(), text.end(), [](char c) { return c == '.' || c == '('; });
  FCaptionPos = found != text.end() && *found == '.' ? static_cast<std::size_t>(found - text.begin()) + 1 : 0;
}

std::ptrdiff_t TSQLResultFieldList::IndexByAlias(std::string_view alias) const {
  return IndexOfText(*this, alias, [](const TSQLResultField& field) { return field.GetAlias(); });
}

std::ptrdiff_t TSQLResultFieldList::IndexByExpr(std::string_view expr) const {
  return IndexOfText(*this, expr, [](const TSQLResultField& field) { return field.GetSQLExpr(); });
}

void TSQLTable::SetTableName(TSQLText name) {
  const bool isAlias = FAliasName.Get().empty();
  FTableName = std::move(name);
  if (isAlias) FAliasName = FTableName;
}

TSQLBracket* TSQLNode::AsBracket() { return FIsBracket ? static_cast<TSQLBracket*>(this) : nullptr; }
const TSQLBracket* TSQLNode::AsBracket() const { return FIsBracket ? static_cast<const TSQLBracket*>(this) : nullptr; }
TSQLCondition* TSQLNode::AsCondition() { return FIsBracket ? nullptr : static_cast<TSQLCondition*>(this); }
const TSQLCondition* TSQLNode::AsCondition() const {
  return FIsBracket ? nullptr : static_cast<const TSQLCondition*>(this);
}

void TSQLBracket::DeleteEmptyBrackets() {
  for (std::size_t i = 0; i < FNodes.Count(); ++i) {
    TSQLBracket* inner = FNodes[i].AsBracket();
    while (inner && inner->FNodes.Count() == 1) {
      std::unique_ptr<TSQLNode> single = inner->FNodes.Delete(0);
      single->SetWrittenNegative(single->GetWrittenNegative() != inner->GetWrittenNegative());
      FNodes.Replace(i, std::move(single));
      inner = FNodes[i].AsBracket();
    }
    if (inner) inner->DeleteEmptyBrackets();
  }
}

std::string TSQLCondition::GetSQLExpr() const {
  constexpr std::string_view Not = "not(";
  std::string expr;
  expr.reserve(Not.size() + GetLeftExpr().size() + FOperation.size() + GetRightExpr().size() + 3);
  if (GetNegative()) expr += Not;
  expr.append(GetLeftExpr()).append(" ").append(FOperation).append(" ").append(GetRightExpr());
  if (GetNegative()) expr += ")";
  return expr;
}

void TJParserResult::Clear() {
  FTables.Clear();
  FResultFields.Clear();
  FWhereClause.reset();
  FDropped.clear();
}

}  // namespace tolvi
