#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/modelfill_names.h>
#include <tolvi/model/modelfill_plan.h>
#include <tolvi/panel/tablechoice.h>

namespace tolvi {
namespace {

class TRememberedAnswers final : public TJDBInfo {
 public:
  explicit TRememberedAnswers(TJDBInfo& source) : FSource(source) {}

  bool GetConnected() const override { return FSource.GetConnected(); }

 private:
  void TablesByDatabase(TStrings& list) override {
    list.AddStrings(Once(FTables, [this](TStrings& names) { FSource.GetTableNames(names); }));
  }
  void ViewsByDatabase(TStrings& list) override {
    list.AddStrings(Once(FViews, [this](TStrings& names) { FSource.GetViewNames(names); }));
  }
  void LinksByDatabase(TStrings& list) override {
    list.AddStrings(Once(FLinks, [this](TStrings& links) { FSource.GetLinkList(links); }));
  }
  void KeysByTable(std::string_view table, TStrings& list) override {
    list.AddStrings(Once(FKeys[std::string(table)], [&](TStrings& keys) { FSource.GetKeyNames(table, keys); }));
  }
  void FieldsByTable(std::string_view table, TDBFieldList& fields) override {
    auto known = FFields.find(table);
    if (known == FFields.end()) {
      const TDBFieldList& asked = FSource.GetFieldList(table);
      known = FFields.try_emplace(std::string(table), asked.begin(), asked.end()).first;
    }
    for (const TDBFieldInfo& field : known->second) fields.Add(std::make_unique<TDBFieldInfo>(field));
  }
  bool GetSQLValues(std::string_view sql, TStrings& values, TStrings& items) override {
    return FSource.RunQuery(sql, values, items);
  }

  using TAnswer = std::optional<TStrings>;
  static const TStrings& Once(TAnswer& answer, const std::function<void(TStrings&)>& ask) {
    if (!answer) {
      TStrings lines;
      ask(lines);
      answer = std::move(lines);
    }
    return *answer;
  }

  TJDBInfo& FSource;
  TAnswer FTables, FViews, FLinks;
  std::map<std::string, TAnswer, std::less<>> FKeys;
  std::map<std::string, std::vector<TDBFieldInfo>, std::less<>> FFields;
};

TJDBInfo& ConnectedInfo(const TJCustomDBStructure& model) {
  TJDBInfo* info = model.GetDatabaseInfo();
  if (info == nullptr) throw EJDBInfoError(0, std::string(ERRDBInfoNotSpecified.Text));
  if (!info->GetConnected()) throw EJDBInfoError(0, std::string(SDatabaseNotConnected.Text));
  return *info;
}

/// Whether the table is one of those that are added, or a further alias of one.
bool IsOfChosen(const TFillPlan& plan, std::size_t number) {
  const TPlannedTable& table = plan.Tables[number];
  if (table.Existing != nullptr || !table.Role) return table.Existing == nullptr;
  return std::any_of(plan.Tables.begin(), plan.Tables.end(), [&table](const TPlannedTable& other) {
    return other.Existing == nullptr && !other.Role &&
           std::tie(other.DatabaseName, other.Name) == std::tie(table.DatabaseName, table.Name);
  });
}

/// Links among tables that the model has already are nobody's wish here.
void KeepLinksOfChosen(TFillPlan& plan) {
  std::erase_if(plan.Links, [&plan](const TPlannedLink& link) {
    return !IsOfChosen(plan, link.Table1) && !IsOfChosen(plan, link.Table2);
  });
}

/// Calls it for each run of characters that can stand in a name without quotes.
template <typename TCall>
void ForWords(std::string_view text, TCall call) {
  constexpr std::string_view Separators = " \t.=\"`[]'()<>,;-+*/";
  std::size_t start = 0;
  while ((start = text.find_first_not_of(Separators, start)) != std::string_view::npos) {
    const std::size_t end = std::min(text.find_first_of(Separators, start), text.size());
    call(text.substr(start, end - start));
    start = end;
  }
}

/// The words of names, found in texts however long both lists are. Names of several words are found too often, not too
/// seldom.
class TMentions final {
 public:
  void Add(std::string_view name) {
    ForWords(name, [this](std::string_view word) { FWords.emplace(word); });
  }
  bool AnyIn(std::string_view text) const {
    bool found = false;
    ForWords(text, [&](std::string_view word) { found = found || FWords.contains(word); });
    return found;
  }
  bool HasAll(std::string_view name) const {
    bool has = true;
    ForWords(name, [&](std::string_view word) { has = has && FWords.contains(word); });
    return has;
  }

