#include <QAction>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include <tolvi/model/modelcheck.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/listactions.h>
#include <tolvi/ui/dialogs/modelcheckpane.h>
#include <tolvi/ui/dialogs/modelconds.h>
#include <tolvi/ui/dialogs/modeldiagram.h>
#include <tolvi/ui/dialogs/modeldlg.h>
#include <tolvi/ui/dialogs/modelentities.h>
#include <tolvi/ui/dialogs/modelops.h>
#include <tolvi/ui/dialogs/modeltables.h>
#include <tolvi/ui/dialogs/trypane.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

template <typename TPage>
TModelPage* Make(TModelEditor& editor, QWidget* parent) {
  return new TPage(editor, parent);
}

struct TPageKind {
  const char *Name, *Caption;
  TModelPage* (*Create)(TModelEditor& editor, QWidget* parent);
};

constexpr TPageKind PageKinds[] = {
    {"Tables", QT_TRANSLATE_NOOP("tolvi::T_dlgModelEdit", "&Tables"), Make<TTablesPage>},
    {"Entities", QT_TRANSLATE_NOOP("tolvi::T_dlgModelEdit", "&Entities"), Make<TEntitiesPage>},
    {"Operators", QT_TRANSLATE_NOOP("tolvi::T_dlgModelEdit", "&Operators"), Make<TOperatorsPage>},
    {"Conditions", QT_TRANSLATE_NOOP("tolvi::T_dlgModelEdit", "&Conditions"), Make<TConditionsPage>},
    {"Diagram", QT_TRANSLATE_NOOP("tolvi::T_dlgModelEdit", "&Diagram"), Make<TDiagramPage>},
};

const QList<QKeySequence> UndoKeys{Qt::CTRL | Qt::Key_Z},
    RedoKeys{Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z};

}  // namespace

struct T_dlgModelEdit::TCommand {
  const char* Text;
  QList<QKeySequence> Keys;
  void (T_dlgModelEdit::*Run)();
  TSign Sign = sgNone;
};

