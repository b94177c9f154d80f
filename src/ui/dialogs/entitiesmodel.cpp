#include <QDataStream>
#include <QFont>
#include <QIODevice>
#include <QMimeData>
#include <algorithm>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modelentities.h>
#include <tolvi/ui/controls/itemmodel.h>
#include <tolvi/ui/dialogs/entitiesmodel.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

QString EntriesType() { return QStringLiteral("application/x-tolvi-entities"); }

/// Groups have no parent row: their inner number.
constexpr quintptr NoParent = ~quintptr(0);

/// Fields have the row of their group in the inner number, with gaps: views keep thousands of indexes by it, and Qt's
/// hash of an index is little more than the number.
constexpr quintptr Gap = 193;

quintptr NumberBelow(int row) { return static_cast<quintptr>(row) * Gap; }
int RowAbove(const QModelIndex& index) { return static_cast<int>(index.internalId() / Gap); }

}  // namespace

void TEntitiesModel::Read(const TJCustomDBStructure& model) {
  std::vector<TGroup> groups;
  for (const std::size_t number : GroupNumbers(model)) {
    const TDSFieldGroup& group = number == 0 ? model.RootGroup() : model.FieldGroups()[number - 1];
    TGroup& read = groups.emplace_back();
    read.Number = number;
    read.Name = number == 0 ? tr("(no group)") : ToQString(group.GetGroupName());
    read.Fields.reserve(group.Count());
    for (const TDSField* field : group) {
      const bool isVirtual = field->GetFieldKind() == jfkVirtual,
                 isUsed = field->GetUseInConditions() || field->GetUseInResult();
      read.Fields.push_back({field->GetID(),
                             {ToQString(field->GetDisplayName()), ToQString(field->GetSQLExpr()),
                              ToQString(FldTypeToStr(field->GetFieldType()).substr(2))},
                             isVirtual,
                             !isUsed,
                             field->GetFieldExpr().empty() || (!isVirtual && field->GetTable() == nullptr)});
    }
  }
  if (SameRows(groups)) {
    for (std::size_t i = 0; i < groups.size(); ++i) groups[i].Rows = std::move(FGroups[i].Rows);
    FGroups = std::move(groups);
    for (int row = 0; row < rowCount(); ++row) {
      const QModelIndex group = index(row, 0);
      if (const int count = rowCount(group); count > 0) {
        Q_EMIT dataChanged(index(0, 0, group), index(count - 1, ColumnCount - 1, group));
      }
      Q_EMIT dataChanged(group, index(row, ColumnCount - 1));
    }
    return;
  }
  beginResetModel();
  FGroups = std::move(groups);
  BuildRows();
  endResetModel();
}

bool TEntitiesModel::SameRows(const std::vector<TGroup>& groups) const {
  const auto sameField = [](const TField& one, const TField& other) { return one.ID == other.ID; };
  const auto sameGroup = [&](const TGroup& one, const TGroup& other) {
    return one.Number == other.Number &&
           std::equal(one.Fields.begin(), one.Fields.end(), other.Fields.begin(), other.Fields.end(), sameField);
  };
  return std::equal(groups.begin(), groups.end(), FGroups.begin(), FGroups.end(), sameGroup);
}

void TEntitiesModel::Find(const QString& text) {
  const QString sought = FoldedForSearch(text.trimmed());
  if (sought == FSought) return;
  beginResetModel();
  FSought = sought;
  BuildRows();
  endResetModel();
}

void TEntitiesModel::BuildRows() {
  const auto holds = [this](const QString& text) { return FoldedForSearch(text).contains(FSought); };
  FRows.clear();
  for (std::size_t i = 0; i < FGroups.size(); ++i) {
    TGroup& group = FGroups[i];
    group.Rows.clear();
    const bool all = FSought.isEmpty() || holds(group.Name);
    for (std::size_t at = 0; at < group.Fields.size(); ++at) {
      const auto& texts = group.Fields[at].Texts;
      if (all || std::any_of(std::begin(texts), std::end(texts), holds)) group.Rows.push_back(at);
    }
    if (all || !group.Rows.empty()) FRows.push_back(i);
  }
}

// Entries

const TEntitiesModel::TField* TEntitiesModel::FieldOf(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == NoParent) return nullptr;
  const TGroup& group = GroupOfRow(RowAbove(index));
  return &group.Fields[group.Rows[static_cast<std::size_t>(index.row())]];
}

TEntitiesModel::TEntry TEntitiesModel::EntryOf(const QModelIndex& index) const {
  const TField* field = FieldOf(index);
  if (field == nullptr) return {GroupOfRow(index.row()).Number, std::nullopt};
  return {GroupOfRow(RowAbove(index)).Number, field->ID};
}

