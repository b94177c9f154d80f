#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/selectimport.h>
#include <tolvi/query/selectjoins.h>
#include <tolvi/query/uniquenames.h>
#include <tolvi/sqlimport/selectwords.h>

// The select list, ORDER BY and GROUP BY.

namespace tolvi {

namespace {

constexpr std::size_t NoColumn = static_cast<std::size_t>(-1);
constexpr std::size_t MostFields = 9;

}  // namespace

// "t.*" of the only table is all there is.
bool TSelectImport::IsAllColumns() const {
  if (FStatement.AllColumns) return true;
  if (FStatement.Columns.size() != 1 || FStatement.Tables.size() != 1) return false;
  return FScope.NameOf(FStatement.Columns.front().Expr).IsAll;
}

std::unique_ptr<TResultField> TSelectImport::MakeColumn(TTokenRange expr) const {
  std::unique_ptr<TResultField> column = FPanel.RFields().CreateRField();
  if (TDSField* field = FScope.FieldOf(expr)) {
    column->SetFormula("@1");
    column->AddDSField(*field);
    return column;
  }
  std::string formula;
  std::vector<TDSField*> fields;
  bool hasSign = false;
  FScope.Walk(
      expr,
      [&](std::string_view text) {
        hasSign = hasSign || text.find('@') != std::string_view::npos;
        formula += text;
      },
      [&](TDSField& field) {
        auto found = std::find(fields.begin(), fields.end(), &field);
        if (found == fields.end()) found = fields.insert(found, &field);
        formula.append("@").append(std::to_string(found - fields.begin() + 1));
      });
  const std::size_t param = FScope.FindParam(expr);
  if (param < expr.End) FLog.Refuse({param, param + 1}, "a column cannot hold a parameter", "kept word for word");
  if (fields.size() > MostFields) {
    FLog.Refuse(expr, Format("an expression of a query can refer to %d fields at most", {MostFields}), "changed");
    fields.resize(MostFields);
  }
  if (hasSign) {
    FLog.Refuse(expr,
                "\"@\" stands for fields in the formulas of a query: make a field of the model of this expression",
                "kept word for word");
  }
  column->SetFormula(formula);
  for (TDSField* field : fields) column->AddDSField(*field);
  return column;
}

// ---- The select list ------------------------------------------------------------------------------------------------

TResultField& TSelectImport::AddColumn(std::unique_ptr<TResultField> column, std::string_view caption) {
  TRFieldList& columns = FPanel.RFields();
  TResultField& added = columns.InsertRField(columns.Count(), std::move(column));
  if (!caption.empty()) added.SetCaption(caption);
  return added;
}

// Columns are called as the database would call them, expressions by the fields in them.
std::string TSelectImport::CaptionOf(TTokenRange expr, const TResultField& column) const {
  if (column.IsPlainField() && column.DSFields().front()->GetFieldKind() == jfkData) {
    return column.DSFields().front()->GetFieldName();
  }
  std::string caption;
  for (const TDSField* field : column.DSFields()) {
    caption.append(caption.empty() ? "" : ", ").append(field->GetDisplayName());
  }
  if (caption.empty() && FScope.NameOf(expr).Count > 0) {
    // What stands in quotes may be reserved.
    if (FText[expr.End - 1].Kind == stkName) caption = FText[expr.End - 1].Name();
  } else if (caption.empty() && expr.Count() > 1 && !FScope.HasNames(expr)) {
    // Made of names that the model does not know, it could become an alias that hides one of them.
    caption = column.GetFormula();
  }
  // Words that are reserved by SQL can be no aliases.
  const std::string alias = MakeSQLName(caption);
  const bool isReserved =
      SelectWordOf(alias) != swNone || AsciiSameText(std::string_view(alias).substr(0, 8), "current_");
  return caption.empty() || isReserved ? "Column " + std::to_string(FPanel.RFields().IndexOf(column) + 1) : caption;
}

// "City 'Town'" has an alias to some databases, and is none to others.
void TSelectImport::CheckOperands(TTokenRange expr) const {
  for (std::size_t at = expr.Begin + 1; at < expr.End; ++at) {
    const TSelectToken &before = FText[at - 1], &token = FText[at];
    const bool isValue = token.Kind == stkString || token.Kind == stkNumber;
    // A type before a literal ("date '2020-01-01'") is a word of its own.
    const bool isType = before.Kind == stkName && token.Kind == stkString && FText[at - 2].Word != swPoint &&
                        FScope.NameOf({at - 1, at}).Field == nullptr && !FScope.IsColumnOfModel(before.Text);
    if (!isValue || !before.EndsOperand() || isType) continue;
    FLog.Refuse({at, at + 1}, "a value follows another one: an alias stands after AS", "kept word for word");
  }
}

void TSelectImport::MapColumns() {
  FPanel.RFields().SetJustSorting(IsAllColumns());
  if (IsAllColumns() && FJoins->HasUsing()) {
    FLog.Refuse(FStatement.Range, "\"*\" shows the columns after USING once, a query twice: write the columns");
  }
  if (IsAllColumns()) return;
  for (const TSelectColumn& column : FStatement.Columns) {
    if (FScope.NameOf(column.Expr).IsAll) {
      FLog.Refuse(column.Expr, "a query names its columns: write those of the table instead of \"*\"",
                  "kept word for word");
    }
    CheckOperands(column.Expr);
    FColumns.push_back(&AddColumn(MakeColumn(column.Expr), column.Alias));
  }
  // Last, so that none of these takes the alias of another one.
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    if (FStatement.Columns[i].Alias.empty()) {
      FColumns[i]->SetCaption(CaptionOf(FStatement.Columns[i].Expr, *FColumns[i]));
    }
  }
}

