#include <algorithm>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/sqlbuilder.h>
#include <tolvi/query/sqlmapper.h>

// The columns, the tree of conditions, their fields and operators. Values are in sqlmapper_values.cpp.

namespace tolvi {

namespace {

// Words of expressions that are no names.
constexpr std::string_view ExprWords[] = {"and",  "as",  "between", "case", "distinct", "else", "end",   "in",  "is",
                                          "like", "not", "null",    "or",   "then",     "when", "false", "true"};

// Of the beginning of a bracket, whose end is not known.
constexpr std::size_t LongestText = 200;

constexpr TFilterLinkType LinkTypeOf(bool isOr, bool isNegative) {
  if (isOr) return isNegative ? fltNone : fltAny;
  return isNegative ? fltNotAll : fltAll;
}

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

// By which predefined conditions are found.
std::string CustomKey(std::string_view sql) {
  std::string key = FoldCase(sql);
  std::erase_if(key, IsBlank);
  return key;
}

// The same, with literals as they are.
std::string ExactKey(std::string_view sql) {
  std::string key;
  TJScanner scanner;
  scanner.SetSource(sql);
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) key += scanner.GetTokStr();
  return key;
}

// The condition as the statement has it.
std::string WrittenText(const TSQLCondition& condition) {
  if (condition.GetNegative() || !condition.GetWrittenNegative()) return condition.GetSQLExpr();
  const bool isIs = condition.GetOperation() == "is";
  return Format(isIs ? "%s %s not %s" : "%s not %s %s",
                {condition.GetLeftExpr(), condition.GetOperation(), condition.GetRightExpr()});
}

}  // namespace

TSQLMapper::TSQLMapper(TJQueryPanel& panel, TImportLog& log, int level)
    : FPanel(panel), FModel(*panel.GetDBStruct()), FLog(log), FLevel(level) {}

// ---- Columns --------------------------------------------------------------------------------------------------------

void TSQLMapper::MapResultFields(const TSQLResultFieldList& fields) {
  TRFieldList& target = FPanel.RFields();
  target.SetJustSorting(fields.GetJustSorting());
  for (const TSQLResultField& field : fields) {
    try {
      TResultField& column = target.AddBySQLExpr(field.GetSQLExpr());
      column.SetSorting(static_cast<TSortingType>(field.GetSorting()));
      column.SetSortOrder(field.GetSortOrder());
      if (column.GetFormula() != "@1") WarnOfUnknownNames(field, column.GetFormula());
    } catch (const EJQueryPanelError& error) {
      throw EJQueryPanelError(error.ErrorCode(), "Line %d: %s", {FLog.LineOf(field.GetPos()), error.Message()});
    }
  }
}

// A name that is left in the formula is none of the model.
void TSQLMapper::WarnOfUnknownNames(const TSQLResultField& field, std::string_view formula) {
  TJScanner scanner;
  scanner.SetSource(formula);
  bool isType = false;
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    const std::string_view word = scanner.GetTokStr();
    const bool wasType = std::exchange(isType, word == "as");
    if (scanner.GetTokType() != ttIdentifier || wasType || scanner.GetToken(1).Text == "(") continue;
    if (std::find(std::begin(ExprWords), std::end(ExprWords), word) != std::end(ExprWords)) continue;
    std::string name(scanner.GetRealStr());
    while (scanner.GetToken(1).Text == "." && scanner.GetToken(2).Type == ttIdentifier) {
      scanner.NextToken();
      scanner.NextToken();
      name.append(".").append(scanner.GetRealStr());
    }
    FLog.Warn(field.GetPos(), field.GetSQLExpr(),
              Format("kept word for word: \"%s\" is no field of the model", {name}));
    return;
  }
}

// ---- Conditions -----------------------------------------------------------------------------------------------------

