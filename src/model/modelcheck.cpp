#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/linkcheck.h>
#include <tolvi/model/modelcheck.h>
#include <tolvi/model/modelcheck_texts.h>

namespace tolvi {
namespace {

using TNames = std::unordered_set<std::string_view, TFoldedHash, TFoldedEqual>;

std::string Numbered(std::string_view kind, std::size_t index) {
  return std::string(kind) + ":" + std::to_string(index + 1);
}

std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

/// The text, or a word for none.
std::string OrNameless(std::string_view kind, std::string_view name, std::size_t index) {
  return std::string(kind) + " " + (name.empty() ? "number " + std::to_string(index + 1) : Quoted(name));
}

class TModelChecker {
 public:
  explicit TModelChecker(const TJCustomDBStructure& model) : FModel(model) {}

  std::vector<TCheckFinding> Run() {
    CheckMain();
    CheckOperators();
    CheckTables();
    CheckIslands();
    CheckFields();
    CheckGroups();
    CheckConditions();
    return std::move(FFindings);
  }

 private:
  /// Where the following findings stand.
  void At(std::string section, std::string place) {
    FSection = std::move(section);
    FPlace = std::move(place);
  }
  void Add(TCheckSeverity severity, std::string_view text, std::initializer_list<TFormatArg> args = {}) {
    FFindings.push_back({severity, FSection, FPlace, Format(text, args)});
  }
  void Add(TTextFindings findings) {
    for (TTextFinding& finding : findings) {
      FFindings.push_back({finding.Severity, FSection, FPlace, std::move(finding.Text)});
    }
  }
  void ErrorIf(bool wrong, std::string_view text, std::initializer_list<TFormatArg> args = {}) {
    if (wrong) Add(csError, text, args);
  }
  void WarnIf(bool suspicious, std::string_view text, std::initializer_list<TFormatArg> args = {}) {
    if (suspicious) Add(csWarning, text, args);
  }

  void CheckMain() {
    At("Main", "");
    WarnIf(FModel.GetTableCount() == 0, "the model has no tables");
    WarnIf(FModel.Fields().Empty(), "the model has no fields");
    const std::string& mainTable = FModel.GetDefaultMainTable();
    ErrorIf(!mainTable.empty() && !FModel.TableByName(tnAlias, mainTable),
            "the default main table \"%s\" is no alias of a table", {mainTable});
  }

  void CheckOperators() {
    TNames names;
    std::size_t index = 0;
    for (const TDSOperator& op : FModel.Operators()) {
      At(Numbered("Operator", index), OrNameless("Operator", op.GetName(), index));
      ++index;
      ErrorIf(op.GetName().empty(), checks::NoName);
      ErrorIf(!names.insert(op.GetName()).second, checks::SameOperator);
      WarnIf(op.GetDisplayName().empty(), checks::NoDisplayName);
      TTextFindings findings;
      checks::AddOperatorTemplate(findings, op.GetValueKind(), op.GetSQLExpr());
      Add(std::move(findings));
    }
  }

  void CheckTables() {
    TNames aliases;
    std::size_t index = 0;
    for (const TDSTable& table : FModel.Tables()) {
      At(Numbered("Table", index), OrNameless("Table", table.GetTableAlias(), index));
      ++index;
      ErrorIf(table.GetTableName().empty(), checks::NoTableName);
      ErrorIf(table.GetTableAlias().empty(), checks::NoAlias);
      ErrorIf(!aliases.insert(table.GetTableAlias()).second, checks::SameAlias);
      WarnIf(table.GetDisplayName().empty(), checks::NoDisplayName);
      std::unordered_set<const TDSTable*> linked;
      for (const TDSLink* link : table.Links()) {
        const bool first = linked.insert(link->OtherTable(table)).second;
        if (link->GetTable1() == &table) CheckLink(*link, first);
      }
    }
  }

  void CheckLink(const TDSLink& link, bool first) {
    const std::string& alias1 = link.GetTable1()->GetTableAlias();
    const std::string& alias2 = link.GetTable2()->GetTableAlias();
    At("Link:" + alias1 + "-" + alias2, "Link " + Quoted(alias1 + " - " + alias2));
    for (const TLinkFinding& finding : CheckLinkPairs(link.GetFields1(), link.GetOperators(), link.GetFields2())) {
      Add(TTextFindings{{finding.Severity, finding.Text}});
    }
    WarnIf(!first, LinkComesTooLate);
  }

  /// Tables that no chain of links joins with the main table (the first one where there is none).
  void CheckIslands() {
    if (FModel.GetTableCount() < 2) return;
    const TDSTable* start = FModel.TableByName(tnAlias, FModel.GetDefaultMainTable());
    if (FModel.GetDefaultMainTable().empty() || !start) start = &FModel.GetTable(0);
    std::unordered_set<const TDSTable*> seen;
    Island(*start, seen);
    std::size_t index = 0;
    for (const TDSTable& table : FModel.Tables()) {
      if (!seen.contains(&table)) {
        const std::size_t count = Island(table, seen);
        At(Numbered("Table", index), OrNameless("Table", table.GetTableAlias(), index));
        const std::string& target = start->GetTableAlias();
        WarnIf(count == 1, "no chain of links leads from it to table \"%s\"", {target});
        WarnIf(count > 1, "no chain of links leads from it and the %d tables linked with it to table \"%s\"",
               {count - 1, target});
      }
      ++index;
    }
  }

