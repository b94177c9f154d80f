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
/// columns without conditions, then each condition alone, or else each column alone. A column is named only when the
/// database takes another one, or the column's own field: else what it refuses is something that all have in common, a
/// table that is gone or the connection itself.
class TFaultFinder final : public QObject {
 public:
  explicit TFaultFinder(QObject* parent = nullptr);

  void SetConnection(const TConnectionUrl& url) { FReader.SetConnection(url); }
  /// `copyOfQuery` gives copies of the query, with the model's way to write it; `limit` is a LIMIT clause, or empty.
  /// `found` is not called when no part alone is at fault, nor once `Stop` or another `Find` was called. Neither
  /// conditions nor columns are looked into where they are many.
  void Find(const std::function<std::unique_ptr<TJQueryPanel>()>& copyOfQuery, const std::string& limit,
            std::function<void(const TFaultPart& part)> found);
  void Stop();

 private:
  struct TTrial {
    TFaultPart Part;
    TBoundStatement Statement;
    // Of a column that says nothing of tables: the column that is asked for beside it. Then refusing tells only what
    // the database did not refuse of that one before.
    std::ptrdiff_t Beside = -1;
  };
  using TCopy = std::function<std::unique_ptr<TJQueryPanel>()>;

  void MakeConditionTrials(const TCopy& copyOfQuery, const std::string& limit);
  void MakeColumnTrials(const TCopy& copyOfQuery, const std::string& limit);
  void TryNext();
  void Taken();
  void Refused(bool isConnected);
  void TellColumn();
  void Tell(TFaultPart part);

  TResultReader FReader;
  // The first one of the conditions is the query without any; the last one of the columns may be of none, but of the
  // field of one.
  std::vector<TTrial> FConditions, FColumns;
  // Those that are being tried.
  const std::vector<TTrial>* FTrials = nullptr;
  std::size_t FNext = 0;
  bool FIsAnyTaken = false;
  std::vector<std::ptrdiff_t> FRefused;
  bool FQuotedBooleans = false;
  std::function<void(const TFaultPart& part)> FFound;
};

}  // namespace tolvi
