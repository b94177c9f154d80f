#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "apps/workbench/results/resultreader.h"
#include <tolvi/query/values.h>

namespace tolvi {

class TJQueryPanel;

/// Finds the condition for which a database refuses a query, as databases do not tell: by trying the query with each of
/// its conditions alone, in the background.
class TFaultFinder final : public QObject {
 public:
  explicit TFaultFinder(QObject* parent = nullptr);

  void SetConnection(const TConnectionUrl& url) { FReader.SetConnection(url); }
  /// `copyOfQuery` gives copies of the query, with the model's way to write it; `limit` is a LIMIT clause, or empty.
  /// `found` gets the ID of the row. It is not called when the fault is not that of one condition, nor once `Stop` or
  /// another `Find` was called. Queries of many conditions are not looked into.
  void Find(const std::function<std::unique_ptr<TJQueryPanel>()>& copyOfQuery, const std::string& limit,
            std::function<void(const std::string& rowID)> found);
  void Stop();

 private:
  struct TTrial {
    // Empty: the query without conditions.
    std::string RowID;
    TBoundStatement Statement;
  };

  void TryNext();

  TResultReader FReader;
  std::vector<TTrial> FTrials;
  std::size_t FNext = 0;
  bool FQuotedBooleans = false;
  std::function<void(const std::string& rowID)> FFound;
};

}  // namespace tolvi
