// The expressions of the result fields editor: what is typed, joined and put into functions.
#include <algorithm>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/panel/rfldeditor.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/sqlfragment.h>

namespace tolvi {
namespace {

bool HasAggregate(std::span<TDSField* const> fields) {
  return std::any_of(fields.begin(), fields.end(), [](const TDSField* field) { return field->GetIsAggregate(); });
}

/// With the fields' SQL; the formula alone where the model lacks one of them.
std::string SQLOf(const TResultField& column) {
  try {
    return column.GetSQLExpr();
  } catch (const EJQueryPanelError&) {
    return column.GetFormula();
  }
}

}  // namespace

void TRFieldEditor::ChangeFormula(std::string_view step, const std::function<void()>& change) {
  Change(step, [&] {
    TResultField& column = Column();
    const bool follows = HasMadeCaption(column);
    change();
    if (follows) column.SetCaption(MadeCaption(column));
  });
}

bool TRFieldEditor::AllowsSelects() const {
  const TJQueryPanel* panel = Fields().GetQueryPanel();
  return panel != nullptr && panel->GetAllowSQLFragments();
}

std::string TRFieldEditor::FormulaFaultOf(const TResultField& column, bool allowSelects) const {
  if (Trim(column.GetFormula()).empty()) return "The expression is empty.";
  const std::string fault = FormulaFault(column.GetFormula(), FormatsOf(GetModel()).GetQuoteSymbol1(), allowSelects);
  return fault.empty() ? std::string() : Format("This is no expression: %s.", {fault});
}

TRFieldEditor::TTyped TRFieldEditor::Checked(const TResultField& column, std::string_view text) const {
  const auto list = EmptyList();
  TResultField& copy = list->New();
  copy.Assign(column);
  try {
    copy.ProcessExpression(text);
    return {std::string(text), IsGiven(copy) ? std::string() : FormulaFaultOf(copy, AllowsSelects())};
  } catch (const EJQueryPanelError& error) {
    return {std::string(text), error.Message() + "."};
  }
}

void TRFieldEditor::SetExpression(std::string_view text) {
  if (!FState.Current || text == GetExpression(*FState.Current)) return;
  TTyped typed = Checked(Column(), text);
  ChangeFormula("expression", [&] {
    std::optional<TTyped>& kept = FState.Typed[*FState.Current];
    kept.reset();
    if (typed.Fault.empty()) {
      Column().ProcessExpression(text);
    } else {
      kept = std::move(typed);
    }
  });
}

std::string TRFieldEditor::GetExpression(std::size_t index) const {
  return FState.Typed[index] ? FState.Typed[index]->Text : Fields()[index].GetExpression();
}

// The model may have got what a text lacked.
void TRFieldEditor::CheckTypedAnew() {
  for (std::size_t i = 0; i < Fields().Count(); ++i) {
    std::optional<TTyped>& kept = FState.Typed[i];
    if (!kept) continue;
    kept = Checked(Fields()[i], kept->Text);
    if (!kept->Fault.empty()) continue;
    (*FState.Fields)[i].ProcessExpression(kept->Text);
    kept.reset();
  }
}

std::string TRFieldEditor::GetFault(std::size_t index) const {
  if (FState.Typed[index]) return FState.Typed[index]->Fault;
  const TResultField& column = Fields()[index];
  return IsGiven(column) ? std::string() : FormulaFaultOf(column, AllowsSelects());
}

std::string TRFieldEditor::GetWarning(std::size_t index) const {
  if (!GetFault(index).empty()) return {};
  const TResultField& column = Fields()[index];
  try {
    static_cast<void>(column.GetSQLExpr());
  } catch (const EJQueryPanelError& error) {
    return error.Message() + ".";
  }
  // Without the query, nobody can tell whether it allows a SELECT.
  return FormulaFaultOf(column, Fields().GetQueryPanel() == nullptr || AllowsSelects());
}

std::string TRFieldEditor::GetProblem(std::size_t index) const {
  std::string fault = GetFault(index);
  return fault.empty() ? GetWarning(index) : fault;
}

std::optional<std::size_t> TRFieldEditor::FirstFault() const {
  for (std::size_t i = 0; i < Fields().Count(); ++i) {
    if (!GetFault(i).empty()) return i;
  }
  return std::nullopt;
}

std::string TRFieldEditor::ReferenceTo(TDSField& field) const { return EmptyList()->Add(field).GetExpression(); }

std::string TRFieldEditor::JoinFault() const {
  if (!FState.Current) return "There is no result field to join a field to.";
  return FState.Typed[*FState.Current] ? "The expression must be mended first." : std::string();
}

std::string TRFieldEditor::Join(TRFOperation operation, std::span<TDSField* const> fields) {
  if (std::string fault = JoinFault(); !fault.empty() || fields.empty()) return fault;
  const TSQLFormats& formats = FormatsOf(GetModel());
  const auto list = EmptyList();
  TResultField& joined = list->New();
  joined.Assign(Column());
  const TRFAggregated parts = SplitAggregate(joined.GetFormula(), formats);
  const bool isInside = parts.Aggregate != agAsIs && parts.Inner != "*" && !HasAggregate(fields);
  if (isInside) joined.SetFormula(parts.Inner);
  try {
    for (TDSField* field : fields) {
      const std::string reference = ReferenceTo(*field);
      const std::string expression = Trim(joined.GetFormula()).empty()
                                         ? reference
                                         : Joined(operation, joined.GetExpression(), BindingOf(SQLOf(joined)),
                                                  reference, BindingOf(field->GetSQLExpr()));
      joined.ProcessExpression(expression);
    }
  } catch (const EJQueryPanelError& error) {
    return error.Message() + ".";
  }
  if (isInside) joined.SetFormula(WithAggregate(parts.Aggregate, joined.GetFormula(), formats));
  const std::string expression = joined.GetExpression();
  ChangeFormula({}, [&] { Column().ProcessExpression(expression); });
  return {};
}

TRFAggregate TRFieldEditor::GetAggregate() const {
  if (!FState.Current) return agAsIs;
  return SplitAggregate(Column().GetFormula(), FormatsOf(GetModel())).Aggregate;
}

std::string TRFieldEditor::AggregateFault(TRFAggregate aggregate) const {
  if (!FState.Current) return "There is no result field.";
  if (!GetFault(*FState.Current).empty()) return "The expression must be mended first.";
  const TSQLFormats& formats = FormatsOf(GetModel());
  const TRFAggregated parts = SplitAggregate(Column().GetFormula(), formats);
  if (aggregate == parts.Aggregate) return {};
  if (parts.Inner == "*") return "All rows are counted: there is no value to take.";
  if (parts.Aggregate == agAsIs && Column().GetAgregate()) return "The expression is an aggregate already.";
  if (AggregatePattern(aggregate, formats).empty()) return "This database has no function that lists values.";
  return {};
}

void TRFieldEditor::SetAggregate(TRFAggregate aggregate) {
  if (!AggregateFault(aggregate).empty() || aggregate == GetAggregate()) return;
  const TSQLFormats& formats = FormatsOf(GetModel());
  const std::string inner = SplitAggregate(Column().GetFormula(), formats).Inner;
  ChangeFormula({}, [&] { Column().SetFormula(WithAggregate(aggregate, inner, formats)); });
}

}  // namespace tolvi
