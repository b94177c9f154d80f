#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/liststeps.h>
#include <tolvi/panel/modeloperators.h>

namespace tolvi {
namespace {

/// The words, or the words with the first number that makes them free.
std::string FreeName(std::string_view words, bool numbered, const std::function<bool(const std::string&)>& isTaken) {
  if (!numbered && !isTaken(std::string(words))) return std::string(words);
  for (int number = numbered ? 1 : 2;; ++number) {
    std::string name = std::string(words) + std::to_string(number);
    if (!isTaken(name)) return name;
  }
}

std::string FreeOperatorName(const TJCustomDBStructure& model, std::string_view words, bool numbered) {
  return FreeName(words, numbered, [&model](const std::string& name) { return model.OperatorByName(name) != nullptr; });
}

void SortDown(std::vector<std::size_t>& indexes) {
  std::sort(indexes.begin(), indexes.end(), std::greater<>());
  indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
}

}  // namespace

// Operators

std::size_t AddNewOperator(TJCustomDBStructure& model) {
  const std::string name = FreeOperatorName(model, "Operator", true);
  return model.AddOperator(name, "is", "@f = '@1'", {}, GeneralFieldTypes);
}

std::vector<std::size_t> DuplicateOperators(TJCustomDBStructure& model, std::vector<std::size_t> indexes) {
  SortDown(indexes);
  std::vector<std::size_t> copies;
  model.AsOneChange([&] {
    for (const std::size_t index : indexes) {
      TDSOperator& op = model.GetOperator(index);
      auto copy = std::make_unique<TDSOperator>();
      copy->SetName(FreeOperatorName(model, op.GetName(), false));
      copy->SetDisplayName(op.GetDisplayName());
      copy->SetSQLExpr(op.GetSQLExpr());
      copy->SetValFormat(op.GetValFormat());
      copy->SetExprType(op.GetExprType());
      copy->SetValueKind(op.GetValueKind());
      copy->SetCaseInsensative(op.GetCaseInsensative());
      copy->SetAppliedTypes(op.GetAppliedTypes());
      const std::size_t added = model.AddOperatorRef(std::move(copy));
      model.MoveOperator(added, index + 1);
      for (TDSField& field : model.Fields()) {
        const std::ptrdiff_t place = field.IndexOfOperator(op);
        if (place < 0) continue;
        field.AddOperator(model.GetOperator(index + 1));
        field.MoveOperat(field.GetOperatCount() - 1, static_cast<std::size_t>(place) + 1);
      }
      copies.insert(copies.begin(), index + 1);
      // Those behind it have gone one place further.
      for (std::size_t i = 1; i < copies.size(); ++i) ++copies[i];
    }
  });
  return copies;
}

void DeleteOperators(TJCustomDBStructure& model, std::vector<std::size_t> indexes) {
  SortDown(indexes);
  model.AsOneChange([&] {
    for (const std::size_t index : indexes) model.DelOperator(index);
  });
}

std::vector<std::size_t> StepModelOperators(TJCustomDBStructure& model, const std::vector<std::size_t>& indexes,
                                            int step) {
  std::vector<std::size_t> places;
  model.AsOneChange([&] {
    places = StepEntries(indexes, model.GetOperatCount(), step,
                         [&model](std::size_t from, std::size_t to) { model.MoveOperator(from, to); });
  });
  return places;
}

std::size_t CountLackingDefaults(const TJCustomDBStructure& model) {
  const auto rows = DefaultOperators();
  return static_cast<std::size_t>(std::count_if(rows.begin(), rows.end(), [&model](const TDefOperator& row) {
    const bool wanted = !row.Group || model.GetExOperators().Contains(*row.Group);
    return wanted && model.OperatorByName(row.Name) == nullptr;
  }));
}

TOperatorUse UseOfOperator(const TJCustomDBStructure& model, const TDSOperator& op) {
  TOperatorUse use;
  for (TDSField& field : model.Fields()) {
    const bool applies = op.GetAppliedTypes().Contains(field.GetFieldType()), offers = field.IndexOfOperator(op) >= 0;
    use.Applies += applies ? 1 : 0;
    use.Offers += offers ? 1 : 0;
    if (applies && !offers) use.Lacking.push_back(&field);
  }
  return use;
}

void OfferToAll(TJCustomDBStructure& model, TDSOperator& op) {
  model.AsOneChange([&] {
    for (TDSField* field : UseOfOperator(model, op).Lacking) field->AddOperator(op);
  });
}

// Predefined conditions

std::size_t AddNewCondition(TJCustomDBStructure& model) {
  const TDSConditionList& conditions = model.Conditions();
  auto condition = std::make_unique<TDSCondition>(nullptr);
  condition->SetDisplayFormat(FreeName("Condition ", true, [&](const std::string& name) {
    return std::any_of(conditions.begin(), conditions.end(),
                       [&](const TDSCondition& other) { return SameText(other.GetDisplayFormat(), name); });
  }));
  model.Conditions().Add(std::move(condition));
  return conditions.Count() - 1;
}

void DeleteConditions(TJCustomDBStructure& model, std::vector<std::size_t> indexes) {
  SortDown(indexes);
  model.AsOneChange([&] {
    for (const std::size_t index : indexes) model.Conditions().Delete(index);
  });
}

void ChangeDisplayFormat(TDSCondition& condition, std::string_view format) {
  const std::size_t places = CharCount(format, '@');
  while (condition.Values().Count() > places) {
    const std::unique_ptr<TDSValue> surplus = condition.Values().Delete(condition.Values().Count() - 1);
  }
  condition.SetDisplayFormat(format);
}

}  // namespace tolvi
