#include "apps/workbench/store/storemodel.h"

#include <QDateTime>
#include <QHash>
#include <QLocale>
#include <QTimeZone>
#include <algorithm>
#include <limits>
#include <utility>

#include <tolvi/ui/controls/itemmodel.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

QString OutsideOf(const TJStoredQuery& query) {
  if (!query.IsChangedOutside()) return {};
  const TQueryEntry& entry = query.Entry();
  if (entry.Revision.empty()) return TStoreModel::tr("Deleted by somebody else");
  QDateTime at = QDateTime::fromString(ToQString(entry.ChangedAt), QStringLiteral("yyyy-MM-dd hh:mm:ss"));
  if (!at.isValid()) return TStoreModel::tr("Changed by somebody else");
  at.setTimeZone(QTimeZone::utc());
  const QString when = QLocale().toString(at.toLocalTime(), QLocale::ShortFormat);
  return entry.Owner.empty() ? TStoreModel::tr("Changed by somebody else, %1").arg(when)
                             : TStoreModel::tr("Changed by %1, %2").arg(ToQString(entry.Owner), when);
}

TStoreRow RowOf(const TJStoredQueryBase& base, int index) {
  const TJStoredQuery& query = base.GetStoredQuery(index);
  return {ToQString(query.Entry().Id), ToQString(query.GetQueryName()), ToQString(query.GetDescription()),
          OutsideOf(query), index == base.GetItemIndex()};
}

}  // namespace

std::vector<TStoreRow> TStoreModel::RowsOf(const TJStoredQueryBase& base) const {
  QHash<QString, qsizetype> places;
  for (qsizetype i = 0; i < FOrder.size(); ++i) places.insert(FOrder[i], i);
  struct TSortedRow {
    qsizetype Place;
    QString Key;
    TStoreRow Row;
  };
  std::vector<TSortedRow> sorted;
  sorted.reserve(static_cast<size_t>(base.Count()));
  for (int i = 0; i < base.Count(); ++i) {
    TStoreRow row = RowOf(base, i);
    const qsizetype place = places.value(row.Id, std::numeric_limits<qsizetype>::max());
    QString key = FoldedForSearch(row.Name);
    sorted.push_back({place, std::move(key), std::move(row)});
  }
  std::stable_sort(sorted.begin(), sorted.end(), [](const TSortedRow& a, const TSortedRow& b) {
    return a.Place != b.Place ? a.Place < b.Place : a.Key < b.Key;
  });
  std::vector<TStoreRow> rows;
  rows.reserve(sorted.size());
  for (TSortedRow& row : sorted) rows.push_back(std::move(row.Row));
  return rows;
}

std::vector<size_t> TStoreModel::Found(const std::vector<TStoreRow>& rows) const {
  std::vector<size_t> found;
  for (size_t i = 0; i < rows.size(); ++i) {
    if (FSought.isEmpty() || FoldedForSearch(rows[i].Name).contains(FSought) ||
        FoldedForSearch(rows[i].Description).contains(FSought)) {
      found.push_back(i);
    }
  }
  return found;
}

void TStoreModel::Read(const TJStoredQueryBase* base) {
  std::vector<TStoreRow> rows = base != nullptr ? RowsOf(*base) : std::vector<TStoreRow>();
  std::vector<size_t> shown = Found(rows);
  const bool isSame = shown.size() == FShown.size() &&
                      std::equal(shown.begin(), shown.end(), FShown.begin(),
                                 [&](size_t one, size_t former) { return rows[one].Id == FRows[former].Id; });
  if (!isSame) {
    beginResetModel();
    FRows = std::move(rows);
    FShown = std::move(shown);
    endResetModel();
    return;
  }
  std::vector<int> changed;
  for (size_t i = 0; i < shown.size(); ++i) {
    if (rows[shown[i]] != FRows[FShown[i]]) changed.push_back(static_cast<int>(i));
  }
  FRows = std::move(rows);
  FShown = std::move(shown);
  for (const int row : changed) Q_EMIT dataChanged(index(row), index(row));
}

