// The structure designer: hints, commands and full screen.
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMetaObject>
#include <QToolButton>
#include <QVBoxLayout>

#include <tolvi/foundation/consts.h>
#include <tolvi/query/titles.h>
#include <tolvi/ui/dialogs/signicon.h>
#include <tolvi/ui/panels/stdsgestures.h>
#include <tolvi/ui/panels/stdspnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr double ZoomStep = 1.25;

// The commands of menus, with lines between them.
constexpr char OnTable[] = "addLink cancelLink delete fitHeights | addTables";
constexpr char OnLink[] = "editLink delete | addLink";
constexpr char OnArea[] =
    "addTables addLink cancelLink | undo redo | selectAll rearrange layOut | zoomIn zoomOut zoomReset zoomFit | "
    "copyPicture export print | fullScreen";

}  // namespace

// Hints

void TJStructDesignPanel::SetActionHints(const TStrings& hints) {
  LoadTitlesFromStrings(DefaultActionHints(), FActionHints, hints);
  ShowHint(dtNothing);
}

QStringList TJStructDesignPanel::GetActionHintLines() const {
  return FActionHints == DefaultActionHints() ? QStringList() : ToQStringList(FActionHints);
}

void TJStructDesignPanel::SetActionHintLines(const QStringList& lines) { SetActionHints(FromQStringList(lines)); }

QString TJStructDesignPanel::GetActionHint() const { return FStaticText ? FStaticText->text() : QString(); }

void TJStructDesignPanel::SetShowActionHints(bool show) {
  if (show == GetShowActionHints()) return;
  if (!show) {
    delete std::exchange(FStaticText, nullptr);
    return;
  }
  FStaticText = new QLabel(FMaxPanel);
  FStaticText->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  FStaticText->setTextFormat(Qt::PlainText);
  FStaticText->setMinimumWidth(1);
  FMaxPanel->layout()->addWidget(FStaticText);
  ShowHint(dtNothing);
}

void TJStructDesignPanel::ShowHint(TDesignTarget target) {
  if (!FStaticText) return;
  const QString text = ToQString(FActionHints.Value(ActionHintKey(FAddLinkStage, target)));
  if (FStaticText->text() == text) return;
  FStaticText->setText(text);
  FStaticText->setToolTip(PlainToolTip(text));
}

void TJStructDesignPanel::SetCurrentLink(TLinkRep* link) { FCurrentLink = link; }

/// Screen readers are told what commands work on.
void TJStructDesignPanel::RefreshAccessibleText() {
  QStringList texts;
  if (FActiveTable) {
    texts << tr("Table %1").arg(FActiveTable->GetTitle());
    const std::string field = FActiveTable->FieldsLB().GetItemText();
    if (!field.empty()) texts << tr("field %1").arg(ToQString(field));
  }
  if (FActiveLink) texts << tr("link %1").arg(ToQString(FActiveLink->GetLink().GetDisplayName()));
  FDesignArea->setAccessibleDescription(texts.join(QStringLiteral(", ")));
}

// Commands

