#include <QHash>
#include <algorithm>
#include <numeric>

#include <tolvi/ui/controls/itemmodel.h>

namespace tolvi {

QString FoldedForSearch(const QString& text) {
  const bool plain = std::ranges::all_of(text, [](QChar letter) { return letter.unicode() < 0x80; });
  if (plain) return text.toLower();
  const QString split = text.normalized(QString::NormalizationForm_D);
  QString folded;
  folded.reserve(split.size());
  for (const QChar letter : split)
    if (letter.category() != QChar::Mark_NonSpacing) folded.append(letter);
  return folded.toCaseFolded().replace(u'\u00df', QLatin1String("ss"));
}

TItemModel::TItemModel(bool headings, bool checkable, QObject* parent)
    : QAbstractListModel(parent), FHeadings(headings), FCheckable(checkable) {}

void TItemModel::SetItems(const std::vector<TDropDownItem>& items) {
  beginResetModel();
  FItems = items;
  FFolded.clear();
  FChecked.assign(FItems.size(), false);
  FOrder.resize(FItems.size());
  std::iota(FOrder.begin(), FOrder.end(), 0);
  if (FHeadings) {
    QHash<QString, int> places;
    std::vector<int> placeOfItem;
    placeOfItem.reserve(FItems.size());
    for (const TDropDownItem& item : FItems) {
      const auto known = places.constFind(item.Group);
      placeOfItem.push_back(known != places.cend() ? *known
                                                   : *places.insert(item.Group, static_cast<int>(places.size())));
    }
    std::ranges::stable_sort(FOrder, {}, [&](int item) { return placeOfItem[static_cast<size_t>(item)]; });
  }
  BuildRows();
  endResetModel();
}

void TItemModel::Find(const QString& text) {
  const QString sought = FoldedForSearch(text);
  if (sought == FSought) return;
  beginResetModel();
  FSought = sought;
  BuildRows();
  endResetModel();
}

void TItemModel::BuildRows() {
  if (!FSought.isEmpty() && FFolded.empty()) {
    FFolded.reserve(FItems.size());
    for (const TDropDownItem& item : FItems) FFolded.push_back(FoldedForSearch(item.Text));
  }
  FRows.clear();
  FRows.reserve(FItems.size());
  const QString none;
  const QString* group = &none;
  for (const int item : FOrder) {
    const auto at = static_cast<size_t>(item);
    if (!FSought.isEmpty() && !FFolded[at].contains(FSought)) continue;
    if (FHeadings && FItems[at].Group != *group) FRows.push_back(heading);
    group = &FItems[at].Group;
    FRows.push_back(item);
  }
}

int TItemModel::RowOfItem(int item) const {
  const auto found = item < 0 ? FRows.end() : std::ranges::find(FRows, item);
  return found == FRows.end() ? -1 : static_cast<int>(found - FRows.begin());
}

int TItemModel::BestRow() const {
  const auto begins = [this](int item) {
    return item != heading && FFolded[static_cast<size_t>(item)].startsWith(FSought);
  };
  const auto found = FSought.isEmpty() ? FRows.end() : std::ranges::find_if(FRows, begins);
  return found == FRows.end() ? NearestItemRow(0, 1) : static_cast<int>(found - FRows.begin());
}

int TItemModel::NearestItemRow(int row, int step) const {
  const int count = static_cast<int>(FRows.size());
  row = std::clamp(row, 0, std::max(0, count - 1));
  for (const int direction : {step, -step})
    for (int at = row; at >= 0 && at < count; at += direction)
      if (ItemOfRow(at) != heading) return at;
  return -1;
}

void TItemModel::SetChecked(int item, bool on) {
  FChecked[static_cast<size_t>(item)] = on;
  const QModelIndex changed = index(RowOfItem(item));
  if (changed.isValid()) Q_EMIT dataChanged(changed, changed, {Qt::CheckStateRole});
}

void TItemModel::SetCheckedItems(const std::vector<int>& items) {
  FChecked.assign(FItems.size(), false);
  for (const int item : items) FChecked[static_cast<size_t>(item)] = true;
  if (!FRows.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
}

int TItemModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(FRows.size());
}

QVariant TItemModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const bool isHeading = ItemOfRow(index.row()) == heading;
  const int item = ItemOfRow(index.row() + (isHeading ? 1 : 0));
  const TDropDownItem& shown = FItems[static_cast<size_t>(item)];
  switch (role) {
    case Qt::DisplayRole:
      return isHeading ? shown.Group : shown.Text;
    case Qt::CheckStateRole:
      return FCheckable && !isHeading ? QVariant(IsChecked(item) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case RoleGroup:
      return shown.Group;
    case RoleIsHeading:
      return isHeading;
    default:
      return {};
  }
}

Qt::ItemFlags TItemModel::flags(const QModelIndex& index) const {
  if (!index.isValid() || ItemOfRow(index.row()) == heading) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

}  // namespace tolvi
