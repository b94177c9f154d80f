#include <algorithm>
#include <functional>
#include <unordered_map>
#include <unordered_set>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelfill_names.h>
#include <tolvi/panel/liststeps.h>
#include <tolvi/panel/modelentities.h>

namespace tolvi {

TDSFieldGroup& GroupByNumber(TJCustomDBStructure& model, std::size_t number) {
  return number == 0 ? model.RootGroup() : model.FieldGroups()[number - 1];
}

std::size_t NumberOfGroup(const TJCustomDBStructure& model, const TDSFieldGroup& group) {
  std::size_t number = 0;
  for (const TDSFieldGroup& named : model.FieldGroups()) {
    ++number;
    if (&named == &group) return number;
  }
  return 0;
}

std::vector<std::size_t> GroupNumbers(const TJCustomDBStructure& model) {
  std::vector<std::size_t> numbers;
  for (std::size_t number = 1; number <= model.FieldGroups().Count(); ++number) numbers.push_back(number);
  numbers.insert(model.GetRootFieldsFirst() ? numbers.begin() : numbers.end(), 0);
  return numbers;
}

std::vector<TDSField*> FieldsByIDs(const TJCustomDBStructure& model, const TFieldIDs& ids) {
  std::vector<TDSField*> fields;
  if (ids.size() == 1) {
    if (TDSField* field = model.FieldByID(ids.front())) fields.push_back(field);
    return fields;
  }
  std::unordered_set<const TDSField*> wanted;
  for (const std::int32_t id : ids) {
    if (const TDSField* field = model.FieldByID(id)) wanted.insert(field);
  }
  const auto add = [&](const TDSFieldGroup& group) {
    for (TDSField* field : group) {
      if (wanted.contains(field)) fields.push_back(field);
    }
  };
  for (const std::size_t number : GroupNumbers(model)) {
    add(number == 0 ? model.RootGroup() : model.FieldGroups()[number - 1]);
  }
  return fields;
}

// Adding

namespace {

TDSField& PlaceNewField(TJCustomDBStructure& model, std::size_t field, std::size_t group, std::size_t index) {
  TDSField& added = model.GetField(field);
  TDSFieldGroup& target = GroupByNumber(model, group);
  target.Insert(std::min(index, target.Count()), added);
  added.AddAppliedOperators();
  return added;
}

}  // namespace

TFieldIDs AddColumns(TJCustomDBStructure& model, TDSTable& table, const TStrings& columns, std::size_t group,
                     std::size_t index) {
  TFieldIDs added;
  model.AsOneChange([&] {
    for (const std::string& column : columns) {
      const std::size_t field = model.AddField(jfkData, column, ReadableName(column), &table);
      TDSField& placed = PlaceNewField(model, field, group, index++);
      if (NeedsQuotes(column, false)) placed.SetQuoted(true);
      added.push_back(placed.GetID());
    }
  });
  return added;
}

std::int32_t AddExpression(TJCustomDBStructure& model, std::string_view displayName, std::size_t group,
                           std::size_t index) {
  TNamePool names;
  for (const TDSField* field : GroupByNumber(model, group)) names.Reserve(field->GetDisplayName());
  std::int32_t id = 0;
  model.AsOneChange([&] {
    const std::size_t field = model.AddField(jfkVirtual, {}, names.Take(displayName, " "), nullptr);
    id = PlaceNewField(model, field, group, index).GetID();
  });
  return id;
}

std::size_t AddGroup(TJCustomDBStructure& model, std::string_view name) {
  TNamePool names;
  for (const TDSFieldGroup& group : model.FieldGroups()) names.Reserve(group.GetGroupName());
  model.FieldGroups().AddGroup(names.Take(name, " "));
  return model.FieldGroups().Count();
}

TStrings ColumnsOf(const TJCustomDBStructure& model, const TDSTable& table) {
  TStrings columns;
  TJDBInfo* info = model.GetDatabaseInfo();
  if (info != nullptr && info->GetConnected()) info->GetFieldNamesByTable(table.GetFullName(), columns);
  if (!columns.Empty()) return columns;
  for (const TDSField& field : model.Fields()) {
    if (field.GetFieldKind() == jfkData && field.GetTable() == &table) columns.Add(field.GetFieldName());
  }
  return columns;
}

TStrings UnusedColumns(const TJCustomDBStructure& model, const TDSTable& table) {
  std::unordered_set<std::string_view, TFoldedHash, TFoldedEqual> used;
  for (const TDSField& field : model.Fields()) {
    if (field.GetFieldKind() == jfkData && field.GetTable() == &table) used.insert(field.GetFieldName());
  }
  TStrings unused;
  for (const std::string& column : ColumnsOf(model, table)) {
    if (!used.contains(column)) unused.Add(column);
  }
  return unused;
}

// Deleting and moving

void DeleteFields(TJCustomDBStructure& model, const TFieldIDs& ids) {
  std::unordered_set<const TDSField*> going;
  for (const std::int32_t id : ids) {
    if (const TDSField* field = model.FieldByID(id)) going.insert(field);
  }
  model.AsOneChange([&] {
    for (std::size_t index = model.Fields().Count(); index-- > 0;) {
      if (going.contains(&model.GetField(index))) model.DelField(index);
    }
  });
}

void DeleteGroups(TJCustomDBStructure& model, std::vector<std::size_t> groups) {
  std::sort(groups.begin(), groups.end(), std::greater<>());
  model.AsOneChange([&] {
    for (const std::size_t number : groups) {
      if (number > 0) model.FieldGroups().Delete(number - 1);
    }
  });
}

void MoveFields(TJCustomDBStructure& model, const TFieldIDs& ids, std::size_t group, std::size_t index) {
  TDSFieldGroup& target = GroupByNumber(model, group);
  index = std::min(index, target.Count());
  model.AsOneChange([&] {
    for (TDSField* field : FieldsByIDs(model, ids)) {
      // One that stands before the place leaves it to the others that come behind.
      const bool fromBefore = field->GetGroup() == &target && static_cast<std::size_t>(target.IndexOf(*field)) < index;
      target.Insert(index, *field);
      if (!fromBefore) ++index;
    }
  });
}

namespace {

/// Whether the fields, of one group, stand at its end in the direction of the step, without others between them.
bool AreAtEdge(const std::vector<TDSField*>& fields, const TDSFieldGroup& group, int step) {
  const std::size_t start = step < 0 ? 0 : group.Count() - fields.size();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (&group[start + i] != fields[i]) return false;
  }
  return true;
}

}  // namespace

