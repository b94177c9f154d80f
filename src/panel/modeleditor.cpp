#include <utility>

#include <tolvi/foundation/strings.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/panel/modeleditor.h>

namespace tolvi {
namespace {

/// Of all steps together, in bytes.
constexpr std::size_t MaxHistory = 64 << 20;

/// What the editor can change: the model text, and before it the settings of default operators, which no text holds.
std::string StateText(const TJCustomDBStructure& model) {
  std::string state;
  for (const TExOperator group : {xoInList, xoBetween, xoStartsWith, xoContains}) {
    state += model.GetExOperators().Contains(group) ? '1' : '0';
  }
  state += model.GetDefOperators().GetCommaText();
  state += '\n';
  return state += WriteModelText(model);
}

void ReadState(std::string_view state, TJCustomDBStructure& model) {
  const std::size_t end = state.find('\n');
  TExOperators groups;
  std::size_t at = 0;
  for (const TExOperator group : {xoInList, xoBetween, xoStartsWith, xoContains}) {
    if (state[at++] == '1') groups.Include(group);
  }
  TStrings captions;
  captions.SetCommaText(state.substr(at, end - at));

  TJDBStructure read;
  read.ClearStructure();
  ReadModelText(state.substr(end + 1), read);
  if (read.GetSpecInfo().Empty()) read.SetSpecInfo(model.GetSpecInfo());
  model.AsOneChange([&] {
    if (model.GetExOperators() != groups) model.SetExOperators(groups);
    if (model.GetDefOperators() != captions) model.SetDefOperators(captions);
    model.TakeContent(read);
  });
}

}  // namespace

TModelEditor::TModelEditor(TJCustomDBStructure& model)
    : FModel(model), FText(StateText(model)), FSavedText(FText), FRevision(model.GetRevision()) {}

bool TModelEditor::Edit(std::string_view name, const std::function<void()>& edit) {
  if (FDepth > 0) {
    const std::string before = StateText(FModel);
    try {
      FModel.AsOneChange(edit);
    } catch (...) {
      ReadState(before, FModel);
      throw;
    }
    return true;
  }
  Begin(name);
  try {
    FModel.AsOneChange([&] {
      const std::uint64_t revision = FModel.GetRevision();
      edit();
      // Value editors do not tell their model.
      if (FModel.GetRevision() == revision && StateText(FModel) != FText) FModel.Changed();
    });
  } catch (...) {
    Cancel();
    throw;
  }
  FDepth = 0;
  const bool changed = Take(FName);
  if (changed) Tell();
  return changed;
}

void TModelEditor::Begin(std::string_view name) {
  if (FDepth == 0) TakeForeignChange();
  if (FDepth++ > 0) return;
  FName = name;
}

void TModelEditor::End() {
  if (FDepth == 0 || --FDepth > 0) return;
  if (Take(FName)) Tell();
}

void TModelEditor::Cancel() {
  FDepth = 0;
  if (FModel.GetRevision() != FRevision) Restore(FText);
}

bool TModelEditor::CanUndo() {
  TakeForeignChange();
  return FDone > 0;
}

bool TModelEditor::CanRedo() {
  TakeForeignChange();
  return FDone < FSteps.size();
}

std::string TModelEditor::UndoName() { return CanUndo() ? FSteps[FDone - 1].Name : std::string(); }

std::string TModelEditor::RedoName() { return CanRedo() ? FSteps[FDone].Name : std::string(); }

void TModelEditor::Undo() {
  if (FDepth == 0 && CanUndo()) Go(false);
}

void TModelEditor::Redo() {
  if (FDepth == 0 && CanRedo()) Go(true);
}

void TModelEditor::ForgetSteps() {
  FSteps.clear();
  FDone = 0;
  FText = StateText(FModel);
  FRevision = FModel.GetRevision();
  Tell();
}

bool TModelEditor::GetModified() {
  TakeForeignChange();
  return FText != FSavedText;
}

void TModelEditor::SetUnmodified() {
  TakeForeignChange();
  FSavedText = FText;
  Tell();
}

bool TModelEditor::Take(std::string_view name) {
  if (FModel.GetRevision() == FRevision) return false;
  std::string text = StateText(FModel);
  FRevision = FModel.GetRevision();
  TTextChange change = TTextChange::Between(FText, text);
  if (change.Empty()) return false;
  FText = std::move(text);
  FSteps.resize(FDone);
  FSteps.push_back({std::string(name), std::move(change)});

  std::size_t size = 0, first = FSteps.size();
  while (first > 0) {
    const TTextChange& older = FSteps[first - 1].Text;
    size += older.Before.size() + older.After.size();
    if (size > MaxHistory && first < FSteps.size()) break;
    --first;
  }
  FSteps.erase(FSteps.begin(), FSteps.begin() + static_cast<std::ptrdiff_t>(first));
  FDone = FSteps.size();
  return true;
}

void TModelEditor::TakeForeignChange() {
  if (FDepth == 0) Take({});
}

/// What listeners ask of the history meanwhile must not find a change of its own.
void TModelEditor::Restore(const std::string& text) {
  const auto restored = [this] {
    FRevision = FModel.GetRevision();
    FDepth = 0;
  };
  FDepth = 1;
  try {
    ReadState(text, FModel);
  } catch (...) {
    restored();
    throw;
  }
  restored();
}

void TModelEditor::Go(bool forward) {
  std::string text = FText;
  const TStep& step = FSteps[forward ? FDone : FDone - 1];
  step.Text.Apply(text, forward);
  Restore(text);
  FText = std::move(text);
  FDone = forward ? FDone + 1 : FDone - 1;
  Tell();
}

void TModelEditor::Tell() {
  if (const std::function<void()> told = OnChange) told();
}

}  // namespace tolvi
