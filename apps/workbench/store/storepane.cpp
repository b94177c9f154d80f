#include "apps/workbench/store/storepane.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <utility>

#include "apps/workbench/store/nameeditor.h"
#include "apps/workbench/store/storedelegate.h"
#include "apps/workbench/store/storeicons.h"
#include "apps/workbench/store/storemodel.h"
#include "apps/workbench/store/storenote.h"
#include <tolvi/ui/controls/rowdrag.h>
#include <tolvi/ui/dialogs/listactions.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

class TStorePane::TLink final : public TJQueryBaseLink {
 public:
  explicit TLink(TStorePane& pane) : FPane(pane) {}

  void QueryChanged(int index) override {
    FPane.IdChanged(index);
    FPane.NeedRead();
  }
  void QueryIndexChanged() override { FPane.NeedSync(); }
  void QueryListChanged(TQBOperation operation, int index) override {
    FPane.IdsChanged(operation, index);
    FPane.NeedRead();
  }

 private:
  TStorePane& FPane;
};

namespace {

QTimer* MakeTimer(QObject* parent) {
  auto* timer = new QTimer(parent);
  timer->setSingleShot(true);
  timer->setInterval(0);
  return timer;
}

}  // namespace

TStorePane::TStorePane(QWidget* parent)
    : QWidget(parent),
      FLink(std::make_unique<TLink>(*this)),
      FRows(new TStoreModel(this)),
      FSearch(new QLineEdit(this)),
      FList(new QListView(this)),
      FEmpty(new QLabel(this)),
      FNote(new TStoreNote(this)),
      FTools(new QHBoxLayout),
      FMenu(new QMenu(this)),
      FSyncTimer(MakeTimer(this)),
      FActivateTimer(MakeTimer(this)) {
  setObjectName(QStringLiteral("store"));
  FSearch->setPlaceholderText(tr("Search queries"));
  FSearch->setAccessibleName(tr("Search queries"));
  FSearch->setClearButtonEnabled(true);
  FSearch->setObjectName(QStringLiteral("store.search"));
  FSearch->installEventFilter(this);
  connect(FSearch, &QLineEdit::textChanged, this, [this](const QString& text) {
    FRows->Find(text);
    Sync();
  });
  MakeList();
  MakeActions();
  MakeTools();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(fontMetrics().averageCharWidth() / 2);
  layout->addWidget(FSearch);
  layout->addLayout(FTools);
  layout->addWidget(FList, 1);
  layout->addWidget(FNote);
  connect(FSyncTimer, &QTimer::timeout, this, &TStorePane::Sync);
  connect(FActivateTimer, &QTimer::timeout, this, &TStorePane::Activate);
  FNote->OnClose = [this] { FNote->IsFault() ? ShowErased() : FErased.clear(); };
  Sync();
}

TStorePane::~TStorePane() = default;

void TStorePane::MakeList() {
  FList->setObjectName(QStringLiteral("store.list"));
  FList->setAccessibleName(tr("Queries"));
  FList->setModel(FRows);
  FList->setItemDelegate(new TStoreDelegate(FList));
  FList->setUniformItemSizes(true);
  FList->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FList->setSelectionMode(QAbstractItemView::SingleSelection);
  FList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  FList->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  FList->setContextMenuPolicy(Qt::CustomContextMenu);
  FList->viewport()->installEventFilter(this);
  FEmpty->setParent(FList->viewport());
  FEmpty->setObjectName(QStringLiteral("store.empty"));
  FEmpty->setAlignment(Qt::AlignCenter);
  FEmpty->setWordWrap(true);
  FEmpty->setMargin(fontMetrics().height());
  FEmpty->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* whole = new QVBoxLayout(FList->viewport());
  whole->addWidget(FEmpty);
  auto* drag = new TRowDrag(*FList);
  drag->OnMove = [this](int from, int to) {
    FPressed = false;  // the drag keeps the release to itself
    if (FRows->IsSearching()) return ShowNote(tr("Clear the search to put queries in another order."));
    FRows->MoveRow(from, to);
    if (const int row = FRows->CurrentRow(); row >= 0) FList->setCurrentIndex(FRows->index(row));
    FActivateTimer->stop();
    if (const auto handler = OnOrderChange) handler();
  };
  connect(FList, &QWidget::customContextMenuRequested, this, &TStorePane::ShowMenu);
  connect(FList->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
    if (FSyncing) return;
    ShowEnabled();
    ActivateSoon();
  });
}

