// The column pairs of a link as a grid.
#pragma once

#include <QAbstractTableModel>
#include <QWidget>
#include <functional>

#include <tolvi/panel/linkeditor.h>
class QAction;
class QBoxLayout;
class QTableView;

namespace tolvi {

/// A row for each pair: the sides and, between them, the comparison.
class TLinkPairsModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum TColumn { ColSide1, ColSymbol, ColSide2, ColumnCount };

  /// The editor must outlive the model.
  TLinkPairsModel(TLinkEditor& editor, QObject* parent);

  /// Called after every change.
  std::function<void()> OnChange;

  TLinkEditor& Editor() const { return FEditor; }
  /// What is wrong now.
  const TLinkFindings& Findings() const { return FFindings; }

  int Add();
  void Delete(int row);
  void Move(int from, int to);
  /// After the tables, or anything but the pairs, have changed.
  void Recheck();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : ColumnCount; }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  std::string Entry(const QModelIndex& index) const;
  QString Shown(const QModelIndex& index) const;
  QString Reasons(const QModelIndex& index) const;

  TLinkEditor& FEditor;
  TLinkFindings FFindings;
};

/// The grid with its buttons. Typing, F2 or Enter changes a cell: a column from the list or any other one, or "val:"
/// and a constant. Ctrl+N adds a pair, Delete deletes those selected, Alt+Up and Alt+Down move the current one.
class TLinkPairs final : public QWidget {
  Q_OBJECT

 public:
  TLinkPairs(TLinkEditor& editor, QWidget* parent);

  TLinkPairsModel& Model() const { return *FModel; }
  /// Goes to the cell and opens its editor.
  void EditCell(int row, int column);
  /// Takes over what is being typed.
  void CommitEdit();
  /// Adds a pair and begins to edit it.
  void AddPair();
  void RefreshActions();

 private:
  void BuildTable();
  void BuildActions(QBoxLayout& buttons);
  void DeletePairs();
  void MovePair(int by);

  TLinkPairsModel* FModel;
  QTableView* FTable;
  QAction *FDelete = nullptr, *FUp = nullptr, *FDown = nullptr;
};

}  // namespace tolvi
