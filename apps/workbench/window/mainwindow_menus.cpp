// The menus of the window.
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>

#include "apps/workbench/export/chartpane.h"
#include "apps/workbench/results/resultgrid.h"
#include "apps/workbench/results/resultpane.h"
#include "apps/workbench/sql/sqlpane.h"
#include "apps/workbench/store/storepane.h"
#include "apps/workbench/window/aboutdlg.h"
#include "apps/workbench/window/languages.h"
#include "apps/workbench/window/mainwindow.h"
#include "apps/workbench/window/notebar.h"
#include "apps/workbench/window/queryarea.h"
#include "apps/workbench/window/settingsdlg.h"
#include "apps/workbench/window/shortcutsdlg.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/panel/panelcommands.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

QAction* TMainWindow::AddCommand(QMenu& menu, const QString& name, const QString& caption, const QKeySequence& keys,
                                 const std::function<void()>& run) {
  QAction* action = menu.addAction(caption);
  action->setObjectName(name);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, [run] { run(); });
  return action;
}

QAction* TMainWindow::CommandOf(const QString& name) const { return findChild<QAction*>(name); }

QMenu* TMainWindow::AddMenu(const QString& name, const QString& caption) {
  QMenu* menu = menuBar()->addMenu(caption);
  menu->setObjectName(name);
  menu->setToolTipsVisible(true);
  return menu;
}

void TMainWindow::BuildMenus() {
  BuildDatabaseMenu();
  BuildQueryMenu();
  BuildEditMenu();
  BuildModelMenu();
  BuildViewMenu();
  BuildHelpMenu();
}

void TMainWindow::BuildDatabaseMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("menu.database"), tr("&Database"));
  const auto request = [this](std::function<void()> TRequests::*wanted) {
    return [this, wanted] {
      if (const auto call = Requests.*wanted) call();
    };
  };
  AddCommand(menu, QStringLiteral("database.open"), tr("&Open..."), QKeySequence::Open, request(&TRequests::Connect));
  QMenu* recent = menu.addMenu(tr("Open &recent"));
  recent->setObjectName(QStringLiteral("menu.recent"));
  connect(recent, &QMenu::aboutToShow, this, [this, recent] { FillRecentMenu(*recent); });
  AddCommand(menu, QStringLiteral("database.sample"), tr("Open the &sample"), {}, request(&TRequests::OpenSample));
  AddCommand(menu, QStringLiteral("database.restore"), tr("Make the sample a&new"), {},
             request(&TRequests::RestoreSample));
  menu.addSeparator();
  AddCommand(menu, QStringLiteral("database.export"), tr("&Export rows..."),
             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E), [this] { ExportRows(); });
  AddCommand(menu, QStringLiteral("database.print"), tr("&Print rows..."), QKeySequence::Print,
             [this] { PrintRows(); });
  for (const char* name : {"database.export", "database.print"}) {
    FResultPane->AddAction(CommandOf(QString::fromLatin1(name)));
  }
  menu.addSeparator();
  AddCommand(menu, QStringLiteral("quit"), tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });
}

void TMainWindow::FillRecentMenu(QMenu& menu) {
  menu.clear();
  for (const TSource& source : FSettings.Recent) {
    try {
      QAction* action = menu.addAction(SourceName(source).replace(u'&', QStringLiteral("&&")));
      action->setToolTip(PlainToolTip(ToQString(source.Url)));
      connect(
          action, &QAction::triggered, this,
          [this, source] {
            if (Requests.Open) Requests.Open(source);
          },
          Qt::QueuedConnection);
    } catch (const EException&) {
      continue;  // from a settings file that was edited: not a URL
    }
  }
  if (menu.isEmpty()) menu.addAction(tr("None yet"))->setEnabled(false);
}