void TSQLMapper::MapBracket(TFilterBracket& target, const TSQLBracket& bracket, const TSQLTableList& tables) {
  target.SetLinkType(LinkTypeOf(bracket.GetBoolOperator() == "or", bracket.GetNegative()));
  WarnOfNegation(bracket);
  for (const TSQLNode& node : bracket.Nodes()) {
    if (const TSQLBracket* inner = node.AsBracket()) {
      MapBracket(target.AddNewBracket(), *inner, tables);
    } else {
      MapCondition(target, *node.AsCondition(), tables);
    }
  }
}

void TSQLMapper::WarnOfNegation(const TSQLBracket& bracket) {
  if (bracket.GetNegative() == bracket.GetWrittenNegative()) return;
  const std::string_view rest = FLog.Statement().substr(std::min(bracket.GetPos(), FLog.Statement().size()));
  std::size_t end = std::min({rest.find('\n'), rest.size(), LongestText});
  while (end > 0 && end < rest.size() && (static_cast<unsigned char>(rest[end]) & 0xC0U) == 0x80U) --end;
  FLog.Warn(bracket.GetPos(), Trim(rest.substr(0, end)), "one negation of the bracket is left out");
}

void TSQLMapper::WarnOfNegation(const TSQLCondition& condition) {
  if (condition.GetNegative() == condition.GetWrittenNegative()) return;
  FLog.Warn(condition.GetPos(), WrittenText(condition),
            condition.GetNegative() ? "one of two negations is left out" : "the negation is left out");
}

void TSQLMapper::WarnOfLiterals(const TSQLCondition& condition, const TDSCondition& custom) {
  if (ExactKey(condition.GetSQLExpr()) == ExactKey(custom.GetSQLExpr())) return;
  FLog.Warn(condition.GetPos(), condition.GetSQLExpr(),
            Format("taken as the condition \"%s\", which compares with another text: %s",
                   {custom.GetCaption(), custom.GetSQLExpr()}));
}

void TSQLMapper::MapCondition(TFilterBracket& target, const TSQLCondition& condition, const TSQLTableList& tables) {
  WarnOfNegation(condition);
  if (TDSCondition* custom = FindCustomCondition(condition)) {
    target.AddCustomCond(*custom);
    WarnOfLiterals(condition, *custom);
    return;
  }
  TSimpleCond& row = target.AddCond();
  TDSField& field = FieldFor(condition, tables);
  const TOperatorMatch match = FindOperator(condition);
  row.SetField(field);
  row.SetOperator(OperatorFor(condition, field, match));
  WarnOfOperator(row, condition, match);
  for (int index = 1; index <= row.GetValueCount(); ++index) SetValue(row, index, condition, match);
}

TDSCondition* TSQLMapper::FindCustomCondition(const TSQLCondition& condition) {
  if (!FCustomsKnown) {
    FCustomsKnown = true;
    for (TDSCondition& custom : FModel.Conditions()) FCustoms.try_emplace(CustomKey(custom.GetSQLExpr()), &custom);
  }
  if (FCustoms.empty()) return nullptr;
  const auto found = FCustoms.find(CustomKey(condition.GetSQLExpr()));
  return found == FCustoms.end() ? nullptr : found->second;
}

TDSField& TSQLMapper::FieldFor(const TSQLCondition& condition, const TSQLTableList& tables) {
  std::string name(condition.GetLeftExpr());
  if (name.find('.') == std::string::npos && !tables.Empty()) {
    name.insert(0, ".").insert(0, tables[0].GetAliasName());
  }
  for (const TFieldNameKind kind : {fnSQLExpr, fnFullName}) {
    if (TDSField* field = FModel.FieldByName(kind, name)) return *field;
  }
  TDSField& field = *FPanel.GetDefaultField();
  FLog.Warn(condition.GetPos(), condition.GetLeftExpr(),
            Format("no field of the model: taken as \"%s\"", {field.GetFullName()}));
  return field;
}

// ---- Operators ------------------------------------------------------------------------------------------------------

void TSQLMapper::CollectOperators() {
  if (FOperatorsKnown) return;
  FOperatorsKnown = true;
  FOperators = OperatorTemplatesOf(FModel);
}

