#include <QEvent>
#include <QMessageBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <unordered_set>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/panel/stdsplaces.h>
#include <tolvi/ui/panels/stdsgestures.h>
#include <tolvi/ui/panels/stdspnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

TJStructDesignPanel::TJStructDesignPanel(QWidget* parent)
    : QFrame(parent),
      FDBStruct([this] {
        // The model cannot be asked any more, and an editor given by the host may be gone.
        FEditor = nullptr;
        FOpenSteps = 0;
        Deactivate();
        FOwnEditor.reset();
      }),
      FMaxPanel(new QWidget(this)),
      FDesignArea(new TJDesignArea(FMaxPanel)) {
  setFrameShape(NoFrame);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(FMaxPanel);
  auto* rows = new QVBoxLayout(FMaxPanel);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(FDesignArea, 1);
  setFocusProxy(FDesignArea);
  FMaxButton = new QToolButton(FDesignArea);
  FMaxButton->setObjectName(QStringLiteral("maxButton"));
  FMaxButton->setFocusPolicy(Qt::NoFocus);
  FMaxButton->hide();
  FStyle.Take(palette(), font(), layoutDirection());
  FDesignArea->setAccessibleName(tr("Diagram of tables and links"));
  FGestures = std::make_unique<TDesignGestures>(*this);
  BuildActions();
}

TJStructDesignPanel::~TJStructDesignPanel() {
  if (FDBStruct.Get()) FDBStruct->RemoveListener(*this);
  if (FOwnEditor) FOwnEditor->OnChange = {};
  while (FOpenSteps > 0) EndStep();
  delete FAnimation.data();
  // Before the window that covers the screen: it takes the area along, which would destroy them a second time.
  FNewLink.reset();
  FLinksRep.Clear();
  FTablesRep.Clear();
  delete FMaxForm.data();
}

void TJStructDesignPanel::SetDBStruct(TJCustomDBStructure* dbStruct) {
  if (dbStruct == FDBStruct.Get()) return;
  Deactivate();
  if (FDBStruct.Get()) FDBStruct->RemoveListener(*this);
  FDBStruct.Set(dbStruct);
  FEditor = nullptr;
  FOwnEditor.reset();
  FMemory.clear();
  if (dbStruct) dbStruct->AddListener(*this);
}

void TJStructDesignPanel::SetEditor(TModelEditor* editor) {
  SetDBStruct(editor ? &editor->Model() : nullptr);
  Deactivate();
  FEditor = editor;
}

void TJStructDesignPanel::SetActive(bool active) {
  if (active) {
    Activate();
  } else {
    Deactivate();
  }
}

void TJStructDesignPanel::Activate() {
  if (FActive) return;
  if (!FDBStruct.Get()) throw EStructureDesignError(std::string(ERRStructNotSpecified.Text));
  if (!FEditor) {
    FOwnEditor = std::make_unique<TModelEditor>(*FDBStruct.Get());
    FEditor = FOwnEditor.get();
    FOwnEditor->OnChange = [this] { RefreshActions(); };
  }
  FActive = true;
  FMemory.clear();
  FUnstored.clear();
  BuildReps();
  SetShowFullScreenButton(FShowFullScreenButton);
}

void TJStructDesignPanel::Deactivate() {
  if (!FActive) return;
  SetFullScreenMode(false);
  Clear();
  FActive = false;
  FTableEventDue = FLinkEventDue = FFinishEventDue = false;
  while (FOpenSteps > 0) EndStep();
  FMaxButton->hide();
  if (FOwnEditor) {
    FEditor = nullptr;
    FOwnEditor.reset();
  }
  RefreshActions();
}

void TJStructDesignPanel::Clear() {
  StopAnimation();
  FGestures->Stop();
  delete FLinkDialogParent.data();
  FNewLink.reset();
  FNewDSLink.reset();
  FTableEventDue = FTableEventDue || FActiveTable;
  FLinkEventDue = FLinkEventDue || FActiveLink;
  FFinishEventDue = FFinishEventDue || FAddLinkStage != alsIdle;
  FAddLinkStage = alsIdle;
  FCurrentLink = FActiveLink = FFinishedLink = nullptr;
  FActiveTable = nullptr;
  FLinksOf.clear();
  FBoxOf.clear();
  FLinksRep.Clear();
  FTablesRep.Clear();
  FDesignArea->viewport()->unsetCursor();
  ContentChanged();
  ShowHint(dtNothing);
}

