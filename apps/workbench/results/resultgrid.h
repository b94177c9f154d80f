#pragma once

#include <QSet>
#include <QTableView>
#include <functional>
#include <memory>
#include <optional>

#include "apps/workbench/controls/keyline.h"
#include "apps/workbench/results/resultmodel.h"
class QMenu;
class QTimer;

namespace tolvi {

class TCellDelegate;
class TRowCopy;

/// Rows of a result, as many as there are. A click on a head sorts, the third one brings back the order of the
/// database; the head's menu hides and fits columns. Ctrl+C copies what is selected, Ctrl+Shift+C with the names of the
/// columns; F2, Enter or a double click shows a value whole.
class TResultGrid final : public QTableView {
  Q_OBJECT

 public:
  explicit TResultGrid(QWidget* parent = nullptr);
  ~TResultGrid() override;

  /// What a long copy does, in words for a status line.
  std::function<void(const QString& words)> OnMessage;

  TResultModel& Model() { return *FModel; }
  const TResultModel& Model() const { return *FModel; }
  /// Shows other rows. Columns of the same names keep the sorting and their widths, if these were the user's or
  /// measured on rows.
  void SetRows(std::shared_ptr<TResultRows> rows);
  /// Paints the rows weaker: they are out of date.
  void SetDimmed(bool isDimmed);
  bool GetDimmed() const;

  /// Copies the selection. Asks before it copies very many cells, and goes on in the background; Escape stops it.
  void Copy(bool hasHeaders);
  bool IsCopying() const { return FCopy != nullptr; }
  void StopCopying();
  /// Shows the current value whole.
  void ShowValue();

  /// The menu of a column's head; the caller owns it.
  std::unique_ptr<QMenu> MakeColumnMenu(int column);
  /// The keys of the commands that act on what is selected.
  static TKeyLines Keys();
  /// Makes columns as wide as their heads and first rows.
  void FitColumn(int column);
  void FitColumns();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void SetUpHeads();
  void FitRowHeight();
  void Fit(int column);
  void SortBy(int column, Qt::SortOrder order);
  int VisibleColumns() const;
  void FillColumnMenu(QMenu& menu, int column);
  void BeginCopy();
  void ContinueCopy();
  void Tell(const QString& words);

  TResultModel* FModel;
  TCellDelegate* FDelegate;
  std::unique_ptr<TRowCopy> FCopy;
  QTimer* FCopyTimer;
  // Columns to which the user has given a width; whether the widths of the others were measured on rows.
  QSet<int> FSized;
  bool FHasFitted = false, FIsFitting = false;
};

}  // namespace tolvi