T_dlgModelEdit::T_dlgModelEdit(TJCustomDBStructure& model, std::vector<TModelFormat> formats, QWidget* parent)
    : QDialog(parent),
      FOriginal([this] { Close(Rejected); }),
      FFormats(std::move(formats)),
      FTools(new QToolBar(this)),
      FColumns(new QSplitter(Qt::Horizontal, this)),
      FRows(new QSplitter(Qt::Vertical, this)),
      FPages(new QTabWidget(FColumns)) {
  setWindowTitle(tr("Edit Data Model") + QStringLiteral("[*]"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setSizeGripEnabled(true);
  FOriginal.Set(&model);
  TakeSettingsOf(model);
  FEditor = std::make_unique<TModelEditor>(FCopy);
  BuildPages();
  BuildPanes();
  BuildActions();
  BuildButtons();
  FRefresh.setSingleShot(true);
  connect(&FRefresh, &QTimer::timeout, this, &T_dlgModelEdit::Refresh);
  FEditor->OnChange = [this] { FRefresh.start(0); };
  const QSize wanted(150 * fontMetrics().averageCharWidth(), 40 * fontMetrics().height());
  resize(wanted.expandedTo(sizeHint()).boundedTo(screen()->availableSize() * 0.9));
  RestorePlaces();
  PageShown();
}

// The pages and panes go before the editor, and tell of changes while they go.
T_dlgModelEdit::~T_dlgModelEdit() {
  FEditor->OnChange = {};
  FPages->disconnect(this);
  delete FRows;
}

// What no model text holds is taken over here; the handlers last, as they are for files.
void T_dlgModelEdit::TakeSettingsOf(const TJCustomDBStructure& model) {
  FCopy.SetDatabaseInfo(model.GetDatabaseInfo());
  FCopy.SetExOperators(model.GetExOperators());
  FCopy.SetDefOperators(model.GetDefOperators());
  FCopy.SQLFormats() = model.SQLFormats();
  FCopy.DMOptions() = model.DMOptions();
  FCopy.SetStructString(WriteModelText(model));
  FCopy.SetSpecInfo(model.GetSpecInfo());
  FCopy.SetAutoAddFields(model.GetAutoAddFields());
  FCopy.SetDMEButtons(model.GetDMEButtons());
  FCopy.SetInitialSEPath(model.GetInitialSEPath());
  FCopy.SetHelpFileName(model.GetHelpFileName());
  FCopy.SetSEHelpContext(model.GetSEHelpContext());
  FCopy.OnLoadModel = model.OnLoadModel;
  FCopy.OnSaveModel = model.OnSaveModel;
}

// Controls

void T_dlgModelEdit::BuildPages() {
  for (const TPageKind& kind : PageKinds) {
    TModelPage* page = kind.Create(*FEditor, FPages);
    page->setObjectName(QLatin1String(kind.Name));
    FPages->addTab(page, tr(kind.Caption));
  }
  connect(FPages, &QTabWidget::currentChanged, this, &T_dlgModelEdit::PageShown);
  // A click goes to the page, where its keys are; arrow keys stay on the captions.
  connect(
      FPages, &QTabWidget::tabBarClicked, this, [this] { CurrentPage()->setFocus(); }, Qt::QueuedConnection);
}

void T_dlgModelEdit::BuildPanes() {
  FTryPane = new TTryPane(*FEditor, FColumns);
  FTryPane->hide();
  FCheckPane = new TModelCheckPane(FRows);
  FCheckPane->hide();
  FCheckPane->OnActivate = [this](const TCheckFinding& finding) { GoTo(finding); };
  FColumns->setObjectName(QStringLiteral("Columns"));
  FRows->setObjectName(QStringLiteral("Rows"));
  FColumns->addWidget(FPages);
  FColumns->addWidget(FTryPane);
  FRows->addWidget(FColumns);
  FRows->addWidget(FCheckPane);
  for (QSplitter* splitter : {FColumns, FRows}) {
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
  }
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(FTools);
  layout->addWidget(FRows, 1);
}

QAction* T_dlgModelEdit::AddAction(const TCommand& command) {
  const QString text = tr(command.Text);
  auto* action = new QAction(text, this);
  if (command.Sign != sgNone) action->setIcon(SignIcon(command.Sign, *this));
  action->setShortcuts(command.Keys);
  action->setToolTip(WithKey(text, action->shortcut()));
  // The window may be closed, and go, before the tool button has finished with its click.
  if (command.Run != nullptr) connect(action, &QAction::triggered, this, command.Run, Qt::QueuedConnection);
  FTools->addAction(action);
  return action;
}

void T_dlgModelEdit::BuildActions() {
  FTools->setToolButtonStyle(Qt::ToolButtonTextOnly);
  const int side = fontMetrics().height();
  FTools->setIconSize(QSize(side, side));
  FUndo = AddAction({QT_TR_NOOP("Undo"), UndoKeys, nullptr, sgUndo});
  FRedo = AddAction({QT_TR_NOOP("Redo"), RedoKeys, nullptr, sgRedo});
  for (QAction* action : {FUndo, FRedo}) {
    static_cast<QToolButton*>(FTools->widgetForAction(action))->setToolButtonStyle(Qt::ToolButtonIconOnly);
    connect(action, &QAction::triggered, this, [this, action] {
      CommitEdits();
      action == FUndo ? FEditor->Undo() : FEditor->Redo();
      RefreshNow();
    });
  }
  FTools->addSeparator();
  const TDMEButtons buttons = FCopy.GetDMEButtons();
  if (buttons.Contains(dmbOpenSave)) {
    AddAction({QT_TR_NOOP("Open..."), {Qt::CTRL | Qt::Key_O}, &T_dlgModelEdit::Open});
    AddAction({QT_TR_NOOP("Save..."), {Qt::CTRL | Qt::Key_S}, &T_dlgModelEdit::Save});
    FTools->addSeparator();
  }
  if (buttons.Contains(dmbConnect)) {
    AddAction({QT_TR_NOOP("Connect"), {Qt::CTRL | Qt::Key_K}, &T_dlgModelEdit::Connect});
  }
  AddAction({QT_TR_NOOP("Fill from database..."), {Qt::CTRL | Qt::Key_D}, &T_dlgModelEdit::Fill});
  AddAction({QT_TR_NOOP("Settings..."), {Qt::CTRL | Qt::Key_Comma}, &T_dlgModelEdit::EditSettings});
  AddAction({QT_TR_NOOP("Clear"), {Qt::CTRL | Qt::SHIFT | Qt::Key_Delete}, &T_dlgModelEdit::Clear});
  FTools->addSeparator();
  const std::pair<QWidget*, TCommand> panes[] = {
      {FCheckPane, {QT_TR_NOOP("Check"), {Qt::Key_F7}, nullptr}},
      {FTryPane, {QT_TR_NOOP("Try it"), {Qt::Key_F9}, nullptr}},
  };
  for (const auto& [pane, command] : panes) {
    QAction* action = AddAction(command);
    action->setObjectName(QLatin1String(pane == FCheckPane ? "Check" : "Try"));
    action->setCheckable(true);
    connect(action, &QAction::toggled, this, [this, pane = pane](bool on) {
      CommitEdits();
      pane->setVisible(on);
      if (on && pane == FTryPane) GiveRoomToTry();
      Refresh();
      if (on && pane == FCheckPane && isVisible()) pane->setFocus();
    });
  }
  if (FOriginal->OnSEHelpClick || !FCopy.GetHelpFileName().empty()) {
    AddAction({QT_TR_NOOP("Help"), {Qt::Key_F1}, &T_dlgModelEdit::Help});
  }
}

/// At first two fifths of the width; later what the user gave it.
void T_dlgModelEdit::GiveRoomToTry() {
  if (std::exchange(FTryHasRoom, true)) return;
  const int width = FColumns->width();
  FColumns->setSizes({width * 3 / 5, width * 2 / 5});
}

void T_dlgModelEdit::BuildButtons() {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout()->addWidget(buttons);
  const auto add = [this](const QKeySequence& key, auto operation) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, operation);
  };
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) add(Qt::CTRL | enter, [this] { accept(); });
  const auto turn = [this](int step) {
    FPages->setCurrentIndex((FPages->currentIndex() + step + FPages->count()) % FPages->count());
  };
  add(Qt::CTRL | Qt::Key_Tab, [turn] { turn(1); });
  add(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [turn] { turn(-1); });
}

