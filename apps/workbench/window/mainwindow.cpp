#include "apps/workbench/window/mainwindow.h"

#include <QCloseEvent>
#include <QDataStream>
#include <QGuiApplication>
#include <QJsonArray>
#include <QMessageBox>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "apps/workbench/controls/askchoice.h"
#include "apps/workbench/export/chartpane.h"
#include "apps/workbench/results/resultgrid.h"
#include "apps/workbench/results/resultpane.h"
#include "apps/workbench/sql/sqlpane.h"
#include "apps/workbench/store/storepane.h"
#include "apps/workbench/window/faultfinder.h"
#include "apps/workbench/window/languages.h"
#include "apps/workbench/window/notebar.h"
#include "apps/workbench/window/queryarea.h"
#include <tolvi/ui/dialogs/modeldlg.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// What the user wants to be done with changes that are not stored.
enum TLeaving : std::uint8_t { lvSave, lvDiscard, lvStay };

TLeaving AskToLeave(QWidget* parent, const QString& question, const QString& save, const QString& discard) {
  const auto answer =
      AskChoice(parent, QStringLiteral("ask"), question,
                {{QStringLiteral("save"), save}, {QStringLiteral("discard"), discard, QMessageBox::DestructiveRole}});
  if (!answer) return lvStay;
  return *answer == 0 ? lvSave : lvDiscard;
}

}  // namespace

TMainWindow::TMainWindow(TSettings& settings, const QString& language) : FSettings(settings), FLanguage(language) {
  setObjectName(QStringLiteral("workbench"));
  for (qsizetype i = settings.Params.size() - 2; i >= 0; i -= 2) {
    FParams.Set(settings.Params[i].toString(), settings.Params[i + 1].toString());
  }
  BuildPanes();
  ConnectPanes();
  BuildMenus();
  FRefresh.setSingleShot(true);
  FRefresh.setInterval(0);
  connect(&FRefresh, &QTimer::timeout, this, &TMainWindow::ShowQuery);
  resize(QSize(1280, 800).boundedTo(screen()->availableSize()));
  restoreGeometry(settings.Geometry);
  RestoreLayout();
  SetWorkspace(nullptr);
}

TMainWindow::~TMainWindow() { SetWorkspace(nullptr); }

void TMainWindow::BuildPanes() {
  FNote = new TNoteBar;
  FStorePane = new TStorePane;
  FQueryArea = new TQueryArea(PanelTitles(FLanguage));
  FResultPane = new TResultPane;
  FSqlPane = new TSqlPane;
  FChartPane = new TChartPane;
  FFaultFinder = new TFaultFinder(this);

  FResultTabs = new QTabWidget;
  FResultTabs->setObjectName(QStringLiteral("results.tabs"));
  FResultTabs->setDocumentMode(true);
  FResultTabs->addTab(FResultPane, tr("Results"));
  FResultTabs->addTab(FChartPane, tr("Chart"));
  auto* sqlTabs = new QTabWidget;
  sqlTabs->setDocumentMode(true);
  sqlTabs->addTab(FSqlPane, tr("SQL"));

  const auto split = [](Qt::Orientation orientation, QWidget* first, QWidget* second) {
    auto* splitter = new QSplitter(orientation);
    splitter->addWidget(first);
    splitter->addWidget(second);
    splitter->setChildrenCollapsible(false);
    return splitter;
  };
  FBottom = split(Qt::Horizontal, FResultTabs, sqlTabs);
  FRows = split(Qt::Vertical, FQueryArea, FBottom);
  FColumns = split(Qt::Horizontal, FStorePane, FRows);
  FQueryArea->Splitter().setOrientation(Qt::Horizontal);

  auto* central = new QWidget;
  auto* rows = new QVBoxLayout(central);
  rows->setContentsMargins(6, 6, 6, 0);
  rows->addWidget(FNote);
  rows->addWidget(FColumns, 1);
  setCentralWidget(central);
  statusBar()->setObjectName(QStringLiteral("status"));
}

