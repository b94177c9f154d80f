#include <QFont>
#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/ui/controls/itemmodel.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/tablesmodel.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

void TTablesModel::Read(const TJCustomDBStructure& model) {
  std::unordered_map<std::string_view, int, TFoldedHash, TFoldedEqual> aliases;
  for (const TDSTable& table : model.Tables()) ++aliases[table.GetTableAlias()];
  std::vector<TTable> tables;
  tables.reserve(model.GetTableCount());
  for (const TDSTable& table : model.Tables()) {
    TTable& row = tables.emplace_back();
    row.Texts[ColAlias] = ToQString(table.GetTableAlias());
    row.Texts[ColDisplayName] = ToQString(table.GetDisplayName());
    row.Texts[ColTable] = ToQString(table.GetCompoundName());
    row.IsMain = !model.GetDefaultMainTable().empty() && SameText(table.GetTableAlias(), model.GetDefaultMainTable());
    row.IsWrong = table.GetTableAlias().empty() || aliases[table.GetTableAlias()] > 1;
  }
  const bool same =
      std::equal(tables.begin(), tables.end(), FTables.begin(), FTables.end(),
                 [](const TTable& one, const TTable& other) { return one.Texts[ColAlias] == other.Texts[ColAlias]; });
  if (same) {
    FTables = std::move(tables);
    if (!FRows.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    return;
  }
  beginResetModel();
  FTables = std::move(tables);
  BuildRows();
  endResetModel();
}

void TTablesModel::Find(const QString& text) {
  const QString sought = FoldedForSearch(text.trimmed());
  if (sought == FSought) return;
  beginResetModel();
  FSought = sought;
  BuildRows();
  endResetModel();
}

void TTablesModel::BuildRows() {
  FRows.clear();
  for (std::size_t i = 0; i < FTables.size(); ++i) {
    const auto holds = [&](const QString& text) { return FoldedForSearch(text).contains(FSought); };
    const auto& texts = FTables[i].Texts;
    if (FSought.isEmpty() || std::any_of(std::begin(texts), std::end(texts), holds)) FRows.push_back(i);
  }
}

std::size_t TTablesModel::Locate(const QString& alias, std::size_t before) const {
  if (before < Count() && Alias(before) == alias) return before;
  std::size_t table = 0;
  while (table < Count() && Alias(table) != alias) ++table;
  return table;
}

int TTablesModel::RowOfTable(std::size_t table) const {
  const auto found = std::lower_bound(FRows.begin(), FRows.end(), table);
  return found != FRows.end() && *found == table ? static_cast<int>(found - FRows.begin()) : -1;
}

int TTablesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(FRows.size());
}

int TTablesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant TTablesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const TTable& table = FTables[TableOfRow(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return table.Texts[index.column()];
    case Qt::FontRole:
      if (table.IsMain) {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
      return {};
    case Qt::AccessibleDescriptionRole:
      if (table.IsMain) return tr("The default main table");
      return {};
    case TFaultDelegate::WrongRole:
      return table.IsWrong && index.column() == ColAlias;
    default:
      return {};
  }
}

QVariant TTablesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  switch (section) {
    case ColAlias:
      return tr("Alias");
    case ColDisplayName:
      return tr("Display name");
    default:
      return tr("Table");
  }
}

}  // namespace tolvi