// ---- References to columns ------------------------------------------------------------------------------------------

// The place in the select list of what a number or an alias names.
std::size_t TSelectImport::ColumnByName(TTokenRange expr, bool aliasFirst) const {
  expr = FText.WithoutBrackets(expr);
  if (expr.Count() != 1) return NoColumn;
  const TSelectToken& token = FText[expr.Begin];
  const std::vector<TSelectColumn>& columns = FStatement.Columns;
  if (token.Kind == stkNumber) {
    std::size_t number = 0;
    const char* end = token.Text.data() + token.Text.size();
    const auto [rest, error] = std::from_chars(token.Text.data(), end, number);
    if (error != std::errc() || rest != end || number < 1 || number > columns.size() || IsAllColumns()) {
      FText.Fail(expr.Begin, Format("there is no column %s in the select list", {token.Text}));
    }
    return number - 1;
  }
  if (!token.IsName() || (!aliasFirst && FScope.NameOf(expr).Field != nullptr)) return NoColumn;
  const std::string name = token.Name();
  if (const std::size_t column = FScope.ColumnByAlias(name); column < columns.size()) {
    if (!aliasFirst) FScope.CheckAlias(expr, column);
    return column;
  }
  if (!aliasFirst || FScope.NameOf(expr).Field != nullptr) return NoColumn;
  // A name that the model does not know may be that of a column without an alias.
  const auto found = std::find_if(columns.begin(), columns.end(), [this, &name](const TSelectColumn& column) {
    const TTokenRange whole = FText.WithoutBrackets(column.Expr);
    return column.Alias.empty() && FScope.NameOf(whole).Count > 0 && SameText(FText[whole.End - 1].Name(), name);
  });
  return found == columns.end() ? NoColumn : static_cast<std::size_t>(found - columns.begin());
}

TTokenRange TSelectImport::Expanded(TTokenRange expr, bool aliasFirst) const {
  const std::size_t column = ColumnByName(expr, aliasFirst);
  return column == NoColumn ? expr : FStatement.Columns[column].Expr;
}

TResultField* TSelectImport::ColumnFor(TTokenRange expr, bool aliasFirst) {
  if (const std::size_t index = ColumnByName(expr, aliasFirst); index < FColumns.size()) return FColumns[index];
  TRFieldList& columns = FPanel.RFields();
  for (; FKeyed < columns.Count(); ++FKeyed) FKeys.try_emplace(SQLKey(columns[FKeyed].GetSQLExpr()), &columns[FKeyed]);
  for (const TTokenRange range : {expr, FText.WithoutBrackets(expr)}) {
    const auto found = FKeys.find(SQLKey(FScope.Resolved(range)));
    if (found != FKeys.end()) return found->second;
  }
  return nullptr;
}

// ---- ORDER BY -------------------------------------------------------------------------------------------------------

// Constants would be numbers of columns, and with a collation an alias goes before a column.
void TSelectImport::CheckOrder(TTokenRange expr) {
  bool hasName = false;
  for (std::size_t at = expr.Begin; at < expr.End; ++at) {
    hasName = hasName || FText[at].IsName() || FText[at].Word == swSelect;
    if (!FText[at].IsName() || !AsciiSameText(FText[at + 1].Text, "collate")) continue;
    if (FScope.ColumnByAlias(FText[at].Name()) < FStatement.Columns.size()) {
      FLog.Refuse({at, at + 1}, "an alias with a collation: sort by the expression itself", "taken as the column");
    }
  }
  if (!hasName) FLog.Refuse(expr, "a constant sorts nothing: leave it out");
}