QAction* TStorePane::AddAction(const char* name, const QString& text, const QIcon& icon, const QKeySequence& key,
                               void (TStorePane::*run)()) {
  auto* action = new QAction(icon, text, this);
  action->setObjectName(QStringLiteral("store.") + QLatin1String(name));
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetShortcut);
  action->setToolTip(WithKey(QString(text).remove(u'&').remove(QStringLiteral("...")), key));
  FList->addAction(action);
  // What it does may destroy the pane.
  connect(action, &QAction::triggered, this, run, Qt::QueuedConnection);
  return action;
}

void TStorePane::MakeActions() {
  const auto add = [this](const char* name, const QString& text, const QIcon& icon, const QKeySequence& key,
                          void (TStorePane::*run)()) {
    QAction* action = AddAction(name, text, icon, key, run);
    FMenu->addAction(action);
    return action;
  };
  QAction* created =
      add("new", tr("&New query"), SignIcon(sgNew, *this), QKeySequence(QKeySequence::New), &TStorePane::NewQuery);
  created->setShortcutContext(Qt::WindowShortcut);
  add("rename", tr("&Rename"), StoreIcon(stRename, *this), QKeySequence(Qt::Key_F2), &TStorePane::Rename);
  add("duplicate", tr("&Duplicate"), StoreIcon(stDuplicate, *this), QKeySequence(Qt::CTRL | Qt::Key_D),
      &TStorePane::Duplicate);
  add("describe", tr("D&escription..."), StoreIcon(stDescribe, *this), QKeySequence(Qt::ALT | Qt::Key_Return),
      &TStorePane::Describe);
  add("delete", tr("De&lete..."), SignIcon(sgDelete, *this), QKeySequence(Qt::Key_Delete), &TStorePane::Erase);
  FMenu->addSeparator();
  add("copy", tr("&Copy query text"), {}, QKeySequence(QKeySequence::Copy), &TStorePane::CopyText);
  add("paste", tr("&Paste query text"), {}, QKeySequence(QKeySequence::Paste), &TStorePane::PasteText);
  FMenu->addSeparator();
  add("up", tr("Move &up"), SignIcon(sgUp, *this), QKeySequence(Qt::ALT | Qt::Key_Up), &TStorePane::MoveUp);
  add("down", tr("Move do&wn"), SignIcon(sgDown, *this), QKeySequence(Qt::ALT | Qt::Key_Down), &TStorePane::MoveDown);
  FMenu->addSeparator();
  add("refresh", tr("Re&fresh"), StoreIcon(stRefresh, *this), QKeySequence(Qt::CTRL | Qt::Key_R), &TStorePane::Refresh);
}

QToolButton* TStorePane::MakeButton(QAction* action) {
  QToolButton* button = MakeSignButton(*action, *this);
  button->setObjectName(action->objectName() + QStringLiteral("Button"));
  button->setAccessibleName(QString(action->text()).remove(u'&'));
  FTools->addWidget(button);
  return button;
}

void TStorePane::MakeTools() {
  FTools->setSpacing(0);
  for (const char* name : {"new", "rename", "duplicate", "describe", "delete"}) {
    MakeButton(Action(QStringLiteral("store.") + QLatin1String(name)));
  }
  FTools->addStretch(1);
  MakeButton(Action(QStringLiteral("store.refresh")));
  auto* more = new QAction(StoreIcon(stMore, *this), tr("More"), this);
  more->setObjectName(QStringLiteral("store.more"));
  QToolButton* button = MakeButton(more);
  button->setMenu(FMenu);
  button->setPopupMode(QToolButton::InstantPopup);
}

QAction* TStorePane::Action(const QString& name) const { return findChild<QAction*>(name, Qt::FindDirectChildrenOnly); }
QLineEdit& TStorePane::SearchLine() const { return *FSearch; }
QListView& TStorePane::List() const { return *FList; }

void TStorePane::ShowMenu(const QPoint& at) { FMenu->popup(FList->viewport()->mapToGlobal(at)); }

