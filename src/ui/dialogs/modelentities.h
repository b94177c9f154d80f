#pragma once

#include <optional>
#include <vector>

#include <tolvi/panel/modelentities.h>
#include <tolvi/ui/dialogs/entitiesmodel.h>
#include <tolvi/ui/dialogs/modelpage.h>
class QAction;
class QTabWidget;
class QTreeView;

namespace tolvi {

class TFieldForm;
class TFieldOperators;
class TValueEditorBox;

/// The fields of the model, in groups, and what is set for those that are chosen; a group stands for all its fields.
///
/// Keys: Insert adds columns of a table, Ctrl+E an expression, Ctrl+N a group; Delete deletes, Alt+Up and Alt+Down
/// move, also into the next group; Ctrl+F finds.
class TEntitiesPage final : public TModelPage {
  Q_OBJECT

 public:
  TEntitiesPage(TModelEditor& editor, QWidget* parent);
  ~TEntitiesPage() override;

  void Refresh() override;
  void CommitEdits() override;
  bool GoTo(std::string_view section) override;

 private:
  using TEntry = TEntitiesModel::TEntry;

  QWidget* MakeTree();
  QWidget* MakeForms();
  std::vector<TEntry> Selected() const;
  /// With those of the groups.
  TFieldIDs SelectedFields() const;
  std::vector<std::size_t> SelectedGroups() const;
  void Select(const std::vector<TEntry>& entries);
  void SelectFields(const TFieldIDs& ids);
  void ShowCurrent();
  void Find(const QString& text);

  /// Where new fields go: behind the current one, at the end of the current group.
  TEntry NewPlace(std::size_t& place) const;
  void AddColumns();
  void AddExpression();
  void AddGroup();
  void DeleteSelected();
  void Step(int step);
  void Drop(const std::vector<TEntry>& entries, std::size_t group, std::optional<std::size_t> place);

  TEntitiesModel* FModel;
  QLineEdit* FSearch;
  QTreeView* FTree;
  QTabWidget* FForms;
  TFieldForm* FGeneral;
  TFieldOperators* FOperators;
  TValueEditorBox* FValueEditor;
  QAction *FAddColumns, *FDelete, *FUp, *FDown;
  bool FIsNew = true;
};

}  // namespace tolvi
