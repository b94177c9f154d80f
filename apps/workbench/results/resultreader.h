#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "apps/workbench/results/resultrows.h"
#include <tolvi/connect/connecturl.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/query/values.h>

namespace tolvi {

/// How a run ended.
struct TRunStats {
  std::size_t RowCount = 0;
  /// How long the database took; for a run that was cancelled, how long it has lasted.
  std::chrono::microseconds Time{};
  /// There are more rows than were wanted.
  bool IsLimited = false;
  bool IsCancelled = false;
};

/// Runs one statement at a time on a connection of its own, in a thread of its own, and hands over rows in blocks. All
/// methods return at once, also while a server does not answer, and all events fire in the thread of the object, from
/// its event loop (but see `Cancel`). A handler may destroy the reader.
///
/// The connection is opened for reading at the first run and kept. It is opened anew for another URL, or when it has
/// broken. The worker reads only a few blocks ahead of what the handlers have taken.
class TResultReader final : public QObject {
 public:
  explicit TResultReader(QObject* parent = nullptr);
  /// Ends the statement that runs.
  ~TResultReader() override;

  /// The columns, before any row.
  std::function<void(const std::vector<std::string>& columns)> OnBegin;
  std::function<void(TRowBlock&& block)> OnRows;
  /// Each run ends with one of these two, unless another one takes its place.
  std::function<void(const TRunStats& stats)> OnEnd;
  /// The database's words, and the statement as it was sent; that is empty when there is no connection.
  std::function<void(const QString& words, const QString& sql)> OnFault;

  /// The URL holds its password. Ends what runs, without an event, and closes the connection before.
  void SetConnection(const TConnectionUrl& url);
  /// Ends what runs, without an event, and runs this. At most `maxRows` rows come. `types`: those of the columns, where
  /// the query knows them (see `TypedValue`).
  void Start(TBoundStatement statement, bool quotedBooleans, std::size_t maxRows, std::vector<TFieldType> types = {});
  /// Ends what runs and fires `OnEnd`, before it returns. Nothing when nothing runs.
  void Cancel();
  /// Ends what runs, without an event.
  void Drop();
  bool IsRunning() const { return FRun != 0; }

 private:
  struct TState;
  class TWorker;

  void TakeBegin(std::uint64_t run, const std::vector<std::string>& columns);
  void TakeRows(std::uint64_t run, TRowBlock& block);
  void TakeEnd(std::uint64_t run, const TRunStats& stats);
  void TakeFault(std::uint64_t run, const QString& words, const QString& sql);
  void StartThreads();
  /// They end by themselves; waits for them no longer than that.
  void LeaveThreads(std::chrono::milliseconds patience);

  std::shared_ptr<TState> FState;
  std::thread FWorker, FCanceller;
  TConnectionUrl FUrl;
  // The run whose events count; 0 for none.
  std::uint64_t FRun = 0, FLastRun = 0;
  std::size_t FRowCount = 0;
  std::chrono::steady_clock::time_point FStarted;
};

}  // namespace tolvi
