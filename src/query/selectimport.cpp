#include <algorithm>
#include <iterator>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/importlog.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/selectimport.h>
#include <tolvi/query/selectjoins.h>

// The whole statement: its options, conditions and tables. Columns, sorting and groups are in selectcolumns.cpp.

namespace tolvi {

namespace {

// The tokens with one blank between them.
std::string PlainText(const TSelectText& text, TTokenRange range) {
  std::string plain;
  for (std::size_t at = range.Begin; at < range.End; ++at) plain.append(plain.empty() ? "" : " ").append(text[at].Text);
  return plain;
}

}  // namespace

TSelectImport::TSelectImport(TJQueryPanel& panel, const TSelectText& text, TTokenRange range, TSelectLog& log,
                             const TSelectScope* outer, int level)
    : FPanel(panel),
      FText(text),
      FLog(log),
      FStatement(ReadSelect(text, range, log.GetApproximate() ? &FSkipped : nullptr)),
      FScope(*panel.GetDBStruct(), text, FStatement, log, outer),
      FLevel(level) {}

TSelectImport::~TSelectImport() = default;

void TSelectImport::Run() {
  CheckText();
  for (const TSelectSkipped& skipped : FSkipped) FLog.Warn(skipped.Range, "left out: " + skipped.Reason);
  FJoins = std::make_unique<TSelectJoins>(*FPanel.GetDBStruct(), FStatement, FScope, FLog);
  ReadOptions();
  MapColumns();
  MapSorting();
  MapGroups();
  MapConditions();
  MapTables();
  CheckAliases();
}

// Quotes of other databases are read as something else.
void TSelectImport::CheckText() const {
  for (std::size_t at = FStatement.Range.Begin; at < FStatement.Range.End; ++at) {
    const bool isBracket =
        FText[at].Kind == stkSymbol && FText[at].Text == "[" &&
        (at == FStatement.Range.Begin || !FText[at - 1].EndsOperand() || FText[at - 1].Word == swPoint);
    if (!isBracket && FText[at].Text != "`") continue;
    const TSQLFormats& formats = FPanel.GetDBStruct()->SQLFormats();
    FText.Fail(at, Format("names stand between %s and %s in this database, as the formats of the model say",
                          {std::string(1, formats.GetQuoteSymbol1()), std::string(1, formats.GetQuoteSymbol2())}));
  }
}

void TSelectImport::ReadOptions() {
  TSQLOptions options = FPanel.GetSQLOptions();
  const bool quotesAliases = std::any_of(FStatement.Columns.begin(), FStatement.Columns.end(),
                                         [](const TSelectColumn& column) { return column.AliasQuoted; });
  if (quotesAliases) options.Include(soQuoteAliases);
  if (FStatement.Distinct) {
    options.Include(soSelectDistinct);
  } else {
    options.Exclude(soSelectDistinct);
  }
  FPanel.SetSQLOptions(options);
  FPanel.SetQueryTopClause(PlainText(FText, FStatement.Top));
  FPanel.SetQueryLimitClause(PlainText(FText, FStatement.Limit));
}

// ---- Conditions -----------------------------------------------------------------------------------------------------

namespace {

// The condition without the predicates that are said otherwise; nothing when none is left.
std::optional<TSelectCondition> WithoutJoins(const TSelectCondition& condition, const TSelectJoins& joins) {
  if (joins.IsJoin(condition)) return std::nullopt;
  if (condition.Kind != TSelectCondition::ckAll || condition.Negated) return condition;
  TSelectCondition rest;
  rest.Kind = condition.Kind;
  rest.Range = condition.Range;
  for (const TSelectCondition& node : condition.Nodes) {
    if (!joins.IsJoin(node)) rest.Nodes.push_back(node);
  }
  if (rest.Nodes.empty()) return std::nullopt;
  if (rest.Nodes.size() > 1) return rest;
  TSelectCondition only = std::move(rest.Nodes.front());
  return only;
}

}  // namespace

void TSelectImport::MapConditions() {
  TSelectConditions conditions(FPanel, FText, FScope, FLog, [this](TTokenRange range) { return ReadSubQuery(range); });
  std::optional<TSelectCondition> where;
  if (FStatement.Where) where = WithoutJoins(*FStatement.Where, *FJoins);
  TFilterBracket& root = FPanel.RootBracket();
  const std::size_t parts = (where ? 1 : 0) + FJoins->Conditions().size() + (FStatement.Having ? 1 : 0);
  const auto add = [&](const TSelectCondition& condition) {
    const bool isRoot = condition.Kind == TSelectCondition::ckAll && !condition.Negated;
    if (parts == 1) {
      conditions.FillRoot(root, condition);
    } else if (isRoot) {
      for (const TSelectCondition& node : condition.Nodes) conditions.Add(root, node);
    } else {
      conditions.Add(root, condition);
    }
  };
  FScope.SetAliasesKnown(false);
  if (where) add(*where);
  for (const TSelectCondition* condition : FJoins->Conditions()) add(*condition);
  FScope.SetAliasesKnown(true);
  conditions.SetHaving(true);
  if (FStatement.Having) add(*FStatement.Having);
}

TSubQuery TSelectImport::ReadSubQuery(TTokenRange range) {
  if (FLevel >= MaxImportLevel) {
    FText.Fail(range.Begin, Format("sub-queries are nested deeper than %d levels", {MaxImportLevel}));
  }
  TJQueryPanel inner;
  inner.SetDBStruct(FPanel.GetDBStruct());
  inner.SetFormatSettings(FPanel.GetFormatSettings());
  inner.SetSQLSyntax(FPanel.GetSQLSyntax());
  inner.SetSQLOptions(FPanel.GetSQLOptions());
  inner.SetAllowSQLFragments(FPanel.GetAllowSQLFragments());
  // Where the whole condition can be kept as SQL, nothing in it needs to be approximated.
  TSelectLog log(FText, FLog.GetApproximate() && !FPanel.GetAllowSQLFragments());
  TSelectImport(inner, FText, range, log, &FScope, FLevel + 1).Run();
  FLog.Add(log.Warnings());
  TSubQuery subQuery;
  inner.SaveToStrings(subQuery.Lines);
  subQuery.Options = inner.GetSQLOptions();
  return subQuery;
}

// ---- Tables ---------------------------------------------------------------------------------------------------------

// Whether the tables can be joined at all.
bool TSelectImport::CollectTables() {
  const std::string error = FPanel.BuildOutline();
  if (error.empty()) return true;
  FLog.Refuse(FStatement.Tables.front().Range, error, "the query has no statement");
  return false;
}

void TSelectImport::MapTables() {
  if (!CollectTables()) return;
  const TRTableList& tables = FPanel.QResult().RTables();
  const bool brackets = FPanel.GetSQLOptions().Contains(soBracketJoins);
  const auto& own = FScope.Tables();
  const bool ordered = IsAllColumns() && std::find(own.begin(), own.end(), nullptr) == own.end();
  const auto isSame = [&] {
    if (!FJoins->IsSame(tables, brackets)) return false;
    if (!ordered) return true;
    const std::vector<const TDSTable*> order = TJoinForm::OrderOf(tables, brackets);
    return std::equal(order.begin(), order.end(), own.begin(), own.end());
  };
  if (!HoldTables(false) || isSame()) return;
  if (!HoldTables(true) || isSame()) return;
  FJoins->RefuseDifference(tables, brackets);
  if (!ordered || !FJoins->IsSame(tables, brackets)) return;
  FLog.Refuse(FStatement.Tables.front().Range,
              "the model joins these tables in another order, so that \"*\" would have its columns in another order");
}

bool TSelectImport::HoldTables(bool inOrder) {
  TRFieldList& columns = FPanel.RFields();
  for (TResultField* holder : std::exchange(FHolders, {})) {
    static_cast<void>(columns.Delete(static_cast<std::size_t>(columns.IndexOf(*holder))));
  }
  for (std::size_t i = 0; i < FScope.Tables().size(); ++i) {
    const TDSTable* table = FScope.Tables()[i];
    if (table != nullptr && (inOrder || !FPanel.QResult().RTables().Holds(*table))) HoldTable(i, inOrder);
  }
  return FHolders.empty() || CollectTables();
}

// A column that is not shown, and changes neither sorting nor groups.
void TSelectImport::HoldTable(std::size_t index, bool inOrder) {
  const TDSTable* table = FScope.Tables()[index];
  const TDSFieldList& fields = FPanel.GetDBStruct()->Fields();
  const auto found = std::find_if(fields.begin(), fields.end(), [table](const TDSField& field) {
    return field.GetFieldKind() == jfkData && field.GetTable() == table;
  });
  if (found == fields.end()) {
    FLog.Refuse(FStatement.Tables[index].Range,
                Format("no field of \"%s\" is in the model, so that no query can have the table: add one",
                       {table->GetWhereExpr()}));
    return;
  }
  std::unique_ptr<TResultField> column = FPanel.RFields().CreateRField();
  column->SetFormula(IsGrouped() ? "count(@1)" : "@1");
  column->AddDSField(*found);
  column->SetHidden(true);
  TRFieldList& columns = FPanel.RFields();
  TResultField& holder = columns.InsertRField(inOrder ? FHolders.size() : columns.Count(), std::move(column));
  holder.GenerateCaption();
  FHolders.push_back(&holder);
}

// ---- Aliases --------------------------------------------------------------------------------------------------------

void TSelectImport::CheckAliases() {
  FPanel.RFields().RegenerateAliases();
  // An alias that the query makes must not hide a column that stands word for word.
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    if (!FStatement.Columns[i].Alias.empty() || FScope.NameOf(FStatement.Columns[i].Expr).Count > 0) continue;
    if (FScope.IsKeptName(FColumns[i]->GetAlias())) FColumns[i]->SetCaption("Column " + std::to_string(i + 1));
  }
  FPanel.RFields().RegenerateAliases();
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    const TSelectColumn& column = FStatement.Columns[i];
    if (column.Alias.empty() || SameText(column.Alias, FColumns[i]->GetAlias())) continue;
    FLog.Refuse({column.AliasToken, column.AliasToken + 1},
                Format("a query would call this column \"%s\": choose another alias, of which there is no second one",
                       {FColumns[i]->GetAlias()}),
                "not kept");
  }
}

}  // namespace tolvi