void TMainWindow::ConnectPanes() {
  FQueryArea->OnChange = [this] { QueryChanged(); };
  FQueryArea->OnError = [this](const QString& words) {
    if (!FWorkspace || !FWorkspace->Model().GetEmpty()) return TellFault(words);
    Tell(ToQString(TWorkspace::NoTables()),
         {{CommandOf(QStringLiteral("model.refresh"))->text(), [this] { RefreshModel(); }}});
  };
  FStorePane->OnMayLeave = [this] { return MayLeaveQuery(); };
  FStorePane->OnShownText = [this] { return FWorkspace ? FWorkspace->ShownText() : TStrings(); };
  FStorePane->OnSettled = [this] { QueryLoaded(); };
  FStorePane->OnOrderChange = [this] {
    if (!FWorkspace) return;
    FSettings.Orders.insert(SourceKey(FWorkspace->GetSource()), QJsonArray::fromStringList(FStorePane->GetOrder()));
  };
  FResultPane->OnRunRequest = [this] { RunQuery(); };
  FResultPane->OnPreviewChange = [this] {
    FSettings.Preview = FResultPane->GetPreview();
    QueryChanged();
  };
  FResultPane->OnFault = [this](const QString& words, const QString&) { ShowDatabaseFault(words); };
  FResultPane->OnStateChange = [this] { RowsEnded(); };
  FChartPane->OnReadAll = [this] { ReadAllForChart(); };
  FSqlPane->OnSyntaxChange = [this](TSQLSyntax syntax) {
    if (!FWorkspace) return;
    FSettings.Syntaxes.insert(SourceKey(FWorkspace->GetSource()), static_cast<int>(syntax));
    if (const auto copy = CopyToShow()) ShowStatement(*copy);
  };
  FSqlPane->OnPaste = [this] { PasteSql(); };
  FSqlPane->OnShowRow = [this](const std::string& rowID) { FQueryArea->GoToRow(rowID); };
  FSqlPane->OnMarkersRequest = [this](TMarkerStyle style) {
    const std::unique_ptr<TJQueryPanel> copy = CopyOfQuery();
    copy->SetSQLSyntax(FSqlPane->GetSyntax());
    return copy->GetBoundStatement(style).SQL;
  };
}

void TMainWindow::SetWorkspace(std::unique_ptr<TWorkspace> workspace, const QString& why) {
  delete FDiagram;
  FRefresh.stop();
  FFaultFinder->Stop();
  FResultPane->Cancel();
  FStorePane->SetQueryBase(nullptr);
  FStorePane->SetDBStruct(nullptr);
  FQueryArea->SetPanel(nullptr, nullptr);
  if (FWorkspace) {
    FWorkspace->Model().OnChange = nullptr;
    FWorkspace->Store().AfterScroll = nullptr;
  }
  FWorkspace = std::move(workspace);
  FNote->Pass();
  FColumns->setEnabled(FWorkspace != nullptr);
  RefreshTitle();
  RefreshCommands();
  if (!FWorkspace) {
    FSqlPane->SetStatement({});
    FResultPane->SetNoConnection(why.isEmpty() ? tr("Open a database to ask it something.") : why);
    FChartPane->SetRows(nullptr);
    return;
  }
  const QString key = SourceKey(FWorkspace->GetSource());
  FWorkspace->Panel().SetAllowSQLFragments(FSettings.AllowSQLFragments);
  FSqlPane->SetSyntax(static_cast<TSQLSyntax>(FSettings.Syntaxes.value(key).toInt(ssSQL2)));
  FResultPane->SetConnection(FWorkspace->GetUrl());
  FFaultFinder->SetConnection(FWorkspace->GetUrl());
  FResultPane->SetPreview(FSettings.Preview);
  FQueryArea->SetPanel(&FWorkspace->Panel(), &FWorkspace->Model());
  QStringList order;
  for (const QJsonValueRef id : FSettings.Orders.value(key).toArray()) order << id.toString();
  FStorePane->SetOrder(order);
  FStorePane->SetDBStruct(&FWorkspace->Model());
  FStorePane->SetQueryBase(&FWorkspace->Store());
  FWorkspace->Store().AfterScroll = [this](TJQueryBase&) { QueryLoaded(); };
  FWorkspace->Model().OnChange = [this](TJCustomDBStructure&) { ModelChanged(); };
  QueryLoaded();
  FQueryArea->Conditions().setFocus();
}

std::unique_ptr<TWorkspace> TMainWindow::TakeWorkspace() {
  SavePlaces();
  auto workspace = std::move(FWorkspace);
  if (workspace) {
    workspace->Model().OnChange = nullptr;
    workspace->Store().AfterScroll = nullptr;
  }
  SetWorkspace(nullptr);
  return workspace;
}

std::vector<std::pair<QSplitter*, QList<int>>> TMainWindow::Splitters() const {
  // With shares of what there is.
  return {{FColumns, {20, 80}}, {FRows, {45, 55}}, {FBottom, {60, 40}}, {&FQueryArea->Splitter(), {60, 40}}};
}

void TMainWindow::RestoreLayout() {
  QDataStream stored(FSettings.Layout);
  for (const auto& [splitter, shares] : Splitters()) {
    for (int i = 0; i < 2; ++i) splitter->setStretchFactor(i, splitter == FColumns && i == 0 ? 0 : 1);
    QByteArray state;
    stored >> state;
    if (splitter->restoreState(state)) continue;
    const int size = splitter->orientation() == Qt::Horizontal ? width() : height();
    splitter->setSizes({size * shares[0] / 100, size * shares[1] / 100});
  }
}

