#pragma once

#include <QDialog>
#include <vector>

#include <tolvi/panel/modelsettings.h>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QTableWidget;

namespace tolvi {

class TJCustomDBStructure;
class TModelEditor;

/// How the model's database wants names and values written, which databases and owner it is for, where queries begin,
/// and the default operators. Beside it stands a statement as it is written then.
class T_dlgModelSettings final : public QDialog {
  Q_OBJECT

 public:
  T_dlgModelSettings(const TJCustomDBStructure& model, QWidget* parent);

  TModelSettings GetSettings() const;

 private:
  struct TText;
  struct TFlag;
  static const TText Texts[];
  static const TFlag Flags[];

  QWidget* MakeFormats();
  QWidget* MakeModel(const TJCustomDBStructure& model);
  QWidget* MakeOperators();
  QWidget* MakeTypes();
  void ShowFormats(const TSQLFormats& formats, const TDMOptions& options);
  void ShowTypes(TFieldTypes types);
  TFieldTypes TypesShown() const;
  void Changed();

  QComboBox *FPreset, *FMainTable;
  std::vector<QLineEdit*> FLines;
  std::vector<QCheckBox*> FChecks, FGroups;
  QCheckBox *FQuoteBool, *FQuoteDate, *FRootFirst;
  QListWidget* FTypes;
  QTableWidget* FCaptions;
  QPlainTextEdit* FSample;
  bool FShowing = false;
};

/// Lets the user edit the settings of the model. All changes are one step of the editor's history. Whether OK was
/// chosen and anything changed.
bool EditModelSettings(QWidget* parent, TModelEditor& editor);

}  // namespace tolvi