void TMainWindow::BuildQueryMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("menu.query"), tr("&Query"));
  const auto stored = [this, &menu](const char* name) { menu.addAction(FStorePane->Action(QLatin1String(name))); };
  stored("store.new");
  AddCommand(menu, QStringLiteral("query.save"), tr("&Save"), QKeySequence::Save, [this] { SaveQuery(); });
  AddCommand(menu, QStringLiteral("query.revert"), tr("Re&vert to saved"), {}, [this] { RevertQuery(); });
  BuildStoreMenu(menu);
  menu.addSeparator();
  for (const char* name : {"store.rename", "store.duplicate", "store.describe", "store.delete"}) stored(name);
  menu.addSeparator();
  AddCommand(menu, QStringLiteral("query.find"), tr("&Find a query"), QKeySequence::Find, [this] {
    FStorePane->SearchLine().setFocus();
    FStorePane->SearchLine().selectAll();
  });
  AddCommand(menu, QStringLiteral("query.pastesql"), tr("Paste S&QL..."),
             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V), [this] { PasteSql(); });
  menu.addSeparator();
  menu.addAction(FResultPane->RunAction());
  menu.addAction(FResultPane->StopAction());
  menu.addAction(FResultPane->PreviewAction());
}

void TMainWindow::BuildStoreMenu(QMenu& parent) {
  QMenu& menu = *parent.addMenu(tr("&Where queries are kept"));
  menu.setObjectName(QStringLiteral("menu.kept"));
  auto* group = new QActionGroup(&menu);
  // The source is opened anew: not while the menu is open.
  const auto keep = [this, &menu, group](const QString& name, const QString& caption,
                                         const std::function<bool(TSource&)>& change) {
    QAction* action = group->addAction(AddCommand(menu, name, caption, {}, [] {}));
    action->setCheckable(true);
    connect(
        action, &QAction::triggered, this,
        [this, change] {
          if (!FWorkspace || !Requests.Open) return;
          TSource source = FWorkspace->GetSource();
          if (change(source)) KeepQueriesAt(source);
          RefreshCommands();
        },
        Qt::QueuedConnection);
  };
  keep(QStringLiteral("query.keepown"), tr("By the &workbench"), [](TSource& source) {
    source.QueryFolder.clear();
    source.QueriesInDatabase = false;
    return true;
  });
  keep(QStringLiteral("query.keepfolder"), tr("In a &folder..."), [this](TSource& source) {
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder of the queries"), ToQString(source.QueryFolder));
    source.QueryFolder = FromQString(folder);
    source.QueriesInDatabase = false;
    return !folder.isEmpty();
  });
  keep(QStringLiteral("query.keepdatabase"), tr("In the &database itself"), [](TSource& source) {
    source.QueriesInDatabase = true;
    return true;
  });
}

void TMainWindow::KeepQueriesAt(const TSource& source) {
  const TSource former = FWorkspace->GetSource();
  if (source == former) return;
  Requests.Open(source);
  if (FWorkspace && FWorkspace->GetSource() == source) TellFormerQueries(former);
}

void TMainWindow::TellFormerQueries(const TSource& former) {
  const QString folder = FWorkspace->QueryFolderOf(former);
  const QString words = folder.isEmpty()
                            ? tr("The former queries are still in the database.")
                            : tr("The former queries are still in %1.").arg(QDir::toNativeSeparators(folder));
  // What opening the other place had to tell goes before it.
  Tell(ToQString(FWorkspace->GetNotes().Joined(" ") + (FWorkspace->GetNotes().Empty() ? "" : " ")) + words,
       {{tr("Back"),
         [this, former] {
           if (Requests.Open) Requests.Open(former);
         }},
        {tr("Copy them here"), [this, former] {
           if (!FWorkspace) return;
           const int before = FWorkspace->Store().Count();
           const bool isDone = Try([&] { FWorkspace->CopyQueries(former); });
           const int count = FWorkspace ? FWorkspace->Store().Count() - before : 0;
           // A fault half-way leaves those before it here.
           if (isDone || count > 0) statusBar()->showMessage(tr("%n query(ies) copied.", nullptr, count), 10'000);
         }}});
}

void TMainWindow::BuildEditMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("menu.edit"), tr("&Edit"));
  TJQueryPanelView& view = FQueryArea->Conditions();
  constexpr TPanelCommand none = pcOpenPart;
  for (const TPanelCommand command : {pcUndo, pcRedo, none, pcAddCond, pcAddBracket, pcDuplicate, pcWrap, pcUngroup,
                                      pcEnable, pcDelete, none, pcCut, pcCopy, pcPaste}) {
    if (command == none) {
      menu.addSeparator();
      continue;
    }
    // The view's own actions are for its keys; those of the menu only run the command, as keys like Ctrl+C mean
    // something else in other panes.
    const QAction& known = view.GetAction(command);
    QAction* action = menu.addAction(known.text());
    action->setObjectName(QStringLiteral("edit.") + known.objectName());
    connect(action, &QAction::triggered, this, [&view, command] { view.RunCommand(command); });
    const auto refresh = [action, &known] {
      action->setText(known.text() + (known.shortcut().isEmpty()
                                          ? QString()
                                          : u'\t' + known.shortcut().toString(QKeySequence::NativeText)));
      action->setEnabled(known.isEnabled());
    };
    connect(&known, &QAction::changed, action, refresh);
    refresh();
  }
  menu.addSeparator();
  AddCommand(menu, QStringLiteral("edit.columns"), tr("Result &columns..."), QKeySequence(Qt::CTRL | Qt::Key_E),
             [this] { Try([this] { FQueryArea->Columns().EditFields(); }); });
}

