#pragma once

#include <QTimer>
#include <optional>

#include <tolvi/ui/dialogs/modelpage.h>

class QComboBox;
class QGroupBox;
class QLabel;
class QTreeWidget;

namespace tolvi {

class TCheckedLine;
class TDSCondition;
class TDSValue;
class TPartList;
class TValueEditorBox;

/// The page of the model editor on which predefined conditions are made.
///
/// Keys in the list: Ctrl+N adds one, Delete deletes.
class TConditionsPage final : public TModelPage {
  Q_OBJECT

 public:
  TConditionsPage(TModelEditor& editor, QWidget* parent);

  void Refresh() override;
  void CommitEdits() override;
  bool GoTo(std::string_view section) override;

 private:
  QWidget* MakeForm();
  QWidget* MakeValues();
  TDSCondition* Current() const;
  /// The index of the value that is selected.
  std::optional<std::size_t> CurrentValue() const;
  void ShowCurrent();
  void ShowValues(const TDSCondition* condition);
  void ShowValue();
  void ShowSample();
  void ChangeText(bool isSQL, const QString& text);
  void ChangeValue(const QString& name, const std::function<void(TDSValue&)>& change);
  void Add();
  void Delete();

  TPartList* FList;
  QWidget* FForm;
  TCheckedLine *FFormat, *FSQL;
  QLabel *FTables, *FSample;
  QGroupBox* FValuesBox;
  QTreeWidget* FValues;
  QComboBox *FType, *FKind;
  TValueEditorBox* FEditorBox;
  QTimer FSampleTimer;
  bool FShowing = false;
};

}  // namespace tolvi