 private:
  std::set<std::string, std::less<>> FWords;
};

/// Keeps the items that are needed. Returns the new number of each.
template <typename TItem>
std::vector<std::size_t> Keep(std::vector<TItem>& items, const std::vector<bool>& needed) {
  std::vector<std::size_t> numbers(items.size());
  std::vector<TItem> kept;
  for (std::size_t i = 0; i < items.size(); ++i) {
    numbers[i] = kept.size();
    if (needed[i]) kept.push_back(std::move(items[i]));
  }
  items = std::move(kept);
  return numbers;
}

}  // namespace

TTableChoice::TTableChoice(TJCustomDBStructure& model)
    : FModel(model),
      FInfo(ConnectedInfo(model)),
      FFirstDatabase(FInfo.GetCurrentDBName()),
      FAddFields(model.GetAutoAddFields()) {
  FInfo.GetDatabaseNames(FDatabases);
  ReadTables();
}

TTableChoice::~TTableChoice() = default;

// Databases and tables

const std::string& TTableChoice::Database() const { return FInfo.GetCurrentDBName(); }

void TTableChoice::SetDatabase(std::string_view name) {
  if (name == Database()) return;
  const std::string former = Database();
  try {
    FInfo.SetCurrentDBName(name);
    ReadTables();
  } catch (...) {
    FInfo.SetCurrentDBName(former);
    throw;
  }
}

void TTableChoice::RestoreDatabase() { FInfo.SetCurrentDBName(FFirstDatabase); }

void TTableChoice::ReadTables() {
  auto answers = std::make_unique<TRememberedAnswers>(FInfo);
  std::vector<TTableEntry> tables;
  for (const TFillTable& table : TablesForFill(FModel, *answers)) {
    const std::vector<std::string> parts = NameParts(Trim(table.Name));
    tables.push_back({table.Name, parts.back(), WithDots(parts, parts.size() - 1), table.View, table.Known});
  }
  TStrings links;
  answers->GetLinkList(links);
  FAnswers = std::move(answers);
  FTables = std::move(tables);
  FLinkLines = std::move(links);
  FLinks.clear();
  FNotes.Clear();
  FUnwanted.clear();
  FLinksRead = true;
}

std::vector<std::string> TTableChoice::Schemas() const {
  std::set<std::string> schemas;
  for (const TTableEntry& table : FTables) schemas.insert(table.Schema);
  return {schemas.begin(), schemas.end()};
}

std::size_t TTableChoice::ChosenCount() const {
  return static_cast<std::size_t>(
      std::count_if(FTables.begin(), FTables.end(), [](const TTableEntry& table) { return table.Chosen; }));
}

void TTableChoice::Choose(std::size_t table, bool chosen) {
  if (table >= FTables.size() || FTables[table].InModel || FTables[table].Chosen == chosen) return;
  FTables[table].Chosen = chosen;
  FLinksRead = false;
}

// Links

const std::vector<TLinkOffer>& TTableChoice::Links() {
  if (!FLinksRead) ReadLinks();
  return FLinks;
}

void TTableChoice::ReadLinks() {
  std::vector<TLinkOffer> links;
  TStrings notes;
  if (ChosenCount() > 0) {
    TFillPlan plan = Plan(false);
    KeepLinksOfChosen(plan);
    for (const TPlannedLink& link : plan.Links) {
      const TPlannedTable& target = plan.Tables[link.Table2];
      const std::string text = plan.LinkText(link);
      const bool further = target.Role && target.Existing == nullptr;
      links.push_back({text, further ? target.Alias : std::string(), !FUnwanted.contains(text)});
    }
    notes = plan.Found.Notes;
  }
  FLinks = std::move(links);
  FNotes = std::move(notes);
  FLinksRead = true;
}

void TTableChoice::WantLink(std::size_t link, bool wanted) {
  if (link >= Links().size()) return;
  FLinks[link].Wanted = wanted;
  if (wanted) {
    FUnwanted.erase(FLinks[link].Text);
  } else {
    FUnwanted.insert(FLinks[link].Text);
  }
}

/// Of the model's tables, only those are read that a link may join with a chosen one: its line holds both names.
TFillPlan TTableChoice::Plan(bool valueLists) const {
  TFillOptions options;
  options.ValueLists = valueLists;
  options.NewFieldsInKnownTables = false;
  TMentions chosen;
  for (const TTableEntry& table : FTables) {
    if (table.Chosen) chosen.Add(FoldCase(table.Name));
  }
  TMentions linked;
  for (const std::string& line : FLinkLines) {
    const std::string folded = FoldCase(line);
    if (!chosen.AnyIn(folded)) continue;
    ForWords(folded, [&linked](std::string_view word) { linked.Add(word); });
  }
  for (const TTableEntry& table : FTables) {
    if (table.Chosen || (table.InModel && linked.HasAll(FoldCase(table.Name)))) options.Tables.Add(table.FullName);
  }
  return PlanFill(FModel, *FAnswers, options);
}

// Adding

void TTableChoice::Reduce(TFillPlan& plan) const {
  KeepLinksOfChosen(plan);
  std::erase_if(plan.Links, [&](const TPlannedLink& link) { return FUnwanted.contains(plan.LinkText(link)); });
  std::vector<bool> tables;
  for (const TPlannedTable& table : plan.Tables) tables.push_back(table.Existing != nullptr || !table.Role);
  for (const TPlannedLink& link : plan.Links) tables[link.Table2] = true;
  std::erase_if(plan.Fields, [&](const TPlannedField& field) { return !FAddFields || !tables[field.Table]; });
  std::vector<bool> groups(plan.Groups.size(), false);
  for (const TPlannedField& field : plan.Fields) groups[field.Group] = true;
  const std::vector<std::size_t> tableNumbers = Keep(plan.Tables, tables), groupNumbers = Keep(plan.Groups, groups);
  for (TPlannedField& field : plan.Fields) {
    field.Table = tableNumbers[field.Table];
    field.Group = groupNumbers[field.Group];
  }
  for (TPlannedLink& link : plan.Links) {
    link.Table1 = tableNumbers[link.Table1];
    link.Table2 = tableNumbers[link.Table2];
  }
  if (!FAddFields) plan.AddOperators = false;
}

std::vector<std::string> TTableChoice::Add() {
  if (ChosenCount() == 0) return {};
  TFillPlan plan = Plan(FAddFields);
  Reduce(plan);
  ApplyFillPlan(FModel, plan);
  std::vector<std::string> aliases;
  for (const TPlannedTable& table : plan.Tables) {
    if (table.Existing == nullptr) aliases.push_back(table.Alias);
  }
  return aliases;
}

}  // namespace tolvi
