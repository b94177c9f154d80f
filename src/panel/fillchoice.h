#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/modelcheck.h>
#include <tolvi/model/modelfill_plan.h>

namespace tolvi {

/// Whether a table is added with all, some or none of what there is to add of it.
enum TFillState : std::uint8_t { fsNone, fsSome, fsAll };

/// What of a plan for filling a model is carried out, under which names and with which joins; at first all of it, as
/// planned. Tables, fields and links are given by their numbers in the plan.
///
/// 1. Fields and links come with their tables. A further alias of a table comes with its link, and with the table that
///    refers to it. Turning one of these on turns on what it needs; turning one off, what needs it.
/// 2. Tables of the model stay as they are. Only their new fields can be chosen.
/// 3. A new group is called as its table unless it has got a name of its own. Tables with groups of one name share it.
class TOLVI_CORE_API TFillChoice final {
 public:
  /// The model must outlive this and be the one of the plans.
  explicit TFillChoice(const TJCustomDBStructure& model) : FModel(model) {}

  const TFillPlan& Plan() const { return FPlan; }
  /// Another plan. What was chosen in earlier ones holds for tables, fields and links that it has, too.
  void SetPlan(TFillPlan plan);
  /// The plan as it is chosen.
  TFillPlan Chosen() const;

  /// The tables that are added or get fields, and the new fields of each table.
  const std::vector<std::size_t>& Tables() const { return FShown; }
  const std::vector<std::size_t>& FieldsOf(std::size_t table) const { return FFieldsOf[table]; }

  bool IsTableNew(std::size_t table) const { return FPlan.Tables[table].Existing == nullptr; }
  /// True for tables of the model.
  bool IsTableOn(std::size_t table) const;
  TFillState TableState(std::size_t table) const;
  /// With all its fields. A field that is turned on turns on its table; a table may come without fields.
  void SetTableOn(std::size_t table, bool on);
  const std::string& TableName(std::size_t table) const;
  void SetTableName(std::size_t table, std::string_view name);
  /// The group that the new fields join; empty without fields, and for the fields that belong to no group.
  std::string GroupName(std::size_t table) const;
  void SetGroupName(std::size_t table, std::string_view name);

  bool IsFieldOn(std::size_t field) const;
  void SetFieldOn(std::size_t field, bool on);
  const std::string& FieldName(std::size_t field) const;
  void SetFieldName(std::size_t field, std::string_view name);
  bool HasList(std::size_t field) const { return !FPlan.Fields[field].ListSQL.empty(); }
  bool IsListOn(std::size_t field) const;
  /// Turns the field on, too.
  void SetListOn(std::size_t field, bool on);

  bool IsLinkOn(std::size_t link) const;
  void SetLinkOn(std::size_t link, bool on);
  TDSLinkType LinkType(std::size_t link) const;
  void SetLinkType(std::size_t link, TDSLinkType type);

  /// What is wrong with the names; nothing for what is not added. A plan with errors should not be carried out.
  TTextFindings CheckTable(std::size_t table) const;
  TTextFindings CheckGroup(std::size_t table) const;
  TTextFindings CheckField(std::size_t field) const;
  bool HasErrors() const { return !FirstFault(csError).empty(); }
  /// What is wrong first, behind the name of what it is wrong with; empty when nothing is.
  const std::string& FirstFault(TCheckSeverity severity) const;

 private:
  // Without a value: as planned.
  struct TTableChoice {
    bool On = true;
    std::optional<std::string> Name, Group;
    bool operator==(const TTableChoice&) const = default;
  };
  struct TFieldChoice {
    bool On = true, List = true;
    std::optional<std::string> Name;
    bool operator==(const TFieldChoice&) const = default;
  };
  struct TLinkChoice {
    bool On = true;
    std::optional<TDSLinkType> Type;
    bool operator==(const TLinkChoice&) const = default;
  };
  // What the names say, as they are now.
  struct TNames {
    // Those that stand twice.
    std::vector<bool> Tables, Fields;
    // By severity.
    std::array<std::string, 2> FirstFaults;
  };

  const TPlannedGroup* PlannedGroup(std::size_t table) const;
  TPlannedGroup GroupOf(std::size_t table) const;
  std::string FieldKey(std::size_t field) const;
  const TNames& Names() const;
  void MarkTables(std::vector<bool>& marks) const;
  void MarkFields(std::vector<bool>& marks) const;
  void FindFaults(TNames& names) const;
  bool IsQualified(const TFillPlan& plan) const;

  const TJCustomDBStructure& FModel;
  TFillPlan FPlan;
  std::vector<TTableChoice> FTables;
  std::vector<TFieldChoice> FFields;
  std::vector<TLinkChoice> FLinks;
  // What was chosen in all plans so far, but for what is as planned; by alias, alias and column, condition.
  std::unordered_map<std::string, TTableChoice> FKeptTables;
  std::unordered_map<std::string, TFieldChoice> FKeptFields;
  std::unordered_map<std::string, TLinkChoice> FKeptLinks;
  std::vector<std::size_t> FShown;
  std::vector<std::vector<std::size_t>> FFieldsOf;
  // The links that further aliases are added for.
  std::unordered_map<std::size_t, std::size_t> FRoleLinks;
  // Empty until somebody asks.
  mutable std::optional<TNames> FNames;
};

}  // namespace tolvi
