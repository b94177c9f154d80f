#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>
#include <memory>

#include <tolvi/query/titles.h>
#include <tolvi/ui/api.h>

class QAction;
class QLineEdit;
class QTabWidget;

namespace tolvi {

class TRFColumnsPage;
class TRFieldEditor;
class TRFSortingPage;
class TRFieldList;

/// The handler of the Help button, with the dialog.
using TRFHelpEvent = std::function<void(QWidget& dialog)>;

/// Lets the user edit the columns of a query: which ones there are, their formulas, captions and aggregate functions,
/// and by which of them the rows are sorted. It works on a copy; a wrong expression keeps OK from closing it.
///
/// Keys: Enter in the tree of fields creates a column, Ctrl with +, -, * or / joins the selected fields to the current
/// one; Ctrl+N new, Delete, Ctrl+T sorts, Alt+Up and Alt+Down move; Ctrl+Z and Ctrl+Y undo and redo, Ctrl+Tab
/// goes to the other page, Ctrl+Enter is OK, F1 Help. Escape asks before changes are lost. A model that is destroyed
/// meanwhile closes the dialog.
class TOLVI_WIDGETS_API T_dlgRFieldEdit final : public QDialog {
  Q_OBJECT

 public:
  /// Texts are those of "[Result Fields Editor]". Without a handler there is no Help button.
  T_dlgRFieldEdit(const TRFieldList& fields, const TTitles& titles, TRFHelpEvent onHelp = {},
                  QWidget* parent = nullptr);
  ~T_dlgRFieldEdit() override;

  /// The columns as they stand in the dialog.
  const TRFieldList& GetFields() const;
  TRFieldEditor& Editor() const { return *FEditor; }
  /// Whether they may be others than those that were given.
  bool HasChanged() const;

  /// Goes to the first wrong expression if there is one, else closes the dialog.
  void accept() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildHistory();
  void RefreshHistory();
  void BuildButtons(TRFHelpEvent onHelp);
  void AddShortcut(const QKeySequence& key, const std::function<void()>& operation);
  void Refresh();
  void AskToReject();
  void ShowTextMenu(QLineEdit& line, const QPoint& at);

  std::unique_ptr<TRFieldEditor> FEditor;
  const bool FHasModel;
  QTabWidget* FPages;
  TRFColumnsPage* FColumns;
  TRFSortingPage* FSorting;
  QAction *FUndo = nullptr, *FRedo = nullptr;
  bool FChanged = false;
  std::uint64_t FRevision = 0;
};

/// Lets the user edit the columns. Whether OK was chosen; `fields` then holds them, in one change if they are others,
/// else it stays. It must live until the dialog is closed, be it by the destruction of `parent`.
TOLVI_WIDGETS_API bool EditResultFields(QWidget* parent, TRFieldList& fields, const TTitles& titles,
                                        TRFHelpEvent onHelp = {});

}  // namespace tolvi
