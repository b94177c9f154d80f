#include <utility>

#include <tolvi/panel/paneleditor.h>

// Undo and redo, and what rows keep through them.

namespace tolvi {

TPanelEditor::TPanelEditor(TJQueryPanel& panel) : FPanel([this] { ClearHistory(); }) {
  FPanel.Set(&panel);
  ClearHistory();
}

TPanelEditor::~TPanelEditor() {
  while (FDepth-- > 0 && FPanel) FPanel->EndUpdate();
}

void TPanelEditor::ClearHistory() {
  FSteps.clear();
  FPosition = 0;
  FSavedPosition.reset();
  FLoadedState.reset();
  FState = FPanel ? TakeState() : TQueryState();
  FCurrent = CurrentKey();
  FActive = IsActive();
}

// Keys

TRowKey TPanelEditor::FindKey(const TFilterRow& row) const {
  if (row.GetParentBracket() == nullptr) return RootKey;
  const auto found = FKeys.find(row.GetSerial());
  return found != FKeys.end() ? found->second : NoRowKey;
}

TRowKey TPanelEditor::TakeKey(const TFilterRow& row) {
  if (const TRowKey key = FindKey(row); key != NoRowKey) return key;
  return FKeys[row.GetSerial()] = ++FLastKey;
}

TRowKey TPanelEditor::CurrentKey() const {
  const TFilterRow* row = FPanel ? FPanel->GetCurrentRow() : nullptr;
  return row != nullptr ? FindKey(*row) : NoRowKey;
}

// The rows' keys are kept for the rows that there are.
TQueryState TPanelEditor::TakeState() {
  std::unordered_map<std::uint64_t, TRowKey> keys;
  TQueryState state = TakeQueryState(*FPanel.Get(), [&](TFilterRow& row) {
    const TRowKey key = TakeKey(row);
    if (key != RootKey) keys.emplace(row.GetSerial(), key);
    return key;
  });
  FKeys = std::move(keys);
  return state;
}

// Steps

void TPanelEditor::NoteChange() {
  if (FDepth == 0) Record(false);
}

void TPanelEditor::Record(bool byEditor) {
  if (!FPanel) return;
  TQueryState state = TakeState();
  const TRowKey current = CurrentKey();
  const bool isSeen = FLoadedState && !TQueryStep::Between(*FLoadedState, state);
  if (std::optional<TQueryStep> step = TQueryStep::Between(FState, state); step && !isSeen) {
    // Who changes a row otherwise has mostly made it the current one before.
    step->CurrentBefore = !byEditor && FState.Rows.contains(current) ? current : FCurrent;
    step->CurrentAfter = current;
    step->ActiveBefore = FActive;
    step->ActiveAfter = FPanel->GetActive();
    FSteps.resize(FPosition);
    FSteps.push_back(*std::move(step));
    if (FSavedPosition && *FSavedPosition > FPosition) FSavedPosition.reset();
    ++FPosition;
    FState = std::move(state);
    FLoadedState.reset();
  }
  FCurrent = current;
  FActive = FPanel->GetActive();
}

void TPanelEditor::BeginStep() {
  if (FDepth == 0) Record(false);
  ++FDepth;
  if (FPanel) FPanel->BeginUpdate();
}

// Firing events may be the end of panel and editor.
void TPanelEditor::EndStep() {
  if (--FDepth == 0) {
    ShowCurrentRow();
    Record(true);
  }
  if (FPanel) FPanel->EndUpdate();
}

void TPanelEditor::Travel(bool forward) {
  if (FDepth == 0) Record(false);
  if (forward ? !CanRedo() : !CanUndo()) return;
  const std::size_t position = forward ? FPosition + 1 : FPosition - 1;
  const TQueryStep& step = FSteps[forward ? FPosition : position];
  const TRowKey current = forward ? step.CurrentAfter : step.CurrentBefore;
  const bool active = FPanel->GetActive() || (forward ? step.ActiveAfter : step.ActiveBefore);
  TQueryState state = FState;
  step.Apply(state, forward);
  TJQueryPanel& panel = *FPanel.Get();
  panel.BeginUpdate();
  ++FDepth;
  try {
    Restore(state, current, active);
  } catch (...) {
    --FDepth;
    panel.EndUpdate();
    throw;
  }
  FPosition = position;
  FState = std::move(state);
  FLoadedState.reset();
  if (TQueryState loaded = TakeState(); TQueryStep::Between(FState, loaded)) FLoadedState = std::move(loaded);
  FCurrent = CurrentKey();
  FActive = active;
  panel.SetModified(FSavedPosition != FPosition);
  --FDepth;
  panel.EndUpdate();
}

void TPanelEditor::Restore(const TQueryState& state, TRowKey current, bool active) {
  TJQueryPanel& panel = *FPanel.Get();
  KeepExtras();
  panel.LoadFromText(QueryStateText(state));
  FKeys.clear();
  std::size_t at = 0;
  TFilterRow* currentRow = nullptr;
  std::vector<TFilterRow*> changed;
  ForEachRow(panel.RootBracket(), [&](TFilterRow& row) {
    const TRowKey key = state.Places[at++].Key;
    if (key != RootKey) FKeys.emplace(row.GetSerial(), key);
    if (key == current) currentRow = &row;
    if (FLocked.contains(key) || FCollapsed.contains(key)) changed.push_back(&row);
    if (const auto extras = FExtras.find(key); extras != FExtras.end()) GiveExtras(row, extras->second);
  });
  panel.SetActive(active);
  panel.SetCurrentRow(currentRow);
  ShowCurrentRow();
  if (!OnRowStateChange) return;
  for (TFilterRow* row : changed) OnRowStateChange(*row);
}

// What the text does not hold

bool TPanelEditor::TExtras::Empty() const {
  const auto isEmpty = [](const std::array<std::string, 2>& texts) { return texts[0].empty() && texts[1].empty(); };
  return !Hidden && !OleObject.has_value() && !CustomData.has_value() && isEmpty(Prompts) && isEmpty(Hints);
}

void TPanelEditor::KeepExtras() {
  ForEachRow(FPanel->RootBracket(), [this](TFilterRow& row) {
    TExtras extras;
    extras.Hidden = row.GetHidden();
    extras.OleObject = row.GetOleObject();
    if (row.GetRowType() == frtSimpleCondition) extras.CustomData = static_cast<TSimpleCond&>(row).GetCustomData();
    if (row.GetRowType() != frtBracket) {
      const auto& condition = static_cast<const TFilterCond&>(row);
      for (const int index : {1, 2}) {
        const auto slot = static_cast<std::size_t>(index - 1);
        extras.Hints[slot] = condition.GetHint(index);
        if (const TSQLParam* param = condition.GetParam(index)) extras.Prompts[slot] = param->GetOwnDisplayName();
      }
    }
    if (extras.Empty()) {
      FExtras.erase(FindKey(row));
    } else {
      FExtras[FindKey(row)] = std::move(extras);
    }
  });
}

void TPanelEditor::GiveExtras(TFilterRow& row, const TExtras& extras) {
  row.SetHidden(extras.Hidden);
  row.SetOleObject(extras.OleObject);
  if (row.GetRowType() == frtSimpleCondition) static_cast<TSimpleCond&>(row).SetCustomData(extras.CustomData);
  if (row.GetRowType() == frtBracket) return;
  auto& condition = static_cast<TFilterCond&>(row);
  for (const int index : {1, 2}) {
    const auto slot = static_cast<std::size_t>(index - 1);
    // The hint of a sub-query tells its text.
    if (condition.GetSubQuery().Empty()) condition.SetHint(index, extras.Hints[slot]);
    if (TSQLParam* param = condition.GetParam(index)) param->SetDisplayName(extras.Prompts[slot]);
  }
}

bool TPanelEditor::HasMark(const std::unordered_set<TRowKey>& marks, const TFilterRow& row) const {
  return !marks.empty() && marks.contains(FindKey(row));
}

void TPanelEditor::SetMark(std::unordered_set<TRowKey>& marks, TFilterRow& row, bool on) {
  if (HasMark(marks, row) == on) return;
  const TRowKey key = TakeKey(row);
  if (on) {
    marks.insert(key);
  } else {
    marks.erase(key);
  }
  if (OnRowStateChange) OnRowStateChange(row);
}

bool TPanelEditor::IsLocked(const TFilterRow& row) const {
  for (const TFilterRow* at = &row; at != nullptr; at = at->GetParentBracket()) {
    if (HasMark(FLocked, *at)) return true;
  }
  return false;
}

void TPanelEditor::SetLocked(TFilterRow& row, bool locked) {
  if (locked && !HasMark(FLocked, row)) ClearHistory();
  SetMark(FLocked, row, locked);
}

bool TPanelEditor::HoldsLocked(const TFilterRow& row) const {
  if (FLocked.empty()) return false;
  bool holds = IsLocked(row);
  ForEachRow(const_cast<TFilterRow&>(row), [&](const TFilterRow& inner) { holds = holds || HasMark(FLocked, inner); });
  return holds;
}

bool TPanelEditor::IsCollapsed(const TFilterRow& row) const { return HasMark(FCollapsed, row); }

void TPanelEditor::SetCollapsed(TFilterRow& row, bool collapsed) {
  if (row.GetRowType() != frtBracket || IsCollapsed(row) == collapsed) return;
  TFilterRow* current = FPanel ? FPanel->GetCurrentRow() : nullptr;
  SetMark(FCollapsed, row, collapsed);
  if (collapsed && current != nullptr && current->IsWithin(row)) FPanel->SetCurrentRow(&row);
}

void TPanelEditor::ShowCurrentRow() {
  const TFilterRow* row = FPanel ? FPanel->GetCurrentRow() : nullptr;
  if (row == nullptr) return;
  for (TFilterBracket* at = row->GetParentBracket(); at != nullptr; at = at->GetParentBracket()) {
    if (IsCollapsed(*at)) SetCollapsed(*at, false);
  }
}

std::vector<TFilterRow*> TPanelEditor::VisibleRows() const {
  std::vector<TFilterRow*> rows;
  if (!IsActive()) return rows;
  const std::function<void(TFilterRow&)> add = [&](TFilterRow& row) {
    if (row.GetHidden()) return;
    rows.push_back(&row);
    if (row.GetRowType() != frtBracket || IsCollapsed(row)) return;
    for (TFilterRow& inner : static_cast<TFilterBracket&>(row)) add(inner);
  };
  add(FPanel->RootBracket());
  return rows;
}

}  // namespace tolvi
