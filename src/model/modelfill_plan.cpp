#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelfill_links.h>
#include <tolvi/model/modelfill_plan.h>

namespace tolvi {
namespace {

/// Keys of these types mean nothing to people; those of others (a country's code) do.
constexpr TFieldTypes HiddenKeyTypes = NumberTypes + TFieldTypes{ftGuid};
/// What a result column can show.
constexpr TFieldTypes ShownTypes =
    NumberTypes + NameTypes + TextFieldTypes + DateFieldTypes +
    TFieldTypes{ftBoolean, ftGuid, ftWideMemo, ftOraClob, ftOraTimeStamp, ftOraInterval, ftTimeStampOffset};

/// Columns that name a row, best first.
constexpr std::string_view NameColumns[] = {"name",    "title",       "label",       "caption",
                                            "company", "description", "designation", "text"};

/// For which of a table's aliases the model has a field on a column.
enum TColumnPresence : std::uint8_t { cpNowhere, cpInOtherAlias, cpInMainTable };

std::string QuotedIfNeeded(const TSQLFormats& formats, std::string_view name, bool mixedCase) {
  std::string result;
  if (!NeedsQuotes(name, mixedCase)) return std::string(name);
  formats.AppendQuoted(result, name);
  return result;
}

/// Writes the queries of lists of values, and asks how many rows they would have.
class TListPlanner final {
 public:
  TListPlanner(const TSQLFormats& formats, const TCatalogue& catalogue, const TFillOptions& options, TJDBInfo& info,
               TFillReport& report)
      : FFormats(formats), FCat(catalogue), FOptions(options), FInfo(info), FReport(report) {}

  /// The query of a list of the column's values; empty when there is none.
  std::string ListOf(const TCatColumn& column) {
    if (!FOptions.ValueLists || column.Link == None) return {};
    const TCatLink& link = FCat.Links[column.Link];
    const TCatTable& table = FCat.Tables[link.To];
    const TCatColumn* name = NameColumnOf(table);
    if (!name || !IsSmall(link.To)) return {};
    const std::string key = Quoted(table.Columns[link.Columns[0].second].Name);
    const std::string text = Quoted(name->Name);
    return Format("select %s, %s from %s order by %s", {key, text, TableExpr(table), text});
  }

 private:
  static const TCatColumn* NameColumnOf(const TCatTable& table) {
    const TCatColumn* best = nullptr;
    std::ptrdiff_t bestRank = 0;
    for (const TCatColumn& column : table.Columns) {
      if (column.InKey || !NameTypes.Contains(column.Type)) continue;
      const std::vector<std::string> words = NameWords(column.Name);
      const std::string last = words.empty() ? std::string() : AsciiLower(words.back());
      const std::ptrdiff_t rank =
          std::find(std::begin(NameColumns), std::end(NameColumns), last) - std::begin(NameColumns);
      if (best && rank >= bestRank) continue;
      best = &column;
      bestRank = rank;
    }
    return best;
  }

  bool IsSmall(std::size_t table) {
    const auto [entry, first] = FSmall.try_emplace(table, false);
    if (!first || FNoQueries) return entry->second;
    TStrings values, captions;
    if (!FInfo.RunQuery("select count(*) from " + TableExpr(FCat.Tables[table]), values, captions)) {
      FNoQueries = true;
      return false;
    }
    const std::optional<std::int64_t> count = values.Empty() ? std::nullopt : TryStrToInt(values[0]);
    if (!count) {
      FReport.Notes.Add(Format("The rows of table \"%s\" could not be counted", {FCat.Tables[table].FullName}));
    }
    return entry->second = count && *count > 0 && *count <= FOptions.MaxListRows;
  }

  std::string Quoted(std::string_view name) const { return QuotedIfNeeded(FFormats, name, FOptions.QuoteMixedCase); }

  std::string TableExpr(const TCatTable& table) const {
    std::string text;
    if (!table.Schema.empty()) {
      for (const std::string& part : NameParts(table.Schema)) text += Quoted(part) + ".";
    }
    return text + Quoted(table.Name);
  }

  const TSQLFormats& FFormats;
  const TCatalogue& FCat;
  const TFillOptions& FOptions;
  TJDBInfo& FInfo;
  TFillReport& FReport;
  std::unordered_map<std::size_t, bool> FSmall;
  bool FNoQueries = false;
};

/// Compares the fields that the model has with the catalogue, then plans those that it lacks.
class TFieldPlanner final {
 public:
  TFieldPlanner(const TJCustomDBStructure& model, const TCatalogue& catalogue, const TFillOptions& options,
                const TPlannedTables& tables, TJDBInfo& info, TFillPlan& plan)
      : FModel(model),
        FCat(catalogue),
        FOptions(options),
        FTables(tables),
        FPlan(plan),
        FLists(model.SQLFormats(), catalogue, options, info, plan.Found) {}