void StepFields(TJCustomDBStructure& model, const TFieldIDs& ids, int step) {
  std::unordered_map<TDSFieldGroup*, std::vector<TDSField*>> byGroup;
  const std::vector<TDSField*> fields = FieldsByIDs(model, ids);
  for (TDSField* field : fields) {
    if (field->GetGroup() != nullptr) byGroup[field->GetGroup()].push_back(field);
  }
  if (byGroup.size() == 1 && AreAtEdge(fields, *fields.front()->GetGroup(), step)) {
    const std::vector<std::size_t> numbers = GroupNumbers(model);
    const auto at = std::find(numbers.begin(), numbers.end(), NumberOfGroup(model, *fields.front()->GetGroup()));
    if (step < 0 ? at == numbers.begin() : at + 1 == numbers.end()) return;
    const std::size_t next = *(step < 0 ? at - 1 : at + 1);
    MoveFields(model, ids, next, step < 0 ? GroupByNumber(model, next).Count() : 0);
    return;
  }
  model.AsOneChange([&] {
    for (const auto& [group, moved] : byGroup) {
      const std::unordered_set<const TDSField*> wanted(moved.begin(), moved.end());
      std::vector<std::size_t> indexes;
      for (std::size_t i = 0; i < group->Count(); ++i) {
        if (wanted.contains(&(*group)[i])) indexes.push_back(i);
      }
      StepEntries(std::move(indexes), group->Count(), step, [&group = *group](std::size_t from, std::size_t to) {
        // The place counts before the field has left its own.
        group.Insert(to > from ? to + 1 : to, group[from]);
      });
    }
  });
}

std::vector<std::size_t> StepGroups(TJCustomDBStructure& model, const std::vector<std::size_t>& groups, int step) {
  std::vector<std::size_t> indexes;
  for (const std::size_t number : groups) {
    if (number > 0) indexes.push_back(number - 1);
  }
  model.AsOneChange([&] {
    indexes = StepEntries(std::move(indexes), model.FieldGroups().Count(), step,
                          [&](std::size_t from, std::size_t to) { model.FieldGroups().Move(from, to); });
  });
  for (std::size_t& index : indexes) ++index;
  return indexes;
}

void MoveGroup(TJCustomDBStructure& model, std::size_t group, std::size_t to) {
  if (group > 0 && to > 0 && group != to) model.FieldGroups().Move(group - 1, to - 1);
}

// Properties