TOperatorMatch TSQLMapper::FindOperator(const TSQLCondition& condition) {
  CollectOperators();
  FTokens.Assign(condition);
  TOperatorMatch match;
  for (const bool ignoringCase : {false, true}) {
    for (const bool withWildcards : {false, true}) {
      if (FindFitting(ignoringCase, withWildcards, condition.GetContainsSubQuery(), match)) return match;
    }
  }
  return LikeFallback(condition);
}

bool TSQLMapper::FindFitting(bool ignoringCase, bool withWildcards, bool isSubQuery, TOperatorMatch& match) const {
  for (const TOperatorTemplate& candidate : FOperators) {
    const TDSOperator& op = *candidate.Operator;
    if (op.GetCaseInsensative() != ignoringCase || (op.GetValueKind() == vkSubQuery) != isSubQuery) continue;
    if (!candidate.Template.HasToken(FTokens.Operation())) continue;
    if (!candidate.Template.Match(FTokens, withWildcards, match.Values)) continue;
    match.Operator = candidate.Operator;
    return true;
  }
  return false;
}

TOperatorMatch TSQLMapper::LikeFallback(const TSQLCondition& condition) const {
  TOperatorMatch match;
  if (condition.GetOperation() != "like" || condition.GetContainsSubQuery()) return match;
  match.Operator = FModel.OperatorByName("contains");
  if (match.Operator == nullptr) match.Operator = FModel.OperatorByName("startswith");
  if (match.Operator == nullptr) return match;
  match.IsFallback = true;
  TValueCapture& value = match.Values[0];
  const std::string_view pattern = condition.GetRightExpr();
  value.IsLiteral = IsWholeLiteral(pattern);
  value.Text = value.IsLiteral ? DecodeLiteral(pattern) : std::string(pattern);
  value.End = 1;
  if (!value.IsLiteral) return match;
  const char wildcard = FModel.SQLFormats().GetWildcardChar();
  value.Text.erase(0, value.Text.find_first_not_of(wildcard));
  value.Text.erase(value.Text.find_last_not_of(wildcard) + 1);
  return match;
}

TDSOperator& TSQLMapper::OperatorFor(const TSQLCondition& condition, const TDSField& field,
                                     const TOperatorMatch& match) {
  if (match.Operator != nullptr) return *match.Operator;
  TDSOperator& op = *FPanel.GetDefaultOperator(field);
  FLog.Warn(condition.GetPos(), condition.GetSQLExpr(),
            Format(op.GetParamCount() > 0 ? "no operator of the model fits: taken as \"%s\" without a value"
                                          : "no operator of the model fits: taken as \"%s\"",
                   {op.GetName()}));
  return op;
}

void TSQLMapper::WarnOfOperator(const TSimpleCond& row, const TSQLCondition& condition, const TOperatorMatch& match) {
  if (match.Operator == nullptr) return;
  const std::string& name = match.Operator->GetName();
  if (!match.IsFallback) {
    if (!IsCaseInsensitive(row)) return;
    FLog.Warn(condition.GetPos(), condition.GetSQLExpr(), Format("taken as \"%s\", which ignores case", {name}));
    return;
  }
  // A parameter is compared as it is, without the wildcards of the template.
  const TValueCapture& value = match.Values[0];
  const bool isParam = !value.IsLiteral && value.Text.starts_with(':');
  const auto used = std::find_if(FOperators.begin(), FOperators.end(), [&match](const TOperatorTemplate& candidate) {
    return candidate.Operator == match.Operator;
  });
  const bool isSame = isParam && !condition.GetNegative() && !IsCaseInsensitive(row) && used != FOperators.end() &&
                      used->Template.IsFieldAndValue("like");
  if (isSame) return;
  FLog.Warn(condition.GetPos(), condition.GetSQLExpr(),
            Format(condition.GetNegative() ? "taken as \"%s\" with the value \"%s\", the negation is left out"
                                           : "taken as \"%s\" with the value \"%s\"",
                   {name, value.Text}));
}

}  // namespace tolvi