// The model

void TJStructDesignPanel::TablesChanging() { FStale = FActive; }

void TJStructDesignPanel::ModelChanged() {
  if (!FActive || (FMoving && !FStale)) return;
  Sync();
}

void TJStructDesignPanel::StructureClearing() {
  if (!FActive) return;
  Remember();
  Clear();
}

void TJStructDesignPanel::StructureLoaded() {
  if (FActive) BuildReps();
}

/// What the model will not tell about the boxes that are made anew.
void TJStructDesignPanel::Remember() {
  if (FStale) return;
  FMemory.clear();
  for (TTableRep& box : FTablesRep) {
    FMemory[box.GetTable().GetTableAlias()] = {box.FieldsLB().GetTopIndex(), box.GetChosen()};
  }
  FActiveAlias = FActiveTable ? FActiveTable->GetTable().GetTableAlias() : std::string();
  FActiveLinkIndex = FLinksRep.IndexOf(FActiveLink);
}

bool TJStructDesignPanel::EditModel(const QString& name, const std::function<void()>& edit) {
  bool changed = false;
  const THeldEvents held(*this);
  const QPointer<TJStructDesignPanel> guard(this);
  Guarded([&] {
    changed = FEditor->Edit(FromQString(name), [&] {
      StorePlaces();
      edit();
    });
  });
  if (guard) RefreshActions();
  return changed;
}

void TJStructDesignPanel::BeginStep(const QString& name) {
  FEditor->Begin(FromQString(name));
  ++FOpenSteps;
}

void TJStructDesignPanel::EndStep() {
  if (FOpenSteps == 0) return;
  --FOpenSteps;
  if (FEditor) FEditor->End();
}

void TJStructDesignPanel::CancelStep() {
  if (FOpenSteps == 0 || !FEditor) return;
  FOpenSteps = 0;
  FEditor->Cancel();
}

/// Places that nobody has stored yet go into the model with the first edit.
void TJStructDesignPanel::StorePlaces() {
  StopAnimation();
  FDBStruct->AsOneChange([&] {
    for (TTableRep& box : FTablesRep) StorePlace(box.GetTable(), box.GetPlace());
  });
}

void TJStructDesignPanel::Guarded(const std::function<void()>& operation) {
  const QPointer<TJStructDesignPanel> guard(this);
  QString message;
  try {
    operation();
    return;
  } catch (const std::exception& error) {
    message = ToQString(error.what());
  }
  if (!guard) return;
  if (OnError) {
    const auto told = OnError;
    told(*this, message);
  } else {
    QMessageBox::warning(FMaxPanel, ToQString(SError.Text), message);
  }
}

void TJStructDesignPanel::FireHeldEvents() {
  const QPointer<TJStructDesignPanel> guard(this);
  const TDesignEvent selectTable = std::exchange(FTableEventDue, false) ? OnSelectTable : nullptr;
  const TDesignEvent selectLink = std::exchange(FLinkEventDue, false) ? OnSelectLink : nullptr;
  const TAddLinkFinishEvent finish = std::exchange(FFinishEventDue, false) ? OnAddLinkFinish : nullptr;
  if (selectTable) selectTable(*this);
  if (guard && selectLink) selectLink(*this);
  if (guard && finish) finish(*this, std::exchange(FFinishedLink, nullptr));
}

void TJStructDesignPanel::SyncWhenStale() {
  if (FStale) Sync();
}

