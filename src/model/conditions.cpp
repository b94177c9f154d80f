#include <algorithm>
#include <limits>

#include <tolvi/foundation/strings.h>
#include <tolvi/model/conditions.h>
#include <tolvi/model/dbstruc.h>

namespace tolvi {

void TDSCondition::SetID(std::int32_t id) {
  if (FID == id) return;
  FID = id;
  Modified();
}

void TDSCondition::SetSQLExpr(std::string_view expr) {
  if (FSQLExpr == expr) return;
  FSQLExpr = expr;
  UpdateTables();
  Modified();
}

void TDSCondition::SetDisplayFormat(std::string_view format) {
  if (FDisplayFormat == format) return;
  FDisplayFormat = format;
  const std::string_view text = FDisplayFormat;
  std::size_t start = 0;
  for (std::size_t index = 0, place = text.find('@'); place != std::string_view::npos;
       ++index, start = place + 1, place = text.find('@', start)) {
    if (index == FValues.Count()) FValues.Add(std::make_unique<TDSValue>());
    FValues[index].SetText(text.substr(start, place - start));
  }
  Modified();
}

std::string TDSCondition::GetCaption() const {
  if (FValues.Empty()) return FDisplayFormat;
  TStrings texts;
  for (const TDSValue& value : FValues) texts.Add(value.GetText());
  return texts.Joined(" ");
}

void TDSCondition::Modified() {
  if (FDBStruct) FDBStruct->ConditionsModified();
}

void TDSCondition::BindTo(TJCustomDBStructure* dbStruct) {
  FDBStruct = dbStruct;
  for (TDSValue& value : FValues) TJCustomDBStructure::BindEditor(value.GetValueEditor(), dbStruct);
}

// The model's tables may have come, gone or been renamed since the predicate was read.
const TSimpleDSTableList& TDSCondition::Tables() const {
  if (FDBStruct && FTablesStamp != FDBStruct->TablesStamp()) UpdateTables();
  return FTables;
}

void TDSCondition::UpdateTables() const {
  FTables.Clear();
  if (!FDBStruct) return;
  TStrings references;
  FDBStruct->ExcludeTablesBySQLExpr(FSQLExpr, FTables, references);
  FTablesStamp = FDBStruct->TablesStamp();
}

TDSCondition& TDSConditionList::Add(std::unique_ptr<TDSCondition> condition) {
  if (condition->FID == 0) condition->FID = NextID();
  FMaxID = std::max(FMaxID, condition->FID);
  const bool isNew = condition->FDBStruct != &FDBStruct;
  condition->BindTo(&FDBStruct);
  if (isNew) condition->UpdateTables();
  TDSCondition& added = FItems.Add(std::move(condition));
  FDBStruct.Changed();
  return added;
}

std::int32_t TDSConditionList::NextID() const {
  // Conditions whose IDs were changed later may lie above the largest one handed out.
  std::int32_t largest = FMaxID;
  for (const TDSCondition& condition : FItems) largest = std::max(largest, condition.FID);
  if (largest < std::numeric_limits<std::int32_t>::max()) return largest + 1;
  std::int32_t free = 1;
  while (IndexByID(free) >= 0) ++free;
  return free;
}

std::unique_ptr<TDSCondition> TDSConditionList::Delete(std::size_t index) {
  TDSCondition& condition = FItems[index];
  FDBStruct.Tell([&condition](TDSListener& listener) { listener.ConditionRemoved(condition); });
  std::unique_ptr<TDSCondition> removed = FItems.Delete(index);
  removed->BindTo(nullptr);
  removed->FTables.Clear();
  FDBStruct.ConditionsModified();
  return removed;
}

void TDSConditionList::Clear() {
  if (FItems.Empty()) return;
  for (TDSCondition& condition : FItems) {
    FDBStruct.Tell([&condition](TDSListener& listener) { listener.ConditionRemoved(condition); });
  }
  FItems.Clear();
  FDBStruct.ConditionsModified();
}

std::ptrdiff_t TDSConditionList::IndexByID(std::int32_t id) const {
  for (std::size_t index = 0; index < FItems.Count(); ++index) {
    if (FItems[index].FID == id) return static_cast<std::ptrdiff_t>(index);
  }
  return -1;
}

TDSCondition* TJCustomDBStructure::ConditionByID(std::int32_t id) const {
  return FConditionIDs.Find(FConditions.FItems, FRevisions.conditions, id,
                            [](const TDSCondition& condition) { return condition.GetID(); });
}

void TJCustomDBStructure::GetConditionCaptions(TStrings& captions) const {
  captions.Clear();
  for (const TDSCondition& condition : FConditions) captions.Add(condition.GetCaption());
}

}  // namespace tolvi
