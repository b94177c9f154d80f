#include <algorithm>
#include <limits>

#include <tolvi/foundation/text.h>
#include <tolvi/panel/rfldeditor.h>
#include <tolvi/panel/rfldrows.h>

namespace tolvi {
namespace {

constexpr std::size_t MostSteps = 200;

}  // namespace

TRFieldEditor::TRFieldEditor(const TRFieldList& fields, TTitles titles)
    : FTitles(std::move(titles)), FModel([this] { ModelDestroyed(); }) {
  FModel.Set(fields.GetDBStruct());
  if (FModel) FModel->AddListener(*this);
  FState.Fields = std::make_unique<TRFieldList>(fields.GetDBStruct(), fields.GetQueryPanel());
  FState.Fields->Assign(fields);
  FState.Typed.resize(fields.Count());
  if (!fields.Empty()) FState.Current = 0;
  for (const TResultField& field : fields) {
    if (!Trim(field.GetFormula()).empty()) FGiven.insert(field.GetFormula());
  }
  Renumber(Sorted());
  FState.Fields->RegenerateAliases();
}

TRFieldEditor::~TRFieldEditor() {
  if (FModel) FModel->RemoveListener(*this);
}

// The model

void TRFieldEditor::FieldRemoved(TDSField& field) {
  FModelChanges = true;
  FState.Fields->FieldRemoved(field);
}

void TRFieldEditor::StructureClearing() {
  FModelChanges = true;
  FState.Fields->ForgetFields();
}

void TRFieldEditor::StructureLoaded() {
  FModelChanges = true;
  FState.Fields->ResolveFields();
}

// The history refers to fields, too.
void TRFieldEditor::ModelChanged() {
  if (std::exchange(FModelChanges, false)) {
    FUndo.clear();
    FRedo.clear();
  }
  CheckTypedAnew();
  Finish();
}

void TRFieldEditor::ModelDestroyed() {
  FUndo.clear();
  FRedo.clear();
  FState = {std::make_unique<TRFieldList>(), {}, std::nullopt};
  Finish();
}

// History

std::unique_ptr<TRFieldList> TRFieldEditor::EmptyList() const {
  return std::make_unique<TRFieldList>(GetModel(), Fields().GetQueryPanel());
}

TRFieldEditor::TState TRFieldEditor::Copy() const {
  TState copy{EmptyList(), FState.Typed, FState.Current};
  copy.Fields->Assign(Fields());
  return copy;
}

// Steps of the same name that follow one another are one; the empty name is that of no other.
void TRFieldEditor::Change(std::string_view step, const std::function<void()>& change) {
  if (step.empty() || step != FLastStep) {
    FUndo.push_back(Copy());
    if (FUndo.size() > MostSteps) FUndo.erase(FUndo.begin());
  }
  FRedo.clear();
  FLastStep = step;
  change();
  Finish();
}

void TRFieldEditor::Finish() {
  FState.Fields->RegenerateAliases();
  if (OnChange) OnChange();
}

void TRFieldEditor::Step(std::vector<TState>& from, std::vector<TState>& to) {
  if (from.empty()) return;
  to.push_back(std::exchange(FState, std::move(from.back())));
  from.pop_back();
  FLastStep.clear();
  Finish();
}

void TRFieldEditor::Undo() { Step(FUndo, FRedo); }
void TRFieldEditor::Redo() { Step(FRedo, FUndo); }

// Columns

void TRFieldEditor::SetCurrent(std::size_t index) {
  if (index >= Fields().Count() || FState.Current == index) return;
  FState.Current = index;
  FLastStep.clear();
  Finish();
}

void TRFieldEditor::Insert(std::unique_ptr<TResultField> column) {
  const std::size_t index = FState.Current ? *FState.Current + 1 : Fields().Count();
  TResultField& inserted = FState.Fields->InsertRField(index, std::move(column));
  FState.Typed.emplace(FState.Typed.begin() + static_cast<std::ptrdiff_t>(index));
  FState.Current = index;
  inserted.SetCaption(MadeCaption(inserted));
}

void TRFieldEditor::Create(std::span<TDSField* const> fields) {
  if (fields.empty()) return;
  Change({}, [this, fields] {
    for (TDSField* field : fields) {
      auto column = Fields().CreateRField();
      column->AddDSField(*field);
      column->SetFormula("@1");
      Insert(std::move(column));
    }
  });
}

void TRFieldEditor::New() {
  Change({}, [this] { Insert(Fields().CreateRField()); });
}

void TRFieldEditor::Delete() {
  if (!FState.Current) return;
  Change({}, [this] {
    const std::size_t index = *FState.Current;
    FState.Fields->Delete(index).reset();
    FState.Typed.erase(FState.Typed.begin() + static_cast<std::ptrdiff_t>(index));
    if (Fields().Empty()) {
      FState.Current.reset();
    } else {
      FState.Current = std::min(index, Fields().Count() - 1);
    }
    Renumber(Sorted());
  });
}

bool TRFieldEditor::HasOwnFormula() const {
  if (!FState.Current) return false;
  const TResultField& column = Column();
  if (FState.Typed[*FState.Current]) return true;
  const TRFAggregated formula = SplitAggregate(column.GetFormula(), FormatsOf(GetModel()));
  const std::string_view inner = formula.Inner;
  return !inner.empty() && inner != "@1" && inner != "*";
}

void TRFieldEditor::Move(std::size_t to) {
  if (!FState.Current || to >= Fields().Count() || to == *FState.Current) return;
  Change({}, [this, to] {
    const std::size_t from = *FState.Current;
    FState.Fields->Move(from, to);
    std::optional<TTyped> typed = std::move(FState.Typed[from]);
    FState.Typed.erase(FState.Typed.begin() + static_cast<std::ptrdiff_t>(from));
    FState.Typed.insert(FState.Typed.begin() + static_cast<std::ptrdiff_t>(to), std::move(typed));
    FState.Current = to;
  });
}

void TRFieldEditor::SetHidden(std::size_t index, bool hidden) {
  if (Fields()[index].GetHidden() == hidden) return;
  Change({}, [&] { (*FState.Fields)[index].SetHidden(hidden); });
}

// Captions

std::string TRFieldEditor::MadeCaption(const TResultField& column) const {
  if (column.GetFormula().empty()) return FTitles.GetTitle("ttlResultField");
  const auto list = EmptyList();
  TResultField& copy = list->New();
  copy.Assign(column);
  copy.GenerateCaption();
  const TRFAggregate aggregate = SplitAggregate(column.GetFormula(), FormatsOf(GetModel())).Aggregate;
  if (aggregate == agAsIs || column.DSFields().empty()) return copy.GetCaption();
  return copy.GetCaption() + " (" + FTitles.GetTitle(AggregateTitle(aggregate)) + ")";
}

bool TRFieldEditor::HasMadeCaption(const TResultField& column) const {
  const std::string& caption = column.GetCaption();
  const std::string made = MadeCaption(column);
  return caption.empty() || caption == made || caption == Fields().GetUniqCaption(made, &column);
}

void TRFieldEditor::SetCaption(std::string_view caption) {
  if (!FState.Current) return;
  Change("caption", [&] { Column().SetCaption(Trim(caption).empty() ? MadeCaption(Column()) : std::string(caption)); });
}

// Sorting

std::vector<std::size_t> TRFieldEditor::Sorted() const {
  std::vector<std::size_t> sorted;
  for (std::size_t i = 0; i < Fields().Count(); ++i) {
    if (Fields()[i].GetSorting() != stNoSort) sorted.push_back(i);
  }
  std::stable_sort(sorted.begin(), sorted.end(), [this](std::size_t one, std::size_t other) {
    return Fields()[one].GetSortOrder() < Fields()[other].GetSortOrder();
  });
  return sorted;
}

void TRFieldEditor::Renumber(const std::vector<std::size_t>& sorted) {
  int order = 0;
  for (const std::size_t index : sorted) (*FState.Fields)[index].SetSortOrder(++order);
}

void TRFieldEditor::SetSorting(std::size_t index, TSortingType sorting) {
  TResultField& column = (*FState.Fields)[index];
  if (column.GetSorting() == sorting) return;
  Change({}, [&] {
    if (column.GetSorting() == stNoSort) column.SetSortOrder(std::numeric_limits<int>::max());
    column.SetSorting(sorting);
    Renumber(Sorted());
  });
}

void TRFieldEditor::MoveSorted(std::size_t from, std::size_t to) {
  std::vector<std::size_t> sorted = Sorted();
  if (from == to || std::max(from, to) >= sorted.size()) return;
  Change({}, [&] {
    const std::size_t moved = sorted[from];
    sorted.erase(sorted.begin() + static_cast<std::ptrdiff_t>(from));
    sorted.insert(sorted.begin() + static_cast<std::ptrdiff_t>(to), moved);
    Renumber(sorted);
  });
}

void TRFieldEditor::SetJustSorting(bool on) {
  if (Fields().GetJustSorting() == on) return;
  Change({}, [&] { FState.Fields->SetJustSorting(on); });
}

}  // namespace tolvi