// Dragging begins with a press, which must not bring the query into the views.
bool TStorePane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == FList->viewport()) {
    if (event->type() == QEvent::MouseButtonPress) {
      FPressed = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    } else if (event->type() == QEvent::MouseButtonRelease) {
      if (std::exchange(FPressed, false)) ActivateSoon();
    } else if (event->type() == QEvent::Resize && FNameEditor) {
      FNameEditor->Place();
    }
  }
  if (watched == FSearch && event->type() == QEvent::KeyPress) return SearchKey(*static_cast<QKeyEvent*>(event));
  return QWidget::eventFilter(watched, event);
}

bool TStorePane::SearchKey(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Escape:
      if (FSearch->text().isEmpty()) return false;
      FSearch->clear();
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      FList->setFocus(Qt::TabFocusReason);
      if (!FList->currentIndex().isValid() && FRows->rowCount() > 0) FList->setCurrentIndex(FRows->index(0));
      return true;
    default:
      return false;
  }
}

// The base

TJStoredQueryBase* TStorePane::GetQueryBase() const { return static_cast<TJStoredQueryBase*>(FLink->GetQueryBase()); }

void TStorePane::SetQueryBase(TJStoredQueryBase* base) {
  if (base == GetQueryBase()) return;
  if (FNameEditor) FNameEditor->GiveUp();
  FNote->hide();
  FErased.clear();
  FLink->SetQueryBase(base);
  IdsChanged(qboListLoaded, -1);
  FNeedsRead = true;
  Sync();
}

void TStorePane::SetDBStruct(TJCustomDBStructure* model) { FModel.Set(model); }

bool TStorePane::GetModified() const { return FRows->GetModified(); }
void TStorePane::SetModified(bool modified) {
  FRows->SetModified(modified);
  // Once it is saved, it is what others have stored no more.
  NeedSync();
}

QStringList TStorePane::GetOrder() const { return FRows->GetOrder(); }
void TStorePane::SetOrder(const QStringList& ids) {
  FRows->SetOrder(ids);
  FNeedsRead = true;
  Sync();
}

void TStorePane::IdsChanged(TQBOperation operation, int index) {
  const TJStoredQueryBase* base = GetQueryBase();
  if (operation == qboItemDeleted && base != nullptr && base->Count() + 1 == FIds.size()) return FIds.removeAt(index);
  if (operation == qboItemAdded && base != nullptr && base->Count() == FIds.size() + 1) {
    FIds << ToQString(base->GetStoredQuery(index).Entry().Id);
    return;
  }
  FIds.clear();
  for (int i = 0; base != nullptr && i < base->Count(); ++i) FIds << ToQString(base->GetStoredQuery(i).Entry().Id);
}

void TStorePane::IdChanged(int index) {
  const TJStoredQueryBase* base = GetQueryBase();
  if (base == nullptr || base->Count() != FIds.size() || index < 0 || index >= base->Count()) return;
  const QString id = ToQString(base->GetStoredQuery(index).Entry().Id);
  if (id == FIds[index]) return;
  const QString former = std::exchange(FIds[index], id);
  if (FEditedId == former) FEditedId = id;
  ReplaceErasedId(former, id);
  if (FRows->ReplaceId(former, id) && OnOrderChange) OnOrderChange();
}

void TStorePane::NeedRead() {
  FNeedsRead = true;
  NeedSync();
}

void TStorePane::NeedSync() {
  if (!FSyncTimer->isActive()) FSyncTimer->start();
}

