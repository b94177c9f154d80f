// What filling a model is going to do: all decisions, before anything changes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/link.h>
#include <tolvi/model/modelfill.h>

namespace tolvi {

class TDSField;
class TDSFieldGroup;
class TDSTable;

/// A table of the model: there, or to be added.
struct TPlannedTable {
  TDSTable* Existing = nullptr;
  std::string DatabaseName, Name, Alias, DisplayName;
  bool Quoted = false;
};

/// A group that new fields join: there, or to be added.
struct TPlannedGroup {
  TDSFieldGroup* Existing = nullptr;
  std::string Name;
};

struct TPlannedField {
  std::size_t Table = 0, Group = 0;
  std::string Column, DisplayName;
  TFieldType Type = ftUnknown;
  int Size = 0;
  bool Quoted = false, UseInConditions = true, UseInResult = true;
  /// The query of its list of values; may be empty.
  std::string ListSQL;
};

struct TPlannedLink {
  std::size_t Table1 = 0, Table2 = 0;
  TStrings Fields1, Fields2;
  TDSLinkType LinkType = ltInner;
  bool QuoteFields = false;
};

struct TPlannedType {
  TDSField* Field = nullptr;
  TFieldType Type = ftUnknown;
  int Size = 0;
};

struct TFillPlan {
  std::vector<TPlannedTable> Tables;
  std::vector<TPlannedGroup> Groups;
  std::vector<TPlannedField> Fields;
  std::vector<TPlannedLink> Links;
  std::vector<TPlannedType> Types;
  /// Whether the model gets the default operators; whether its tables are qualified from now on, and how ("": as
  /// before).
  bool AddOperators = false, QualifyTables = false;
  std::string_view FullTableName;
  TFillReport Report;
};

/// Raises as `FillModel`.
TFillPlan PlanFill(const TJCustomDBStructure& model, TJDBInfo& info, const TFillOptions& options);

}  // namespace tolvi
