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
  FEditor->Begin(FromQString(tr("Add tables")));
  Guarded([&] { chosen = AddTables(this, *FEditor, aliases); });
  if (!guard) return false;
  if (chosen) {
    SyncWhenStale();
    StorePlaces();
  }
  FEditor->End();
  for (const std::string& alias : aliases) {
    if (TDSTable* table = FDBStruct->TableByName(tnAlias, alias)) newTables.Add(*table);
  }
  if (!newTables.Empty()) {
    TTableRep* box = FindTblRepByDSTable(&newTables[newTables.Count() - 1]);
    SetActiveTable(box);
    ChooseOnly(box);
    if (box) FDesignArea->ensureVisible(box->boundingRect().translated(box->pos()), 8, 8);
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
  const auto answer = QMessageBox::question(this, windowTitle(), ToQString(question.Text));
  if (!guard || answer != QMessageBox::Yes) return;
  if (isLink) {
    DeleteActiveLink();
    return;
  }
  std::vector<const TDSTable*> tables;
  for (TTableRep* box : ChosenBoxes()) tables.push_back(&box->GetTable());
  if (tables.size() < 2) {
    DeleteActiveTable();
    return;
  }
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
  bool accepted = false;
  FEditor->Begin(FromQString(tr("Edit link")));
  Guarded([&] { accepted = EditLink(this, *FDBStruct.Get(), FActiveLink->GetLink()); });
  if (!guard) return accepted;
  if (accepted) StorePlaces();
  FEditor->End();
  RefreshActions();
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
  BindFieldClicks(&TJStructDesignPanel::FirstFieldClick);
  ShowHint(dtNothing);
  RefreshActions();
}

void TJStructDesignPanel::BindFieldClicks(void (TJStructDesignPanel::*handler)(TTableRep&)) {
  for (TTableRep& box : FTablesRep) {
    if (handler) {
      box.OnFieldClick = [this, handler](TTableRep& clicked) { (this->*handler)(clicked); };
    } else {
      box.OnFieldClick = nullptr;
    }
  }
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
  FNewLink->RecalcPositions();
  FDesignArea->scene()->addItem(FNewLink.get());
  FNewLink->MoveSecondEnd(FDesignArea->ToContent(FDesignArea->viewport()->mapFromGlobal(QCursor::pos())));
  FAddLinkStage = alsSelField2;
  BindFieldClicks(&TJStructDesignPanel::SecondFieldClick);
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
  FNewLink->SetTableRep2(box);
  FNewLink->RefreshFields();
  const QPointer<TJStructDesignPanel> guard(this);
  bool accepted = false;
  Guarded([&] { accepted = EditLink(this, *FDBStruct.Get(), *FNewDSLink); });
  if (!guard || !FNewDSLink) return;
  if (!accepted) {
    CancelAddLink();
    return;
  }
  const THeldEvents held(*this);
  std::unique_ptr<TDSLink> link = std::move(FNewDSLink);
  const TDSLink* added = link.get();
  FNewLink.reset();
  if (EditModel(tr("Add link"), [&] { FDBStruct->AddLinkByRef(std::move(link)); })) {
    SetActiveLink(FindLinkRepByDSLink(added));
    FinishAddLink(FindLinkRepByDSLink(added));
  } else {
    FinishAddLink(nullptr);
  }
}

void TJStructDesignPanel::CancelAddLink() {
  if (FAddLinkStage != alsIdle) FinishAddLink(nullptr);
}

void TJStructDesignPanel::FinishAddLink(TLinkRep* added) {
  FNewLink.reset();
  FNewDSLink.reset();
  BindFieldClicks(nullptr);
  FDesignArea->viewport()->unsetCursor();
  FAddLinkStage = alsIdle;
  ShowHint(dtNothing);
  RefreshActions();
  if (const TAddLinkFinishEvent told = OnAddLinkFinish) told(*this, added);
}

}  // namespace tolvi