void ChangeKind(TDSField& field, TJFieldKind kind) {
  if (field.GetFieldKind() == kind) return;
  const auto change = [&] {
    if (kind == jfkVirtual) {
      const std::string expr = field.GetSQLExpr();
      field.SetFieldKind(jfkVirtual);
      field.SetSQLExpr(expr);
      return;
    }
    TDSTable* const table = field.GetTable();
    const std::string expr = field.GetSQLExpr(), column(GetAfterSep(expr, "."));
    const bool isColumn = table != nullptr && field.DBFields().Count() == 1 && field.DBFields()[0] == Trim(expr) &&
                          NameParts(expr).size() == 2;
    field.SetFieldKind(jfkData);
    field.SetTable(table);
    field.SetIsAggregate(false);
    if (!isColumn) return;
    const std::string plain = NameParts(expr).back();
    field.SetQuoted(plain != Trim(column));
    field.SetFieldName(plain);
  };
  field.GetDBStruct()->AsOneChange(change);
}

void ChangeExpr(TDSField& field, std::string_view expr) {
  if (field.GetFieldKind() == jfkData) return field.SetFieldName(expr);
  const auto isAggregate = [&] { return TJCustomDBStructure::CheckIfAggregate(field.GetSQLExpr()); };
  const bool follows = field.GetIsAggregate() == isAggregate();
  field.GetDBStruct()->AsOneChange([&] {
    field.SetSQLExpr(expr);
    if (follows) field.SetIsAggregate(isAggregate());
  });
}

void ChangeType(TDSField& field, TFieldType type) {
  const TJCustomDBStructure& model = *field.GetDBStruct();
  std::vector<TDSOperator*> applied;
  for (TDSOperator& op : model.Operators()) {
    if (op.GetAppliedTypes().Contains(field.GetFieldType())) applied.push_back(&op);
  }
  const bool follows = field.Operators() == applied;
  field.GetDBStruct()->AsOneChange([&] {
    field.SetFieldType(type);
    if (follows) field.AddAppliedOperators();
  });
}

void ChangeGroup(TJCustomDBStructure& model, const std::vector<TDSField*>& fields, std::string_view groupName) {
  model.AsOneChange([&] {
    TDSFieldGroup* group = groupName.empty() ? &model.RootGroup() : model.FieldGroups().FindByName(groupName);
    if (group == nullptr) group = &model.FieldGroups().AddGroup(groupName);
    for (TDSField* field : fields) field->SetGroup(*group);
  });
}

// Operators

std::vector<TOffered> OfferedOperators(const std::vector<TDSField*>& fields) {
  std::unordered_map<const TDSOperator*, std::size_t> counts;
  std::vector<TDSOperator*> order;
  for (const TDSField* field : fields) {
    for (TDSOperator* op : field->Operators()) {
      if (counts[op]++ == 0) order.push_back(op);
    }
  }
  std::vector<TOffered> offered;
  offered.reserve(order.size());
  for (TDSOperator* op : order) offered.push_back({op, counts[op] >= fields.size()});
  return offered;
}

std::vector<TDSOperator*> MissingOperators(const TJCustomDBStructure& model, const std::vector<TDSField*>& fields) {
  std::unordered_set<const TDSOperator*> complete;
  for (const TOffered& offered : OfferedOperators(fields)) {
    if (offered.ByAll) complete.insert(offered.Operator);
  }
  std::vector<TDSOperator*> missing;
  for (TDSOperator& op : model.Operators()) {
    if (!complete.contains(&op)) missing.push_back(&op);
  }
  return missing;
}

void OfferOperators(const std::vector<TDSField*>& fields, const std::vector<TDSOperator*>& operators) {
  for (TDSField* field : fields) {
    for (TDSOperator* op : operators) {
      if (field->IndexOfOperator(*op) < 0) field->AddOperator(*op);
    }
  }
}

void WithdrawOperators(const std::vector<TDSField*>& fields, const std::vector<TDSOperator*>& operators) {
  for (TDSField* field : fields) {
    for (const TDSOperator* op : operators) field->RemoveOperator(*op);
  }
}

void StepOperators(const std::vector<TDSField*>& fields, const std::vector<TDSOperator*>& operators, int step) {
  for (TDSField* field : fields) {
    std::vector<std::size_t> indexes;
    for (const TDSOperator* op : operators) {
      if (const std::ptrdiff_t index = field->IndexOfOperator(*op); index >= 0) {
        indexes.push_back(static_cast<std::size_t>(index));
      }
    }
    StepEntries(std::move(indexes), field->GetOperatCount(), step,
                [field](std::size_t from, std::size_t to) { field->MoveOperat(from, to); });
  }
}

}  // namespace tolvi
