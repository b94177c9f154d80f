#include <algorithm>
#include <bitset>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelcheck.h>

namespace tolvi {
namespace {

/// Conditions hold two values.
constexpr std::size_t MaxValues = 2;
constexpr std::string_view LinkSymbols[] = {"=", "<>", "!=", "<", ">", "<=", ">="};

using TNames = std::unordered_set<std::string_view, TFoldedHash, TFoldedEqual>;

/// The numbers of the placeholders "@1" to "@9" of a template.
std::bitset<10> Placeholders(std::string_view text) {
  std::bitset<10> numbers;
  for (std::size_t at = text.find('@'); at != std::string_view::npos; at = text.find('@', at + 1)) {
    if (at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9') {
      numbers.set(static_cast<std::size_t>(text[at + 1] - '0'));
    }
  }
  return numbers;
}

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

  /// What holds for every template; whether "@1", "@2" are `valueCount` is the caller's matter.
  void CheckTemplate(std::string_view sql) {
    ErrorIf(Trim(sql).empty(), "the SQL template is empty");
    const std::bitset<10> numbers = Placeholders(sql);
    const std::size_t values = TemplateParamCount(sql);
    for (std::size_t number = values + 1; number < numbers.size(); ++number) {
      ErrorIf(numbers[number], "the template has \"@%d\" but no \"@%d\": the value is never filled in",
              {number, values + 1});
    }
    ErrorIf(values > MaxValues, "the template has %d values; conditions have at most %d", {values, MaxValues});
  }

  void CheckOperators() {
    TNames names;
    std::size_t index = 0;
    for (const TDSOperator& op : FModel.Operators()) {
      At(Numbered("Operator", index), OrNameless("Operator", op.GetName(), index));
      ++index;
      ErrorIf(op.GetName().empty(), "the name is empty");
      ErrorIf(!names.insert(op.GetName()).second, "another operator has the same name");
      WarnIf(op.GetDisplayName().empty(), "the display name is empty");
      CheckTemplate(op.GetSQLExpr());
      WarnIf(op.GetSQLExpr().find("@f") == std::string::npos, "the template does not mention the field (\"@f\")");
      WarnIf(op.GetValueKind() != vkScalar && op.GetParamCount() == 0, "the template has no place for the %s (\"@1\")",
             {op.GetValueKind() == vkList ? "list" : "sub-query"});
    }
  }

  void CheckTables() {
    TNames aliases;
    std::size_t index = 0;
    for (const TDSTable& table : FModel.Tables()) {
      At(Numbered("Table", index), OrNameless("Table", table.GetTableAlias(), index));
      ++index;
      ErrorIf(table.GetTableName().empty(), "the table name is empty");
      ErrorIf(table.GetTableAlias().empty(), "the alias is empty: nothing can refer to the table");
      ErrorIf(!aliases.insert(table.GetTableAlias()).second, "another table has the same alias");
      WarnIf(table.GetDisplayName().empty(), "the display name is empty");
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
    const TStrings &fields1 = link.GetFields1(), &fields2 = link.GetFields2(), &symbols = link.GetOperators();
    const std::size_t count = fields1.Count();
    ErrorIf(count == 0 && fields2.Empty(), "the link has no columns");
    ErrorIf(fields2.Count() != count, "the link has %d columns on the first side and %d on the second",
            {count, fields2.Count()});
    ErrorIf(symbols.Count() != std::max(count, fields2.Count()), "the link has %d comparison symbols for %d columns",
            {symbols.Count(), std::max(count, fields2.Count())});
    const auto isEmpty = [](const std::string& text) { return Trim(text).empty(); };
    ErrorIf(
        std::any_of(fields1.begin(), fields1.end(), isEmpty) || std::any_of(fields2.begin(), fields2.end(), isEmpty),
        "a column name is empty");
    for (const std::string& symbol : symbols) {
      WarnIf(std::find(std::begin(LinkSymbols), std::end(LinkSymbols), Trim(symbol)) == std::end(LinkSymbols),
             "\"%s\" is no comparison symbol", {symbol});
    }
    WarnIf(!first, "the two tables have a link before this one: joins always use that");
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
      WarnIf(field.GetDisplayName().empty(), "the display name is empty");
      WarnIf(!names[field.GetGroup()].insert(field.GetDisplayName()).second,
             "another field of its group has the same display name");
      ErrorIf(Trim(field.GetFieldExpr()).empty(), "the %s is empty",
              {field.GetFieldKind() == jfkData ? "column name" : "SQL expression"});
      if (field.GetFieldKind() == jfkData) {
        ErrorIf(!field.GetTable(), "the field has no table");
      } else {
        WarnIf(field.Tables().Empty(), "the SQL expression mentions no table of the model");
        CheckAggregate(field);
      }
      WarnIf(field.GetUseInConditions() && field.Operators().empty(),
             "conditions may use the field, but it offers no operator");
      const std::unordered_set<const TDSOperator*> operators(field.Operators().begin(), field.Operators().end());
      WarnIf(operators.size() != field.Operators().size(), "it offers an operator twice");
      CheckEditor(field);
    }
  }

  void CheckAggregate(const TDSField& field) {
    const bool calls = TJCustomDBStructure::CheckIfAggregate(field.GetFieldExpr());
    // A sub-select may well call an aggregate function without the field being one.
    const bool subSelect = CXPos("select", field.GetFieldExpr(), 0, true) != std::string::npos;
    WarnIf(calls && !subSelect && !field.GetIsAggregate(),
           "the SQL expression calls an aggregate function, but the field is not marked as an aggregate: conditions on "
           "it go to WHERE");
    WarnIf(!calls && field.GetIsAggregate(),
           "the field is marked as an aggregate, but the SQL expression calls no aggregate function");
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
      WarnIf(group.GetGroupName().empty(), "the name is empty");
      WarnIf(!names.insert(group.GetGroupName()).second, "another group has the same name");
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
      WarnIf(condition.GetDisplayFormat().empty(), "the display format is empty");
      CheckTemplate(condition.GetSQLExpr());
      const std::size_t values = condition.Values().Count();
      const std::size_t places = CharCount(condition.GetDisplayFormat(), '@');
      ErrorIf(places != values, "the display format has %d places (\"@\") for %d values", {places, values});
      const std::size_t inSQL = TemplateParamCount(condition.GetSQLExpr());
      ErrorIf(inSQL != values, "the SQL has %d places (\"@1\", \"@2\") for %d values", {inSQL, values});
      WarnIf(condition.Tables().Empty(), "the SQL mentions no table of the model: it brings none into the statement");
    }
  }

  const TJCustomDBStructure& FModel;
  std::string FSection, FPlace;
  std::vector<TCheckFinding> FFindings;
};

}  // namespace

std::vector<TCheckFinding> CheckModel(const TJCustomDBStructure& model) { return TModelChecker(model).Run(); }

}  // namespace tolvi