QModelIndex TEntitiesModel::IndexOfGroup(std::size_t group) const {
  for (int row = 0; row < rowCount(); ++row) {
    if (GroupOfRow(row).Number == group) return index(row, 0);
  }
  return {};
}

QModelIndex TEntitiesModel::IndexOfField(std::int32_t id) const {
  for (int row = 0; row < rowCount(); ++row) {
    const TGroup& group = GroupOfRow(row);
    for (std::size_t i = 0; i < group.Rows.size(); ++i) {
      if (group.Fields[group.Rows[i]].ID == id) return index(static_cast<int>(i), 0, index(row, 0));
    }
  }
  return {};
}

std::size_t TEntitiesModel::PlaceOf(const QModelIndex& index) const {
  if (FieldOf(index) == nullptr) return GroupOfRow(index.row()).Fields.size();
  return GroupOfRow(RowAbove(index)).Rows[static_cast<std::size_t>(index.row())];
}

// The item model

QModelIndex TEntitiesModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  return createIndex(row, column, parent.isValid() ? NumberBelow(parent.row()) : NoParent);
}

QModelIndex TEntitiesModel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == NoParent) return {};
  return createIndex(RowAbove(index), 0, NoParent);
}

int TEntitiesModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(FRows.size());
  const bool isGroup = parent.internalId() == NoParent && parent.column() == 0;
  return isGroup ? static_cast<int>(GroupOfRow(parent.row()).Rows.size()) : 0;
}

QVariant TEntitiesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const TField* field = FieldOf(index);
  switch (role) {
    case Qt::DisplayRole:
      if (field != nullptr) return field->Texts[index.column()];
      return index.column() == ColName ? QVariant(GroupOfRow(index.row()).Name) : QVariant();
    case Qt::ToolTipRole:
      return field != nullptr ? field->Texts[index.column()] : GroupOfRow(index.row()).Name;
    case Qt::FontRole: {
      QFont font;
      font.setBold(field == nullptr);
      font.setItalic(field != nullptr && field->IsVirtual && index.column() == ColSource);
      font.setStrikeOut(field != nullptr && field->IsHidden && index.column() == ColName);
      return font;
    }
    case Qt::AccessibleDescriptionRole:
      if (field == nullptr) return tr("Group");
      return field->IsVirtual ? tr("Expression") : tr("Column");
    case TFaultDelegate::WrongRole:
      return field != nullptr && field->IsWrong && index.column() == ColSource;
    default:
      return {};
  }
}

QVariant TEntitiesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  switch (section) {
    case ColName:
      return tr("Field");
    case ColSource:
      return tr("Column or expression");
    default:
      return tr("Type");
  }
}

// Dragging

Qt::ItemFlags TEntitiesModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractItemModel::flags(index);
  if (!index.isValid()) return flags | Qt::ItemIsDropEnabled;
  if (FieldOf(index) != nullptr) return flags | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
  flags |= Qt::ItemIsDropEnabled;
  // The root group has its fixed place.
  return GroupOfRow(index.row()).Number > 0 ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList TEntitiesModel::mimeTypes() const { return {EntriesType()}; }

QMimeData* TEntitiesModel::mimeData(const QModelIndexList& indexes) const {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  for (const QModelIndex& index : indexes) {
    if (index.column() != 0) continue;
    const TEntry entry = EntryOf(index);
    stream << static_cast<quint64>(entry.Group) << entry.Field.has_value() << qint32(entry.Field.value_or(0));
  }
  auto* data = new QMimeData;
  data->setData(EntriesType(), bytes);
  return data;
}

bool TEntitiesModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                  const QModelIndex& parent) {
  if (action != Qt::MoveAction || !data->hasFormat(EntriesType()) || !OnDrop || FRows.empty()) return false;
  std::vector<TEntry> entries;
  QDataStream stream(data->data(EntriesType()));
  while (!stream.atEnd()) {
    quint64 group = 0;
    bool isField = false;
    qint32 field = 0;
    stream >> group >> isField >> field;
    entries.push_back({static_cast<std::size_t>(group), isField ? std::optional<std::int32_t>(field) : std::nullopt});
  }
  const QModelIndex target = parent.siblingAtColumn(0);
  if (!target.isValid()) {
    const TGroup& group = GroupOfRow(row < 0 ? rowCount() - 1 : std::min(row, rowCount() - 1));
    const bool atEnd = row < 0 || row >= rowCount();
    OnDrop(entries, group.Number, atEnd ? std::optional(group.Fields.size()) : std::nullopt);
  } else {
    const TGroup& group = GroupOfRow(target.row());
    const bool atEnd = row < 0 || row >= rowCount(target);
    OnDrop(entries, group.Number, atEnd ? group.Fields.size() : group.Rows[static_cast<std::size_t>(row)]);
  }
  // The rows have moved already: false keeps the view from removing them.
  return false;
}

}  // namespace tolvi
