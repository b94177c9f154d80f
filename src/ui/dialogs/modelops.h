#pragma once

#include <QTimer>
#include <vector>

#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/ui/dialogs/modelpage.h>

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace tolvi {

class TCheckedLine;
class TDSOperator;
class TPartList;

/// The page of the model editor on which operators are made, and told to which fields they apply.
///
/// Keys in the list: Ctrl+N adds one, Ctrl+Shift+D copies, Delete deletes, Alt+Up and Alt+Down move.
class TOperatorsPage final : public TModelPage {
  Q_OBJECT

 public:
  TOperatorsPage(TModelEditor& editor, QWidget* parent);

  void Refresh() override;
  void CommitEdits() override;
  bool GoTo(std::string_view section) override;

 private:
  struct TText;
  static const TText Texts[];

  QWidget* MakeList();
  QWidget* MakeGroups();
  QWidget* MakeForm();
  QWidget* MakeTypes();
  /// Null when none is selected.
  TDSOperator* Current() const;
  void ShowCurrent();
  void ShowTypes(TFieldTypes types);
  void ShowSample();
  /// An edit of the current operator.
  void Change(const QString& name, const std::function<void(TDSOperator&)>& change);
  void ChangeTypes(TFieldTypes types);

  void Add();
  void AddDefaults();
  void Duplicate();
  void Delete();
  void DeleteAll();
  void Step(int step);
  void Offer();

  TPartList* FList;
  QAction *FDefaults, *FDeleteAll;
  std::vector<QCheckBox*> FGroups, FTypeGroups;
  QWidget* FForm;
  std::vector<TCheckedLine*> FLines;
  QComboBox *FKind, *FType;
  QCheckBox* FIgnoresCase;
  QListWidget* FTypes;
  QLabel *FUse, *FSample;
  QPushButton* FOffer;
  // Makes the sample when what is being typed has been handled.
  QTimer FSampleTimer;
  bool FShowing = false;
};

}  // namespace tolvi
