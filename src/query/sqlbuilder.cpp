#include <algorithm>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/rowerror.h>
#include <tolvi/query/sqlbuilder.h>
#include <tolvi/query/sqlfragment.h>

// Walking the query: tables, columns, and the tree of conditions. The texts of single conditions are made in
// conditionsql.cpp, joins and the whole statement in queryresult.cpp.

namespace tolvi {
namespace {

constexpr std::string_view LinkWord(TFilterLinkType linkType) {
  return linkType == fltAll || linkType == fltNotAll ? " AND" : " OR";
}

constexpr bool IsNegated(TFilterLinkType linkType) { return linkType == fltNone || linkType == fltNotAll; }

constexpr std::string_view Opening(TFilterLinkType linkType) { return IsNegated(linkType) ? "NOT (" : "("; }

/// Whether the row is an enabled condition, or a bracket in which there is one.
bool HoldsCondition(const TFilterRow& row) {
  if (!row.GetEnabled() || row.GetRowType() != frtBracket) return row.GetEnabled();
  const auto& bracket = static_cast<const TFilterBracket&>(row);
  for (const TFilterRow& inner : bracket) {
    if (HoldsCondition(inner)) return true;
  }
  return false;
}

/// Errors within the call are told of the row.
template <typename TCall>
decltype(auto) AtRow(const TFilterRow& row, TCall call) {
  try {
    return call();
  } catch (const EJQueryPanelError& error) {
    throw EQueryRowError(error, row.GetRowID());
  }
}

}  // namespace

/// A bracket being walked. What belongs to it is written when its first condition is, so that one without conditions
/// leaves nothing behind.
struct TSQLBuilder::TFrame {
  const TFilterBracket& bracket;
  TFrame* outer;
  bool opened = false;
  bool wroteRow = false;
};

void TSQLBuilder::BuildQuery() { Build(false); }

void TSQLBuilder::BuildOutline() {
  FFilters = false;
  FBuilt = {};
  BuildShape();
}

void TSQLBuilder::BuildFilters() {
  FPanel.QResult().FTableFilters.Clear();
  Build(true);
}

void TSQLBuilder::Build(bool filters) {
  TQueryResult& result = FPanel.QResult();
  const TBuilt now{FPanel.FShapeRevision, result.RFields().GetRevision(), FPanel.GetDBStruct()->GetRevision(), filters,
                   static_cast<bool>(FPanel.OnBuildSQL)};
  FFilters = filters;
  result.FHavingClause.clear();
  result.FWhereClause.Clear();
  // A handler may write another text each time.
  if (now != FBuilt || now.handled) {
    FBuilt = {};
    BuildShape();
  }
  result.FSQL.Clear();
  result.FWarnings = FShapeWarnings;
  FWhere = &result.FWhereClause;
  FHaving = &result.FHavingClause;
  WalkTree();
  if (result.FRTables.Empty()) throw EJQueryPanelError(0, std::string(SNotEnoughInfo));
  if (!filters) FBuilt = now;
}

void TSQLBuilder::BuildShape() {
  TQueryResult& result = FPanel.QResult();
  ++FStamp;
  FShapeWarnings.clear();
  result.FRTables.Clear();
  result.FClausesRevision = 0;
  result.FOrderClause.clear();
  result.FGroupClause.clear();
  FPanel.RefreshMainTable();
  if (TDSTable* main = FPanel.GetMainTable()) result.FRTables.Add(*main, nullptr);
  BuildResultFields();
  if (FPanel.GetActive()) {
    CollectTables(FPanel.RootBracket(), false);
    CollectTables(FPanel.RootBracket(), true);
  } else if (FPanel.RootBracket().GetRowCount() > 0) {
    FShapeWarnings.push_back({{}, "All conditions are left out: the panel is not active"});
  }
  if (!FFilters) WarnOfJoins();
}

// Tables

void TSQLBuilder::AddTables(const TSimpleDSTableList& tables) {
  for (TDSTable* table : tables) AddTable(*table);
}

// Every table but the first is reached from one that takes part, so they are all linked: when the first has a path to
// the new table, each has. The shortest path wins, the earlier table's among equals.
void TSQLBuilder::AddTable(TDSTable& table) {
  TRTableList& tables = FPanel.QResult().FRTables;
  if (tables.Holds(table)) return;
  if (tables.Empty() || FFilters) {
    tables.Add(table, nullptr);
    return;
  }
  const TJCustomDBStructure& model = *FPanel.GetDBStruct();
  TDSPath best(&model);
  for (const TResultTable& candidate : tables) {
    const TDSPath* path = model.GetPath(*candidate.Table, table);
    if (path == nullptr) {
      throw EJQueryPanelError(0, SNoPathBetween, {candidate.Table->GetTableName(), table.GetTableName()});
    }
    if (best.Empty() || path->GetTableCount() < best.GetTableCount()) best.Assign(*path);
    if (best.GetTableCount() <= 2) break;
  }
  const TDSTable* previous = nullptr;
  for (TDSTable* next : best) {
    if (previous != nullptr && !tables.Holds(*next)) {
      tables.Add(*next, previous->LinkByTable(*next));
    }
    previous = next;
  }
}

void TSQLBuilder::CollectTables(const TFilterBracket& bracket, bool having) {
  for (const TFilterRow& row : bracket) {
    if (!row.GetEnabled() || row.GetIsHavingRow() != having) continue;
    if (row.GetRowType() == frtBracket) {
      CollectTables(static_cast<const TFilterBracket&>(row), having);
    } else {
      AtRow(row, [&] { CollectTables(static_cast<const TFilterCond&>(row)); });
    }
  }
}

void TSQLBuilder::CollectTables(const TFilterCond& condition) {
  if (std::string missing = condition.GetMissing(); !missing.empty()) throw EJQueryPanelError(0, missing);
  if (condition.GetRowType() == frtSQLFragment) {
    const std::string fault = static_cast<const TSQLFragment&>(condition).GetFault();
    if (!fault.empty()) throw EJQueryPanelError(0, fault);
  }
  AddTables(condition.GetTables());
}

void TSQLBuilder::WarnOfJoins() {
  TQueryResult& result = FPanel.QResult();
  if (result.GetSQLSyntax() != ssSQL1) return;
  for (const TResultTable& table : result.FRTables) {
    if (table.Link == nullptr || table.Link->GetLinkType() == ltInner) continue;
    FShapeWarnings.push_back(
        {{},
         Format("The outer join of \"%s\" and \"%s\" became an inner one: this syntax has no "
                "outer joins",
                {table.Link->GetTable1()->GetTableName(), table.Link->GetTable2()->GetTableName()})});
  }
}

// Columns

void TSQLBuilder::BuildResultFields() {
  struct TTerm {
    int order;
    std::string text;
  };
  TQueryResult& result = FPanel.QResult();
  TRFieldList& fields = result.RFields();
  fields.GenerateNumbers();
  fields.RegenerateAliases();
  const bool byName = fields.GetJustSorting() || result.GetSQLOptions().Contains(soSortByNames);
  std::vector<TTerm> terms;
  bool anyAggregate = false;
  const char openQuote = FPanel.GetDBStruct()->SQLFormats().GetQuoteSymbol1();
  for (const TResultField& field : fields) {
    const std::string fault = FormulaFault(field.GetFormula(), openQuote, FPanel.GetAllowSQLFragments());
    if (!fault.empty()) {
      throw EJQueryPanelError(0, "Column \"%s\": its formula \"%s\" is no expression: %s",
                              {field.GetCaption(), field.GetFormula(), fault});
    }
    anyAggregate = anyAggregate || field.GetAgregate();
    for (const TDSField* dsField : field.DSFields()) AddTables(dsField->Tables());
    if (field.GetSorting() == stNoSort) continue;
    if (field.GetHidden()) WarnOfHiddenSorting(field);
    TTerm term{field.GetSortOrder(),
               byName || field.GetHidden() ? field.GetOrderName() : std::to_string(field.GetNumber())};
    term.text += field.GetSorting() == stAscending ? " ASC" : " DESC";
    const auto place =
        std::find_if(terms.begin(), terms.end(), [&term](const TTerm& other) { return other.order > term.order; });
    terms.insert(place, std::move(term));
  }
  for (const TTerm& term : terms) {
    if (!result.FOrderClause.empty()) result.FOrderClause += ", ";
    result.FOrderClause += term.text;
  }
  if (!anyAggregate) return;
  for (const TResultField& field : fields) {
    if (field.GetAgregate()) continue;
    if (!result.FGroupClause.empty()) result.FGroupClause += ", ";
    field.AppendSQLExpr(result.FGroupClause);
  }
  if (fields.GetShowsAll() && !result.FGroupClause.empty()) {
    FShapeWarnings.push_back({{}, "Sorting by an aggregate groups the rows, although no column is chosen"});
  }
}

// Where all columns are shown, those of the tables are among them.
void TSQLBuilder::WarnOfHiddenSorting(const TResultField& field) {
  const TQueryResult& result = FPanel.QResult();
  if (!result.GetSQLOptions().Contains(soSelectDistinct)) return;
  if (result.RFields().GetShowsAll() && field.IsPlainField() && field.DSFields()[0]->GetFieldKind() == jfkData) return;
  FShapeWarnings.push_back(
      {{},
       Format("The column \"%s\" sorts without being shown: with DISTINCT, many databases refuse that",
              {field.GetCaption()})});
}

// Conditions

void TSQLBuilder::WalkTree() {
  FSubParamCount = 0;
  if (!FPanel.GetActive()) return;
  const bool hasWhere = WalkRoot(false), hasHaving = WalkRoot(true);
  if (hasWhere && hasHaving) WarnOfSplit();
  if (hasHaving && !FFilters) WarnOfMissingGroups();
}

bool TSQLBuilder::WalkRoot(bool having) {
  FHavingPart = having;
  return Walk(FPanel.RootBracket(), nullptr);
}

bool TSQLBuilder::Walk(const TFilterBracket& bracket, TFrame* outer) {
  TFrame frame{bracket, outer};
  for (TFilterRow& row : bracket) {
    if (!row.GetEnabled()) continue;
    if (row.GetIsHavingRow() != FHavingPart) {
      if (outer != nullptr && HoldsCondition(row)) WarnOfLeftOut(row);
      continue;
    }
    if (row.GetRowType() == frtBracket) {
      Walk(static_cast<TFilterBracket&>(row), &frame);
    } else {
      WriteCondition(static_cast<TFilterCond&>(row), frame);
    }
  }
  Close(frame);
  return frame.opened;
}

void TSQLBuilder::WriteCondition(TFilterCond& condition, TFrame& frame) {
  TQueryResult& result = FPanel.QResult();
  const std::string& text = AtRow(condition, [&]() -> const std::string& { return TextOf(condition); });
  if (FFilters) WarnOfFilter(condition);
  if (FFilters && !FHavingPart) {
    const TSimpleDSTableList& tables = condition.GetTables();
    result.AddTableFilterCondition(tables.Empty() ? nullptr : &tables[0], text);
    return;
  }
  const bool brackets = result.GetSQLOptions().Contains(soBracketConditions);
  BeginRow(frame);
  if (FHavingPart) {
    *FHaving += brackets ? " (" : " ";
  } else {
    FWhere->AddLine(brackets ? "(" : "");
  }
  std::string& out = FHavingPart ? *FHaving : FWhere->Buffer();
  out += text;
  if (brackets) out += ')';
}

void TSQLBuilder::Open(TFrame& frame) {
  if (frame.opened) return;
  frame.opened = true;
  if (frame.outer != nullptr) BeginRow(*frame.outer);
  const std::string_view opening = Opening(frame.bracket.GetLinkType());
  if (!FHavingPart) {
    FWhere->AddLine(opening);
    return;
  }
  if (opening != "(" && !FHaving->empty() && FHaving->back() != '(') *FHaving += ' ';
  *FHaving += opening;
}

void TSQLBuilder::BeginRow(TFrame& frame) {
  Open(frame);
  if (frame.wroteRow) {
    const std::string_view word = LinkWord(frame.bracket.GetLinkType());
    if (FHavingPart) {
      *FHaving += word;
    } else {
      FWhere->Append(word);
    }
  }
  frame.wroteRow = true;
}

void TSQLBuilder::Close(const TFrame& frame) {
  if (!frame.opened) return;
  if (FHavingPart) {
    *FHaving += " )";
  } else {
    FWhere->AddLine(")");
  }
}

void TSQLBuilder::WarnOfLeftOut(const TFilterRow& row) {
  FPanel.QResult().FWarnings.push_back(
      {row.GetRowID(), FHavingPart ? "Left out: a condition that is not on an aggregate stands in a bracket of "
                                     "conditions on aggregates; move it out of the bracket"
                                   : "Left out: a condition on an aggregate stands in a bracket of other conditions; "
                                     "move it out of the bracket"});
}

// WHERE and HAVING must both be fulfilled: that is what "all" and "none" mean, but not "any" and "not all".
void TSQLBuilder::WarnOfSplit() {
  const TFilterBracket& root = FPanel.RootBracket();
  if (root.GetLinkType() != fltAny && root.GetLinkType() != fltNotAll) return;
  FPanel.QResult().FWarnings.push_back(
      {{},
       Format("The root bracket \"%s\" holds for conditions on aggregates and for the others apart: both parts must "
              "be fulfilled",
              {root.GetBracketKind()})});
}

void TSQLBuilder::WarnOfMissingGroups() {
  for (const TResultField& field : FPanel.RFields()) {
    if (field.GetAgregate()) return;
  }
  FPanel.QResult().FWarnings.push_back({{},
                                        "The conditions on aggregates take all rows as one group: only a column that "
                                        "is an aggregate groups them by the other columns"});
}

void TSQLBuilder::WarnOfFilter(const TFilterCond& condition) {
  if (FHavingPart) {
    FPanel.QResult().FWarnings.push_back(
        {condition.GetRowID(), "Left out: a table filter cannot hold a condition on an aggregate"});
    return;
  }
  if (condition.GetTables().Count() > 1) {
    FPanel.QResult().FWarnings.push_back(
        {condition.GetRowID(), Format("The filter of the table \"%s\" holds a condition on other tables, too",
                                      {condition.GetTables()[0].GetTableName()})});
  }
  for (const TFilterBracket* at = condition.GetParentBracket(); at != nullptr; at = at->GetParentBracket()) {
    const bool meansAll = at->GetLinkType() == fltAll || (at->GetRowCount() == 1 && at->GetLinkType() == fltAny);
    if (meansAll) continue;
    FPanel.QResult().FWarnings.push_back(
        {condition.GetRowID(),
         Format("A table filter cannot keep the meaning of the bracket \"%s\"", {at->GetBracketKind()})});
    return;
  }
}

}  // namespace tolvi
