// What filling a model is going to do: all decisions, before anything changes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
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
  /// A further alias, which is added for the link that ends at it.
  bool Role = false;
  bool operator==(const TPlannedTable&) const = default;
};

/// A group that new fields join: there, or to be added.
struct TPlannedGroup {
  TDSFieldGroup* Existing = nullptr;
  std::string Name;
  bool operator==(const TPlannedGroup&) const = default;
};

struct TPlannedField {
  /// 0: the next one after the model's last.
  std::int32_t ID = 0;
  std::size_t Table = 0, Group = 0;
  std::string Column, DisplayName;
  TFieldType Type = ftUnknown;
  int Size = 0;
  bool Quoted = false, UseInConditions = true, UseInResult = true;
  /// The query of its list of values; may be empty.
  std::string ListSQL;
  bool operator==(const TPlannedField&) const = default;
};

struct TPlannedLink {
  std::size_t Table1 = 0, Table2 = 0;
  TStrings Fields1, Fields2;
  TDSLinkType LinkType = ltInner;
  bool QuoteFields = false;
  bool operator==(const TPlannedLink&) const = default;
};

struct TPlannedType {
  TDSField* Field = nullptr;
  TFieldType Type = ftUnknown;
  int Size = 0;
  bool operator==(const TPlannedType&) const = default;
};

struct TOLVI_CORE_API TFillPlan {
  /// That of the model for which the plan is.
  std::uint64_t Revision = 0;
  std::vector<TPlannedTable> Tables;
  std::vector<TPlannedGroup> Groups;
  std::vector<TPlannedField> Fields;
  std::vector<TPlannedLink> Links;
  std::vector<TPlannedType> Types;
  /// Whether the model gets the default operators; whether its tables are qualified from now on, and how ("": as
  /// before).
  bool AddOperators = false, QualifyTables = false;
  std::string_view FullTableName;
  /// What was found, without what is going to be added.
  TFillReport Found;
  bool operator==(const TFillPlan&) const = default;

  bool Empty() const;
  /// The condition of a planned link, for people.
  std::string LinkText(const TPlannedLink& link) const;
  TFillReport Report() const;
};

/// "ftString(20)".
TOLVI_CORE_API std::string TypeText(TFieldType type, int size);

/// A table of a catalogue.
struct TFillTable {
  /// As the catalogue gives it.
  std::string Name;
  /// Whether it is a view; whether the model has it.
  bool View = false, Known = false;
};

/// The tables of a catalogue, each once. It must be connected. What handlers raise goes through.
TOLVI_CORE_API std::vector<TFillTable> TablesForFill(const TJCustomDBStructure& model, TJDBInfo& info);

/// Asks the catalogue what filling would do. Raises as `FillModel`. The plan holds while the model stays as it is.
TOLVI_CORE_API TFillPlan PlanFill(const TJCustomDBStructure& model, TJDBInfo& info, const TFillOptions& options);

/// Carries out a plan, which may have been made smaller and its names and link types changed. Raises `EJDBStructError`
/// when the model is not as it was planned for; nothing is changed then.
TOLVI_CORE_API void ApplyFillPlan(TJCustomDBStructure& model, const TFillPlan& plan);

}  // namespace tolvi
