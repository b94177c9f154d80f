#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "apps/workbench/workspace/workspace.h"

namespace tolvi {

/// Opens a workspace in a thread of its own: a server may take its time to answer, and its catalogue to be read.
///
///   TOpening opening(source, password, folder, formats);
///   opening.OnEnd = [&] { ... opening.Take() ... };
///
/// One that is destroyed before its end is given up: nobody waits for the server any more.
class TOpening final : public QObject {
 public:
  TOpening(const TSource& source, const std::string& password, const QString& folder, const TFormatSettings& formats);
  ~TOpening() override;

  /// Once, from the event loop.
  std::function<void()> OnEnd;

  /// Waits that long at most, without events; whether it is over.
  bool WaitFor(int milliseconds);
  /// Whether the database has answered.
  bool IsConnected() const;
  /// After the end: the workspace, which belongs to the thread of this object then. Raises what opening it raised.
  std::unique_ptr<TWorkspace> Take();

 private:
  struct TState;
  std::shared_ptr<TState> FState;
};

}  // namespace tolvi
