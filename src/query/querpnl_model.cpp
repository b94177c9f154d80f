#include <utility>

#include <tolvi/query/querpnl.h>

// The panel and its model, of which parts or all may go at any time.

namespace tolvi {

void TJQueryPanel::SetDBStruct(TJCustomDBStructure* dbStruct) {
  TJCustomDBStructure* old = FDBStruct.Get();
  if (old == dbStruct) return;
  HoldBack();
  const bool wasModified = FModified;
  if (dbStruct == nullptr) {
    SetActive(false);
    ClearRows();
    RFields().Clear();
  }
  if (old != nullptr) old->RemoveListener(*this);
  FDBStruct.Set(dbStruct);
  TablesChanging();
  FQResult->DbStructChanged();
  if (dbStruct != nullptr) {
    dbStruct->AddListener(*this);
    EachCondition(*FRoot, [](TFilterCond& condition) {
      condition.Forget(nullptr);
      condition.Resolve();
      if (TQueryPanelView* view = condition.Viewer()) view->RowChanged(condition);
    });
  }
  ShapeChanged();
  // The text of the query is still the same.
  if (dbStruct != nullptr) FModified = wasModified;
  Release();
}

// The model's parts are gone already: nothing here may touch them.
void TJQueryPanel::ModelDestroyed() {
  HoldBack();
  if (std::exchange(FPartsGoing, false)) RFields().EndUpdate();
  TablesChanging();
  SetActive(false);
  ClearRows();
  RFields().Clear();
  FQResult->DbStructChanged();
  Release();
}

// While the model changes, nobody is told: who hears of it may look things up, and find what is about to go.

void TJQueryPanel::FieldRemoved(TDSField& field) {
  PartGoes(&field);
  RFields().FieldRemoved(field);
}

void TJQueryPanel::OperatorRemoved(TDSOperator& op) { PartGoes(&op); }

void TJQueryPanel::ConditionRemoved(TDSCondition& condition) { PartGoes(&condition); }

void TJQueryPanel::PartGoes(const void* part) {
  if (!FPartsGoing) RFields().BeginUpdate();
  FPartsGoing = true;
  ++FShapeRevision;
  EachCondition(*FRoot, [this, part](TFilterCond& condition) {
    if (condition.Forget(part)) FPending.Include(evChange);
  });
}

void TJQueryPanel::ModelChanged() {
  HoldBack();
  if (std::exchange(FPartsGoing, false)) {
    const bool wasModified = FModified;
    EachCondition(*FRoot, [](TFilterCond& condition) {
      TQueryPanelView* view = condition.Viewer();
      if (view != nullptr && !condition.GetMissing().empty()) view->RowChanged(condition);
    });
    RFields().EndUpdate();
    // The rows and columns keep their IDs: the text of the query is still the same.
    FModified = wasModified;
  }
  if (TQueryPanelView* view = Viewer()) view->TitlesChanged();
  Release();
}

void TJQueryPanel::TablesChanging() {
  FMainTable = nullptr;
  FQResult->RTables().Clear();
  FQResult->FTableFilters.Clear();
  ++FShapeRevision;
}

void TJQueryPanel::StructureClearing() {
  TablesChanging();
  EachCondition(*FRoot, [](TFilterCond& condition) { condition.Forget(nullptr); });
  RFields().ForgetFields();
}

void TJQueryPanel::StructureLoaded() {
  const bool wasModified = FModified;
  HoldBack();
  EachCondition(*FRoot, [](TFilterCond& condition) {
    condition.Resolve();
    if (TQueryPanelView* view = condition.Viewer()) view->RowChanged(condition);
  });
  RFields().ResolveFields();
  ShapeChanged();
  FModified = wasModified;
  // `ModelChanged` fires.
  --FHeldBack;
}

}  // namespace tolvi
