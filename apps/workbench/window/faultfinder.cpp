#include "apps/workbench/window/faultfinder.h"

#include <algorithm>

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

}  // namespace

TFaultFinder::TFaultFinder(QObject* parent) : QObject(parent) {
  FReader.OnEnd = [this](const TRunStats&) {
    // Without conditions it works: one of them is at fault.
    ++FNext;
    TryNext();
  };
  FReader.OnFault = [this](const QString&, const QString&) {
    const std::string rowID = FTrials[FNext].RowID;
    FTrials.clear();
    if (!rowID.empty() && FFound) FFound(rowID);
  };
}

void TFaultFinder::Stop() {
  FReader.Drop();
  FTrials.clear();
}

void TFaultFinder::Find(const std::function<std::unique_ptr<TJQueryPanel>()>& copyOfQuery, const std::string& limit,
                        std::function<void(const std::string& rowID)> found) {
  Stop();
  FFound = std::move(found);
  const std::unique_ptr<TJQueryPanel> query = copyOfQuery();
  FQuotedBooleans = query->GetDBStruct()->SQLFormats().GetQuoteBool();
  std::vector<TFilterRow*> conditions;
  Collect(query->RootBracket(), conditions);
  if (conditions.empty() || conditions.size() > MostTrials) return;
  std::vector<std::string> rowIDs{""};
  for (const TFilterRow* row : conditions) rowIDs.push_back(row->GetRowID());
  for (const std::string& rowID : rowIDs) {
    const std::unique_ptr<TJQueryPanel> copy = copyOfQuery();
    std::vector<TFilterRow*> rows;
    Collect(copy->RootBracket(), rows);
    for (TFilterRow* row : rows) {
      if (row->GetRowID() != rowID) row->SetEnabled(false);
    }
    if (!limit.empty()) copy->SetSQLLimitClause(limit);
    try {
      TBoundStatement statement = copy->GetBoundStatement(msQuestion);
      // Without its values, the runner would refuse it, not the database.
      const bool isComplete = std::none_of(statement.Values.begin(), statement.Values.end(),
                                           [](const TBoundValue& value) { return value.IsMissing; });
      if (isComplete) FTrials.push_back({rowID, std::move(statement)});
    } catch (const EException&) {
      // What cannot be built is told elsewhere.
    }
    // Without the first trial, nothing could be told of the others.
    if (FTrials.empty()) return;
  }
  FNext = 0;
  TryNext();
}

void TFaultFinder::TryNext() {
  if (FNext < FTrials.size()) FReader.Start(FTrials[FNext].Statement, FQuotedBooleans, 1);
}

}  // namespace tolvi
