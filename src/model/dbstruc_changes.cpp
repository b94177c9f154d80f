// Clearing a model, exchanging its content, and telling of changes.
#include <algorithm>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/model/pathfinder.h>

namespace tolvi {

// Clearing

void TJCustomDBStructure::ClearFields() {
  for (TDSField& field : FFields) {
    Tell([&field](TDSListener& listener) { listener.FieldRemoved(field); });
  }
  for (TDSFieldGroup& group : FFieldGroups) group.FFields.clear();
  FRootGroup.FFields.clear();
  FFields.Clear();
  FieldsModified();
}

void TJCustomDBStructure::ClearTables() {
  Tell([](TDSListener& listener) { listener.TablesChanging(); });
  FLinks.Clear();
  for (std::size_t i = FFields.Count(); i-- > 0;) {
    TDSField& field = FFields[i];
    if (field.FFieldKind == jfkData && field.GetTable() != nullptr) {
      DropField(i);
    } else {
      field.FTables.Clear();
    }
  }
  for (TDSCondition& condition : FConditions) condition.FTables.Clear();
  FCurPath.Clear();
  FTables.Clear();
  ++FRevisions.links;
  TablesModified();
}

void TJCustomDBStructure::ClearLinks() {
  Tell([](TDSListener& listener) { listener.TablesChanging(); });
  for (TDSTable& table : FTables) table.FLinks.clear();
  FLinks.Clear();
  LinksModified();
}

void TJCustomDBStructure::ClearOperators() {
  for (TDSOperator& op : FOperators) {
    Tell([&op](TDSListener& listener) { listener.OperatorRemoved(op); });
  }
  for (TDSField& field : FFields) field.FOperators.clear();
  FOperators.Clear();
  OperatorsModified();
}

void TJCustomDBStructure::ClearStructure() {
  TJCustomDBStructure nothing;
  nothing.FOperators.Clear();
  nothing.FSQLFormats = FSQLFormats;
  nothing.FDMOptions = FDMOptions;
  nothing.FVersion = FVersion;
  TakeContent(nothing);
}

// What was here goes with `source`.
void TJCustomDBStructure::TakeContent(TJCustomDBStructure& source) {
  Tell([](TDSListener& listener) { listener.StructureClearing(); });
  std::swap(FVersion, source.FVersion);
  std::swap(FTables, source.FTables);
  std::swap(FFields, source.FFields);
  std::swap(FOperators, source.FOperators);
  std::swap(FLinks, source.FLinks);
  std::swap(FConditions.FItems, source.FConditions.FItems);
  std::swap(FConditions.FMaxID, source.FConditions.FMaxID);
  std::swap(FFieldGroups.FItems, source.FFieldGroups.FItems);
  std::swap(FRootGroup.FFields, source.FRootGroup.FFields);
  std::swap(FDefaultMainTable, source.FDefaultMainTable);
  std::swap(FRootFieldsFirst, source.FRootFieldsFirst);
  std::swap(FSpecInfo, source.FSpecInfo);
  FLastFieldID.reset();
  FCurPath.Clear();
  for (TDSTable& table : FTables) table.FDBStruct = this;
  for (TDSLink& link : FLinks) link.FDBStruct = this;
  for (TDSOperator& op : FOperators) op.FDBStruct = this;
  for (TDSFieldGroup& group : FFieldGroups) group.FDBStruct = this;
  for (TDSField* field : FRootGroup.FFields) field->FGroup = &FRootGroup;
  for (TDSField& field : FFields) {
    field.FDBStruct = this;
    field.FSQLExprRevision = 0;
    BindEditor(field.FValueEditor.get(), this);
  }
  for (TDSCondition& condition : FConditions) condition.BindTo(this);
  ++FRevisions.tables;
  ++FRevisions.fields;
  ++FRevisions.operators;
  ++FRevisions.conditions;
  ++FRevisions.links;
  // The settings' own notifications would tell of a model half exchanged.
  AsOneChange([&] {
    FSQLFormats = source.FSQLFormats;
    FDMOptions = source.FDMOptions;
    Tell([](TDSListener& listener) { listener.StructureLoaded(); });
    Changed();
  });
}

// Change notification

struct TJCustomDBStructure::TFiring {
  explicit TFiring(TJCustomDBStructure& changed) : model(changed), outer(changed.FFiring) { model.FFiring = this; }
  TFiring(const TFiring&) = delete;
  TFiring& operator=(const TFiring&) = delete;
  ~TFiring() {
    if (destroyed) return;
    model.FFiring = outer;
    if (inOnChange) model.FInOnChange = false;
  }

  TJCustomDBStructure& model;
  TFiring* outer;
  bool destroyed = false, inOnChange = false;
};

TJCustomDBStructure::~TJCustomDBStructure() {
  for (TFiring* firing = FFiring; firing != nullptr; firing = firing->outer) firing->destroyed = true;
}

void TJCustomDBStructure::Changed() {
  ++FRevision;
  if (FHeldChanges > 0) {
    FChangePending = true;
    return;
  }
  TFiring firing(*this);
  const std::vector<TDSListener*> listeners = FListeners;
  for (TDSListener* listener : listeners) {
    if (std::find(FListeners.begin(), FListeners.end(), listener) != FListeners.end()) listener->ModelChanged();
    if (firing.destroyed) return;
  }
  if (FUpdating || FInOnChange || !OnChange) return;
  FInOnChange = firing.inOnChange = true;
  // The handler may replace itself.
  const TModelEvent handler = OnChange;
  handler(*this);
}

/// Makes all that `changes` changes one change for those who are told of it.
void TJCustomDBStructure::AsOneChange(const std::function<void()>& changes) {
  ++FHeldChanges;
  try {
    changes();
  } catch (...) {
    ReleaseChanges();
    throw;
  }
  ReleaseChanges();
}

void TJCustomDBStructure::ReleaseChanges() {
  if (--FHeldChanges == 0 && std::exchange(FChangePending, false)) Changed();
}

void TJCustomDBStructure::TablesModified() {
  ++FRevisions.tables;
  ++FRevisions.fields;
  Changed();
}

void TJCustomDBStructure::FieldsModified() {
  ++FRevisions.fields;
  FLastFieldID.reset();
  Changed();
}

void TJCustomDBStructure::OperatorsModified() {
  ++FRevisions.operators;
  Changed();
}

void TJCustomDBStructure::ConditionsModified() {
  ++FRevisions.conditions;
  Changed();
}

void TJCustomDBStructure::LinksModified() {
  ++FRevisions.links;
  Changed();
}

void TJCustomDBStructure::SettingsModified() { TablesModified(); }

void TJCustomDBStructure::RemoveListener(TDSListener& listener) const { std::erase(FListeners, &listener); }

}  // namespace tolvi