  /// How many tables hang together with this one; all of them are seen then.
  static std::size_t Island(const TDSTable& start, std::unordered_set<const TDSTable*>& seen) {
    std::vector<const TDSTable*> queue{&start};
    seen.insert(&start);
    for (std::size_t at = 0; at < queue.size(); ++at) {
      for (const TDSLink* link : queue[at]->Links()) {
        const TDSTable* other = link->OtherTable(*queue[at]);
        if (seen.insert(other).second) queue.push_back(other);
      }
    }
    return queue.size();
  }

  void CheckFields() {
    std::unordered_set<std::int32_t> ids;
    std::unordered_map<const TDSFieldGroup*, TNames> names;
    std::size_t index = 0;
    for (const TDSField& field : FModel.Fields()) {
      At(Numbered("Field", index), OrNameless("Field", field.GetDisplayName(), index));
      ++index;
      ErrorIf(!ids.insert(field.GetID()).second, "another field has the same ID, %d", {field.GetID()});
      WarnIf(field.GetDisplayName().empty(), checks::NoDisplayName);
      WarnIf(!names[field.GetGroup()].insert(field.GetDisplayName()).second, checks::SameFieldInGroup);
      TTextFindings findings;
      checks::AddEmptyExpr(findings, field.GetFieldKind(), field.GetFieldExpr());
      if (field.GetFieldKind() == jfkVirtual) {
        checks::AddVirtualExpr(findings, !field.Tables().Empty(), field.GetIsAggregate(), field.GetFieldExpr());
      }
      Add(std::move(findings));
      ErrorIf(field.GetFieldKind() == jfkData && !field.GetTable(), "the field has no table");
      WarnIf(field.GetUseInConditions() && field.Operators().empty(),
             "conditions may use the field, but it offers no operator");
      const std::unordered_set<const TDSOperator*> operators(field.Operators().begin(), field.Operators().end());
      WarnIf(operators.size() != field.Operators().size(), "it offers an operator twice");
      CheckEditor(field);
    }
  }

  void CheckEditor(const TDSField& field) {
    if (const auto* sqlEditor = dynamic_cast<const TDSSQLEditor*>(field.GetValueEditor())) {
      WarnIf(Trim(sqlEditor->GetSQL().GetText()).empty(), "the list of values has no SQL");
    } else if (const auto* list = dynamic_cast<const TDSListEditor*>(field.GetValueEditor())) {
      WarnIf(list->Items().Empty(), "the list of values is empty");
      WarnIf(!list->Values().Empty() && list->Values().Count() != list->Items().Count(),
             "the list of values shows %d items for %d values", {list->Items().Count(), list->Values().Count()});
    }
  }

  void CheckGroups() {
    TNames names;
    std::size_t index = 0;
    for (const TDSFieldGroup& group : FModel.FieldGroups()) {
      At("FieldGroup" + std::to_string(index + 1), OrNameless("Field group", group.GetGroupName(), index));
      ++index;
      WarnIf(group.GetGroupName().empty(), checks::NoName);
      WarnIf(!names.insert(group.GetGroupName()).second, checks::SameGroup);
      WarnIf(group.Empty(), "the group has no fields");
    }
  }

  void CheckConditions() {
    std::unordered_set<std::int32_t> ids;
    std::size_t index = 0;
    for (const TDSCondition& condition : FModel.Conditions()) {
      At(Numbered("Cond", index), OrNameless("Condition", condition.GetDisplayFormat(), index));
      ++index;
      ErrorIf(!ids.insert(condition.GetID()).second, "another condition has the same ID, %d", {condition.GetID()});
      WarnIf(condition.GetDisplayFormat().empty(), checks::NoDisplayFormat);
      const std::size_t values = condition.Values().Count();
      TTextFindings findings;
      checks::AddTemplate(findings, condition.GetSQLExpr());
      checks::AddPlaces(findings, condition.GetDisplayFormat(), values);
      Add(std::move(findings));
      const std::size_t inSQL = TemplateParamCount(condition.GetSQLExpr());
      ErrorIf(inSQL != values, "the SQL has %d places (\"@1\", \"@2\") for %d values", {inSQL, values});
      findings.clear();
      checks::AddConditionTables(findings, !condition.Tables().Empty());
      Add(std::move(findings));
    }
  }

  const TJCustomDBStructure& FModel;
  std::string FSection, FPlace;
  std::vector<TCheckFinding> FFindings;
};

}  // namespace

std::vector<TCheckFinding> CheckModel(const TJCustomDBStructure& model) { return TModelChecker(model).Run(); }

}  // namespace tolvi
