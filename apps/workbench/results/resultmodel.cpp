#include "apps/workbench/results/resultmodel.h"

#include <QFont>
#include <algorithm>
#include <limits>
#include <utility>

#include "apps/workbench/results/resultsort.h"
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr std::size_t rowsSortedAtOnce = 5'000;

TResultModel::TOrder AsTheyCame() { return std::make_shared<const std::vector<std::uint32_t>>(); }

}  // namespace

TResultModel::TResultModel(QObject* parent) : QAbstractTableModel(parent), FOrder(AsTheyCame()) {}

TResultModel::~TResultModel() {
  OnSortingChange = nullptr;
  StopSort();
}

void TResultModel::SetRows(std::shared_ptr<TResultRows> rows) {
  StopSort();
  beginResetModel();
  FRows = std::move(rows);
  FOrder = AsTheyCame();
  FKinds.clear();
  FDecimals.clear();
  FIsComplete = false;
  FSortColumn = -1;
  endResetModel();
}

void TResultModel::Append(TRowBlock block) {
  constexpr auto most = static_cast<std::size_t>(std::numeric_limits<int>::max());
  const std::size_t count = FRows->GetRowCount();
  if (block.GetRowCount() == 0 || block.GetRowCount() > most - count) return;
  beginInsertRows({}, static_cast<int>(count), static_cast<int>(count + block.GetRowCount()) - 1);
  FRows->Append(std::move(block));
  endInsertRows();
}

void TResultModel::SetComplete() {
  if (FIsComplete) return;
  FIsComplete = true;
  if (FSortColumn >= 0) StartSort();
}

void TResultModel::sort(int column, Qt::SortOrder order) {
  if (column >= columnCount()) column = -1;
  if (column == FSortColumn && (order == FSortOrder || column < 0)) return;
  FSortColumn = column;
  FSortOrder = order;
  StopSort();
  if (column < 0) {
    if (!FOrder->empty()) TakeOrder({});
  } else if (FIsComplete && FRows) {
    StartSort();
  }
}

void TResultModel::StartSort() {
  const auto sorted = [rows = FRows, column = static_cast<std::size_t>(FSortColumn),
                       isDescending = FSortOrder == Qt::DescendingOrder,
                       this] { return SortedOrder(*rows, column, isDescending, QLocale(), FStop); };
  FStop = false;
  if (FRows->GetRowCount() <= rowsSortedAtOnce) return TakeOrder(*sorted());
  FSorter = std::thread([this, sorted, number = ++FSortNumber] {
    auto order = sorted();
    if (!order) return;
    // The thread ends before the model does.
    QMetaObject::invokeMethod(
        this,
        [this, number, order = std::move(*order)]() mutable {
          if (number != FSortNumber) return;
          FSorter.join();
          TakeOrder(std::move(order));
          if (OnSortingChange) OnSortingChange();
        },
        Qt::QueuedConnection);
  });
  if (OnSortingChange) OnSortingChange();
}

void TResultModel::StopSort() {
  if (!FSorter.joinable()) return;
  FStop = true;
  ++FSortNumber;
  FSorter.join();
  if (OnSortingChange) OnSortingChange();
}

void TResultModel::TakeOrder(std::vector<std::uint32_t> order) {
  if (OnOrderChanging) OnOrderChanging();
  Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
  const QModelIndexList before = persistentIndexList();
  std::vector<std::size_t> rows;
  for (const QModelIndex& index : before) rows.push_back(RowAt(index.row()));
  FOrder = std::make_shared<const std::vector<std::uint32_t>>(std::move(order));
  std::vector<std::uint32_t> places;
  if (!before.isEmpty() && !FOrder->empty()) {
    places.resize(FOrder->size());
    for (std::size_t i = 0; i < FOrder->size(); ++i) places[(*FOrder)[i]] = static_cast<std::uint32_t>(i);
  }
  QModelIndexList after;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t place = places.empty() ? rows[i] : places[rows[i]];
    after << index(static_cast<int>(place), before[static_cast<qsizetype>(i)].column());
  }
  changePersistentIndexList(before, after);
  Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

std::size_t TResultModel::RowAt(int row) const {
  const auto number = static_cast<std::size_t>(row);
  return FOrder->empty() ? number : (*FOrder)[number];
}

TCellView TResultModel::CellAt(int row, int column) const {
  return FRows->Cell(RowAt(row), static_cast<std::size_t>(column));
}

QString TResultModel::LineAt(int row, int column) const {
  if (const std::size_t count = std::min(FRows->GetRowCount(), RowsLookedInto);
      FDecimals.empty() || count != FRowsMeasured) {
    FRowsMeasured = count;
    FDecimals.clear();
    for (std::size_t i = 0; i < FRows->Columns().size(); ++i) FDecimals.push_back(ShownDecimals(*FRows, i));
  }
  return FTexts.Line(CellAt(row, column), FDecimals[static_cast<std::size_t>(column)]);
}

TSqlValueKind TResultModel::KindOf(int column) const {
  FKinds.resize(static_cast<std::size_t>(columnCount()), svNull);
  TSqlValueKind& kind = FKinds[static_cast<std::size_t>(column)];
  const std::size_t count = FRows ? std::min(FRows->GetRowCount(), RowsLookedInto) : 0;
  for (std::size_t row = 0; row < count && kind == svNull; ++row) {
    kind = FRows->Cell(row, static_cast<std::size_t>(column)).Kind;
  }
  return kind;
}

int TResultModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !FRows ? 0 : static_cast<int>(FRows->GetRowCount());
}

int TResultModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || !FRows ? 0 : static_cast<int>(FRows->Columns().size());
}

QVariant TResultModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const TCellView cell = CellAt(index.row(), index.column());
  switch (role) {
    case Qt::DisplayRole:
      return LineAt(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return QVariant::fromValue((IsRightAligned(cell.Kind) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::FontRole: {
      if (cell.Kind != svNull) return {};
      QFont font;
      font.setItalic(true);
      return font;
    }
    default:
      return {};
  }
}

QVariant TResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    return role == Qt::DisplayRole ? QVariant(QLocale().toString(section + 1)) : QVariant();
  }
  if (section < 0 || section >= columnCount()) return {};
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
    return ToQString(FRows->Columns()[static_cast<std::size_t>(section)]);
  }
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue((IsRightAligned(KindOf(section)) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  }
  return {};
}

}  // namespace tolvi
