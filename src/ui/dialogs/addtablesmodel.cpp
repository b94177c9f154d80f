#include <QFont>
#include <algorithm>

#include <tolvi/ui/dialogs/addtablesmodel.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

void TCatalogueTablesModel::Reset(const std::function<void()>& change) {
  beginResetModel();
  // Whatever happens, the views must hear of the end.
  try {
    change();
  } catch (...) {
    endResetModel();
    throw;
  }
  endResetModel();
}

void TCatalogueTablesModel::Toggle(const QModelIndexList& tables) {
  const bool isAll = std::all_of(tables.begin(), tables.end(), [this](const QModelIndex& index) {
    return Entry(index.row()).Chosen || Entry(index.row()).InModel;
  });
  for (const QModelIndex& index : tables) FChoice.Choose(static_cast<std::size_t>(index.row()), !isAll);
  if (tables.isEmpty()) return;
  Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::CheckStateRole});
  if (OnChoose) OnChoose();
}

int TCatalogueTablesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(FChoice.Tables().size());
}

QVariant TCatalogueTablesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const QString texts[] = {tr("Name"), tr("Schema"), tr("Kind")};
  return texts[section];
}

QVariant TCatalogueTablesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const TTableEntry& entry = Entry(index.row());
  if (role == Qt::CheckStateRole && index.column() == ColName) {
    return entry.Chosen || entry.InModel ? Qt::Checked : Qt::Unchecked;
  }
  const QString name = ToQString(entry.Name), kind = entry.View ? tr("view") : tr("table");
  const QString note = entry.InModel ? tr("%1, in the model").arg(kind) : kind;
  if (role == Qt::AccessibleTextRole) return name + QLatin1String(", ") + note;
  if (role == Qt::FontRole && entry.InModel) {
    QFont font;
    font.setItalic(true);
    return font;
  }
  if (role == Qt::ToolTipRole) return ToQString(entry.FullName);
  if (role != Qt::DisplayRole) return {};
  return index.column() == ColName ? name : index.column() == ColSchema ? ToQString(entry.Schema) : note;
}

bool TCatalogueTablesModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::CheckStateRole) return false;
  FChoice.Choose(static_cast<std::size_t>(index.row()), value.toInt() == Qt::Checked);
  Q_EMIT dataChanged(index, index, {role});
  if (OnChoose) OnChoose();
  return true;
}

Qt::ItemFlags TCatalogueTablesModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const bool isCheckable = index.column() == ColName && !Entry(index.row()).InModel;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | (isCheckable ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

TCatalogueTablesFilter::TCatalogueTablesFilter(TCatalogueTablesModel& model, QObject* parent)
    : QSortFilterProxyModel(parent) {
  setSourceModel(&model);
  setSortCaseSensitivity(Qt::CaseInsensitive);
}

void TCatalogueTablesFilter::Find(const QString& text) {
  FText = text.trimmed();
  invalidateFilter();
}

void TCatalogueTablesFilter::SetSchema(const std::optional<QString>& schema) {
  FSchema = schema;
  invalidateFilter();
}

bool TCatalogueTablesFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  const auto text = [&](int column) { return sourceModel()->index(row, column, parent).data().toString(); };
  if (FSchema && text(TCatalogueTablesModel::ColSchema) != *FSchema) return false;
  return text(TCatalogueTablesModel::ColName).contains(FText, Qt::CaseInsensitive);
}

}  // namespace tolvi
