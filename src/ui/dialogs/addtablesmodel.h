// The tables of a catalogue and the links among them, as lists to choose from.
#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <functional>
#include <optional>

#include <tolvi/panel/tablechoice.h>

namespace tolvi {

/// A row for each table, with a check box; those of the model cannot be chosen.
class TCatalogueTablesModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum TColumn { ColName, ColSchema, ColNote, ColumnCount };

  /// The choice must outlive the model.
  TCatalogueTablesModel(TTableChoice& choice, QObject* parent) : QAbstractTableModel(parent), FChoice(choice) {}

  /// Called when other tables are chosen.
  std::function<void()> OnChoose;

  /// Shows what `change` makes of the choice.
  void Reset(const std::function<void()>& change);
  /// Chooses all of these or, if all are chosen, none.
  void Toggle(const QModelIndexList& tables);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : ColumnCount; }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  const TTableEntry& Entry(int row) const { return FChoice.Tables()[static_cast<std::size_t>(row)]; }

  TTableChoice& FChoice;
};

/// The tables that a search finds, ignoring case, perhaps those of one schema alone.
class TCatalogueTablesFilter final : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  TCatalogueTablesFilter(TCatalogueTablesModel& model, QObject* parent);
  void Find(const QString& text);
  void SetSchema(const std::optional<QString>& schema);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  QString FText;
  std::optional<QString> FSchema;
};

}  // namespace tolvi
