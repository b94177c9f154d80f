#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "apps/workbench/results/resultrows.h"
#include <tolvi/connect/connecturl.h>
#include <tolvi/query/values.h>
class QAction;

namespace tolvi {

class TResultGrid;

/// The rows of a query: a bar with Run, Stop, the live preview and what came; below it the grid, or why there is none.
/// Statements run in a thread of their own; the window never waits.
///
/// Object names: "results.run", "results.stop", "results.preview", "results.status", "results.grid", "results.empty",
/// "results.fault", "results.faultAction", "results.faultCopy"; the actions "results.runAction" and so on.
class TResultPane final : public QWidget {
  Q_OBJECT

 public:
  explicit TResultPane(QWidget* parent = nullptr);
  ~TResultPane() override;

  /// The user wants the whole result (button, F5): the host calls `Run`.
  std::function<void()> OnRunRequest;
  /// The user, or `SetPreview`, has switched the live preview.
  std::function<void()> OnPreviewChange;
  /// The database refused: its words, and the statement where there is one. They are on show already.
  std::function<void(const QString& words, const QString& sql)> OnFault;
  /// What `IsRunning` or `GetRows` gives has changed: rows begin to come, or a run is over, whatever became of it.
  std::function<void()> OnStateChange;
  /// A run is over: all rows are there, or it was stopped, or failed (after `OnFault`).
  std::function<void()> OnEnd;

  /// Where statements run from now on. The URL holds its password. Rows of the connection before go.
  void SetConnection(const TConnectionUrl& url);
  /// There is no database; `why` stands in place of rows. `Preview` and `Run` do nothing.
  void SetNoConnection(const QString& why);

  /// Shows the first rows, in the place of what runs. Old rows stay, dimmed, until the new ones are there. Calls that
  /// follow each other quickly run the last one alone. Does nothing while the live preview is off.
  void Preview(const TBoundStatement& statement, bool quotedBooleans, std::size_t rows = 100, TKnownColumns known = {});
  /// Shows at most `maxRows` rows as they come, in the place of what runs.
  void Run(const TBoundStatement& statement, bool quotedBooleans, std::size_t maxRows, TKnownColumns known = {});
  /// Stops what runs; rows that came stay.
  void Cancel();

  /// Words of the host in place of rows, as of a query that cannot be built. Stops what runs.
  void ShowFault(const QString& words);
  /// The same without a fault, as of a query without columns.
  void ShowNothing(const QString& why);
  /// Offers a button beside the fault that is on show, as "Show in query"; it goes with the fault.
  void SetFaultAction(const QString& caption, std::function<void()> action);

  /// Whether the live preview is on. Default true.
  bool GetPreview() const;
  void SetPreview(bool isOn);

  bool IsRunning() const;
  /// How much of the result `GetRows` is; a preview, or a run that goes on or was stopped, is the beginning.
  TExtent GetExtent() const;
  /// What is on show; null where that is no rows. Rows are added, in the window's thread, while `IsRunning`; from then
  /// on they never change, and any thread may read them.
  std::shared_ptr<const TResultRows> GetRows() const;
  /// The order in which the user sees them: numbers of rows, or empty for as they came. Never null, never changed.
  std::shared_ptr<const std::vector<std::uint32_t>> GetOrder() const;
  /// What the status says, as "First 100 rows · 0.012 s".
  QString GetStatusText() const;
  TResultGrid& Grid();
  /// What takes keys: the rows, or what is said of a fault, or else the button that runs.
  QWidget& ShownPart();

  /// For menus. Their short cuts work in the whole window.
  QAction* RunAction() const;
  QAction* StopAction() const;
  QAction* PreviewAction() const;
  /// Adds a button to the bar.
  void AddAction(QAction* action);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  struct TParts;

  std::unique_ptr<TParts> FParts;
};

}  // namespace tolvi
