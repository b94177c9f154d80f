#include "apps/workbench/results/resultreader.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "apps/workbench/results/fire.h"
#include "apps/workbench/results/typedvalue.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/connect/sqlconnection.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

using TClock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto blockTime = 50ms;
constexpr std::size_t blockRows = 10'000, blockBytes = 4 << 20;
constexpr int blocksAhead = 4;
// How long the end of a statement is waited for before its thread is left to itself: at the end of the reader, when the
// connection changes, and until another run is given a thread of its own.
constexpr auto endPatience = 500ms, changePatience = 50ms, stuckPatience = 2000ms;

struct TJob {
  std::uint64_t Run = 0;
  TConnectionUrl Url;
  TBoundStatement Statement;
  bool QuotedBooleans = false;
  std::size_t MaxRows = 0;
  std::vector<TFieldType> Types;
};

/// The message of a failed statement is its words, a line break, and the statement.
std::pair<QString, QString> SplitMessage(const std::string& message) {
  constexpr std::string_view separator = "\r\nStatement: ";
  const std::size_t at = message.find(separator);
  if (at == std::string::npos) return {ToQString(message), QString()};
  return {ToQString(message.substr(0, at)), ToQString(message.substr(at + separator.size()))};
}

}  // namespace

/// What the threads share. A server that does not answer may keep a thread beyond the reader's life: this lives as long
/// as any of them.
struct TResultReader::TState {
  // Guards all up to the next mutex; never held while the database is asked.
  std::mutex Mutex;
  std::condition_variable Changed;
  TResultReader* Reader = nullptr;
  bool IsQuit = false;
  std::optional<TJob> Job;
  // The run that the reader wants, and the one that the worker is at; 0 for none.
  std::uint64_t Wanted = 0, Running = 0;
  TClock::time_point StaleSince;
  int BlocksAhead = 0, Threads = 0;

  // Guards the runner against its end while it is being cancelled, which may take long.
  std::mutex RunMutex;
  TJQueryRunner* Runner = nullptr;
  std::uint64_t RunnerRun = 0;

  void Want(std::uint64_t run, std::optional<TJob> job) {
    const std::lock_guard lock(Mutex);
    if (Running != 0 && Running == Wanted) StaleSince = TClock::now();
    Wanted = run;
    Job = std::move(job);
    Changed.notify_all();
  }

  bool IsWanted(std::uint64_t run) {
    const std::lock_guard lock(Mutex);
    return !IsQuit && Wanted == run;
  }

  bool IsStuck() {
    const std::lock_guard lock(Mutex);
    return Running != 0 && Running != Wanted && TClock::now() - StaleSince > stuckPatience;
  }

  /// Has the reader do something, if it still wants the run.
  template <typename TCall>
  void Tell(std::uint64_t run, TCall call) {
    const std::lock_guard lock(Mutex);
    if (Reader == nullptr || Wanted != run) return;
    QMetaObject::invokeMethod(
        Reader, [reader = Reader, call = std::move(call)] { call(*reader); }, Qt::QueuedConnection);
  }

  /// Ends statements that nobody wants any more. A statement may be told so before it begins, and not hear it: it is
  /// told again.
  void CancelStaleRuns() {
    constexpr auto pause = 20ms;
    std::unique_lock lock(Mutex);
    while (true) {
      Changed.wait(lock, [this] { return (Running != 0 && Running != Wanted) || (IsQuit && Running == 0); });
      if (Running == 0) break;
      const std::uint64_t stale = Running;
      lock.unlock();
      {
        const std::lock_guard runLock(RunMutex);
        if (Runner != nullptr && RunnerRun == stale) Runner->Cancel();
      }
      lock.lock();
      Changed.wait_for(lock, pause, [this, stale] { return Running != stale; });
    }
    --Threads;
    Changed.notify_all();
  }
};

class TResultReader::TWorker final {
 public:
  explicit TWorker(std::shared_ptr<TState> state) : FState(std::move(state)) {}

  void Loop() {
    while (const std::optional<TJob> job = Next()) {
      Do(*job);
      const std::lock_guard lock(FState->Mutex);
      FState->Running = 0;
      FState->Changed.notify_all();
    }
    FConnection.reset();
    const std::lock_guard lock(FState->Mutex);
    --FState->Threads;
    FState->Changed.notify_all();
  }

