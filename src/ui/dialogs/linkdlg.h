#pragma once

#include <QDialog>

#include <tolvi/panel/linkeditor.h>
#include <tolvi/ui/api.h>
class QButtonGroup;
class QComboBox;
class QGridLayout;
class QLabel;
class QPlainTextEdit;

namespace tolvi {

class TLinkPairs;

/// Lets the user edit a link: its column pairs, how it joins and, for one that is not yet in the model, its tables. It
/// works on a copy; OK applies it, or goes to the first error if there is one. A link without pairs gets one to be
/// filled in.
///
/// Keys: Ctrl+N new pair, Delete, Alt+Up and Alt+Down move, Ctrl+Enter is OK.
class TOLVI_WIDGETS_API T_dlgLinkEdit final : public QDialog {
  Q_OBJECT

 public:
  /// The model and the link must live until the dialog is closed.
  T_dlgLinkEdit(TJCustomDBStructure& model, TDSLink& link, QWidget* parent = nullptr);
  ~T_dlgLinkEdit() override;

  TLinkEditor& Editor() { return FEditor; }
  void accept() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildTables(QGridLayout& grid);
  QWidget* MakeTableBox(std::size_t side);
  QWidget* MakeJoinBox();
  void ChooseTable(std::size_t side, QComboBox& box, bool typed);
  void ShowTables();
  void ShowJoin();
  void Refresh();

  TDSLink& FLink;
  TLinkEditor FEditor;
  // A box or, where the table cannot be chosen, a label.
  QWidget* FTables[2] = {};
  TLinkPairs* FPairs;
  QButtonGroup* FJoins;
  QLabel* FTold;
  QPlainTextEdit* FCondition;
};

/// Lets the user edit a link. Whether OK was chosen; the link is changed then, which is no step of a history by itself.
/// The model and the link must live until the dialog is closed.
TOLVI_WIDGETS_API bool EditLink(QWidget* parent, TJCustomDBStructure& model, TDSLink& link);

}  // namespace tolvi
