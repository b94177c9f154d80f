// Which tables of a model are which of a catalogue, and the tables that filling adds.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tolvi/model/modelfill_catalogue.h>
#include <tolvi/model/modelfill_names.h>
#include <tolvi/model/modelfill_plan.h>

namespace tolvi {

/// The names by which a catalogue may know a table of the model.
std::vector<std::string> CatalogueNames(const TDSTable& table);
/// The table of the catalogue that a table of the model is; `None`.
std::size_t TableOfModel(const TCatalogue& catalogue, const TDSTable& table);

/// Keeps `plan.Tables`, where each table of a catalogue may stand several times, with other aliases.
class TPlannedTables final {
 public:
  /// Begins with the tables that the model has. All three must outlive this.
  TPlannedTables(const TJCustomDBStructure& model, const TCatalogue& catalogue, TFillPlan& plan);

  /// Adds the tables of the catalogue that the model lacks.
  void AddMissing(const TFillOptions& options);
  /// A table with the content of `target` for those that `column` of the planned table `from` refers to: one of the
  /// model's that nothing is linked with and that has the alias, or a new one. Returns its number.
  std::size_t AddRole(std::size_t from, const TCatColumn& column, std::size_t target, bool quoteMixedCase);

  /// The number of a table of the model; `None` when the catalogue lacks it.
  std::size_t NumberOfTable(const TDSTable& table) const;
  /// The table of the catalogue of a planned one.
  std::size_t SourceOf(std::size_t table) const { return FSources[table]; }
  /// The planned tables of one of the catalogue; the first one is that which links join by themselves.
  const std::vector<std::size_t>& TablesOf(std::size_t source) const { return FTablesOf[source]; }
  /// The first of these; `None` when there is none.
  std::size_t MainTableOf(std::size_t source) const {
    return FTablesOf[source].empty() ? None : FTablesOf[source].front();
  }

 private:
  std::size_t Add(std::size_t source, TPlannedTable table);
  std::string TakeAlias(std::initializer_list<std::string> wishes, std::string_view ownName);
  std::string TakeDisplayName(const std::string& wish, std::string_view qualifier);
  std::size_t Unlinked(std::size_t source, std::string_view alias);
  void Qualify();

  const TJCustomDBStructure& FModel;
  const TCatalogue& FCat;
  TFillPlan& FPlan;
  std::vector<std::size_t> FSources;
  std::vector<std::vector<std::size_t>> FTablesOf;
  std::unordered_map<const TDSTable*, std::size_t> FNumbers;
  TNamePool FAliases, FNames, FDisplayNames;
  std::vector<bool> FRoleTaken;
};

}  // namespace tolvi