 private:
  /// Makes the runner known to those who cancel it, as long as it lives.
  class TKnownRunner final {
   public:
    TKnownRunner(TState& state, std::string_view connectionName, std::uint64_t run)
        : FState(state), FRunner(connectionName) {
      const std::lock_guard lock(FState.RunMutex);
      FState.Runner = &FRunner;
      FState.RunnerRun = run;
    }
    ~TKnownRunner() {
      const std::lock_guard lock(FState.RunMutex);
      FState.Runner = nullptr;
    }
    TKnownRunner(const TKnownRunner&) = delete;
    TKnownRunner& operator=(const TKnownRunner&) = delete;

    TJQueryRunner* operator->() { return &FRunner; }

   private:
    TState& FState;
    TJQueryRunner FRunner;
  };

  std::optional<TJob> Next() {
    std::unique_lock lock(FState->Mutex);
    FState->Changed.wait(lock, [this] { return FState->IsQuit || FState->Job; });
    if (FState->IsQuit) return std::nullopt;
    std::optional<TJob> job = std::exchange(FState->Job, std::nullopt);
    FState->Running = job->Run;
    return job;
  }

  void Do(const TJob& job) {
    try {
      const bool isKept = FConnection && FUrl == job.Url;
      const TClock::time_point start = TClock::now();
      try {
        Connect(job.Url);
        Read(job);
      } catch (const ECancelledError&) {
        throw;
      } catch (const EConnectError&) {
        // A server may have closed a connection that was idle.
        constexpr auto soon = 2s;
        const bool again = isKept && job.Url.Kind != dkSQLite && !FHasBegun && TClock::now() - start < soon;
        FConnection.reset();
        if (!again || !FState->IsWanted(job.Run)) throw;
        Connect(job.Url);
        Read(job);
      }
    } catch (const ECancelledError&) {
      // Whoever cancelled it knows.
    } catch (const std::exception& error) {
      const auto [words, sql] = SplitMessage(error.what());
      FState->Tell(job.Run, [run = job.Run, words = words, sql = sql](TResultReader& reader) {
        reader.TakeFault(run, words, sql);
      });
    }
  }

  void Connect(const TConnectionUrl& url) {
    FHasBegun = false;
    if (FConnection && FUrl == url) return;
    FConnection.reset();
    FUrl = url;
    TSqlConnectOptions options;
    options.ReadOnly = true;
    try {
      FConnection.emplace(url, options);
    } catch (const EConnectError&) {
      // An SQLite file with a write-ahead log, in a folder where nobody has it open, cannot be opened for reading only.
      if (url.Kind != dkSQLite) throw;
      options.ReadOnly = false;
      FConnection.emplace(url, options);
    }
  }

  void Read(const TJob& job) {
    TKnownRunner runner(*FState, FConnection->GetName(), job.Run);
    if (!FState->IsWanted(job.Run)) return;
    runner->Run(job.Statement, job.QuotedBooleans);
    FHasBegun = true;
    const std::vector<std::string>& columns = runner->Columns();
    FState->Tell(job.Run, [run = job.Run, columns](TResultReader& reader) { reader.TakeBegin(run, columns); });
    TRunStats stats;
    TRowBlock block(columns.size());
    TClock::time_point blockStart = TClock::now();
    bool isRow = runner->Next();
    for (; isRow && stats.RowCount < job.MaxRows; isRow = runner->Next()) {
      for (std::size_t i = 0; i < columns.size(); ++i) {
        const TSqlValue value = TypedValue(runner->Value(i), i < job.Types.size() ? job.Types[i] : ftUnknown);
        block.Add(value.Kind, value.Text);
      }
      ++stats.RowCount;
      if (block.GetRowCount() < blockRows && block.GetSize() < blockBytes && TClock::now() - blockStart < blockTime) {
        continue;
      }
      if (!HandOver(job.Run, std::exchange(block, TRowBlock(columns.size())))) return;
      blockStart = TClock::now();
    }
    stats.IsLimited = isRow;
    stats.Time = runner->GetTime();
    // A server would send all the rows that nobody reads.
    if (isRow && job.Url.Kind != dkSQLite) runner->Cancel();
    runner->Close();
    if (block.GetRowCount() > 0 && !HandOver(job.Run, std::move(block))) return;
    FState->Tell(job.Run, [run = job.Run, stats](TResultReader& reader) { reader.TakeEnd(run, stats); });
  }

