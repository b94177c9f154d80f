// The page of the result fields editor on which columns are made and changed.
#pragma once

#include <QWidget>
#include <cstdint>
#include <map>
#include <string_view>

#include <tolvi/panel/rfldformula.h>
#include <tolvi/ui/dialogs/signicon.h>
class QAction;
class QBoxLayout;
class QButtonGroup;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;

namespace tolvi {

class TFieldTree;
class TFormulaEdit;
class TRFieldEditor;

class TRFColumnsPage final : public QWidget {
  Q_OBJECT

 public:
  /// The editor must outlive the page.
  TRFColumnsPage(TRFieldEditor& editor, QWidget* parent);

  /// Shows what the editor holds now.
  void Refresh();
  /// Takes the user to the expression of the current column.
  void EditExpression();
  /// Takes the user to the line that finds fields.
  void StartSearch();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  enum TCommand : std::uint8_t {
    cmCreate,
    cmNew,
    cmDelete,
    cmAdd,
    cmSubtract,
    cmMultiply,
    cmDivide,
    cmSort,
    cmUp,
    cmDown
  };

  QString Title(std::string_view key) const;
  QAction* MakeAction(TCommand command);
  void AddButton(QBoxLayout& layout, TCommand command);
  QBoxLayout* BuildFields();
  QBoxLayout* BuildStrip();
  QBoxLayout* BuildColumns();
  QGridLayout* BuildForm();
  QGridLayout* BuildFunctions();
  void ChainTabs();
  void Run(TCommand command);
  void Delete();
  void Sort();
  void Join(TRFOperation operation);

  void RefreshList();
  void RefreshForm();
  void RefreshFunctions();
  void RefreshActions();
  void TellFault(const QString& fault);

  TRFieldEditor& FEditor;
  std::map<TCommand, QAction*> FActions;
  TFieldTree* FTree;
  QListWidget* FList;
  QLineEdit* FCaption;
  TFormulaEdit* FExpression;
  QLabel *FFault, *FAlias;
  QButtonGroup* FFunctions;
  /// The line whose text is being taken over.
  const QLineEdit* FTyped = nullptr;
  bool FRefreshing = false;
};

}  // namespace tolvi