void TStoreModel::ReadCurrent(const TJStoredQueryBase* base) {
  const int current = base != nullptr ? base->GetItemIndex() : -1;
  const TStoreRow now = current >= 0 && current < base->Count() ? RowOf(*base, current) : TStoreRow();
  for (std::size_t i = 0; i < FShown.size(); ++i) {
    TStoreRow& row = FRows[FShown[i]];
    const bool isCurrent = now.IsCurrent && row.Id == now.Id;
    if (!isCurrent && !row.IsCurrent) continue;
    if (isCurrent) row = now;
    row.IsCurrent = isCurrent;
    const QModelIndex changed = index(static_cast<int>(i));
    Q_EMIT dataChanged(changed, changed);
  }
  for (TStoreRow& row : FRows) row.IsCurrent = now.IsCurrent && row.Id == now.Id;
}

void TStoreModel::SetModified(bool modified) {
  if (std::exchange(FModified, modified) == modified) return;
  if (const int row = CurrentRow(); row >= 0) Q_EMIT dataChanged(index(row), index(row));
}

void TStoreModel::Find(const QString& text) {
  const QString sought = FoldedForSearch(text.trimmed());
  if (sought == FSought) return;
  beginResetModel();
  FSought = sought;
  FShown = Found(FRows);
  endResetModel();
}

void TStoreModel::MoveRow(int from, int to) {
  if (IsSearching() || from == to || from < 0 || to < 0 || from >= rowCount() || to >= rowCount()) return;
  beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
  const auto first = FRows.begin();
  if (from < to) {
    std::rotate(first + from, first + from + 1, first + to + 1);
  } else {
    std::rotate(first + to, first + from, first + from + 1);
  }
  endMoveRows();
  QStringList order;
  QHash<QString, bool> listed;
  for (const TStoreRow& row : FRows) {
    order << row.Id;
    listed.insert(row.Id, true);
  }
  // Those of other stores.
  for (const QString& id : std::as_const(FOrder)) {
    if (!listed.contains(id)) order << id;
  }
  FOrder = order;
}

bool TStoreModel::ReplaceId(const QString& former, const QString& id) {
  const qsizetype place = FOrder.indexOf(former);
  if (place < 0) return false;
  FOrder.removeAll(id);
  FOrder.replace(FOrder.indexOf(former), id);
  return true;
}

void TStoreModel::PlaceBehind(const QString& id, const QString& other) {
  if (const qsizetype place = FOrder.indexOf(other); place >= 0) FOrder.insert(place + 1, id);
}

int TStoreModel::RowOfId(const QString& id) const {
  const auto found = std::find_if(FShown.begin(), FShown.end(), [&](size_t row) { return FRows[row].Id == id; });
  return found == FShown.end() ? -1 : static_cast<int>(found - FShown.begin());
}

int TStoreModel::CurrentRow() const {
  const auto found = std::find_if(FShown.begin(), FShown.end(), [&](size_t row) { return FRows[row].IsCurrent; });
  return found == FShown.end() ? -1 : static_cast<int>(found - FShown.begin());
}

int TStoreModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(FShown.size());
}

QString TStoreModel::AccessibleText(const TStoreRow& row) const {
  QStringList parts{row.Name};
  if (row.IsCurrent) parts << tr("shown");
  if (row.IsCurrent && FModified) parts << tr("changes not saved");
  if (!row.Outside.isEmpty()) parts << row.Outside;
  if (!row.Description.isEmpty()) parts << row.Description.simplified();
  return parts.join(QStringLiteral(", "));
}

QVariant TStoreModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const TStoreRow& row = Row(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return row.Name;
    case Qt::ToolTipRole: {
      QStringList lines{row.Name};
      if (row.IsCurrent && FModified) lines << tr("Has changes that are not saved");
      if (!row.Outside.isEmpty()) lines << row.Outside;
      if (!row.Description.isEmpty()) lines << row.Description;
      return PlainToolTip(lines.join(u'\n'));
    }
    case Qt::AccessibleTextRole:
      return AccessibleText(row);
    case RoleDescription:
      return row.Description.simplified();
    case RoleOutside:
      return row.Outside;
    case RoleIsCurrent:
      return row.IsCurrent;
    case RoleIsModified:
      return row.IsCurrent && FModified;
    default:
      return {};
  }
}

}  // namespace tolvi
