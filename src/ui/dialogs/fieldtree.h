#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <vector>
class QLineEdit;
class QModelIndex;
class QStandardItemModel;
class QTreeView;

namespace tolvi {

class TDSField;
class TJCustomDBStructure;

/// The fields of a model that columns may show, by groups, with a line in which one types what is sought in the names
/// of fields or groups, ignoring case and accents.
///
/// Keys: Up and Down in the line go through the tree, Enter takes the selected fields, Escape empties the line.
class TFieldTree final : public QWidget {
  Q_OBJECT

 public:
  explicit TFieldTree(QWidget* parent);

  /// Shows the model's fields, anew if it has changed. Null for none.
  void ShowFields(const TJCustomDBStructure* model);
  /// In the order of the tree.
  std::vector<TDSField*> SelectedFields() const;
  QTreeView& Tree() const { return *FTree; }
  QLineEdit& Search() const { return *FSearch; }

  /// By double click or Enter on fields.
  std::function<void()> OnChoose;
  std::function<void()> OnSelect;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class TFilter;

  void Find(const QString& text);
  void Choose(const QModelIndex& index);
  void SelectFirst();

  QStandardItemModel* FItems;
  TFilter* FFilter;
  QLineEdit* FSearch;
  QTreeView* FTree;
  const TJCustomDBStructure* FModel = nullptr;
  std::uint64_t FRevision = 0;
};

}  // namespace tolvi
