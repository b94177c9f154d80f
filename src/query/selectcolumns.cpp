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
  if (hasSign && !fields.empty()) {
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
  if (column.GetFormula() == "@1" && column.DSFields().front()->GetFieldKind() == jfkData) {
    return column.DSFields().front()->GetFieldName();
  }
  std::string caption;
  for (const TDSField* field : column.DSFields()) {
    caption.append(caption.empty() ? "" : ", ").append(field->GetDisplayName());
  }
  if (!caption.empty()) return caption;
  if (FScope.NameOf(expr).Count > 0) {
    caption = FText[expr.End - 1].Name();
    // A word that may be reserved by SQL.
    if (AsciiSameText(std::string_view(caption).substr(0, 8), "current_")) caption.clear();
  } else if (expr.Count() > 1) {
    caption = column.GetFormula();
  }
  return caption.empty() ? "Column " + std::to_string(FPanel.RFields().Count()) : caption;
}

void TSelectImport::MapColumns() {
  FPanel.RFields().SetJustSorting(IsAllColumns());
  if (IsAllColumns()) return;
  for (const TSelectColumn& column : FStatement.Columns) {
    if (FScope.NameOf(column.Expr).IsAll) {
      FLog.Refuse(column.Expr, "a query names its columns: write those of the table instead of \"*\"",
                  "kept word for word");
    }
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
  const auto found = std::find_if(columns.begin(), columns.end(), [&name](const TSelectColumn& column) {
    return !column.Alias.empty() && SameText(column.Alias, name);
  });
  return found == columns.end() ? NoColumn : static_cast<std::size_t>(found - columns.begin());
}

TTokenRange TSelectImport::Expanded(TTokenRange expr, bool aliasFirst) const {
  const std::size_t column = ColumnByName(expr, aliasFirst);
  return column == NoColumn ? expr : FStatement.Columns[column].Expr;
}

TResultField* TSelectImport::ColumnFor(TTokenRange expr, bool aliasFirst) {
  if (const std::size_t index = ColumnByName(expr, aliasFirst); index < FColumns.size()) return FColumns[index];
  const std::string key = SQLKey(FScope.Resolved(FText.WithoutBrackets(expr)));
  for (TResultField& column : FPanel.RFields()) {
    if (SQLKey(column.GetSQLExpr()) == key) return &column;
  }
  return nullptr;
}

// ---- ORDER BY -------------------------------------------------------------------------------------------------------

void TSelectImport::MapSorting() {
  FScope.SetAliasesKnown(true);
  int order = 0;
  for (const TSelectOrder& term : FStatement.OrderBy) {
    TResultField* column = ColumnFor(term.Expr, true);
    if (column == nullptr) {
      std::unique_ptr<TResultField> hidden = MakeColumn(FText.WithoutBrackets(term.Expr));
      hidden->SetHidden(!IsAllColumns());
      column = &AddColumn(std::move(hidden), {});
      column->SetCaption(CaptionOf(term.Expr, *column));
    }
    ++order;
    // What sorts already decides nothing a second time.
    if (column->GetSorting() != stNoSort) continue;
    column->SetSorting(term.Descending ? stDescending : stAscending);
    column->SetSortOrder(order);
  }
}

// ---- GROUP BY -------------------------------------------------------------------------------------------------------

bool TSelectImport::IsGrouped() const {
  const TRFieldList& columns = FPanel.RFields();
  return !FStatement.GroupBy.empty() ||
         std::any_of(columns.begin(), columns.end(), [](const TResultField& column) { return column.GetAgregate(); });
}

void TSelectImport::MapGroups() {
  std::vector<std::string> groups;
  for (const TTokenRange& group : FStatement.GroupBy) {
    const TTokenRange expr = FText.WithoutBrackets(Expanded(group, false));
    groups.push_back(SQLKey(FScope.Resolved(expr)));
    if (ColumnFor(group, false) != nullptr) continue;
    std::unique_ptr<TResultField> hidden = MakeColumn(expr);
    hidden->SetHidden(true);
    TResultField& column = AddColumn(std::move(hidden), {});
    column.SetCaption(CaptionOf(expr, column));
  }
  CheckGroups(groups);
  const TRFieldList& columns = FPanel.RFields();
  const bool anyAggregate =
      std::any_of(columns.begin(), columns.end(), [](const TResultField& column) { return column.GetAgregate(); });
  if (groups.empty() || anyAggregate) return;
  // Without an aggregate a query has no groups.
  std::unique_ptr<TResultField> count = columns.CreateRField();
  count->SetFormula("count(*)");
  count->SetHidden(true);
  AddColumn(std::move(count), "count(*)");
}

// A query groups by all columns that are no aggregates.
void TSelectImport::CheckGroups(const std::vector<std::string>& groups) {
  if (!IsGrouped()) return;
  for (std::size_t i = 0; i < FPanel.RFields().Count(); ++i) {
    const TResultField& column = FPanel.RFields()[i];
    const bool isWritten = std::find(groups.begin(), groups.end(), SQLKey(column.GetSQLExpr())) != groups.end();
    if (column.GetAgregate() ? !isWritten : isWritten) continue;
    const TTokenRange range = i < FColumns.size()          ? FStatement.Columns[i].Expr
                              : FStatement.OrderBy.empty() ? FStatement.Range
                                                           : FStatement.OrderBy.front().Expr;
    FLog.Refuse(
        range,
        Format(column.GetAgregate()
                   ? "\"%s\" is an aggregate, by which a query does not group"
                   : "a query with aggregates groups by every other column, the statement not by \"%s\": add it "
                     "to GROUP BY",
               {column.GetSQLExpr()}),
        "grouped by the other columns");
  }
}

}  // namespace tolvi
