#pragma once

#include <QAbstractTableModel>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include "apps/workbench/results/celltext.h"
#include "apps/workbench/results/resultrows.h"

namespace tolvi {

/// Rows of a result in the order that a user wants: a table of texts for views. The rows themselves are shared, never
/// copied; they grow by `Append`, in the model's thread, until `SetComplete`.
///
/// 1. Sorting begins when the rows are complete. A few are sorted at once, more of them in another thread; until then
///    the order is the one before.
/// 2. An order, once given out, is never changed.
class TResultModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using TOrder = std::shared_ptr<const std::vector<std::uint32_t>>;

  explicit TResultModel(QObject* parent = nullptr);
  ~TResultModel() override;

  /// The order is about to change: the time to drop what a view keeps of many rows.
  std::function<void()> OnOrderChanging;
  /// `IsSorting` has changed.
  std::function<void()> OnSortingChange;

  /// Other rows, in the order in which they come. Null: no columns, no rows.
  void SetRows(std::shared_ptr<TResultRows> rows);
  std::shared_ptr<const TResultRows> GetRows() const { return FRows; }
  void Append(TRowBlock block);
  /// No more rows will come.
  void SetComplete();
  bool IsComplete() const { return FIsComplete; }

  /// Numbers of rows, or empty for as they came. Never null.
  TOrder GetOrder() const { return FOrder; }
  /// A column below 0: as they came.
  void sort(int column, Qt::SortOrder order) override;
  /// The column that the rows are sorted by, or will be; below 0 for none.
  int GetSortColumn() const { return FSortColumn; }
  Qt::SortOrder GetSortOrder() const { return FSortOrder; }
  bool IsSorting() const { return FSorter.joinable(); }

  /// The number of the row of the result that stands there.
  std::size_t RowAt(int row) const;
  TCellView CellAt(int row, int column) const;
  /// The cell as one line, with the decimals of its column.
  QString LineAt(int row, int column) const;
  /// The kind of the column's first value that is not NULL, as far as one has looked; `svNull` for none.
  TSqlValueKind KindOf(int column) const;
  const TCellText& Texts() const { return FTexts; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  void StartSort();
  void StopSort();
  void TakeOrder(std::vector<std::uint32_t> order);

  std::shared_ptr<TResultRows> FRows;
  TOrder FOrder;
  TCellText FTexts;
  bool FIsComplete = true;
  int FSortColumn = -1;
  Qt::SortOrder FSortOrder = Qt::AscendingOrder;
  std::thread FSorter;
  std::atomic<bool> FStop{false};
  // Tells orders that come too late from the one that is wanted.
  unsigned FSortNumber = 0;
  mutable std::vector<TSqlValueKind> FKinds;
  // Of each column, by as many rows.
  mutable std::vector<std::size_t> FDecimals;
  mutable std::size_t FRowsMeasured = 0;
};

}  // namespace tolvi
