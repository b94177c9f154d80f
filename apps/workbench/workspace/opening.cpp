#include "apps/workbench/workspace/opening.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QThreadPool>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>

#include <tolvi/connect/queryrunner.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

/// What the threads share.
struct TOpening::TState {
  std::atomic<bool> IsGivenUp{false}, IsConnected{false};
  // Guards the rest.
  std::mutex Mutex;
  std::condition_variable Changed;
  bool IsOver = false;
  std::unique_ptr<TWorkspace> Workspace;
  std::exception_ptr Fault;

  /// The connection is that of the thread which made it, until its driver is handed over.
  void End(std::unique_ptr<TWorkspace> workspace, std::exception_ptr fault, QThread* taker) {
    // Given up meanwhile, it is closed by the thread that has opened it, which is this one.
    const std::lock_guard lock(Mutex);
    if (IsGivenUp) return;
    if (workspace) {
      QSqlDatabase::database(ToQString(workspace->Connection().GetName()), false).driver()->moveToThread(taker);
    }
    Workspace = std::move(workspace);
    Fault = std::move(fault);
    IsOver = true;
    Changed.notify_all();
  }
};

TOpening::TOpening(const TSource& source, const std::string& password, const QString& folder,
                   const TFormatSettings& formats)
    : FState(std::make_shared<TState>()) {
  const auto work = [=, state = FState, self = QPointer(this), taker = thread()] {
    std::unique_ptr<TWorkspace> workspace;
    std::exception_ptr fault;
    try {
      workspace = std::make_unique<TWorkspace>(source, password, folder, formats, [&state] {
        state->IsConnected = true;
        if (state->IsGivenUp) throw ECancelledError("nobody waits for it any more");
      });
    } catch (...) {
      fault = std::current_exception();
    }
    state->End(std::move(workspace), std::move(fault), taker);
    if (QCoreApplication* app = QCoreApplication::instance()) {
      QMetaObject::invokeMethod(
          app,
          [self] {
            if (self && self->OnEnd) self->OnEnd();
          },
          Qt::QueuedConnection);
    }
  };
  // One that hangs keeps no other from starting.
  QThreadPool& pool = *QThreadPool::globalInstance();
  pool.reserveThread();
  pool.startOnReservedThread(work);
}

TOpening::~TOpening() {
  const std::lock_guard lock(FState->Mutex);
  FState->IsGivenUp = true;
  // If it is there, its connection is this thread's already.
  FState->Workspace.reset();
}

bool TOpening::WaitFor(int milliseconds) {
  std::unique_lock lock(FState->Mutex);
  return FState->Changed.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return FState->IsOver; });
}

bool TOpening::IsConnected() const { return FState->IsConnected; }

std::unique_ptr<TWorkspace> TOpening::Take() {
  const std::lock_guard lock(FState->Mutex);
  if (FState->Fault) std::rethrow_exception(FState->Fault);
  return std::move(FState->Workspace);
}

}  // namespace tolvi