  void Run() {
    FPresent.resize(FCat.Tables.size());
    for (std::size_t source = 0; source < FCat.Tables.size(); ++source) {
      FPresent[source].assign(FCat.Tables[source].Columns.size(), cpNowhere);
    }
    FLastFields.assign(FPlan.Tables.size(), nullptr);
    for (TDSField& field : FModel.Fields()) LookAt(field);
    for (TDSFieldGroup& group : FModel.FieldGroups()) FGroupsByName.try_emplace(group.GetGroupName(), &group);
    CollectSuitedTypes();
    for (std::size_t table = 0; table < FPlan.Tables.size(); ++table) PlanTable(table);
  }

 private:
  void LookAt(TDSField& field) {
    const TDSTable* table = field.GetFieldKind() == jfkData ? field.GetTable() : nullptr;
    const std::size_t number = table ? FTables.NumberOfTable(*table) : None;
    if (number == None) return;
    const TCatTable& source = FCat.Tables[FTables.SourceOf(number)];
    if (!source.Used) return;
    FLastFields[number] = &field;
    const std::string& name = field.GetFieldName();
    std::size_t column = source.ColumnByName(name);
    if (column == None) column = source.ColumnByName(PlainName(name));
    if (column == None) {
      FPlan.Found.VanishedFields.Add(table->GetTableAlias() + "." + name);
      return;
    }
    const std::size_t index = FTables.SourceOf(number);
    TColumnPresence& present = FPresent[index][column];
    present = std::max(present, number == FTables.MainTableOf(index) ? cpInMainTable : cpInOtherAlias);
    CompareType(field, source.Columns[column]);
  }

  void CompareType(TDSField& field, const TCatColumn& column) {
    // A size of 0 says as little as an unknown type.
    const int size = column.Size == 0 && column.Type == field.GetFieldType() ? field.GetFieldSize() : column.Size;
    const bool same = column.Type == field.GetFieldType() && size == field.GetFieldSize();
    if (same || column.Type == ftUnknown) return;
    FPlan.Found.ChangedTypes.Add(
        Format("%s.%s: %s is %s in the catalogue",
               {field.GetTable()->GetTableAlias(), field.GetFieldName(),
                TypeText(field.GetFieldType(), field.GetFieldSize()), TypeText(column.Type, size)}));
    if (FOptions.TakeChangedTypes) FPlan.Types.push_back({&field, column.Type, size});
  }

  /// The types that an operator suits, once the model is filled.
  void CollectSuitedTypes() {
    for (const TDSOperator& op : FModel.Operators()) FSuited = FSuited + op.GetAppliedTypes();
    if (!FPlan.AddOperators) return;
    for (const TDefOperator& op : DefaultOperators()) {
      if (!op.Group || FModel.GetExOperators().Contains(*op.Group)) FSuited = FSuited + op.Types;
    }
  }

  void PlanTable(std::size_t number) {
    const TPlannedTable& table = FPlan.Tables[number];
    const std::size_t source = FTables.SourceOf(number);
    const TCatTable& from = FCat.Tables[source];
    if (!from.Used || (table.Existing && !FOptions.NewFieldsInKnownTables)) return;
    // A further alias needs no more fields than somebody chose for it, but for columns that are new everywhere.
    const bool main = number == FTables.MainTableOf(source);
    if (table.Existing && !main && !FLastFields[number]) return;
    const TColumnPresence enough = main ? cpInMainTable : cpInOtherAlias;
    std::size_t group = None;
    for (std::size_t column = 0; column < from.Columns.size(); ++column) {
      if (table.Existing && FPresent[source][column] >= enough) continue;
      if (group == None) group = GroupOf(number);
      PlanField(number, group, from.Columns[column]);
    }
  }

  void PlanField(std::size_t table, std::size_t group, const TCatColumn& column) {
    TPlannedField field;
    field.Table = table;
    field.Group = group;
    field.Column = column.Name;
    field.DisplayName = FDisplayNames[group].Take(ReadableName(column.Name), " ");
    field.Type = column.Type;
    field.Size = column.Size;
    field.Quoted = NeedsQuotes(column.Name, FOptions.QuoteMixedCase);
    field.UseInConditions = FSuited.Contains(column.Type);
    field.UseInResult = ShownTypes.Contains(column.Type) && !(column.InKey && HiddenKeyTypes.Contains(column.Type));
    if (field.UseInConditions) field.ListSQL = FLists.ListOf(column);
    FPlan.Fields.push_back(std::move(field));
  }

