#include <algorithm>
#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelfill_tables.h>

namespace tolvi {
namespace {

/// Two parts: what the catalogue knows of a table, without an owner that the model does not have.
constexpr std::string_view QualifiedName = "DB.TABLE";

bool IsDefaultTemplate(const TJCustomDBStructure& model) {
  return model.SQLFormats().GetFullTableName() == TSQLFormats().GetFullTableName();
}

/// Whether the catalogue knows tables of that schema. Those of other databases are not asked for.
bool IsListed(const TCatalogue& catalogue, const TDSTable& table) {
  const std::vector<std::string> names = CatalogueNames(table);
  return std::any_of(names.begin(), names.end(), [&catalogue](const std::string& name) {
    const std::vector<std::string> parts = NameParts(name);
    return catalogue.Schemas.contains(WithDots(parts, parts.size() - 1));
  });
}

}  // namespace

std::size_t TableOfModel(const TCatalogue& catalogue, const TDSTable& table) {
  for (const std::string& name : CatalogueNames(table)) {
    if (const std::size_t source = catalogue.TableByName(name); source != None) return source;
  }
  return None;
}

std::vector<std::string> CatalogueNames(const TDSTable& table) {
  std::vector<std::string> names{PlainName(table.GetCompoundName()), PlainName(table.GetFullName())};
  const std::string plain = PlainName(table.GetTableName());
  const std::string& database = table.GetDBStruct()->DMOptions().GetDefaultDatabase();
  if (table.GetDatabaseName().empty() && !database.empty()) names.push_back(database + "." + plain);
  if (table.GetDatabaseName().empty() || table.GetDatabaseName() == database) names.push_back(plain);
  return names;
}

TPlannedTables::TPlannedTables(const TJCustomDBStructure& model, const TCatalogue& catalogue, TFillPlan& plan)
    : FModel(model), FCat(catalogue), FPlan(plan), FTablesOf(catalogue.Tables.size()) {
  for (TDSTable& table : model.Tables()) {
    FAliases.Reserve(table.GetTableAlias());
    FNames.Reserve(table.GetTableName());
    FDisplayNames.Reserve(table.GetDisplayName());
    const std::size_t source = TableOfModel(catalogue, table);
    if (source == None) {
      if (IsListed(catalogue, table)) plan.Found.VanishedTables.Add(table.GetTableAlias());
      continue;
    }
    TPlannedTable known;
    known.Existing = &table;
    known.Alias = table.GetTableAlias();
    known.DisplayName = table.GetDisplayName();
    FNumbers[&table] = Add(source, std::move(known));
    // A table under its own name comes before its other aliases.
    std::vector<std::size_t>& tables = FTablesOf[source];
    if (SameText(table.GetTableAlias(), PlainIdentifier(catalogue.Tables[source].Name))) {
      std::rotate(tables.begin(), tables.end() - 1, tables.end());
    }
  }
  for (const TCatTable& table : catalogue.Tables) {
    if (table.Used) FNames.Reserve(table.Name);
  }
}

std::size_t TPlannedTables::Add(std::size_t source, TPlannedTable table) {
  const std::size_t number = FPlan.Tables.size();
  FPlan.Tables.push_back(std::move(table));
  FSources.push_back(source);
  FRoleTaken.push_back(false);
  FTablesOf[source].push_back(number);
  return number;
}

void TPlannedTables::AddMissing(const TFillOptions& options) {
  const std::string& owner = FModel.DMOptions().GetDefaultDBOwner();
  bool qualified = false;
  for (std::size_t source = 0; source < FCat.Tables.size(); ++source) {
    const TCatTable& from = FCat.Tables[source];
    if (!from.Used || !FTablesOf[source].empty() || (from.View && !options.Views)) continue;
    TPlannedTable table;
    table.Name = from.Name;
    if (owner.empty() || !SameText(from.Schema, owner)) table.DatabaseName = from.Schema;
    const std::string alias = PlainIdentifier(from.Name);
    table.Alias =
        TakeAlias({alias, from.Schema.empty() ? alias : PlainIdentifier(from.Schema + "_" + from.Name)}, table.Name);
    table.DisplayName = TakeDisplayName(ReadableTableName(from.Name), from.Schema);
    table.Quoted = NeedsQuotes(from.Name, options.QuoteMixedCase);
    if (!table.DatabaseName.empty() && table.DatabaseName != FModel.DMOptions().GetDefaultDatabase()) qualified = true;
    Add(source, std::move(table));
  }
  if (qualified && !FModel.DMOptions().GetMultiDB()) Qualify();
}

/// The catalogue tells tables apart by what stands before their names, so that statements must, too; unless that would
/// change those on tables that the model has.
void TPlannedTables::Qualify() {
  const auto& tables = FModel.Tables();
  const bool changes =
      std::any_of(tables.begin(), tables.end(), [](const TDSTable& table) { return !table.GetDatabaseName().empty(); });
  if (changes) {
    FPlan.Found.Notes.Add("Statements name the new tables without their schema: MultiDB is off");
    return;
  }
  FPlan.QualifyTables = true;
  if (IsDefaultTemplate(FModel) && FModel.DMOptions().GetDefaultDBOwner().empty()) FPlan.FullTableName = QualifiedName;
}

std::size_t TPlannedTables::AddRole(std::size_t from, const TCatColumn& column, std::size_t target,
                                    bool quoteMixedCase) {
  const std::string role = RoleOfColumn(column.Name);
  const std::string alias = PlainIdentifier(role);
  const std::string longAlias = PlainIdentifier(FPlan.Tables[from].Alias + "_" + role);
  for (const std::string& wish : {alias, longAlias}) {
    if (const std::size_t table = Unlinked(target, wish); table != None) return table;
  }
  const TCatTable& source = FCat.Tables[target];
  const TPlannedTable& main = FPlan.Tables[MainTableOf(target)];
  TPlannedTable table;
  table.DatabaseName = main.Existing ? main.Existing->GetDatabaseName() : main.DatabaseName;
  table.Name = main.Existing ? main.Existing->GetTableName() : main.Name;
  table.Quoted = main.Existing ? main.Existing->GetQuoted() : NeedsQuotes(source.Name, quoteMixedCase);
  table.Alias = TakeAlias({alias, longAlias}, {});
  table.DisplayName = TakeDisplayName(ReadableName(role), FPlan.Tables[from].DisplayName);
  table.Role = true;
  const std::size_t number = Add(target, std::move(table));
  FRoleTaken[number] = true;
  return number;
}

std::size_t TPlannedTables::NumberOfTable(const TDSTable& table) const {
  const auto found = FNumbers.find(&table);
  return found == FNumbers.end() ? None : found->second;
}

/// An alias that is free and not the name of another table, which expressions would mix up with it.
std::string TPlannedTables::TakeAlias(std::initializer_list<std::string> wishes, std::string_view ownName) {
  for (const std::string& wish : wishes) {
    if (!FAliases.Has(wish) && (SameText(wish, ownName) || !FNames.Has(wish))) return FAliases.Take(wish, "_");
  }
  for (std::size_t number = 2;; ++number) {
    const std::string alias = *wishes.begin() + "_" + std::to_string(number);
    if (!FAliases.Has(alias) && !FNames.Has(alias)) return FAliases.Take(alias, "_");
  }
}

std::string TPlannedTables::TakeDisplayName(const std::string& wish, std::string_view qualifier) {
  if (FDisplayNames.Has(wish) && !qualifier.empty()) {
    return FDisplayNames.Take(wish + " (" + std::string(qualifier) + ")", " ");
  }
  return FDisplayNames.Take(wish, " ");
}

std::size_t TPlannedTables::Unlinked(std::size_t source, std::string_view alias) {
  for (const std::size_t number : FTablesOf[source]) {
    const TDSTable* table = FPlan.Tables[number].Existing;
    const bool fits =
        table && number != MainTableOf(source) && table->Links().empty() && SameText(table->GetTableAlias(), alias);
    if (!fits || FRoleTaken[number]) continue;
    FRoleTaken[number] = true;
    return number;
  }
  return None;
}

}  // namespace tolvi
