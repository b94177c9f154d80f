#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include <tolvi/ui/api.h>
class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTreeView;

namespace tolvi {

class TCatalogueTablesFilter;
class TCatalogueTablesModel;
class TModelEditor;
class TTableChoice;

/// Lets the user choose tables of the catalogue, and which of the links that go with them are made. OK adds them as one
/// step of the editor; what the catalogue raises is told in the dialog, which stays open then.
///
/// Keys: what is typed first is searched; Down or Enter goes from there to the tables, Space checks those selected,
/// Ctrl+A selects all, Ctrl+Enter is OK.
class TOLVI_WIDGETS_API T_dlgAddTables final : public QDialog {
  Q_OBJECT

 public:
  /// Both must outlive the dialog.
  T_dlgAddTables(TTableChoice& choice, TModelEditor& editor, QWidget* parent = nullptr);

  const std::vector<std::string>& AddedAliases() const { return FAdded; }
  void accept() override;
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildSearch(QBoxLayout& layout);
  QWidget* BuildTables();
  QWidget* BuildLinks();
  void ChooseDatabase(const QString& name);
  void ShowSchemas();
  void ToggleSelected();
  void ShowLinks();
  void ShowState();
  bool Try(const std::function<void()>& operation);

  TTableChoice& FChoice;
  TModelEditor& FEditor;
  TCatalogueTablesModel* FTables;
  TCatalogueTablesFilter* FFilter;
  QComboBox *FDatabases, *FSchemas;
  QLabel* FSchemasLabel = nullptr;
  QLineEdit* FSearch;
  QTreeView* FTree;
  QListWidget* FLinks;
  QCheckBox* FAddFields;
  QLabel* FTold;
  QAbstractButton* FOk = nullptr;
  QString FFault;
  std::vector<std::string> FAdded;
  bool FShowing = false;
};

/// Lets the user choose tables of the catalogue, and adds them to the model, as one step of the editor. Whether any
/// were added; `addedAliases` are theirs then, in the order of the model. Without a connected catalogue it tells so and
/// returns false.
TOLVI_WIDGETS_API bool AddTables(QWidget* parent, TModelEditor& editor, std::vector<std::string>& addedAliases);

}  // namespace tolvi
