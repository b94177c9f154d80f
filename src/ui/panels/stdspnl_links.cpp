// The structure designer: adding, editing and deleting tables and links.
#include <QCursor>
#include <QMessageBox>

#include <tolvi/foundation/consts.h>
#include <tolvi/ui/dialogs/addtablesdlg.h>
#include <tolvi/ui/dialogs/linkdlg.h>
#include <tolvi/ui/panels/stdsgestures.h>
#include <tolvi/ui/panels/stdspnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

bool TJStructDesignPanel::AddTablesDlg() {
  TSimpleDSTableList added;
  return FDBStruct.Get() && AddTablesDlg(added, FDBStruct->GetAutoAddFields());
}

bool TJStructDesignPanel::AddTablesDlg(TSimpleDSTableList& newTables, bool autoAddFields) {
  if (!FActive || FAddLinkStage != alsIdle) return false;
  FGestures->Stop();
  SyncWhenStale();
  const QPointer<TJStructDesignPanel> guard(this);
  const THeldEvents held(*this);
  FDBStruct->SetAutoAddFields(autoAddFields);
  std::vector<std::string> aliases;
  bool chosen = false;
  // The places of the new boxes belong to the step that adds the tables.
  BeginStep(tr("Add tables"));
  Guarded([&] { chosen = AddTables(FMaxPanel, *FEditor, aliases); });
  if (!guard || !FActive) return false;
  SyncWhenStale();
  if (chosen) StorePlaces();
  EndStep();
  if (!guard || !FActive) return chosen;
  for (const std::string& alias : aliases) {
    if (TDSTable* table = FDBStruct->TableByName(tnAlias, alias)) newTables.Add(*table);
  }
  if (!newTables.Empty()) {
    TTableRep* box = FindTblRepByDSTable(&newTables[newTables.Count() - 1]);
    SetActiveTable(box);
    ChooseOnly(box);
    if (box) FDesignArea->BringIntoView(box->boundingRect().translated(box->pos()));
  }
  RefreshActions();
  return chosen;
}

void TJStructDesignPanel::DeleteActiveTable() {
  if (!FActive || !FActiveTable || FAddLinkStage != alsIdle) return;
  FGestures->Stop();
  SyncWhenStale();
  if (!FActiveTable) return;
  std::size_t index = 0;
  while (&FDBStruct->GetTable(index) != &FActiveTable->GetTable()) ++index;
  EditModel(tr("Delete table"), [&] { FDBStruct->DelTable(index); });
}

void TJStructDesignPanel::DeleteActiveLink() {
  if (!FActive || !FActiveLink || FAddLinkStage != alsIdle) return;
  FGestures->Stop();
  SyncWhenStale();
  if (!FActiveLink) return;
  const std::ptrdiff_t index = FDBStruct->Links().IndexOf(&FActiveLink->GetLink());
  EditModel(tr("Delete link"), [&] { FDBStruct->DelLink(static_cast<std::size_t>(index)); });
}

/// Of all chosen tables, or of the link, whichever was selected last.
void TJStructDesignPanel::AskToDelete() {
  if (!FActive || FAddLinkStage != alsIdle) return;
  const bool isLink = FLinkSelectedLast && FActiveLink;
  if (!isLink && !FActiveTable) return;
  const QPointer<TJStructDesignPanel> guard(this);
  const TMessage question = isLink ? SDeleteLink : SDeleteTable;
  const auto answer = QMessageBox::question(FMaxPanel, windowTitle(), ToQString(question.Text));
  if (!guard || !FActive || answer != QMessageBox::Yes) return;
  SyncWhenStale();
  if (isLink) {
    DeleteActiveLink();
    return;
  }
  std::vector<const TDSTable*> tables;
  for (TTableRep* box : ChosenBoxes()) tables.push_back(&box->GetTable());
  if (tables.empty()) {
    DeleteActiveTable();
    return;
  }
  FGestures->Stop();
  EditModel(tr("Delete tables"), [&] {
    for (std::size_t i = FDBStruct->GetTableCount(); i-- > 0;) {
      if (std::find(tables.begin(), tables.end(), &FDBStruct->GetTable(i)) != tables.end()) FDBStruct->DelTable(i);
    }
  });
}

bool TJStructDesignPanel::EditActiveLink() {
  if (!FActive || !FActiveLink || FAddLinkStage != alsIdle) return false;
  FGestures->Stop();
  SyncWhenStale();
  if (!FActiveLink) return false;
  const QPointer<TJStructDesignPanel> guard(this);
  const THeldEvents held(*this);
  BeginStep(tr("Edit link"));
  const bool accepted = ShowLinkDialog(FActiveLink->GetLink());
  if (!guard || !FActive) return accepted;
  if (accepted) StorePlaces();
  EndStep();
  if (guard) RefreshActions();
  return accepted;
}