void TMainWindow::BuildModelMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("menu.model"), tr("&Model"));
  AddCommand(menu, QStringLiteral("model.edit"), tr("&Edit the model..."), QKeySequence(Qt::CTRL | Qt::Key_M),
             [this] { EditModelByDialog(); });
  AddCommand(menu, QStringLiteral("model.diagram"), tr("&Diagram..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M),
             [this] { EditDiagram(); });
  AddCommand(menu, QStringLiteral("model.refresh"), tr("Read new tables from the data&base"), {},
             [this] { RefreshModel(); });
  menu.addSeparator();
  AddCommand(menu, QStringLiteral("model.undo"), tr("&Undo change of the model"),
             QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_Z), [this] { StepModel(&TModelEditor::Undo); });
  AddCommand(menu, QStringLiteral("model.redo"), tr("&Redo change of the model"),
             QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_Y), [this] { StepModel(&TModelEditor::Redo); });
  menu.addSeparator();
  AddCommand(menu, QStringLiteral("model.load"), tr("&Load..."), {}, [this] { LoadModel(); });
  AddCommand(menu, QStringLiteral("model.save"), tr("&Save"), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_S),
             [this] { SaveModel(); });
  AddCommand(menu, QStringLiteral("model.saveas"), tr("Save &as..."), {}, [this] { SaveModelAs(); });
}

void TMainWindow::BuildViewMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("menu.view"), tr("&View"));
  // A pane that is a tab comes to the front.
  const auto go = [this, &menu](const QString& name, const QString& caption, int number, QWidget* target,
                                QWidget* pane = nullptr) {
    AddCommand(menu, name, caption, QKeySequence(QStringLiteral("Alt+%1").arg(number)), [this, target, pane] {
      if (pane != nullptr) FResultTabs->setCurrentWidget(pane);
      QWidget* shown = target != nullptr ? target : &FResultPane->ShownPart();
      shown->setFocus(Qt::ShortcutFocusReason);
    });
  };
  go(QStringLiteral("view.queries"), tr("Go to the &queries"), 1, &FStorePane->List());
  go(QStringLiteral("view.conditions"), tr("Go to the &conditions"), 2, &FQueryArea->Conditions());
  go(QStringLiteral("view.columns"), tr("Go to the co&lumns"), 3, &FQueryArea->Columns());
  go(QStringLiteral("view.results"), tr("Go to the &rows"), 4, nullptr, FResultPane);
  go(QStringLiteral("view.chart"), tr("Go to the c&hart"), 5,
     FChartPane->findChild<QWidget*>(QStringLiteral("chart.kind")), FChartPane);
  go(QStringLiteral("view.sql"), tr("Go to the &SQL"), 6, FSqlPane->findChild<QWidget*>(QStringLiteral("sql.view")));
  AddCommand(menu, QStringLiteral("view.note"), tr("Go to the &note"), QKeySequence(QStringLiteral("Alt+0")),
             [this] { FNote->GoThere(); });
  menu.addSeparator();
  BuildLanguageMenu(menu);
  BuildThemeMenu(menu);
  menu.addSeparator();
  AddCommand(menu, QStringLiteral("view.settings"), tr("S&ettings..."), QKeySequence(Qt::CTRL | Qt::Key_Comma), [this] {
    if (!EditSettings(this, FSettings)) return;
    if (FWorkspace) FWorkspace->Panel().SetAllowSQLFragments(FSettings.AllowSQLFragments);
    FResultPane->SetPreview(FSettings.Preview);
    if (Requests.UseTheme) Requests.UseTheme();
    if (FWorkspace) FRefresh.start();
  });
}

