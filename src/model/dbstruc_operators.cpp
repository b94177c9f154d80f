// The operators of a model, and among them the default ones.
#include <algorithm>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>

namespace tolvi {
namespace {

const TDefOperator& DefaultOperator(std::string_view name) {
  const auto rows = DefaultOperators();
  return *std::find_if(rows.begin(), rows.end(), [name](const TDefOperator& row) { return row.Name == name; });
}

}  // namespace

std::size_t TJCustomDBStructure::AddOperator(std::string_view name, std::string_view displayName,
                                             std::string_view sqlExpr, std::string_view valFormat,
                                             TFieldTypes appliedTypes) {
  auto op = std::make_unique<TDSOperator>();
  op->SetName(name);
  op->SetDisplayName(displayName);
  op->SetSQLExpr(sqlExpr);
  op->SetValFormat(valFormat);
  op->SetAppliedTypes(appliedTypes);
  return AddOperatorRef(std::move(op));
}

std::size_t TJCustomDBStructure::AddOperatorRef(std::unique_ptr<TDSOperator> op) {
  const std::size_t index = FOperators.Count();
  FOperators.Add(std::move(op)).FDBStruct = this;
  Changed();
  return index;
}

std::size_t TJCustomDBStructure::AddUpdateOperator(bool onlyIfAbsent, std::string_view name,
                                                   std::string_view displayName, std::string_view sqlExpr,
                                                   std::string_view valFormat, TFieldTypes appliedTypes) {
  if (onlyIfAbsent) {
    const std::ptrdiff_t existing = OperatorIndexByName(name);
    if (existing >= 0) return static_cast<std::size_t>(existing);
  }
  return AddOperator(name, displayName, sqlExpr, valFormat, appliedTypes);
}

void TJCustomDBStructure::AddDefOperator(std::string_view name, bool onlyIfAbsent) {
  AsOneChange([&] { AddDefOperatorRow(DefaultOperator(name), onlyIfAbsent); });
}

void TJCustomDBStructure::AddDefOperatorRow(const TDefOperator& row, bool onlyIfAbsent) {
  const std::size_t index =
      AddUpdateOperator(onlyIfAbsent, row.Name, GetDefOperator(row.Name), row.SQLExpr, row.ValFormat, row.Types);
  // Also one that the model had: list templates make no sense with one value.
  if (row.ValueKind == vkList) GetOperator(index).SetValueKind(vkList);
}

void TJCustomDBStructure::AddDefOperators(bool onlyIfAbsent) {
  AsOneChange([&] {
    for (const TDefOperator& row : DefaultOperators()) {
      if (!row.Group || FExOperators.Contains(*row.Group)) AddDefOperatorRow(row, onlyIfAbsent);
    }
  });
}

void TJCustomDBStructure::AddInListOperator(bool onlyIfAbsent) { AddDefOperator("InList", onlyIfAbsent); }
void TJCustomDBStructure::AddNotInListOperator(bool onlyIfAbsent) { AddDefOperator("NotInList", onlyIfAbsent); }
void TJCustomDBStructure::AddStartsWithOperator(bool onlyIfAbsent) { AddDefOperator("StartsWith", onlyIfAbsent); }
void TJCustomDBStructure::AddNotStartsWithOperator(bool onlyIfAbsent) { AddDefOperator("NotStartsWith", onlyIfAbsent); }
void TJCustomDBStructure::AddContainsOperator(bool onlyIfAbsent) { AddDefOperator("Contains", onlyIfAbsent); }
void TJCustomDBStructure::AddNotContainsOperator(bool onlyIfAbsent) { AddDefOperator("NotContains", onlyIfAbsent); }
void TJCustomDBStructure::AddBetweenOperator(bool onlyIfAbsent) { AddDefOperator("Between", onlyIfAbsent); }
void TJCustomDBStructure::AddNotBetweenOperator(bool onlyIfAbsent) { AddDefOperator("NotBetween", onlyIfAbsent); }

void TJCustomDBStructure::UpdateExOperators() {
  AsOneChange([this] {
    for (const TDefOperator& row : DefaultOperators()) {
      if (!row.Group) continue;
      if (FExOperators.Contains(*row.Group)) {
        AddDefOperatorRow(row, true);
      } else {
        DeleteOperatorByName(row.Name);
      }
    }
  });
}

void TJCustomDBStructure::UpdateDefOperators() {
  AsOneChange([this] {
    for (const TDefOperator& row : DefaultOperators()) {
      if (!row.Group || FExOperators.Contains(*row.Group)) {
        UpdateOperatorCaption(row.Name, GetDefOperator(row.Name));
      } else if (*row.Group != xoStartsWith) {
        DeleteOperatorByName(row.Name);
      }
    }
  });
}

void TJCustomDBStructure::UpdateOperatorCaption(std::string_view name, std::string_view caption) {
  if (TDSOperator* op = OperatorByName(name)) op->SetDisplayName(caption);
}

void TJCustomDBStructure::DelOperator(std::size_t index) {
  TDSOperator& op = GetOperator(index);
  Tell([&op](TDSListener& listener) { listener.OperatorRemoved(op); });
  for (TDSField& field : FFields) std::erase(field.FOperators, &op);
  const std::unique_ptr<TDSOperator> removed = FOperators.Delete(index);
  removed->FDBStruct = nullptr;
  OperatorsModified();
}

void TJCustomDBStructure::DeleteOperatorByName(std::string_view name) {
  const std::ptrdiff_t index = OperatorIndexByName(name);
  if (index >= 0) DelOperator(static_cast<std::size_t>(index));
}

void TJCustomDBStructure::MoveOperator(std::size_t from, std::size_t to) {
  // Both indexes must be good before anything moves.
  if (&GetOperator(from) == &GetOperator(to)) return;
  FOperators.Move(from, to);
  OperatorsModified();
}

TDSOperator& TJCustomDBStructure::GetOperator(std::size_t index) const {
  if (index >= FOperators.Count()) throw EJDBStructError(3, SDBSEInvalidOperatorIndex, {index});
  return FOperators[index];
}

std::ptrdiff_t TJCustomDBStructure::OperatorIndexByName(std::string_view name) const {
  const TDSOperator* op = OperatorByName(name);
  return op ? FOperators.IndexOf(op) : -1;
}

TDSOperator* TJCustomDBStructure::OperatorByName(std::string_view name) const {
  if (name == "EqualTo") name = "Equal";
  return FOperatorNames.Find(FOperators, FRevisions.operators, name,
                             [](const TDSOperator& op) -> const std::string& { return op.GetName(); });
}

TDSOperator* TJCustomDBStructure::OperatorByExpr(std::string_view expr) const {
  for (TDSOperator& op : FOperators) {
    if (CXPos(expr, op.GetSQLExpr()) != std::string_view::npos) return &op;
  }
  return nullptr;
}

void TJCustomDBStructure::GetOperatorNames(TStrings& names) const {
  names.Clear();
  for (const TDSOperator& op : FOperators) names.Add(op.GetName());
}

void TJCustomDBStructure::SetDefOperators(const TStrings& lines) {
  const bool differs = FDefOperators != lines;
  AsOneChange([&] {
    FDefOperators = lines;
    UpdateDefOperators();
    if (differs) Changed();
  });
}

void TJCustomDBStructure::LoadDefsOpertors() {
  FDefOperators.Clear();
  MergeDefOperators();
}

void TJCustomDBStructure::MergeDefOperators() {
  for (const TDefOperator& row : DefaultOperators()) {
    if (FDefOperators.Value(row.Name).empty()) FDefOperators.SetValue(row.Name, row.DisplayName);
  }
  Changed();
}

void TJCustomDBStructure::SetExOperators(TExOperators groups) {
  if (FExOperators == groups) return;
  AsOneChange([&] {
    FExOperators = groups;
    UpdateExOperators();
    UpdateDefOperators();
    Changed();
  });
}

}  // namespace tolvi
