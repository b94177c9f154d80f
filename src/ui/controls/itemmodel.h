// The rows of a list that finds items as one types: headings, and the items that hold the text. The heading of items
// without a group is empty; at the top they have none.
#pragma once

#include <QAbstractListModel>
#include <vector>

#include <tolvi/ui/controls/ddlist.h>

namespace tolvi {

/// The text as it is compared: without case and accents.
QString FoldedForSearch(const QString& text);

class TItemModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  enum TRole { RoleGroup = Qt::UserRole, RoleIsHeading };

  TItemModel(bool headings, bool checkable, QObject* parent);

  void SetItems(const std::vector<TDropDownItem>& items);
  const std::vector<TDropDownItem>& Items() const { return FItems; }

  /// Shows the items that hold the text; all for an empty one. The items are folded when this is first needed.
  void Find(const QString& text);

  /// The item in a row, -1 for a heading; the row of an item, -1 when it is not shown.
  int ItemOfRow(int row) const { return FRows[static_cast<size_t>(row)]; }
  int RowOfItem(int item) const;
  /// The row that the text found suggests: the first item that begins with it, else the first item; -1 without any.
  int BestRow() const;
  /// The row of an item at or, where that one is a heading, beyond `row` in the direction of `step` (1 or -1); else the
  /// nearest in the other direction; -1 without any item.
  int NearestItemRow(int row, int step) const;

  bool IsChecked(int item) const { return FChecked[static_cast<size_t>(item)]; }
  void SetChecked(int item, bool on);
  /// These, and no others.
  void SetCheckedItems(const std::vector<int>& items);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  static constexpr int heading = -1;

  void BuildRows();

  const bool FHeadings, FCheckable;
  std::vector<TDropDownItem> FItems;
  std::vector<int> FOrder;  // of the items, as they stand below their headings
  std::vector<bool> FChecked;
  std::vector<QString> FFolded;  // empty until something is sought
  std::vector<int> FRows;        // an item each, or `heading`: that of the item in the next row
  QString FSought;
};

}  // namespace tolvi
