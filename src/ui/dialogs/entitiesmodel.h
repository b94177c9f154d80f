#pragma once

#include <QAbstractItemModel>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace tolvi {

class TJCustomDBStructure;

/// The groups of a model with their fields as a tree, as they were when it was last read, and the part of it that a
/// search finds: a group that is found shows all its fields. Groups go by numbers, 0 is the root group.
class TEntitiesModel final : public QAbstractItemModel {
  Q_OBJECT

 public:
  enum TColumn { ColName, ColSource, ColType, ColumnCount };

  /// A row of the tree: a group, or a field in it.
  struct TEntry {
    std::size_t Group = 0;
    /// Nothing for a group.
    std::optional<std::int32_t> Field;
  };

  using QAbstractItemModel::QAbstractItemModel;

  /// Reads the fields. Rows are reset only where some came, went or moved.
  void Read(const TJCustomDBStructure& model);
  void Find(const QString& text);

  TEntry EntryOf(const QModelIndex& index) const;
  /// Invalid for what the search has not found.
  QModelIndex IndexOfGroup(std::size_t group) const;
  QModelIndex IndexOfField(std::int32_t id) const;
  /// Where a field stands in its group; the number of its fields for the group itself.
  std::size_t PlaceOf(const QModelIndex& index) const;

  /// Entries have been dropped on a group, before the field that is at `place`, at its end behind the last group; on a
  /// gap between groups, that is before `group`, and `place` is nothing.
  std::function<void(const std::vector<TEntry>& entries, std::size_t group, std::optional<std::size_t> place)> OnDrop;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return ColumnCount; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 private:
  struct TField {
    std::int32_t ID;
    QString Texts[ColumnCount];
    bool IsVirtual, IsHidden, IsWrong;
  };
  struct TGroup {
    std::size_t Number = 0;
    QString Name;
    std::vector<TField> Fields;
    /// Of those that are shown, ascending.
    std::vector<std::size_t> Rows;
  };
  void BuildRows();
  bool SameRows(const std::vector<TGroup>& groups) const;
  const TGroup& GroupOfRow(int row) const { return FGroups[FRows[static_cast<std::size_t>(row)]]; }
  const TField* FieldOf(const QModelIndex& index) const;

  std::vector<TGroup> FGroups;
  std::vector<std::size_t> FRows;
  QString FSought;
};

}  // namespace tolvi