// Adding a link

void TJStructDesignPanel::StartAddLink() {
  if (!FActive || FAddLinkStage != alsIdle) return;
  FGestures->Stop();
  SyncWhenStale();
  const QPointer<TJStructDesignPanel> guard(this);
  if (const TDesignEvent told = OnAddLinkStart) told(*this);
  if (!guard || !FActive) return;
  FAddLinkStage = alsSelField1;
  SetCurrentLink(nullptr);
  BindFieldClicks();
  ShowHint(dtNothing);
  RefreshActions();
}

/// A click on a field is what the stage of adding asks for.
void TJStructDesignPanel::BindFieldClicks() {
  TTableRep::TBoxEvent handler;
  if (FAddLinkStage == alsSelField1) handler = [this](TTableRep& clicked) { FirstFieldClick(clicked); };
  if (FAddLinkStage == alsSelField2) handler = [this](TTableRep& clicked) { SecondFieldClick(clicked); };
  for (TTableRep& box : FTablesRep) box.OnFieldClick = handler;
}

/// Whether OK was chosen. The dialog is closed when the link goes meanwhile, and when the panel goes.
bool TJStructDesignPanel::ShowLinkDialog(TDSLink& link) {
  const QPointer<TJStructDesignPanel> guard(this);
  const QPointer<QWidget> parent = new QWidget(FMaxPanel);
  FLinkDialogParent = parent;
  bool accepted = false;
  Guarded([&] { accepted = EditLink(parent, *FDBStruct.Get(), link); });
  delete parent.data();
  return guard && accepted;
}

void TJStructDesignPanel::FirstFieldClick(TTableRep& box) {
  const std::string field = box.FieldsLB().GetItemText();
  // A name to hold the ends at the boxes while the catalogue cannot tell any.
  const bool isKnown = IsConnected() && !field.empty();
  FNewDSLink = std::make_unique<TDSLink>(box.GetTable(), box.GetTable());
  TStrings fields1, fields2;
  fields1.Add(isKnown ? field : "Field1");
  fields2.Add(isKnown ? field : "Field2");
  FNewDSLink->SetFields1(fields1);
  FNewDSLink->SetFields2(fields2);
  FNewDSLink->ApplyDefOperator();
  FNewLink = std::make_unique<TLinkRep>(*FNewDSLink, box, box, FStyle);
  FDesignArea->scene()->addItem(FNewLink.get());
  FNewLink->MoveSecondEnd(FDesignArea->ToContent(FDesignArea->viewport()->mapFromGlobal(QCursor::pos())));
  FAddLinkStage = alsSelField2;
  BindFieldClicks();
  ShowHint(dtNothing);
}

void TJStructDesignPanel::SecondFieldClick(TTableRep& box) {
  FNewDSLink->SetTables(*FNewDSLink->GetTable1(), box.GetTable());
  const std::string field = box.FieldsLB().GetItemText();
  if (!IsConnected()) {
    FNewDSLink->SetFields1({});
    FNewDSLink->SetFields2({});
    FNewDSLink->ApplyDefOperator();
  } else if (!field.empty()) {
    TStrings fields2;
    fields2.Add(field);
    FNewDSLink->SetFields2(fields2);
  }
  FNewLink->SetTableReps(FNewLink->GetTableRep1(), box);
  FNewLink->RefreshFields();
  const QPointer<TJStructDesignPanel> guard(this);
  const bool accepted = ShowLinkDialog(*FNewDSLink);
  if (!guard || !FNewDSLink) return;
  if (!accepted) {
    CancelAddLink();
    return;
  }
  const THeldEvents held(*this);
  std::unique_ptr<TDSLink> link = std::move(FNewDSLink);
  const TDSLink* added = link.get();
  FNewLink.reset();
  const bool isAdded = EditModel(tr("Add link"), [&] { FDBStruct->AddLinkByRef(std::move(link)); });
  if (!guard) return;
  TLinkRep* line = isAdded ? FindLinkRepByDSLink(added) : nullptr;
  if (line) SetActiveLink(line);
  FinishAddLink(line);
}

void TJStructDesignPanel::CancelAddLink() {
  if (FAddLinkStage != alsIdle) FinishAddLink(nullptr);
}

void TJStructDesignPanel::FinishAddLink(TLinkRep* added) {
  const THeldEvents held(*this);
  FNewLink.reset();
  FNewDSLink.reset();
  FAddLinkStage = alsIdle;
  BindFieldClicks();
  FDesignArea->viewport()->unsetCursor();
  ShowHint(dtNothing);
  RefreshActions();
  FFinishEventDue = true;
  FFinishedLink = added;
}

}  // namespace tolvi