void TJStructDesignPanel::BuildActions() {
  struct TCommand {
    const char* Name;
    QString Text;
    QString Keys;
    std::function<void()> Run;
  };
  const TCommand commands[] = {
      {"addTables", tr("Add &Tables..."), QStringLiteral("Ctrl+T"), [this] { AddTablesDlg(); }},
      {"addLink", tr("Add &Link"), QStringLiteral("Ctrl+L"), [this] { StartAddLink(); }},
      {"cancelLink", tr("&Cancel Adding"), QStringLiteral("Esc"), [this] { CancelAddLink(); }},
      {"editLink", tr("&Edit Link..."), QStringLiteral("Return"), [this] { EditActiveLink(); }},
      {"delete", tr("&Delete"), QStringLiteral("Delete"), [this] { AskToDelete(); }},
      {"undo", tr("&Undo"), QStringLiteral("Ctrl+Z"), [this] { Undo(); }},
      {"redo", tr("&Redo"), QStringLiteral("Ctrl+Y; Ctrl+Shift+Z"), [this] { Redo(); }},
      {"selectAll", tr("Select &All"), QStringLiteral("Ctrl+A"),
       [this] {
         for (TTableRep& box : FTablesRep) box.SetChosen(true);
         FLinkSelectedLast = false;
         RefreshActions();
       }},
      {"fitHeights", tr("Fit &Height to Fields"), QStringLiteral("Ctrl+H"), [this] { FitHeights(); }},
      {"rearrange", tr("Arrange in Ro&ws"), {}, [this] { RearrangeTables(); }},
      {"layOut", tr("Arrange &by Links"), QStringLiteral("Ctrl+B"), [this] { LayOutByLinks(); }},
      {"zoomIn", tr("Zoom &In"), QStringLiteral("Ctrl++"), [this] { SetZoom(GetZoom() * ZoomStep); }},
      {"zoomOut", tr("Zoom &Out"), QStringLiteral("Ctrl+-"), [this] { SetZoom(GetZoom() / ZoomStep); }},
      {"zoomFit", tr("Show &Whole Diagram"), QStringLiteral("Ctrl+9"), [this] { FDesignArea->ZoomToFit(); }},
      {"zoomReset", tr("Original &Size"), QStringLiteral("Ctrl+0"), [this] { SetZoom(1); }},
      {"copyPicture", tr("Cop&y Picture"), QStringLiteral("Ctrl+C"), [this] { CopyPicture(); }},
      {"export", tr("E&xport..."), QStringLiteral("Ctrl+E"), [this] { ExportByDialog(); }},
      {"print", tr("&Print..."), QStringLiteral("Ctrl+P"), [this] { PrintPreview(); }},
      {"fullScreen", ToQString(SFullScreenMode.Text), QStringLiteral("F11"),
       [this] { SetFullScreenMode(!GetFullScreenMode()); }},
  };
  for (const TCommand& command : commands) {
    auto* action = new QAction(command.Text, this);
    action->setObjectName(QLatin1String(command.Name));
    action->setShortcuts(QKeySequence::listFromString(command.Keys, QKeySequence::PortableText));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    // Commands may destroy what shows them.
    connect(
        action, &QAction::triggered, this, [run = command.Run] { run(); }, Qt::QueuedConnection);
    FActions << action;
  }
  GetAction(QStringLiteral("fullScreen"))->setCheckable(true);
  FMaxButton->setDefaultAction(GetAction(QStringLiteral("fullScreen")));
  FMaxButton->setAutoRaise(false);
  FDesignArea->OwnsKey = [this](const QKeyEvent& key) { return ActionOf(key) != nullptr; };
  FDesignArea->OnResize = [this] { PlaceMaxButton(); };
  FDesignArea->OnMenu = [this](QPoint globalPos, QPoint inViewport, bool byKey) {
    OpenMenu(globalPos, inViewport, byKey);
  };
  RefreshActions();
}

/// The area asks for the keys of commands itself: a host's own short cuts are never ambiguous with them.
QAction* TJStructDesignPanel::ActionOf(const QKeyEvent& key) const {
  const QKeySequence keys(static_cast<int>(key.modifiers() & ~Qt::KeypadModifier) | key.key());
  for (QAction* action : FActions) {
    if (action->shortcuts().contains(keys)) return action;
  }
  return nullptr;
}

QAction* TJStructDesignPanel::GetAction(const QString& name) const {
  for (QAction* action : FActions) {
    if (action->objectName() == name) return action;
  }
  return nullptr;
}

/// Later and once: asking the history may take time after every change of a large model.
void TJStructDesignPanel::RefreshActions() {
  if (std::exchange(FActionsDue, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        FActionsDue = false;
        ShowActions();
      },
      Qt::QueuedConnection);
}

void TJStructDesignPanel::ShowActions() {
  const bool isIdle = FActive && FAddLinkStage == alsIdle, hasTables = !FTablesRep.Empty();
  const std::pair<const char*, bool> states[] = {
      {"addTables", isIdle},
      {"addLink", isIdle && hasTables},
      {"cancelLink", FActive && !isIdle},
      {"editLink", isIdle && FActiveLink},
      {"delete", isIdle && (FActiveTable || FActiveLink)},
      {"undo", isIdle && FEditor->CanUndo()},
      {"redo", isIdle && FEditor->CanRedo()},
      {"selectAll", hasTables},
      {"fitHeights", isIdle && hasTables},
      {"rearrange", isIdle && hasTables},
      {"layOut", isIdle && hasTables},
      {"copyPicture", hasTables},
      {"export", hasTables},
      {"print", hasTables},
      {"fullScreen", FActive},
  };
  for (const auto& [name, on] : states) GetAction(QLatin1String(name))->setEnabled(on);
  GetAction(QStringLiteral("fullScreen"))->setChecked(GetFullScreenMode());
}

