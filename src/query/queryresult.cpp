#include <algorithm>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/queryresult.h>

namespace tolvi {

// Lists

TResultTable& TRTableList::operator[](std::size_t index) {
  if (index >= FItems.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  return FItems[index];
}

const TResultTable& TRTableList::operator[](std::size_t index) const { return const_cast<TRTableList&>(*this)[index]; }

void TRTableList::Delete(std::size_t index) {
  (*this)[index].Processed = false;
  FItems.erase(FItems.begin() + static_cast<std::ptrdiff_t>(index));
}

std::ptrdiff_t TRTableList::IndexOf(const TDSTable& table) const {
  const auto found =
      std::find_if(FItems.begin(), FItems.end(), [&table](const TResultTable& item) { return item.Table == &table; });
  return found == FItems.end() ? -1 : found - FItems.begin();
}

TResultTable* TRTableList::Find(std::string_view tableAlias) {
  for (TResultTable& item : FItems) {
    if (SameText(item.Table->GetTableAlias(), tableAlias)) return &item;
  }
  return nullptr;
}

bool TRTableList::Holds(const TDSTable& table) const {
  if (IndexOf(table) >= 0) return true;
  return std::any_of(FItems.begin(), FItems.end(), [&table](const TResultTable& item) {
    return SameText(item.Table->GetTableAlias(), table.GetTableAlias());
  });
}

void TRTableList::ResetAll() {
  for (TResultTable& item : FItems) item.Processed = false;
}

const TJTableFilter& TJTableFilterList::operator[](std::size_t index) const {
  if (index >= FItems.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  return FItems[index];
}

TJTableFilter* TJTableFilterList::FindByTable(const TDSTable* table) {
  const auto found =
      std::find_if(FItems.begin(), FItems.end(), [table](const TJTableFilter& item) { return item.Table == table; });
  return found == FItems.end() ? nullptr : &*found;
}

TJTableFilter* TJTableFilterList::FindByTableName(std::string_view tableName) {
  for (TJTableFilter& item : FItems) {
    if (item.Table != nullptr && SameText(item.Table->GetTableName(), tableName)) return &item;
  }
  return nullptr;
}

// Lines

void TSQLLines::Clear() {
  FText.clear();
  FStarts.clear();
}

void TSQLLines::AddLine(std::string_view text) {
  if (!FStarts.empty()) FText += CrLf;
  FStarts.push_back(FText.size());
  FText += text;
}

std::string_view TSQLLines::Line(std::size_t index) const {
  const std::size_t start = FStarts.at(index);
  const std::size_t end = index + 1 < FStarts.size() ? FStarts[index + 1] - CrLf.size() : FText.size();
  return std::string_view(FText).substr(start, end - start);
}

void TSQLLines::AddLines(const TSQLLines& lines) {
  if (lines.Empty()) return;
  if (!FStarts.empty()) FText += CrLf;
  const std::size_t offset = FText.size();
  FText += lines.FText;
  for (std::size_t start : lines.FStarts) FStarts.push_back(offset + start);
}

TStrings TSQLLines::ToStrings() const {
  TStrings result;
  result.Reserve(Count());
  for (std::size_t i = 0; i < Count(); ++i) result.Add(Line(i));
  return result;
}

// Query result

TQueryResult::TQueryResult(TJQueryPanel& panel) : FQueryPanel(panel), FRFields(nullptr, &panel) {}

void TQueryResult::GetResFieldCaptions(TStrings& captions) const {
  captions.Clear();
  for (const TResultField& field : FRFields) {
    if (!field.GetHidden()) captions.Add(field.GetCaption());
  }
}

void TQueryResult::SetSQLOptions(TSQLOptions options) {
  if (FSQLOptions == options) return;
  FQueryPanel.HoldBack();
  FSQLOptions = options;
  FRFields.SetAsciiAliases(options.Contains(soASCIIRFields));
  FRFields.SetQuoteAliases(options.Contains(soQuoteAliases));
  FQueryPanel.ShapeChanged();
  FQueryPanel.Release();
}

void TQueryResult::SetSQLSyntax(TSQLSyntax syntax) {
  if (FSQLSyntax == syntax) return;
  FSQLSyntax = syntax;
  FQueryPanel.ShapeChanged();
}

TStrings TQueryResult::GetSQL() { return GetSQLLines().ToStrings(); }

const std::string& TQueryResult::GetSQLText() { return GetSQLLines().Text(); }

const TSQLLines& TQueryResult::GetSQLLines() {
  RefreshClauses();
  if (FSQL.Empty()) Assemble(FSQL, FWhereClause, FHavingClause);
  return FSQL;
}

void TQueryResult::RefreshClauses() {
  if (FClausesRevision == FQueryPanel.FShapeRevision) return;
  FClausesRevision = FQueryPanel.FShapeRevision;
  FSelectClause.clear();
  FFromBuilt = false;
  FSQL.Clear();
}

void TQueryResult::Assemble(TSQLLines& out, const TSQLLines& where, std::string_view having) {
  const auto addClause = [&out](std::string_view keyword, std::string_view text) {
    if (text.empty()) return;
    out.AddLine(keyword);
    out.Append(text);
  };
  RefreshClauses();
  if (FSelectClause.empty()) FSelectClause = MakeSelectClause();
  BuildFrom();
  out.Clear();
  out.Reserve(FSelectClause.size() + FFromLines.Text().size() + where.Text().size() + having.size() +
              FGroupClause.size() + FOrderClause.size() + 128);
  out.AddLine(FSelectClause);
  out.AddLines(FFromLines);
  if (FWasSQL1Joins || !where.Empty()) {
    out.AddLine("WHERE");
    if (FWasSQL1Joins && AddSQL1Joins(out) && !where.Empty()) out.Append(" AND");
    out.AddLines(where);
  }
  addClause("GROUP BY ", FGroupClause);
  addClause("HAVING ", having);
  addClause("ORDER BY ", FOrderClause);
  addClause("LIMIT ", FQueryPanel.GetSQLLimitClause());
}

std::string TQueryResult::GetSelectClause() { return MakeSelectClause(); }

std::string TQueryResult::MakeSelectClause() {
  if (FSQLOptions.Contains(soASCIIRFields)) FRFields.ReplaceNonAsciiAliases();
  std::string text = FSQLOptions.Contains(soSelectDistinct) ? "SELECT DISTINCT " : "SELECT ";
  if (!FQueryPanel.GetSQLTopClause().empty()) text.append(" TOP ").append(FQueryPanel.GetSQLTopClause()).append(" ");
  if (FRFields.GetShowsAll()) return text + "*";
  bool isFirst = true;
  for (const TResultField& field : FRFields) {
    if (field.GetHidden()) continue;
    if (!std::exchange(isFirst, false)) text += ", ";
    field.AppendSelectExpr(text);
  }
  return text;
}

TStrings TQueryResult::GetFromClause() {
  BuildFrom();
  return FFromLines.ToStrings();
}

void TQueryResult::BuildFrom() {
  if (FRTables.Empty()) throw EJQueryPanelError(8, std::string(SQueryNotBuilt));
  RefreshClauses();
  if (FFromBuilt) return;
  constexpr std::string_view indent = "     ";
  FWasSQL1Joins = false;
  FRTables.ResetAll();
  std::string joins;
  BuildTableJoins(0, indent, joins, true);
  FFromLines.Clear();
  FFromLines.AddLine("FROM ");
  bool first = true;
  for (std::string_view line : SplitLines(joins)) {
    const bool blank = line.find_first_not_of(' ') == std::string_view::npos;
    const bool last = line.data() + line.size() == joins.data() + joins.size();
    if (blank && last) break;
    FFromLines.AddLine(first ? indent : "");
    FFromLines.Append(line);
    first = false;
  }
  FFromBuilt = true;
}

void TQueryResult::BuildTableJoins(std::size_t table, std::string_view indent, std::string& out, bool addTableExpr) {
  FRTables[table].Processed = true;
  const TDSTable& from = *FRTables[table].Table;
  if (addTableExpr) out += from.GetFromExpr();
  for (std::size_t i = 0; i < FRTables.Count(); ++i) {
    TResultTable& joined = FRTables[i];
    bool leftSide = false;
    if (joined.Processed || joined.Link == nullptr || !joined.Link->ContainsTableEx(from, leftSide)) continue;
    if (!IsCommaStyle(FSQLSyntax)) {
      AppendJoin(i, leftSide, indent, out);
      continue;
    }
    FWasSQL1Joins = true;
    out.append(", ").append(CrLf).append(indent).append(joined.Table->GetFromExpr());
    BuildTableJoins(i, indent, out, false);
  }
}

void TQueryResult::AppendJoin(std::size_t joined, bool leftSide, std::string_view indent, std::string& out) {
  const TResultTable& table = FRTables[joined];
  const std::string_view outer = FQueryPanel.GetDBStruct()->SQLFormats().GetUseOuterKeyword() ? " OUTER" : "";
  const TDSLinkType linkType = table.Link->GetLinkType();
  out += ' ';
  if (linkType == ltInner) {
    out += "INNER";
  } else if (linkType == ltOuterFull) {
    out += "FULL";
  } else {
    out.append((linkType == ltOuterLeft) == leftSide ? "LEFT" : "RIGHT").append(outer);
  }
  out += " JOIN ";
  const std::string condition = table.Link->GetSQLExpr(lemPlain);
  std::string sub;
  if (!FSQLOptions.Contains(soBracketJoins)) {
    BuildTableJoins(joined, indent, sub, false);
    out.append(" ").append(table.Table->GetFromExpr()).append(" ON ").append(condition);
    out.append(CrLf).append(indent).append(Trim(sub));
    return;
  }
  const std::string newIndent = std::string(indent) + "    ";
  BuildTableJoins(joined, newIndent, sub, true);
  if (sub.find('\n') == std::string::npos) {
    out.append(" ").append(Trim(sub));
  } else {
    out.append(CrLf).append(newIndent).append(sub);
  }
  out.insert(0, "(");
  out.append(CrLf).append(newIndent).append("ON ").append(condition).append(")");
}

bool TQueryResult::AddSQL1Joins(TSQLLines& lines) {
  bool added = false;
  for (const TResultTable& table : FRTables) {
    if (table.Link == nullptr) continue;
    if (added) lines.Append(" AND");
    lines.AddLine("   ");
    lines.Append(AdjustCondition(table.Link->GetSQLExpr(FSQLSyntax == ssOracle ? lemOuterMarks : lemPlain)));
    added = true;
  }
  return added;
}

std::string TQueryResult::GetJoinConditions() {
  TSQLLines lines;
  AddSQL1Joins(lines);
  return lines.Text();
}

std::string TQueryResult::AdjustCondition(std::string_view text) const {
  if (!FSQLOptions.Contains(soBracketConditions)) return std::string(text);
  return "(" + std::string(text) + ")";
}

void TQueryResult::AddCondition(std::string_view text) {
  FWhereClause.AddLine(AdjustCondition(text));
  FSQL.Clear();
}

void TQueryResult::AddHavingCondition(std::string_view text) {
  FHavingClause.append(" ").append(AdjustCondition(text));
  FSQL.Clear();
}

void TQueryResult::AddTableFilterCondition(TDSTable* table, std::string_view text) {
  TJTableFilter* filter = FTableFilters.FindByTable(table);
  if (filter == nullptr) filter = &FTableFilters.Add(table);
  if (!filter->Filter.empty()) filter->Filter += " AND ";
  filter->Filter += text;
}

// Parameters

TSQLParam& TQueryResult::AddParameter(TFilterCond& condition, int valueIndex) {
  condition.SetValueIsParam(valueIndex, true);
  return *condition.GetParam(valueIndex);
}

void TQueryResult::DeleteParameters(TFilterCond& condition) {
  FQueryPanel.HoldBack();
  condition.SetValueIsParam(1, false);
  condition.SetValueIsParam(2, false);
  FQueryPanel.Release();
}

void TQueryResult::DeleteParameter(TSQLParam& param) {
  param.GetCondition().SetValueIsParam(param.GetValueIndex(), false);
}

TSQLParam* TQueryResult::FindParameter(std::string_view name) const {
  const std::ptrdiff_t index = FParams.IndexByName(name);
  return index < 0 ? nullptr : &FParams[static_cast<std::size_t>(index)];
}

TSQLParam* TQueryResult::FindParameterByCondition(const TFilterCond& condition, int valueIndex) const {
  return condition.GetParam(valueIndex);
}

void TQueryResult::ClearParams() {
  FQueryPanel.HoldBack();
  while (FParams.Count() > 0) DeleteParameter(FParams[FParams.Count() - 1]);
  FQueryPanel.Release();
}

std::string TQueryResult::GenerateParamDisplayName(const TSQLParam& param) const {
  std::string name = FQueryPanel.GetTitle("ttlParameter");
  if (param.GetCondition().GetValueCount() > 1) name += " " + std::to_string(param.GetValueIndex());
  return name;
}

void TQueryResult::ForgetBuilt() { ++FQueryPanel.FShapeRevision; }

void TQueryResult::DbStructChanged() { FRFields.SetDBStruct(FQueryPanel.GetDBStruct()); }

}  // namespace tolvi