/// Makes boxes and lines those of the model. What is gone there must not be asked anything.
void TJStructDesignPanel::Sync() {
  const THeldEvents held(*this);
  FStale = false;
  std::unordered_set<const TDSTable*> tables;
  std::unordered_set<const TDSLink*> links;
  for (const TDSTable& table : FDBStruct->Tables()) tables.insert(&table);
  for (const TDSLink& link : FDBStruct->Links()) links.insert(&link);
  StopAnimation();
  const bool wasLinkSelectedLast = FLinkSelectedLast;
  const bool isNewLinkLost =
      FNewDSLink && !(tables.contains(FNewDSLink->GetTable1()) && tables.contains(FNewDSLink->GetTable2()));
  if (isNewLinkLost) {
    delete FLinkDialogParent.data();
    CancelAddLink();
  }
  for (std::size_t i = FLinksRep.Count(); i-- > 0;) {
    const TLinkRep& rep = FLinksRep[i];
    if (!links.contains(&rep.GetLink())) DropLink(i);
  }
  for (std::size_t i = FTablesRep.Count(); i-- > 0;) {
    if (!tables.contains(&FTablesRep[i].GetTable())) DropBox(i);
  }
  TTableRep* added = nullptr;
  for (TDSTable& table : FDBStruct->Tables()) {
    TTableRep* box = FindTblRepByDSTable(&table);
    if (!box) {
      box = added = &AddBox(table);
      if (!HasStoredPlace(table)) PlaceNewBox(*box);
    }
    box->RefreshTitle();
    if (box->FieldsLB().GetSource() != table.GetFullName()) FillFieldsList(*box);
    if (HasStoredPlace(table)) box->SetPlace(StoredPlace(table));
  }
  AddLinks();
  if (added && FAddLinkStage != alsIdle) BindFieldClicks();
  if (added && !FActiveTable) SetActiveTable(added);
  if (!FActiveLink && !FLinksRep.Empty()) SetActiveLink(&FLinksRep[0]);
  FLinkSelectedLast = wasLinkSelectedLast;
  ContentChanged();
  RefreshActions();
}

// Selection and history

void TJStructDesignPanel::SetActiveTable(TTableRep* box) {
  const THeldEvents held(*this);
  FLinkSelectedLast = false;
  if (box == FActiveTable) return;
  if (FActiveTable) {
    FActiveTable->SetActive(false);
    FActiveTable->setZValue(0);
  }
  FActiveTable = box;
  if (box) {
    box->SetActive(true);
    box->setZValue(1);
  }
  RefreshAccessibleText();
  RefreshActions();
  FTableEventDue = true;
}

void TJStructDesignPanel::SetActiveLink(TLinkRep* link) {
  const THeldEvents held(*this);
  if (link) FLinkSelectedLast = true;
  if (link == FActiveLink) return;
  if (FActiveLink) FActiveLink->SetActive(false);
  FActiveLink = link;
  if (link) link->SetActive(true);
  RefreshAccessibleText();
  RefreshActions();
  FLinkEventDue = true;
}

std::vector<TTableRep*> TJStructDesignPanel::ChosenBoxes() const {
  std::vector<TTableRep*> chosen;
  for (TTableRep& box : FTablesRep) {
    if (box.GetChosen()) chosen.push_back(&box);
  }
  return chosen;
}

void TJStructDesignPanel::ChooseOnly(TTableRep* box) {
  for (TTableRep& other : FTablesRep) other.SetChosen(&other == box);
}

void TJStructDesignPanel::Undo() { Step(&TModelEditor::Undo); }

void TJStructDesignPanel::Redo() { Step(&TModelEditor::Redo); }

void TJStructDesignPanel::Step(void (TModelEditor::*step)()) {
  if (!FActive || FAddLinkStage != alsIdle) return;
  FGestures->Stop();
  StopAnimation();
  const THeldEvents held(*this);
  Guarded([&] { (FEditor->*step)(); });
}

void TJStructDesignPanel::changeEvent(QEvent* event) {
  const bool isOfStyle = event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange ||
                         event->type() == QEvent::StyleChange || event->type() == QEvent::LayoutDirectionChange;
  if (isOfStyle && FDesignArea) {
    FStyle.Take(palette(), font(), layoutDirection());
    for (TTableRep& box : FTablesRep) box.StyleChanged();
    InvalidateLinks();
    ContentChanged();
    PlaceMaxButton();
    FDesignArea->viewport()->update();
  }
  QFrame::changeEvent(event);
}

void TJStructDesignPanel::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  if (!FActive) return;
  SyncWhenStale();
  if (!std::exchange(FArrangeWhenShown, false)) return;
  const TJObjectList<TDSTable>& tables = FDBStruct->Tables();
  if (std::all_of(tables.begin(), tables.end(), HasStoredPlace)) return;
  // The width is known only now.
  layout()->activate();
  FUnstored.clear();
  ArrangeAll();
  ContentChanged();
}

}  // namespace tolvi
