#include "apps/workbench/window/faultfinder.h"

#include <algorithm>
#include <optional>

#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

constexpr std::size_t MostTrials = 40;

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

void LeaveColumn(TJQueryPanel& query, std::size_t column) {
  LeaveCondition(query, {});
  for (std::size_t i = query.RFields().Count(); i-- > 0;) {
    if (i != column) static_cast<void>(query.RFields().Delete(i));
  }
}

}  // namespace

TFaultFinder::TFaultFinder(QObject* parent) : QObject(parent) {
  FReader.OnEnd = [this](const TRunStats&) {
    ++FNext;
    TryNext();
  };
  FReader.OnFault = [this](const QString&, const QString&) {
    if (FTrials == &FConditions && FNext == 0) {
      // Without conditions it fails as well: it is one of the columns.
      FTrials = &FColumns;
      return TryNext();
    }
    const TFaultPart part = (*FTrials)[FNext].Part;
    Stop();
    if (FFound) FFound(part);
  };
}

void TFaultFinder::Stop() {
  FReader.Drop();
  FConditions.clear();
  FColumns.clear();
}

void TFaultFinder::Find(const std::function<std::unique_ptr<TJQueryPanel>()>& copyOfQuery, const std::string& limit,
                        std::function<void(const TFaultPart& part)> found) {
  Stop();
  FFound = std::move(found);
  const std::unique_ptr<TJQueryPanel> query = copyOfQuery();
  FQuotedBooleans = query->GetDBStruct()->SQLFormats().GetQuoteBool();
  std::vector<TFilterRow*> rows;
  Collect(query->RootBracket(), rows);
  const std::size_t columns = query->RFields().Count();
  if (rows.size() + columns > MostTrials) return;
  std::vector<std::string> rowIDs{""};
  for (const TFilterRow* row : rows) rowIDs.push_back(row->GetRowID());
  for (const std::string& rowID : rowIDs) {
    const std::unique_ptr<TJQueryPanel> copy = copyOfQuery();
    LeaveCondition(*copy, rowID);
    if (auto statement = StatementOf(*copy, limit)) FConditions.push_back({{rowID}, std::move(*statement)});
    // Without the first trial, nothing could be told of the others.
    if (FConditions.empty()) return;
  }
  for (std::size_t i = 0; i < columns; ++i) {
    const std::unique_ptr<TJQueryPanel> copy = copyOfQuery();
    LeaveColumn(*copy, i);
    if (auto statement = StatementOf(*copy, limit)) {
      FColumns.push_back({{{}, static_cast<std::ptrdiff_t>(i)}, std::move(*statement)});
    }
  }
  FTrials = &FConditions;
  FNext = 0;
  TryNext();
}

void TFaultFinder::TryNext() {
  if (FNext < FTrials->size()) FReader.Start((*FTrials)[FNext].Statement, FQuotedBooleans, 1);
}

}  // namespace tolvi
