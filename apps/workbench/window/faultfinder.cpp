#include "apps/workbench/window/faultfinder.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

// Of conditions, and of columns.
constexpr std::size_t MostTrials = 40;
constexpr std::string_view FieldAlone = "@1";

/// All rows but brackets that take part.
void Collect(TFilterBracket& bracket, std::vector<TFilterRow*>& conditions) {
  for (TFilterRow& row : bracket) {
    if (row.GetRowType() == frtBracket) {
      Collect(static_cast<TFilterBracket&>(row), conditions);
    } else if (row.GetEnabled()) {
      conditions.push_back(&row);
    }
  }
}

/// Nothing for what cannot be built, which is told elsewhere, and for what lacks values: the runner would refuse it,
/// not the database.
std::optional<TBoundStatement> StatementOf(TJQueryPanel& query, const std::string& limit) {
  if (!limit.empty()) query.SetSQLLimitClause(limit);
  try {
    TBoundStatement statement = query.GetBoundStatement(msQuestion);
    const bool isComplete = std::none_of(statement.Values.begin(), statement.Values.end(),
                                         [](const TBoundValue& value) { return value.IsMissing; });
    if (isComplete) return statement;
  } catch (const EException&) {
    return std::nullopt;
  }
  return std::nullopt;
}

/// Turns off all conditions but that one.
void LeaveCondition(TJQueryPanel& query, const std::string& rowID) {
  std::vector<TFilterRow*> rows;
  Collect(query.RootBracket(), rows);
  for (TFilterRow* row : rows) {
    if (row->GetRowID() != rowID) row->SetEnabled(false);
  }
}

/// Turns off all conditions, takes out all columns but those.
void LeaveColumns(TJQueryPanel& query, const std::vector<std::size_t>& columns) {
  LeaveCondition(query, {});
  for (std::size_t i = query.RFields().Count(); i-- > 0;) {
    if (std::find(columns.begin(), columns.end(), i) == columns.end()) static_cast<void>(query.RFields().Delete(i));
  }
}

}  // namespace

TFaultFinder::TFaultFinder(QObject* parent) : QObject(parent) {
  FReader.OnEnd = [this](const TRunStats&) { Taken(); };
  FReader.OnFault = [this](const QString&, const QString& sql) { Refused(!sql.isEmpty()); };
}

void TFaultFinder::Stop() {
  FReader.Drop();
  FConditions.clear();
  FColumns.clear();
  FRefused.clear();
  FIsAnyTaken = false;
}

void TFaultFinder::Find(const TCopy& copyOfQuery, const std::string& limit,
                        std::function<void(const TFaultPart& part)> found) {
  Stop();
  FFound = std::move(found);
  FQuotedBooleans = copyOfQuery()->GetDBStruct()->SQLFormats().GetQuoteBool();
  MakeConditionTrials(copyOfQuery, limit);
  // Without the first trial, nothing could be told of the others.
  if (FConditions.empty()) return;
  MakeColumnTrials(copyOfQuery, limit);
  FTrials = &FConditions;
  FNext = 0;
  TryNext();
}

void TFaultFinder::MakeConditionTrials(const TCopy& copyOfQuery, const std::string& limit) {
  const std::unique_ptr<TJQueryPanel> query = copyOfQuery();
  std::vector<TFilterRow*> rows;
  Collect(query->RootBracket(), rows);
  if (rows.size() > MostTrials) rows.clear();
  std::vector<std::string> rowIDs{""};
  for (const TFilterRow* row : rows) rowIDs.push_back(row->GetRowID());
  for (const std::string& rowID : rowIDs) {
    const std::unique_ptr<TJQueryPanel> copy = copyOfQuery();
    LeaveCondition(*copy, rowID);
    if (auto statement = StatementOf(*copy, limit)) FConditions.push_back({{rowID}, std::move(*statement)});
    if (FConditions.empty()) return;
  }
}

void TFaultFinder::MakeColumnTrials(const TCopy& copyOfQuery, const std::string& limit) {
  const std::unique_ptr<TJQueryPanel> query = copyOfQuery();
  const TRFieldList& columns = query->RFields();
  if (columns.Count() > MostTrials) return;
  const auto add = [&](const std::vector<std::size_t>& left, std::ptrdiff_t column, bool isFieldAlone = false) {
    const std::unique_ptr<TJQueryPanel> copy = copyOfQuery();
    LeaveColumns(*copy, left);
    if (isFieldAlone) copy->RFields()[0].SetFormula(FieldAlone);
    auto statement = StatementOf(*copy, limit);
    if (!statement) return false;
    const std::ptrdiff_t beside = left.size() > 1 ? FColumns.front().Part.Column : -1;
    FColumns.push_back({{{}, column}, std::move(*statement), beside});
    return true;
  };
  std::vector<std::size_t> others;
  for (std::size_t i = 0; i < columns.Count(); ++i) {
    // One without a field has no table to be asked of.
    if (columns[i].DSFields().empty() || !add({i}, static_cast<std::ptrdiff_t>(i))) others.push_back(i);
  }
  if (!FColumns.empty()) {
    const auto beside = static_cast<std::size_t>(FColumns.front().Part.Column);
    for (const std::size_t other : others) add({beside, other}, static_cast<std::ptrdiff_t>(other));
  }
  for (std::size_t i = 0; i < columns.Count(); ++i) {
    if (!columns[i].DSFields().empty() && columns[i].GetFormula() != FieldAlone && add({i}, -1, true)) return;
  }
}

void TFaultFinder::TryNext() {
  for (; FNext < FTrials->size(); ++FNext) {
    const TTrial& trial = (*FTrials)[FNext];
    if (std::find(FRefused.begin(), FRefused.end(), trial.Beside) != FRefused.end()) continue;
    return FReader.Start(trial.Statement, FQuotedBooleans, 1);
  }
}

void TFaultFinder::Taken() {
  if (FTrials == &FColumns) FIsAnyTaken = true;
  ++FNext;
  TellColumn();
}

void TFaultFinder::Refused(bool isConnected) {
  // A server that is gone is not asked again for each part.
  if (!isConnected) return Stop();
  if (FTrials == &FConditions && FNext > 0) return Tell((*FTrials)[FNext].Part);
  if (FTrials == &FConditions) {
    // Without conditions it fails as well: it is one of the columns, or none of all.
    FTrials = &FColumns;
    FNext = 0;
    return TryNext();
  }
  if (const std::ptrdiff_t column = (*FTrials)[FNext].Part.Column; column >= 0) FRefused.push_back(column);
  ++FNext;
  TellColumn();
}

void TFaultFinder::TellColumn() {
  if (!FIsAnyTaken || FRefused.empty()) return TryNext();
  Tell({{}, FRefused.front()});
}

// A copy, as the trial that it is of goes. NOLINTNEXTLINE(performance-unnecessary-value-param)
void TFaultFinder::Tell(TFaultPart part) {
  Stop();
  // The handler may ask for another search.
  if (const auto found = FFound) found(part);
}

}  // namespace tolvi
