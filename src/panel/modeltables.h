// What the list of tables of a model editor does to a model.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

class TDSTable;
class TJCustomDBStructure;

/// Adds a table of that name with an alias that no other table has. It is quoted where the name needs it. A table that
/// has no name yet gets `alias` for one.
TOLVI_CORE_API TDSTable& AddTableByHand(TJCustomDBStructure& model, std::string_view tableName);

/// What breaks when a table gets another alias.
struct TAliasUses {
  /// IDs of the virtual fields and predefined conditions whose SQL names the table by its alias.
  std::vector<std::int32_t> Fields, Conditions;
  std::size_t Count() const { return Fields.size() + Conditions.size(); }
};
TOLVI_CORE_API TAliasUses UsesOfAlias(const TJCustomDBStructure& model, const TDSTable& table);

/// The expression with that table's alias written anew wherever it names the table of a column; the rest stays as it
/// is. The new alias is quoted where the old one was, and where a statement needs it.
TOLVI_CORE_API std::string WithOtherAlias(const TJCustomDBStructure& model, std::string_view expr,
                                          const TDSTable& table, std::string_view alias);

/// Gives the table another alias; the default main table follows. With `inExpressions` all uses follow, too.
TOLVI_CORE_API void ChangeAlias(TJCustomDBStructure& model, TDSTable& table, std::string_view alias,
                                bool inExpressions);

/// Deletes the tables of these indexes with their links and data fields. A default main table that goes is none any
/// more.
TOLVI_CORE_API void DeleteTables(TJCustomDBStructure& model, std::vector<std::size_t> indexes);

/// Moves the tables of these indexes one place up (`step` -1) or down (1), as far as there is room, and keeps their
/// order. Returns where they are then.
TOLVI_CORE_API std::vector<std::size_t> StepTables(TJCustomDBStructure& model, std::vector<std::size_t> indexes,
                                                   int step);

}  // namespace tolvi