void T_dlgModelEdit::keyPressEvent(QKeyEvent* event) {
  // Enter ends a text or chooses in a list; it chooses no button but the one that it stands on.
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && qobject_cast<QPushButton*>(focusWidget()) == nullptr) return;
  QDialog::keyPressEvent(event);
}

// Showing

TModelPage* T_dlgModelEdit::CurrentPage() const { return static_cast<TModelPage*>(FPages->currentWidget()); }

void T_dlgModelEdit::CommitEdits() {
  if (FShownPage != nullptr) FShownPage->CommitEdits();
}

void T_dlgModelEdit::PageShown() {
  CommitEdits();
  FShownPage = CurrentPage();
  RefreshNow();
}

void T_dlgModelEdit::RefreshNow() {
  FRefresh.stop();
  Refresh();
}

void T_dlgModelEdit::Refresh() {
  if (FShownPage == nullptr) return;
  RefreshHistory();
  FShownPage->Refresh();
  if (!FTryPane->isHidden()) FTryPane->Refresh();
  if (!FCheckPane->isHidden()) FCheckPane->ShowFindings(CheckModel(FCopy));
}

void T_dlgModelEdit::RefreshHistory() {
  FUndo->setEnabled(FEditor->CanUndo());
  FRedo->setEnabled(FEditor->CanRedo());
  const auto tell = [](QAction& action, const QString& text, const std::string& name, const QKeySequence& key) {
    const QString full = name.empty() ? text : text + QStringLiteral(": ") + ToQString(name);
    action.setText(full);
    action.setToolTip(WithKey(full, key));
  };
  tell(*FUndo, tr("Undo"), FEditor->UndoName(), UndoKeys.front());
  tell(*FRedo, tr("Redo"), FEditor->RedoName(), RedoKeys.front());
  setWindowModified(FEditor->GetModified());
}

void T_dlgModelEdit::GoTo(const TCheckFinding& finding) {
  CommitEdits();
  // What is an error in the model as a whole is one of its settings.
  if (finding.Section == "Main" && finding.Severity == csError) return EditSettings();
  for (int index = 0; index < FPages->count(); ++index) {
    auto& page = static_cast<TModelPage&>(*FPages->widget(index));
    page.Refresh();
    if (!page.GoTo(finding.Section)) continue;
    FPages->setCurrentIndex(index);
    page.setFocus();
    return;
  }
}

void T_dlgModelEdit::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) CurrentPage()->setFocus();
}

// Positions, sizes and the page, kept from one time to the next

void T_dlgModelEdit::RestorePlaces() {
  QSettings places(QStringLiteral("Tolvi"), QStringLiteral("ModelEditor"));
  // Keeps the window on a screen that is there.
  restoreGeometry(places.value(QStringLiteral("geometry")).toByteArray());
  for (QSplitter* splitter : findChildren<QSplitter*>()) {
    if (!splitter->objectName().isEmpty()) {
      splitter->restoreState(places.value(QStringLiteral("splitters/") + splitter->objectName()).toByteArray());
    }
  }
  FTryHasRoom = places.value(QStringLiteral("panes/Try")).toBool();
  for (QAction* action : findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (action->isCheckable()) {
      action->setChecked(places.value(QStringLiteral("panes/") + action->objectName()).toBool());
    }
  }
  const QString page = places.value(QStringLiteral("page")).toString();
  for (int index = 0; index < FPages->count(); ++index) {
    if (FPages->widget(index)->objectName() == page) FPages->setCurrentIndex(index);
  }
}

void T_dlgModelEdit::SavePlaces() {
  QSettings places(QStringLiteral("Tolvi"), QStringLiteral("ModelEditor"));
  places.setValue(QStringLiteral("geometry"), saveGeometry());
  for (const QSplitter* splitter : findChildren<QSplitter*>()) {
    if (!splitter->objectName().isEmpty()) {
      places.setValue(QStringLiteral("splitters/") + splitter->objectName(), splitter->saveState());
    }
  }
  for (const QAction* action : findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (action->isCheckable()) places.setValue(QStringLiteral("panes/") + action->objectName(), action->isChecked());
  }
  places.setValue(QStringLiteral("page"), CurrentPage()->objectName());
}

void T_dlgModelEdit::Close(int result) {
  SavePlaces();
  done(result);
}

}  // namespace tolvi