void TSelectImport::MapSorting() {
  FScope.SetAliasesKnown(true);
  int order = 0;
  for (const TSelectOrder& term : FStatement.OrderBy) {
    TResultField* column = ColumnFor(term.Expr, true);
    if (column == nullptr) {
      CheckOrder(term.Expr);
      std::unique_ptr<TResultField> hidden = MakeColumn(term.Expr);
      hidden->SetHidden(!IsAllColumns());
      column = &AddColumn(std::move(hidden), {});
      column->SetCaption(CaptionOf(term.Expr, *column));
    }
    // Where columns are sorted by their expressions, a number would be the place of one.
    const bool isNumber = column->GetSQLExpr().find_first_not_of("+-0123456789() ") == std::string::npos;
    if (isNumber && FPanel.GetSQLOptions().Contains(soSortByNames)) {
      FLog.Refuse(term.Expr, "a constant sorts nothing: leave it out");
    }
    ++order;
    // What sorts already decides nothing a second time.
    if (column->GetSorting() != stNoSort) continue;
    column->SetSorting(term.Descending ? stDescending : stAscending);
    column->SetSortOrder(order);
  }
}

// ---- GROUP BY -------------------------------------------------------------------------------------------------------

bool TSelectImport::HasAggregate() const {
  const TRFieldList& columns = FPanel.RFields();
  return std::any_of(columns.begin(), columns.end(), [](const TResultField& column) { return column.GetAgregate(); });
}

bool TSelectImport::IsGrouped() const { return !FStatement.GroupBy.empty() || HasAggregate(); }

void TSelectImport::MapGroups() {
  std::vector<std::string> groups;
  for (const TTokenRange& group : FStatement.GroupBy) {
    const TTokenRange expr = Expanded(group, false);
    for (const TTokenRange range : {expr, FText.WithoutBrackets(expr)}) {
      groups.push_back(SQLKey(FScope.Resolved(range)));
    }
    if (ColumnFor(group, false) != nullptr) continue;
    std::unique_ptr<TResultField> hidden = MakeColumn(expr);
    hidden->SetHidden(true);
    TResultField& column = AddColumn(std::move(hidden), {});
    column.SetCaption(CaptionOf(expr, column));
  }
  CheckGroups(groups);
  if (groups.empty() || HasAggregate()) return;
  // Without an aggregate a query has no groups.
  std::unique_ptr<TResultField> count = FPanel.RFields().CreateRField();
  count->SetFormula("count(*)");
  count->SetHidden(true);
  AddColumn(std::move(count), "count(*)");
}

namespace {

// Where such SQL stands in GROUP BY, it may mean the column of that number.
bool IsNumber(std::string_view sql) {
  const std::size_t digit = sql.find_first_not_of("+-(. ");
  return digit < sql.size() && sql[digit] >= '0' && sql[digit] <= '9' &&
         sql.find_first_not_of("+-0123456789eE(). ", digit) == std::string_view::npos;
}

// Why a column cannot be one of a query with groups, with a place for its SQL; empty if it can.
std::string_view GroupFault(const TResultField& column, bool isWritten) {
  if (column.GetAgregate()) return isWritten ? "\"%s\" is an aggregate, by which a query does not group" : "";
  if (IsNumber(column.GetSQLExpr())) {
    return "\"%s\" would be the number of a column in the GROUP BY of the query: leave it out";
  }
  return isWritten ? ""
                   : "a query with aggregates groups by every other column, the statement not by \"%s\": add it to "
                     "GROUP BY";
}

}  // namespace

// A query groups by all columns that are no aggregates.
void TSelectImport::CheckGroups(const std::vector<std::string>& groups) {
  if (!IsGrouped()) return;
  for (std::size_t i = 0; i < FPanel.RFields().Count(); ++i) {
    const TResultField& column = FPanel.RFields()[i];
    const bool isWritten = std::find(groups.begin(), groups.end(), SQLKey(column.GetSQLExpr())) != groups.end();
    const std::string_view fault = GroupFault(column, isWritten);
    if (fault.empty()) continue;
    const TTokenRange range = i < FColumns.size()          ? FStatement.Columns[i].Expr
                              : FStatement.OrderBy.empty() ? FStatement.Range
                                                           : FStatement.OrderBy.front().Expr;
    FLog.Refuse(range, Format(fault, {column.GetSQLExpr()}), "grouped by the other columns");
  }
}

}  // namespace tolvi