  /// False when nobody wants the rows any more. Waits while the reader is behind.
  bool HandOver(std::uint64_t run, TRowBlock block) {
    {
      std::unique_lock lock(FState->Mutex);
      FState->Changed.wait(
          lock, [&] { return FState->IsQuit || FState->Wanted != run || FState->BlocksAhead < blocksAhead; });
      if (FState->IsQuit || FState->Wanted != run) return false;
      ++FState->BlocksAhead;
    }
    // Counts down when it was taken or dropped: by whoever lets go of it last.
    const std::shared_ptr<TRowBlock> shared(new TRowBlock(std::move(block)), [state = FState](TRowBlock* taken) {
      delete taken;
      const std::lock_guard lock(state->Mutex);
      --state->BlocksAhead;
      state->Changed.notify_all();
    });
    FState->Tell(run, [run, shared](TResultReader& reader) { reader.TakeRows(run, *shared); });
    return true;
  }

  std::shared_ptr<TState> FState;
  TConnectionUrl FUrl;
  std::optional<TSqlConnection> FConnection;
  bool FHasBegun = false;
};

TResultReader::TResultReader(QObject* parent) : QObject(parent) {}

TResultReader::~TResultReader() { LeaveThreads(endPatience); }

void TResultReader::StartThreads() {
  FState = std::make_shared<TState>();
  FState->Reader = this;
  FState->Threads = 2;
  FWorker = std::thread([state = FState] { TWorker(state).Loop(); });
  FCanceller = std::thread([state = FState] { state->CancelStaleRuns(); });
}

void TResultReader::LeaveThreads(std::chrono::milliseconds patience) {
  if (!FState) return;
  std::unique_lock lock(FState->Mutex);
  FState->Reader = nullptr;
  FState->IsQuit = true;
  FState->Wanted = 0;
  FState->Changed.notify_all();
  const bool isOver = FState->Changed.wait_for(lock, patience, [this] { return FState->Threads == 0; });
  lock.unlock();
  for (std::thread* thread : {&FWorker, &FCanceller}) isOver ? thread->join() : thread->detach();
  FState.reset();
}

void TResultReader::SetConnection(const TConnectionUrl& url) {
  Drop();
  LeaveThreads(changePatience);
  FUrl = url;
}

void TResultReader::Start(TBoundStatement statement, bool quotedBooleans, std::size_t maxRows,
                          std::vector<TFieldType> types) {
  Drop();
  if (FState && FState->IsStuck()) LeaveThreads({});
  if (!FState) StartThreads();
  FRun = ++FLastRun;
  FRowCount = 0;
  FStarted = TClock::now();
  FState->Want(FRun, TJob{FRun, FUrl, std::move(statement), quotedBooleans, maxRows, std::move(types)});
}

void TResultReader::Drop() {
  if (FRun == 0) return;
  FRun = 0;
  FState->Want(0, std::nullopt);
}

void TResultReader::Cancel() {
  if (FRun == 0) return;
  Drop();
  TRunStats stats;
  stats.RowCount = FRowCount;
  stats.Time = std::chrono::duration_cast<std::chrono::microseconds>(TClock::now() - FStarted);
  stats.IsCancelled = true;
  Fire(OnEnd, stats);
}

void TResultReader::TakeBegin(std::uint64_t run, const std::vector<std::string>& columns) {
  if (run == FRun) Fire(OnBegin, columns);
}

void TResultReader::TakeRows(std::uint64_t run, TRowBlock& block) {
  if (run != FRun) return;
  FRowCount += block.GetRowCount();
  Fire(OnRows, std::move(block));
}

void TResultReader::TakeEnd(std::uint64_t run, const TRunStats& stats) {
  if (run != FRun) return;
  FRun = 0;
  Fire(OnEnd, stats);
}

void TResultReader::TakeFault(std::uint64_t run, const QString& words, const QString& sql) {
  if (run != FRun) return;
  FRun = 0;
  Fire(OnFault, words, sql);
}

}  // namespace tolvi
