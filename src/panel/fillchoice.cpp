#include <algorithm>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelcheck_texts.h>
#include <tolvi/panel/fillchoice.h>

namespace tolvi {
namespace {

constexpr std::string_view SameTable = "another table has the same display name";

using TNameCounts = std::unordered_map<std::string_view, std::size_t, TFoldedHash, TFoldedEqual>;

/// Writes down what differs from the plan, and forgets what does not.
template <typename T>
void Keep(std::unordered_map<std::string, T>& kept, const std::string& key, const T& choice) {
  if (choice == T()) {
    kept.erase(key);
  } else {
    kept.insert_or_assign(key, choice);
  }
}

template <typename T>
T KeptOrPlanned(const std::unordered_map<std::string, T>& kept, const std::string& key) {
  const auto found = kept.find(key);
  return found == kept.end() ? T() : found->second;
}

void SetName(std::optional<std::string>& choice, std::string_view planned, std::string_view name) {
  choice.reset();
  if (name != planned) choice = std::string(name);
}

}  // namespace

// The plan

std::string TFillChoice::FieldKey(std::size_t field) const {
  return FPlan.Tables[FPlan.Fields[field].Table].Alias + "." + FPlan.Fields[field].Column;
}

void TFillChoice::SetPlan(TFillPlan plan) {
  for (std::size_t table = 0; table < FTables.size(); ++table) {
    Keep(FKeptTables, FPlan.Tables[table].Alias, FTables[table]);
  }
  for (std::size_t field = 0; field < FFields.size(); ++field) Keep(FKeptFields, FieldKey(field), FFields[field]);
  for (std::size_t link = 0; link < FLinks.size(); ++link) {
    Keep(FKeptLinks, FPlan.LinkText(FPlan.Links[link]), FLinks[link]);
  }
  FPlan = std::move(plan);
  FTables.clear();
  FFields.clear();
  FLinks.clear();
  FRoleLinks.clear();
  FShown.clear();
  FNames.reset();
  FFieldsOf.assign(FPlan.Tables.size(), {});
  for (const TPlannedTable& table : FPlan.Tables) FTables.push_back(KeptOrPlanned(FKeptTables, table.Alias));
  for (std::size_t field = 0; field < FPlan.Fields.size(); ++field) {
    FFields.push_back(KeptOrPlanned(FKeptFields, FieldKey(field)));
    FFieldsOf[FPlan.Fields[field].Table].push_back(field);
  }
  for (std::size_t link = 0; link < FPlan.Links.size(); ++link) {
    FLinks.push_back(KeptOrPlanned(FKeptLinks, FPlan.LinkText(FPlan.Links[link])));
    if (FPlan.Tables[FPlan.Links[link].Table2].Role) FRoleLinks.emplace(FPlan.Links[link].Table2, link);
  }
  for (std::size_t table = 0; table < FPlan.Tables.size(); ++table) {
    if (IsTableNew(table) || !FFieldsOf[table].empty()) FShown.push_back(table);
  }
}

TFillPlan TFillChoice::Chosen() const {
  TFillPlan chosen = FPlan;
  chosen.Tables.clear();
  chosen.Groups.clear();
  chosen.Fields.clear();
  chosen.Links.clear();
  std::vector<std::size_t> numbers(FPlan.Tables.size());
  for (std::size_t table = 0; table < FPlan.Tables.size(); ++table) {
    numbers[table] = chosen.Tables.size();
    if (!IsTableOn(table)) continue;
    chosen.Tables.push_back(FPlan.Tables[table]);
    chosen.Tables.back().DisplayName = TableName(table);
  }
  std::unordered_map<const TDSFieldGroup*, std::size_t> existing;
  std::unordered_map<std::string, std::size_t, TFoldedHash, TFoldedEqual> added;
  for (const std::size_t table : FShown) {
    if (TableState(table) == fsNone || FFieldsOf[table].empty()) continue;
    const TPlannedGroup group = GroupOf(table);
    const std::size_t next = chosen.Groups.size();
    for (const std::size_t field : FFieldsOf[table]) {
      if (!IsFieldOn(field)) continue;
      TPlannedField& copy = chosen.Fields.emplace_back(FPlan.Fields[field]);
      copy.Table = numbers[table];
      copy.Group = group.Existing ? existing.try_emplace(group.Existing, next).first->second
                                  : added.try_emplace(group.Name, next).first->second;
      if (copy.Group == chosen.Groups.size()) chosen.Groups.push_back(group);
      copy.DisplayName = FieldName(field);
      if (!IsListOn(field)) copy.ListSQL.clear();
    }
  }
  for (std::size_t link = 0; link < FPlan.Links.size(); ++link) {
    if (!IsLinkOn(link)) continue;
    TPlannedLink& copy = chosen.Links.emplace_back(FPlan.Links[link]);
    copy.Table1 = numbers[copy.Table1];
    copy.Table2 = numbers[copy.Table2];
    copy.LinkType = LinkType(link);
  }
  if (!IsQualified(chosen)) {
    chosen.QualifyTables = false;
    chosen.FullTableName = {};
  }
  // Operators alone are not worth a step.
  chosen.AddOperators = false;
  chosen.AddOperators = FPlan.AddOperators && !chosen.Empty();
  return chosen;
}

bool TFillChoice::IsQualified(const TFillPlan& plan) const {
  return std::any_of(plan.Tables.begin(), plan.Tables.end(), [this](const TPlannedTable& table) {
    return !table.Existing && !table.DatabaseName.empty() &&
           table.DatabaseName != FModel.DMOptions().GetDefaultDatabase();
  });
}

// Tables

bool TFillChoice::IsTableOn(std::size_t table) const {
  if (!IsTableNew(table)) return true;
  const auto role = FRoleLinks.find(table);
  return FTables[table].On && (role == FRoleLinks.end() || IsTableOn(FPlan.Links[role->second].Table1));
}

TFillState TFillChoice::TableState(std::size_t table) const {
  const std::vector<std::size_t>& fields = FFieldsOf[table];
  if (!IsTableOn(table)) return fsNone;
  const auto on = std::count_if(fields.begin(), fields.end(), [this](std::size_t field) { return IsFieldOn(field); });
  if (static_cast<std::size_t>(on) == fields.size()) return fsAll;
  return on == 0 && !IsTableNew(table) ? fsNone : fsSome;
}

void TFillChoice::SetTableOn(std::size_t table, bool on) {
  FTables[table].On = on;
  for (const std::size_t field : FFieldsOf[table]) FFields[field].On = on;
  if (const auto role = FRoleLinks.find(table); role != FRoleLinks.end()) {
    FLinks[role->second].On = on;
    const std::size_t from = FPlan.Links[role->second].Table1;
    if (on && !IsTableOn(from)) SetTableOn(from, true);
  }
  FNames.reset();
}

const std::string& TFillChoice::TableName(std::size_t table) const {
  return FTables[table].Name ? *FTables[table].Name : FPlan.Tables[table].DisplayName;
}

void TFillChoice::SetTableName(std::size_t table, std::string_view name) {
  if (!IsTableNew(table)) return;
  SetName(FTables[table].Name, FPlan.Tables[table].DisplayName, name);
  FNames.reset();
}

/// Null without fields.
const TPlannedGroup* TFillChoice::PlannedGroup(std::size_t table) const {
  const std::vector<std::size_t>& fields = FFieldsOf[table];
  return fields.empty() ? nullptr : &FPlan.Groups[FPlan.Fields[fields.front()].Group];
}

std::string TFillChoice::GroupName(std::size_t table) const {
  const TPlannedGroup* group = PlannedGroup(table);
  if (FTables[table].Group || !group) return FTables[table].Group.value_or(std::string());
  if (group->Existing) return group->Existing->GetGroupName();
  return SameText(group->Name, FPlan.Tables[table].DisplayName) ? TableName(table) : group->Name;
}

void TFillChoice::SetGroupName(std::size_t table, std::string_view name) {
  FTables[table].Group.reset();
  if (name != GroupName(table) && PlannedGroup(table)) FTables[table].Group = std::string(name);
  FNames.reset();
}

TPlannedGroup TFillChoice::GroupOf(std::size_t table) const {
  const TPlannedGroup& planned = *PlannedGroup(table);
  if (planned.Existing && !FTables[table].Group) return planned;
  std::string name = GroupName(table);
  // The plan knows that the model has no group of the planned name.
  if (!planned.Existing && name == planned.Name) return planned;
  if (TDSFieldGroup* group = FModel.FieldGroups().FindByName(name)) return {group, {}};
  return {nullptr, std::move(name)};
}

// Fields

bool TFillChoice::IsFieldOn(std::size_t field) const {
  return FFields[field].On && IsTableOn(FPlan.Fields[field].Table);
}

void TFillChoice::SetFieldOn(std::size_t field, bool on) {
  const std::size_t table = FPlan.Fields[field].Table;
  if (on && !IsTableOn(table)) {
    SetTableOn(table, true);
    for (const std::size_t other : FFieldsOf[table]) FFields[other].On = false;
  }
  FFields[field].On = on;
  FNames.reset();
}

const std::string& TFillChoice::FieldName(std::size_t field) const {
  return FFields[field].Name ? *FFields[field].Name : FPlan.Fields[field].DisplayName;
}

void TFillChoice::SetFieldName(std::size_t field, std::string_view name) {
  SetName(FFields[field].Name, FPlan.Fields[field].DisplayName, name);
  FNames.reset();
}

bool TFillChoice::IsListOn(std::size_t field) const {
  return HasList(field) && FFields[field].List && IsFieldOn(field);
}

void TFillChoice::SetListOn(std::size_t field, bool on) {
  FFields[field].List = on;
  if (on && !IsFieldOn(field)) SetFieldOn(field, true);
}

// Links

bool TFillChoice::IsLinkOn(std::size_t link) const {
  return FLinks[link].On && IsTableOn(FPlan.Links[link].Table1) && IsTableOn(FPlan.Links[link].Table2);
}

void TFillChoice::SetLinkOn(std::size_t link, bool on) {
  FLinks[link].On = on;
  for (const std::size_t table : {FPlan.Links[link].Table1, FPlan.Links[link].Table2}) {
    const bool role = FRoleLinks.contains(table);
    if (IsTableOn(table) != on && (on || role)) SetTableOn(table, on);
  }
}

TDSLinkType TFillChoice::LinkType(std::size_t link) const {
  return FLinks[link].Type.value_or(FPlan.Links[link].LinkType);
}

void TFillChoice::SetLinkType(std::size_t link, TDSLinkType type) {
  FLinks[link].Type.reset();
  if (type != FPlan.Links[link].LinkType) FLinks[link].Type = type;
}

// Names

const TFillChoice::TNames& TFillChoice::Names() const {
  if (FNames) return *FNames;
  TNames& names = FNames.emplace();
  MarkTables(names.Tables);
  MarkFields(names.Fields);
  FindFaults(names);
  return names;
}

void TFillChoice::MarkTables(std::vector<bool>& marks) const {
  TNameCounts counts;
  for (const TDSTable& table : FModel.Tables()) ++counts[table.GetDisplayName()];
  for (const std::size_t table : FShown) {
    if (IsTableNew(table) && IsTableOn(table)) ++counts[TableName(table)];
  }
  marks.resize(FPlan.Tables.size());
  for (const std::size_t table : FShown) {
    marks[table] = IsTableNew(table) && IsTableOn(table) && counts[TableName(table)] > 1;
  }
}

void TFillChoice::MarkFields(std::vector<bool>& marks) const {
  // By the name of the group; those of the model may have the same, or none.
  std::unordered_map<const TDSFieldGroup*, TNameCounts> existing;
  std::unordered_map<std::string, TNameCounts, TFoldedHash, TFoldedEqual> added;
  std::vector<TNameCounts*> countsOf(FPlan.Tables.size(), nullptr);
  for (const std::size_t table : FShown) {
    if (FFieldsOf[table].empty()) continue;
    const TPlannedGroup group = GroupOf(table);
    const bool first = group.Existing && !existing.contains(group.Existing);
    TNameCounts& counts = group.Existing ? existing[group.Existing] : added[group.Name];
    countsOf[table] = &counts;
    for (const std::size_t field : FFieldsOf[table]) {
      if (IsFieldOn(field)) ++counts[FieldName(field)];
    }
    if (!first) continue;
    for (const TDSField* field : *group.Existing) ++counts[field->GetDisplayName()];
  }
  marks.resize(FPlan.Fields.size());
  for (std::size_t field = 0; field < FPlan.Fields.size(); ++field) {
    marks[field] = IsFieldOn(field) && (*countsOf[FPlan.Fields[field].Table])[FieldName(field)] > 1;
  }
}

void TFillChoice::FindFaults(TNames& names) const {
  const auto take = [&names](const TTextFindings& findings, auto name) {
    if (findings.empty()) return;
    std::string& fault = names.FirstFaults[findings[0].Severity];
    if (fault.empty()) fault = name() + ": " + findings[0].Text;
  };
  for (const std::size_t table : FShown) {
    const auto alias = [this, table] { return FPlan.Tables[table].Alias; };
    take(CheckTable(table), alias);
    take(CheckGroup(table), alias);
    for (const std::size_t field : FFieldsOf[table]) take(CheckField(field), [&] { return FieldKey(field); });
  }
}

const std::string& TFillChoice::FirstFault(TCheckSeverity severity) const { return Names().FirstFaults[severity]; }

TTextFindings TFillChoice::CheckTable(std::size_t table) const {
  if (!IsTableNew(table) || !IsTableOn(table)) return {};
  if (Trim(TableName(table)).empty()) return {{csError, std::string(checks::NoDisplayName)}};
  if (Names().Tables[table]) return {{csWarning, std::string(SameTable)}};
  return {};
}

TTextFindings TFillChoice::CheckGroup(std::size_t table) const {
  const bool named = !FTables[table].Group || !Trim(*FTables[table].Group).empty();
  if (named || TableState(table) == fsNone) return {};
  return {{csError, std::string(checks::NoName)}};
}

TTextFindings TFillChoice::CheckField(std::size_t field) const {
  if (!IsFieldOn(field)) return {};
  if (Trim(FieldName(field)).empty()) return {{csError, std::string(checks::NoDisplayName)}};
  if (Names().Fields[field]) return {{csWarning, std::string(checks::SameFieldInGroup)}};
  return {};
}

}  // namespace tolvi