void TStorePane::Sync() {
  FSyncTimer->stop();
  const TJStoredQueryBase* base = GetQueryBase();
  const int selected = FList->currentIndex().row();
  const QString former = selected >= 0 && selected < FRows->rowCount() ? FRows->Row(selected).Id : QString();
  const int formerIndex = base != nullptr ? base->GetItemIndex() : -1;
  const QString current = formerIndex >= 0 ? FIds.value(formerIndex) : QString();
  const int place = FList->verticalScrollBar()->value();
  FSyncing = true;
  std::exchange(FNeedsRead, false) ? FRows->Read(base) : FRows->ReadCurrent(base);
  // What the base has made the current query becomes the selected one, unless the user is about to choose another.
  int row = FActivateTimer->isActive() ? FRows->RowOfId(former) : FRows->RowOfId(current);
  if (row < 0) row = FRows->RowOfId(former);
  if (FList->currentIndex().row() != row) {
    FList->verticalScrollBar()->setValue(place);
    FList->setCurrentIndex(FRows->index(row));
  }
  FSyncing = false;
  if (FNameEditor) {
    const int edited = FRows->RowOfId(FEditedId);
    if (edited < 0) {
      FNameEditor->GiveUp();
    } else {
      FNameEditor->move(FNameEditor->x(), FList->visualRect(FRows->index(edited)).top());
    }
  }
  FEmpty->setText(EmptyText());
  FEmpty->setVisible(!FEmpty->text().isEmpty());
  ShowEnabled();
}

QString TStorePane::EmptyText() const {
  const TJStoredQueryBase* base = GetQueryBase();
  if (base == nullptr || !base->GetActive()) return tr("No store is open.");
  const QString key = QKeySequence(QKeySequence::New).toString(QKeySequence::NativeText);
  if (FRows->Count() == 0) return tr("There are no queries yet. Press %1 to make one.").arg(key);
  return FRows->rowCount() == 0 ? tr("No query holds this text.") : QString();
}

void TStorePane::ShowEnabled() {
  const TJStoredQueryBase* base = GetQueryBase();
  const bool isOpen = base != nullptr && base->GetActive();
  const int row = FList->currentIndex().row();
  const auto enable = [this](const char* name, bool on) {
    if (QAction* action = Action(QStringLiteral("store.") + QLatin1String(name))) action->setEnabled(on);
  };
  for (const char* name : {"new", "paste", "refresh"}) enable(name, isOpen);
  for (const char* name : {"rename", "duplicate", "describe", "delete", "copy"}) enable(name, isOpen && row >= 0);
  enable("up", row > 0 && !FRows->IsSearching());
  enable("down", row >= 0 && row + 1 < FRows->rowCount() && !FRows->IsSearching());
}

// Choosing a query

int TStorePane::IndexOfId(const QString& id) const { return static_cast<int>(FIds.indexOf(id)); }

int TStorePane::SelectedIndex() {
  if (FSyncTimer->isActive()) Sync();
  const QPointer<TStorePane> self = this;
  if (FActivateTimer->isActive()) Activate();
  if (!self) return -1;
  const int row = FList->currentIndex().row();
  return row >= 0 && row < FRows->rowCount() ? IndexOfId(FRows->Row(row).Id) : -1;
}

void TStorePane::SelectId(const QString& id) {
  int row = FRows->RowOfId(id);
  if (row < 0 && !FSearch->text().isEmpty()) {
    FSearch->clear();
    row = FRows->RowOfId(id);
  }
  FSyncing = true;
  if (row >= 0) FList->setCurrentIndex(FRows->index(row));
  FSyncing = false;
  ShowEnabled();
}

void TStorePane::ActivateSoon() { FActivateTimer->start(); }

void TStorePane::Activate() {
  FActivateTimer->stop();
  const int index = SelectedIndex();
  const TJStoredQueryBase* base = GetQueryBase();
  if (FPressed || FAsking || base == nullptr || index < 0 || index == base->GetItemIndex()) return;
  const QString id = FIds[index];
  const QPointer<TStorePane> self = this;
  if (MayLeave()) {
    // Saving may have moved it.
    if (self) Show(IndexOfId(id));
  } else if (self) {
    SelectId(GetQueryBase() != nullptr ? FIds.value(GetQueryBase()->GetItemIndex()) : QString());
  }
}

bool TStorePane::MayLeave() {
  const auto handler = OnMayLeave;
  if (!handler || GetQueryBase() == nullptr || GetQueryBase()->GetItemIndex() < 0) return true;
  FAsking = true;
  const QPointer<TStorePane> self = this;
  const bool may = handler();
  if (!self) return false;
  FAsking = false;
  return may;
}

void TStorePane::Show(int index) {
  const QPointer<TStorePane> self = this;
  if (index >= 0) Try([this, index] { GetQueryBase()->SetItemIndex(index); });
  if (self) Sync();
}

}  // namespace tolvi
