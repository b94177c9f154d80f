#pragma once

#include <QDialog>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include <tolvi/model/dbstruc.h>
#include <tolvi/ui/api.h>

class QAction;
class QSplitter;
class QTabWidget;
class QToolBar;

namespace tolvi {

struct TCheckFinding;
class TModelCheckPane;
class TModelEditor;
class TModelPage;
class TTryPane;

/// A further format of model files, beside the model text: what the name of such a file ends with ("xml"), and how it
/// is read and written. What these raise is told to the user; a model that could not be read must stay as it was.
struct TModelFormat {
  QString Name, Suffix;
  std::function<void(const QString& file, TJCustomDBStructure& model)> Load;
  std::function<void(const QString& file, const TJCustomDBStructure& model)> Save;
};

/// Lets the developer edit a data model: its tables and links, its fields in groups, operators and conditions, each on
/// a page, and the diagram. It works on a copy, and takes the database information and the events of the model over.
///
/// Keys: Ctrl+Z and Ctrl+Y undo and redo, Ctrl+Tab goes to the next page, F7 opens the list of what is wrong, F9 the
/// pane in which the model is tried, F1 Help, Ctrl+Enter is OK. Escape asks before changes are lost. A model that is
/// destroyed meanwhile closes the dialog.
class TOLVI_WIDGETS_API T_dlgModelEdit final : public QDialog {
  Q_OBJECT

 public:
  explicit T_dlgModelEdit(TJCustomDBStructure& model, std::vector<TModelFormat> formats = {},
                          QWidget* parent = nullptr);
  ~T_dlgModelEdit() override;

  TModelEditor& Editor() const { return *FEditor; }
  /// The model as it stands in the dialog.
  TJCustomDBStructure& Model() { return FCopy; }

  /// As one step of the history; whether it worked. What is wrong is told in a message box.
  bool LoadFromFile(const QString& file);
  bool SaveToFile(const QString& file);

  /// Hands the model back, if it has been changed.
  void accept() override;
  /// Asks if the model has been changed.
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct TCommand;

  void TakeSettingsOf(const TJCustomDBStructure& model);
  void BuildActions();
  QAction* AddAction(const TCommand& command);
  void BuildPages();
  void BuildPanes();
  void BuildButtons();
  void GiveRoomToTry();
  TModelPage* CurrentPage() const;
  void CommitEdits();
  void PageShown();
  void Refresh();
  /// Where parts of the model may have gone: a click that waits must not find them.
  void RefreshNow();
  void RefreshHistory();
  void GoTo(const TCheckFinding& finding);
  void RestorePlaces();
  void SavePlaces();
  void Close(int result);
  void HandBack(TJCustomDBStructure& model);

  void Open();
  void Save();
  void Connect();
  void Fill();
  void EditSettings();
  void Help();
  void Clear();
  QString FileFilters() const;
  const TModelFormat* FormatOf(const QString& file) const;
  bool Try(const QString& failure, const std::function<void()>& operation);

  TRef<TJCustomDBStructure> FOriginal;
  TJDBStructure FCopy;
  const std::vector<TModelFormat> FFormats;
  std::unique_ptr<TModelEditor> FEditor;
  QTimer FRefresh;
  QToolBar* FTools;
  QSplitter *FColumns, *FRows;
  QTabWidget* FPages;
  TModelPage* FShownPage = nullptr;
  TTryPane* FTryPane;
  TModelCheckPane* FCheckPane;
  QAction *FUndo = nullptr, *FRedo = nullptr;
  QString FFile;
  bool FTryHasRoom = false;
};

/// Lets the developer edit the model. Whether OK was chosen; the model then has the new content, in one change, if that
/// differs. It must live until the dialog is closed, be it by the destruction of `parent`.
TOLVI_WIDGETS_API bool EditModel(QWidget* parent, TJCustomDBStructure& model, std::vector<TModelFormat> formats = {});

}  // namespace tolvi
