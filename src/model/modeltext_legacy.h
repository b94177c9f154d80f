#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/sections.h>
#include <tolvi/model/modeltext_keys.h>
#include <tolvi/model/operators.h>
#include <tolvi/model/table.h>

namespace tolvi {

// What only model texts of older versions hold.

/// The version of a text without "Version=", and the versions that brought a change.
inline constexpr double UnnumberedModelVersion = 1.1;
inline constexpr double OperationsSince = 1.2;
inline constexpr double TableSectionsSince = 1.4;
inline constexpr double OperatorSectionsSince = 2.01;
inline constexpr double RootFieldsFirstSince = 2.62;

/// From 1.2 to 2.0 the section "[Operations]" is followed by the operators, "[Operation:" n "]" each, with the keys of
/// today. Their number is "OperatCount=" in "[Main]"; without that key they go on as long as the numbers do.
inline constexpr std::string_view LegacyOperationsSection = "Operations";
inline constexpr std::string_view LegacyOperationPrefix = "Operation:";

/// Reads an operator with the keys of today, but for "ValueKind=": every text but "vtSubQuery" means a scalar.
void ReadLegacyOperator(const TSection& section, std::span<const TModelKey<TDSOperator>> keys, TDSOperator& op);

/// Up to 1.3 the section "[Tables]" holds all tables in order, one a line: "Table" n "=" and, as comma text, what the
/// keys of a table's section hold today, in the same order (DBName, Name, DisplayName, Alias, Quoted, Hints, DsgnPos,
/// Links). What is missing at the end has its default. The link sections follow, as today.
inline constexpr std::string_view LegacyTablesSection = "Tables";

/// What a table's line holds besides the table itself.
struct TLegacyTable {
  /// The alias as written.
  std::string alias;
  std::vector<std::string> links;
};

/// Reads `value`, which stands in `section` under `key`, into the table.
TLegacyTable ReadLegacyTable(const TSection& section, std::string_view key, std::string_view value, TDSTable& table);

}  // namespace tolvi
