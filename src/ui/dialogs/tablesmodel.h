#pragma once

#include <QAbstractTableModel>
#include <cstddef>
#include <vector>

namespace tolvi {

class TJCustomDBStructure;

/// The tables of a model as rows of texts, as they were when it was last read, and the part of them that a search
/// finds.
class TTablesModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum TColumn { ColAlias, ColDisplayName, ColTable, ColumnCount };

  using QAbstractTableModel::QAbstractTableModel;

  /// Reads the tables. Rows are reset only where tables came, went, moved or got other aliases.
  void Read(const TJCustomDBStructure& model);
  void Find(const QString& text);

  std::size_t Count() const { return FTables.size(); }
  const QString& Alias(std::size_t table) const { return FTables[table].Texts[ColAlias]; }
  /// Where a table of that alias is now: where it was, if it still is there, else the first; `Count()` for none.
  std::size_t Locate(const QString& alias, std::size_t before) const;
  std::size_t TableOfRow(int row) const { return FRows[static_cast<std::size_t>(row)]; }
  /// -1 when the search has not found the table.
  int RowOfTable(std::size_t table) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct TTable {
    QString Texts[ColumnCount];
    bool IsMain = false, IsWrong = false;
  };
  void BuildRows();

  std::vector<TTable> FTables;
  std::vector<std::size_t> FRows;  // ascending
  QString FSought;
};

}  // namespace tolvi