QString TMainWindow::QueryName() const {
  const TJQueryItem* query = FWorkspace ? FWorkspace->Store().GetCurrentQuery() : nullptr;
  return query == nullptr ? QString() : ToQString(query->GetQueryName());
}

void TMainWindow::RefreshTitle() {
  // The system adds the program's name.
  if (!FWorkspace) return setWindowTitle({});
  const QString source = SourceName(FWorkspace->GetSource()), query = QueryName();
  setWindowTitle((query.isEmpty() ? source : query + QStringLiteral(" – ") + source) + QStringLiteral("[*]"));
  setWindowModified(FWorkspace->IsQueryModified() || FWorkspace->IsModelModified());
}

bool TMainWindow::MayLeaveQuery() {
  if (!FWorkspace || !FWorkspace->IsQueryModified()) return true;
  switch (AskToLeave(this, tr("The query “%1” has changes that are not saved.").arg(QueryName()), tr("&Save query"),
                     tr("&Discard changes"))) {
    case lvSave:
      return SaveQuery();
    case lvDiscard:
      RevertQuery();
      return true;
    default:
      return false;
  }
}

bool TMainWindow::MayLeaveModel() {
  if (!FWorkspace || !FWorkspace->IsModelModified()) return true;
  switch (AskToLeave(this, tr("The data model has changes that are not saved."), tr("&Save model"),
                     tr("&Discard changes"))) {
    case lvSave:
      SaveModel();
      return !FWorkspace->IsModelModified();
    case lvDiscard:
      return Try([this] { FWorkspace->RevertModel(); });
    default:
      return false;
  }
}

std::optional<TUnsavedWork> TMainWindow::Unsaved() {
  if (!FWorkspace) return std::nullopt;
  TUnsavedWork work = FWorkspace->Unsaved();
  if (FModelDialog && FModelDialog->Editor().GetModified()) work.ModelText = FModelDialog->Model().GetStructString();
  return work;
}

bool TMainWindow::Restore(const TUnsavedWork& work) {
  if (!FWorkspace || !Try([&] { FWorkspace->Restore(work); })) return false;
  QueryLoaded();
  const QString words = work.QueryText ? tr("The program ended before changes of “%1” were saved. Here they are again.")
                                             .arg(ToQString(work.QueryName))
                                       : tr("The program ended before changes of the data model were saved. Here they "
                                            "are again.");
  Tell(words, {{tr("Save"),
                [this] {
                  if (!FWorkspace) return;
                  if (FWorkspace->IsModelModified()) SaveModel();
                  if (FWorkspace->IsQueryModified()) SaveQuery();
                }},
               {tr("Discard"), [this] {
                  if (!FWorkspace) return;
                  if (FWorkspace->IsModelModified()) Try([this] { FWorkspace->RevertModel(); });
                  RevertQuery();
                }}});
  return true;
}

void TMainWindow::Tell(const QString& words, const std::vector<std::pair<QString, std::function<void()>>>& choices,
                       const QString& topic) {
  FNote->Tell(words, choices, topic);
}

void TMainWindow::TellFault(const QString& words) {
  QMessageBox box(QMessageBox::Warning, QGuiApplication::applicationDisplayName(), words, QMessageBox::Ok, this);
  box.setObjectName(QStringLiteral("fault"));
  // The words may be a database's, or hold the name of a file.
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool TMainWindow::Try(const std::function<void()>& operation) {
  try {
    operation();
    return true;
  } catch (const std::exception& error) {
    TellFault(QString::fromUtf8(error.what()));
    return false;
  }
}

void TMainWindow::SavePlaces() {
  FSettings.Geometry = saveGeometry();
  FSettings.Layout.clear();
  QDataStream layout(&FSettings.Layout, QIODevice::WriteOnly);
  for (const auto& [splitter, shares] : Splitters()) layout << splitter->saveState();
  FSettings.Params = {};
  for (const auto& [key, value] : FParams.Values()) {
    FSettings.Params << key;
    FSettings.Params << value;
  }
  if (FWorkspace) FSettings.LastQueries.insert(SourceKey(FWorkspace->GetSource()), QueryName());
}

void TMainWindow::closeEvent(QCloseEvent* event) {
  if (!MayLeaveQuery() || !MayLeaveModel()) {
    event->ignore();
    return;
  }
  SavePlaces();
  event->accept();
  if (Requests.Quit) Requests.Quit();
}

}  // namespace tolvi
