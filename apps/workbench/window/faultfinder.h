#pragma once

#include <QObject>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "apps/workbench/results/resultreader.h"
#include <tolvi/query/values.h>

namespace tolvi {

class TJQueryPanel;

/// The part of a query at which a database takes offence: a condition, by the ID of its row, or a column, by its index
/// among all result columns.
struct TFaultPart {
  std::string RowID = {};
  std::ptrdiff_t Column = -1;
};

/// Finds the part for which a database refuses a query, as databases do not tell: by trying, in the background, the
/// columns without conditions, then each condition alone, or else each column alone.
class TFaultFinder final : public QObject {
 public:
  explicit TFaultFinder(QObject* parent = nullptr);

  void SetConnection(const TConnectionUrl& url) { FReader.SetConnection(url); }
  /// `copyOfQuery` gives copies of the query, with the model's way to write it; `limit` is a LIMIT clause, or empty.
  /// `found` is not called when no part alone is at fault, nor once `Stop` or another `Find` was called. Queries of
  /// many conditions or columns are not looked into.
  void Find(const std::function<std::unique_ptr<TJQueryPanel>()>& copyOfQuery, const std::string& limit,
            std::function<void(const TFaultPart& part)> found);
  void Stop();

 private:
  struct TTrial {
    TFaultPart Part;
    TBoundStatement Statement;
  };

  void TryNext();

  TResultReader FReader;
  // The first one of the conditions is the query without any.
  std::vector<TTrial> FConditions, FColumns;
  // Those that are being tried.
  const std::vector<TTrial>* FTrials = nullptr;
  std::size_t FNext = 0;
  bool FQuotedBooleans = false;
  std::function<void(const TFaultPart& part)> FFound;
};

}  // namespace tolvi