/// On a box or line the menu is that of it; by key all commands, those of what was selected last first.
void TJStructDesignPanel::OpenMenu(QPoint globalPos, QPoint inViewport, bool byKey) {
  if (!FActive) return;
  FGestures->Stop();
  SyncWhenStale();
  const TDesignPoint point = FDesignArea->ToContent(inViewport);
  const bool isLinkByKey = FActiveLink && (FLinkSelectedLast || !FActiveTable);
  TTableRep* box = !byKey ? FGestures->BoxAt(point) : isLinkByKey ? nullptr : FActiveTable;
  TLinkRep* link = box ? nullptr : byKey ? FActiveLink : IsOverSomeLink(FLinksRep, point);
  const QGraphicsItem* item = box ? static_cast<QGraphicsItem*>(box) : link;
  if (byKey && item) {
    const QRectF place = item->sceneBoundingRect();
    FDesignArea->BringIntoView(place);
    globalPos = FDesignArea->viewport()->mapToGlobal(FDesignArea->mapFromScene(place.center()));
  }
  const QPointer<TJStructDesignPanel> guard(this);
  if (box && !box->GetChosen()) ChooseOnly(box);
  if (box) SetActiveTable(box);
  if (guard && link) SetActiveLink(link);
  if (!guard || !FActive) return;
  ShowMenu(box ? OnTable : link ? OnLink : "", byKey || !item ? OnArea : "", globalPos);
}

void TJStructDesignPanel::ShowMenu(const char* first, const char* second, QPoint globalPos) {
  // A command may destroy the panel, and the menu with it.
  auto* menu = new QMenu(FMaxPanel);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const char* names : {first, second}) {
    if (!menu->isEmpty()) menu->addSeparator();
    for (const QString& name : QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts)) {
      QAction* action = GetAction(name);
      if (action && !menu->actions().contains(action)) menu->addAction(action);
      if (!action) menu->addSeparator();
    }
  }
  ShowActions();
  menu->popup(globalPos);
}

// Full screen

void TJStructDesignPanel::SetShowFullScreenButton(bool show) {
  FShowFullScreenButton = show;
  FMaxButton->setVisible(show && FActive);
  PlaceMaxButton();
}

void TJStructDesignPanel::PlaceMaxButton() {
  const int side = fontMetrics().height();
  FMaxButton->setIconSize(QSize(side, side));
  // The button shows what its action has.
  FMaxButton->defaultAction()->setIcon(SignIcon(GetFullScreenMode() ? sgRestore : sgFullScreen, *this));
  FMaxButton->setAccessibleName(ToQString(SFullScreenMode.Text));
  FMaxButton->resize(FMaxButton->sizeHint());
  const QWidget* room = FDesignArea->viewport();
  // Always at the right: boxes begin at the left, whichever way one reads.
  const int end = room->width() - FMaxButton->width() - 4;
  FMaxButton->move(room->mapTo(FDesignArea, QPoint(end, 4)));
  FMaxButton->raise();
}

void TJStructDesignPanel::SetFullScreenMode(bool on) {
  if (on == GetFullScreenMode() || (on && !FActive)) return;
  if (on) {
    FMaxForm = new QWidget(this, Qt::Window);
    FMaxForm->setWindowTitle(QStringLiteral("Design panel full screen mode "));
    FMaxForm->installEventFilter(this);
    // A window does not take these over by itself.
    FMaxForm->setAttribute(Qt::WA_WindowPropagation);
    FMaxForm->setLayoutDirection(layoutDirection());
    auto* rows = new QVBoxLayout(FMaxForm);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(FMaxPanel);
    FMaxForm->showFullScreen();
  } else {
    QWidget* form = FMaxForm;
    FMaxForm.clear();
    layout()->addWidget(FMaxPanel);
    form->hide();
    form->deleteLater();
  }
  FDesignArea->setFocus();
  PlaceMaxButton();
  RefreshActions();
}

bool TJStructDesignPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == FMaxForm && event->type() == QEvent::Close) {
    SetFullScreenMode(false);
    return true;
  }
  return QFrame::eventFilter(watched, event);
}

}  // namespace tolvi
