// The list of a store's queries: their order, the search in it, and what is told of each.
#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QStringList>
#include <vector>

#include <tolvi/store/storedqueries.h>

namespace tolvi {

/// A query as it is listed; a copy, so that it can be painted whatever happens to the base.
struct TStoreRow {
  QString Id, Name, Description;
  /// By whom it was changed or erased since it was seen here, for people; empty when it was not.
  QString Outside;
  bool IsCurrent = false;

  bool operator==(const TStoreRow&) const = default;
};

class TStoreModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  /// The description in one line, what others have done, whether it is the current query, and has unsaved changes.
  enum TRole { RoleDescription = Qt::UserRole, RoleOutside, RoleIsCurrent, RoleIsModified };

  using QAbstractListModel::QAbstractListModel;

  /// Shows the queries of the base as they are now; none for null. Rows are reset only when queries have come, gone, or
  /// changed places.
  void Read(const TJStoredQueryBase* base);
  /// The same where no more than the current query has changed, or is another one.
  void ReadCurrent(const TJStoredQueryBase* base);
  void SetModified(bool modified);
  bool GetModified() const { return FModified; }
  /// Shows the queries whose name or description holds the text; all for an empty one.
  void Find(const QString& text);
  bool IsSearching() const { return !FSought.isEmpty(); }

  /// The user's order; queries that it does not name come at the end, by name. `Read` uses it.
  const QStringList& GetOrder() const { return FOrder; }
  void SetOrder(const QStringList& ids) { FOrder = ids; }
  /// Brings a shown row to another place and names all queries in the order.
  void MoveRow(int from, int to);
  /// A query has another ID; false when the order does not name it.
  bool ReplaceId(const QString& former, const QString& id);
  /// Puts a query behind another one, if the order names that.
  void PlaceBehind(const QString& id, const QString& other);

  const TStoreRow& Row(int row) const { return FRows[FShown[static_cast<size_t>(row)]]; }
  /// -1 when it is not shown.
  int RowOfId(const QString& id) const;
  int CurrentRow() const;
  /// How many queries there are, shown or not.
  int Count() const { return static_cast<int>(FRows.size()); }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<TStoreRow> RowsOf(const TJStoredQueryBase& base) const;
  std::vector<size_t> Found(const std::vector<TStoreRow>& rows) const;
  QString AccessibleText(const TStoreRow& row) const;

  std::vector<TStoreRow> FRows;
  std::vector<size_t> FShown;
  QStringList FOrder;
  QString FSought;
  bool FModified = false;
};

}  // namespace tolvi
