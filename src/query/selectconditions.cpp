#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/selectconditions.h>

// The tree of conditions, and what becomes of those that no operator says. Operators and values are in
// selectoperators.cpp.

namespace tolvi {

namespace {

constexpr TFilterLinkType LinkTypeOf(const TSelectCondition& condition) {
  if (condition.Kind == TSelectCondition::ckAny) return condition.Negated ? fltNone : fltAny;
  return condition.Negated ? fltNotAll : fltAll;
}

}  // namespace

TSelectConditions::TSelectConditions(TJQueryPanel& panel, const TSelectText& text, const TSelectScope& scope,
                                     TSelectLog& log, TSubQueryReader readSubQuery)
    : FPanel(panel),
      FModel(*panel.GetDBStruct()),
      FText(text),
      FScope(scope),
      FLog(log),
      FReadSubQuery(std::move(readSubQuery)) {}

void TSelectConditions::Fill(TFilterBracket& bracket, const TSelectCondition& condition) {
  bracket.SetLinkType(condition.Kind == TSelectCondition::ckPredicate ? fltAll : LinkTypeOf(condition));
  if (condition.Kind == TSelectCondition::ckPredicate) return Add(bracket, condition);
  for (const TSelectCondition& node : condition.Nodes) Add(bracket, node);
}

void TSelectConditions::FillRoot(TFilterBracket& root, const TSelectCondition& condition) {
  if (condition.Kind == TSelectCondition::ckPredicate || !AddCustom(root, condition)) Fill(root, condition);
}

void TSelectConditions::Add(TFilterBracket& bracket, const TSelectCondition& condition) {
  try {
    if (condition.Kind == TSelectCondition::ckPredicate) {
      AddPredicate(bracket, condition);
    } else {
      AddBracket(bracket, condition);
    }
  } catch (const EJQueryPanelError& error) {
    FText.Fail(condition.Range.Begin, error.Message());
  }
}

void TSelectConditions::AddBracket(TFilterBracket& bracket, const TSelectCondition& condition) {
  if (AddCustom(bracket, condition)) return;
  TFilterBracket& inner = bracket.AddNewBracket();
  Fill(inner, condition);
  // A bracket whose rows are all brackets does not count as one of HAVING.
  if (!FHaving || inner.GetIsHavingRow()) return;
  bracket.DeleteRow(bracket.GetRowCount() - 1);
  AddFragment(bracket, condition);
}

void TSelectConditions::AddPredicate(TFilterBracket& bracket, const TSelectCondition& condition) {
  FSubQueryError.reset();
  const bool negative = condition.Negated != condition.NotInside;
  const auto add = [this, &bracket](const std::optional<TMatch>& match, bool inNone) {
    if (match) AddMatch(inNone ? AddNone(bracket) : bracket, *match);
    return match.has_value();
  };
  if (AddCustom(bracket, condition)) return;
  if (add(FindMatch(condition, negative), false) || (negative && add(FindMatch(condition, false), true))) return;
  if (add(FindByColumns(condition, condition.Negated), false) ||
      (condition.Negated && add(FindByColumns(condition, false), true))) {
    return;
  }
  AddFragment(bracket, condition);
}

// Whether a predefined condition says it, or its contrary.
bool TSelectConditions::AddCustom(TFilterBracket& bracket, const TSelectCondition& condition) {
  if (FHaving) return false;
  if (const auto match = FindCustom(condition, condition.Negated)) {
    AddMatch(bracket, *match);
    return true;
  }
  const auto contrary = condition.Negated ? FindCustom(condition, false) : std::nullopt;
  if (contrary) AddMatch(AddNone(bracket), *contrary);
  return contrary.has_value();
}

TFilterBracket& TSelectConditions::AddNone(TFilterBracket& bracket) {
  TFilterBracket& none = bracket.AddNewBracket();
  none.SetLinkType(fltNone);
  return none;
}

void TSelectConditions::AddMatch(TFilterBracket& bracket, const TMatch& match) {
  if (match.Custom != nullptr) return SetValues(bracket.AddCustomCond(*match.Custom), match);
  TSimpleCond& row = bracket.AddCond();
  row.SetField(*match.Field);
  row.SetOperator(*match.Operator);
  SetValues(row, match);
}

void TSelectConditions::SetValues(TFilterCond& row, const TMatch& match) {
  if (match.SubQuery) {
    row.SetSubQuery(match.SubQuery->Lines);
    row.SetSubQueryOptions(match.SubQuery->Options);
    row.SetHint(1, match.SubQuery->Lines.Joined(CrLf));
    return;
  }
  for (int index = 1; index <= row.GetValueCount(); ++index) {
    const TValue& value = match.Values[static_cast<std::size_t>(index - 1)];
    if (!value.IsParam) {
      row.SetValue(index, value.Text);
      continue;
    }
    row.SetValueIsParam(index, true);
    row.GetParam(index)->SetParamName(value.Text);
    if (!value.Format.empty()) row.GetParam(index)->SetValueFormat(value.Format);
  }
}

void TSelectConditions::AddFragment(TFilterBracket& bracket, const TSelectCondition& condition) {
  const std::size_t param = FScope.FindParam(condition.Range);
  const bool isRefused = param < condition.Range.End || !FPanel.GetAllowSQLFragments();
  if (isRefused && FSubQueryError && !FLog.GetApproximate()) throw ESQLImportError(*FSubQueryError);
  if (param < condition.Range.End) {
    FLog.Refuse({param, param + 1},
                "no operator of the model takes a parameter here: compare a field with it, as an operator of the model "
                "does");
    return;
  }
  if (isRefused) {
    FLog.Refuse(condition.Range,
                FSubQueryError ? FSubQueryError->Reason()
                               : "no field and operator of the model say this: allow SQL in queries to keep it as "
                                 "it is, or give the model a field, an operator or a condition for it");
    return;
  }
  const std::string sql = FScope.Resolved(condition.Range);
  const bool isGroup = condition.Kind != TSelectCondition::ckPredicate;
  const std::string text = !condition.Negated ? sql : isGroup ? "not (" + sql + ")" : "not " + sql;
  try {
    bracket.AddSQLFragment(text).SetHaving(FHaving);
  } catch (const EJQueryPanelError& error) {
    FLog.Refuse(condition.Range, error.Message());
  }
}

}  // namespace tolvi