  /// The group of the table's last field, or one of the table's name.
  std::size_t GroupOf(std::size_t table) {
    const TDSField* last = FLastFields[table];
    const std::string& name = FPlan.Tables[table].DisplayName;
    TDSFieldGroup* group = last ? last->GetGroup() : nullptr;
    if (!group) {
      const auto named = FGroupsByName.find(name);
      if (named != FGroupsByName.end()) group = named->second;
    }
    std::size_t& planned =
        group ? FPlanned.try_emplace(group, None).first->second : FPlannedByName.try_emplace(name, None).first->second;
    if (planned != None) return planned;
    planned = FPlan.Groups.size();
    FPlan.Groups.push_back({group, group ? std::string() : name});
    TNamePool& names = FDisplayNames.emplace_back();
    if (!group) return planned;
    for (const TDSField* field : *group) names.Reserve(field->GetDisplayName());
    return planned;
  }

  const TJCustomDBStructure& FModel;
  const TCatalogue& FCat;
  const TFillOptions& FOptions;
  const TPlannedTables& FTables;
  TFillPlan& FPlan;
  TListPlanner FLists;
  TFieldTypes FSuited;
  /// By table of the catalogue and column.
  std::vector<std::vector<TColumnPresence>> FPresent;
  /// By planned table.
  std::vector<const TDSField*> FLastFields;
  std::unordered_map<std::string, TDSFieldGroup*, TFoldedHash, TFoldedEqual> FGroupsByName;
  std::unordered_map<std::string, std::size_t, TFoldedHash, TFoldedEqual> FPlannedByName;
  std::unordered_map<TDSFieldGroup*, std::size_t> FPlanned;
  /// By planned group.
  std::vector<TNamePool> FDisplayNames;
};

/// From 1 on, the same for the same names in every case, on every system: FNV-1a, with room above for IDs that are
/// counted up.
std::int32_t IDFromNames(std::string_view table, std::string_view column) {
  constexpr std::uint32_t Basis = 2166136261U, Prime = 16777619U, Most = (1U << 30U) - 1;
  std::uint32_t hash = Basis;
  for (const char c : FoldCase(table) + "." + FoldCase(column)) hash = (hash ^ static_cast<unsigned char>(c)) * Prime;
  return static_cast<std::int32_t>(hash % Most + 1);
}

void GiveIDsFromNames(const TJCustomDBStructure& model, TFillPlan& plan) {
  std::unordered_set<std::int32_t> taken;
  for (const TDSField& field : model.Fields()) taken.insert(field.GetID());
  for (TPlannedField& field : plan.Fields) {
    field.ID = IDFromNames(plan.Tables[field.Table].Alias, field.Column);
    while (!taken.insert(field.ID).second) ++field.ID;
  }
}

void CheckFieldIDs(const TJCustomDBStructure& model, const TFillPlan& plan) {
  const auto free = static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max() - model.GetLastFieldID());
  if (plan.Fields.size() <= free) return;
  throw EJDBStructError(
      0, "%d new fields need IDs, but only %d are left: give the field with the largest ID a smaller one",
      {plan.Fields.size(), free});
}

}  // namespace

std::string TypeText(TFieldType type, int size) {
  std::string text(FldTypeToStr(type));
  if (size != 0) text.append("(").append(std::to_string(size)).append(")");
  return text;
}

std::vector<TFillTable> TablesForFill(const TJCustomDBStructure& model, TJDBInfo& info) {
  const TCatalogue catalogue = ReadCatalogueTables(info);
  std::vector<TFillTable> tables;
  for (const TCatTable& table : catalogue.Tables) tables.push_back({table.FullName, table.View, false});
  for (const TDSTable& table : model.Tables()) {
    if (const std::size_t source = TableOfModel(catalogue, table); source != None) tables[source].Known = true;
  }
  return tables;
}

TFillPlan PlanFill(const TJCustomDBStructure& model, TJDBInfo& info, const TFillOptions& options) {
  TFillPlan plan;
  plan.Revision = model.GetRevision();
  std::unordered_set<std::string, TFoldedHash, TFoldedEqual> known;
  for (const TDSTable& table : model.Tables()) {
    for (std::string& name : CatalogueNames(table)) known.insert(std::move(name));
  }
  const TCatalogue catalogue = ReadCatalogue(info, options, [&known](const TCatTable& table) {
    return known.contains(table.PlainName()) || known.contains(table.Name);
  });
  plan.Found.Notes = catalogue.Notes;
  if (!catalogue.Connected) return plan;
  plan.AddOperators = model.Operators().Empty();
  TPlannedTables tables(model, catalogue, plan);
  tables.AddMissing(options);
  PlanLinks(model, catalogue, options, tables, plan);
  TFieldPlanner(model, catalogue, options, tables, info, plan).Run();
  CheckFieldIDs(model, plan);
  if (options.FieldIDsFromNames) GiveIDsFromNames(model, plan);
  return plan;
}

}  // namespace tolvi
