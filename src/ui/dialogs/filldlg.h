#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include <tolvi/ui/api.h>

class QLabel;
class QPushButton;
class QStackedWidget;

namespace tolvi {

class TFillPage;
class TFillTablesPage;
class TFillWizard;
class TModelEditor;
struct TFillOptions;

/// The wizard that fills a model: choose tables, choose and name what is added, look at what changes. What the
/// catalogue says when it fails is shown on the page, with a button to try again.
///
/// Keys: Enter goes on, Alt+Left goes back, Escape cancels; in the lists, Space switches the selected rows, F2 renames.
class TOLVI_WIDGETS_API T_dlgFill final : public QDialog {
  Q_OBJECT

 public:
  /// The wizard must outlive the dialog.
  explicit T_dlgFill(TFillWizard& wizard, QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  enum TStep { stTables, stChoice, stPreview, StepCount };

  void BuildControls();
  void Run(const std::function<void()>& step);
  void ReadTables();
  void Next();
  void Back();
  void Fill();
  void Show(TStep step);
  void ShowState();
  TFillPage& Page() const;

  TFillWizard& FWizard;
  QStackedWidget* FPages;
  TFillTablesPage* FTables;
  QLabel *FHead, *FFault;
  QWidget* FFaultRow;
  QPushButton *FAgain, *FBack, *FNext, *FFill;
  std::function<void()> FFailed;
  bool FBusy = false, FHasTables = false;
};

/// Fills the model from its database information by the wizard, as one step of the editor. Whether something was
/// filled. `options` are what the wizard begins with.
TOLVI_WIDGETS_API bool FillFromDatabase(QWidget* parent, TModelEditor& editor, const TFillOptions& options);

}  // namespace tolvi
