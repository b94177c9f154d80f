#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/workbench/connection/paramsdlg.h"
#include "apps/workbench/workspace/settings.h"
#include "apps/workbench/workspace/workspace.h"
class QMenu;
class QSplitter;
class QTabWidget;

namespace tolvi {

class T_dlgModelEdit;
class TChartPane;
class TFaultFinder;
class TNoteBar;
class TQueryArea;
class TResultPane;
class TSqlPane;
class TStorePane;

/// The window of the workbench: the stored queries at the left, the query in the middle, its statement and its rows
/// below. It shows a workspace, and remembers what the user chooses in the settings.
class TMainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  /// In the language of that code. The settings must outlive the window.
  TMainWindow(TSettings& settings, const QString& language);
  ~TMainWindow() override;

  /// What the window asks the program for.
  struct TRequests {
    std::function<void()> Connect, OpenSample, RestoreSample, Quit;
    std::function<void(const TSource&)> Open;
    std::function<void(const QString& code)> UseLanguage;
    std::function<void()> UseTheme;
  };
  TRequests Requests;

  /// Null for none. `why` is shown in its place. The notes of its opening are told by who has opened it, once.
  void SetWorkspace(std::unique_ptr<TWorkspace> workspace, const QString& why = {});
  TWorkspace* GetWorkspace() const { return FWorkspace.get(); }
  /// For another window; this one is then empty.
  std::unique_ptr<TWorkspace> TakeWorkspace();

  /// Whether nothing would be lost by going on; asks the user what to do with unsaved changes of the query, the model.
  bool MayLeaveQuery();
  bool MayLeaveModel();
  /// What would be lost, with the model as it stands in an open editor; nothing without a workspace.
  std::optional<TUnsavedWork> Unsaved();
  /// Puts work back that a program left which did not come to its end; whether that worked.
  bool Restore(const TUnsavedWork& work);

  /// See `TNoteBar`.
  void Tell(const QString& words, const std::vector<std::pair<QString, std::function<void()>>>& choices = {},
            const QString& topic = {});
  TNoteBar& Note() const { return *FNote; }
  /// What the user tried could not be done.
  void TellFault(const QString& words);

  // The parts, for scripts and tests.
  TStorePane& StorePane() const { return *FStorePane; }
  TQueryArea& QueryArea() const { return *FQueryArea; }
  TResultPane& ResultPane() const { return *FResultPane; }
  TSqlPane& SqlPane() const { return *FSqlPane; }
  TChartPane& ChartPane() const { return *FChartPane; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  // The window.
  void BuildPanes();
  void ConnectPanes();
  void BuildMenus();
  QMenu* AddMenu(const QString& name, const QString& caption);
  void BuildDatabaseMenu();
  void BuildQueryMenu();
  void BuildStoreMenu(QMenu& parent);
  void KeepQueriesAt(const TSource& source);
  void TellFormerQueries(const TSource& former);
  void BuildEditMenu();
  void BuildModelMenu();
  void BuildViewMenu();
  void BuildLanguageMenu(QMenu& parent);
  void BuildThemeMenu(QMenu& parent);
  void BuildHelpMenu();
  QAction* AddCommand(QMenu& menu, const QString& name, const QString& caption, const QKeySequence& keys,
                      const std::function<void()>& run);
  QAction* CommandOf(const QString& name) const;
  void FillRecentMenu(QMenu& menu);
  void RefreshCommands();
  void RefreshTitle();
  // Each with the shares of its two parts to begin with.
  std::vector<std::pair<QSplitter*, QList<int>>> Splitters() const;
  void RestoreLayout();
  void SavePlaces();
  // Calls it; an error is told.
  bool Try(const std::function<void()>& operation);

  // The query.
  void QueryChanged();
  void QueryLoaded();
  // What follows from the query; soon after it has changed.
  void ShowQuery();
  void ShowStatement(TJQueryPanel& copy);
  // Of a copy that is changed for it.
  void ShowRows(TJQueryPanel& copy);
  std::unique_ptr<TJQueryPanel> CopyOfQuery() const;
  // The same; when there is none, why is shown in its place.
  std::unique_ptr<TJQueryPanel> CopyToShow();
  void RunQuery();
  bool SaveQuery();
  bool SettleConflict(const EQueryConflictError& conflict);
  void RevertQuery();
  void PasteSql(const std::string& sql = {});
  // Why there is no statement; leads to the condition that is to blame, if one is.
  void ShowQueryFault(const EException& error);
  void ShowDatabaseFault(const QString& words);
  void ShowFaultOfRow(const QString& words, const std::string& rowID);
  void ShowFaultOfColumn(const QString& words, std::size_t column);
  void RowsEnded();
  void ReadAllForChart();
  QString QueryName() const;

  // The model.
  void ModelChanged();
  void EditModelByDialog();
  void EditDiagram();
  void SaveModel();
  void SaveModelAs();
  void LoadModel();
  void RefreshModel();
  void TellModelNews(const TFillReport& report);
  void StepModel(void (TModelEditor::*step)());

  // Rows. Whether to take those that are here: when they are not all, the user is asked.
  bool MayTakeRows();
  void ExportRows();
  void PrintRows();

  TSettings& FSettings;
  const QString FLanguage;
  std::unique_ptr<TWorkspace> FWorkspace;
  TParamMemory FParams;
  TNoteBar* FNote;
  TStorePane* FStorePane;
  TQueryArea* FQueryArea;
  TResultPane* FResultPane;
  TSqlPane* FSqlPane;
  TChartPane* FChartPane;
  TFaultFinder* FFaultFinder;
  QSplitter *FColumns, *FRows, *FBottom;
  QTabWidget* FResultTabs;
  QPointer<T_dlgModelEdit> FModelDialog;
  QPointer<QWidget> FDiagram;
  QTimer FRefresh;
};

}  // namespace tolvi