void TMainWindow::BuildLanguageMenu(QMenu& parent) {
  QMenu* languages = parent.addMenu(tr("L&anguage"));
  languages->setObjectName(QStringLiteral("menu.language"));
  for (const TLanguage& language : Languages()) {
    QAction* action = languages->addAction(language.Name);
    action->setObjectName(QStringLiteral("language.") + language.Code);
    action->setCheckable(true);
    action->setChecked(language.Code == FLanguage);
    // The window is made anew: not while its menu is open.
    connect(
        action, &QAction::triggered, this,
        [this, code = language.Code] {
          // The handler destroys this window.
          if (const auto handler = Requests.UseLanguage) handler(code);
        },
        Qt::QueuedConnection);
  }
}

void TMainWindow::BuildThemeMenu(QMenu& parent) {
  QMenu* themes = parent.addMenu(tr("&Colours"));
  themes->setObjectName(QStringLiteral("menu.theme"));
  auto* group = new QActionGroup(themes);
  const std::pair<TTheme, QString> captions[] = {
      {thSystem, tr("Those of the s&ystem")}, {thLight, tr("&Light")}, {thDark, tr("&Dark")}};
  for (const auto& [theme, caption] : captions) {
    QAction* action = group->addAction(themes->addAction(caption));
    action->setObjectName(QStringLiteral("theme.%1").arg(theme));
    action->setCheckable(true);
    // The settings have it, too.
    connect(themes, &QMenu::aboutToShow, action,
            [this, action, theme = theme] { action->setChecked(theme == FSettings.Theme); });
    connect(action, &QAction::triggered, this, [this, theme = theme] {
      FSettings.Theme = theme;
      if (Requests.UseTheme) Requests.UseTheme();
    });
  }
}

void TMainWindow::BuildHelpMenu() {
  QMenu& menu = *AddMenu(QStringLiteral("menu.help"), tr("&Help"));
  AddCommand(menu, QStringLiteral("help.shortcuts"), tr("&Keyboard shortcuts"), QKeySequence::HelpContents, [this] {
    QList<QAction*> conditions;
    for (const TPanelCommandInfo& info : PanelCommands()) {
      conditions << &FQueryArea->Conditions().GetAction(info.Command);
    }
    ShowShortcuts(*this,
                  {KeysOf(conditions), KeysOf(FStorePane->List().actions()), TResultGrid::Keys(), FSqlPane->Keys()});
  });
  AddCommand(menu, QStringLiteral("help.about"), tr("&About"), {}, [this] { ShowAbout(this); });
}

void TMainWindow::RefreshCommands() {
  const bool isOpen = FWorkspace != nullptr, hasRows = isOpen && FResultPane->GetRows() && !FResultPane->IsRunning();
  for (const char* name : {"query.save", "query.revert", "query.find", "query.pastesql", "model.edit", "model.diagram",
                           "model.refresh", "model.load", "model.save", "model.saveas", "edit.columns"}) {
    CommandOf(QString::fromLatin1(name))->setEnabled(isOpen);
  }
  const TSource source = isOpen ? FWorkspace->GetSource() : TSource();
  const std::pair<const char*, bool> places[] = {
      {"query.keepown", source.QueryFolder.empty() && !source.QueriesInDatabase},
      {"query.keepfolder", !source.QueryFolder.empty() && !source.QueriesInDatabase},
      {"query.keepdatabase", source.QueriesInDatabase}};
  for (const auto& [name, isHere] : places) {
    QAction* place = CommandOf(QString::fromLatin1(name));
    place->setEnabled(isOpen);
    if (isHere) place->setChecked(true);
  }
  CommandOf(QStringLiteral("database.export"))->setEnabled(hasRows);
  CommandOf(QStringLiteral("database.print"))->setEnabled(hasRows);
  CommandOf(QStringLiteral("model.undo"))->setEnabled(isOpen && FWorkspace->ModelEditor().CanUndo());
  CommandOf(QStringLiteral("model.redo"))->setEnabled(isOpen && FWorkspace->ModelEditor().CanRedo());
}

}  // namespace tolvi
