#include <algorithm>
#include <deque>
#include <limits>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/listtext.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/model/modeltext_editors.h>
#include <tolvi/model/modeltext_format.h>
#include <tolvi/model/modeltext_legacy.h>
#include <tolvi/model/modeltext_settings.h>

namespace tolvi {
namespace {

class TModelTextWriter {
 public:
  explicit TModelTextWriter(const TJCustomDBStructure& model) : FModel(model), FWriter(IsModelHeader) {}

  std::string Write() && {
    // A field of an ordinary model takes about 300 bytes, a table or link less.
    FWriter.Reserve(4096 + 300 * (FModel.Fields().Count() + FModel.GetTableCount() + FModel.GetLinkCount()));
    WriteMain();
    std::size_t number = 0;
    for (const TDSOperator& op : FModel.Operators()) {
      Section(NumberedName(OperatorPrefix, ++number));
      WriteKeys(FWriter, OperatorKeys(), op);
    }
    number = 0;
    for (const TDSTable& table : FModel.Tables()) WriteTable(table, ++number);
    number = 0;
    for (const TDSField& field : FModel.Fields()) WriteField(field, ++number);
    WriteGroups();
    number = 0;
    for (const TDSCondition& condition : FModel.Conditions()) {
      Section(NumberedName(ConditionPrefix, ++number));
      WriteKeys(FWriter, ConditionKeys(), condition);
      WriteValueEditors(FWriter, condition.Values());
    }
    WriteSpecInfo();
    WriteSettingsOf(SQLFormatsSection, FModel.SQLFormats(), TSQLFormats());
    WriteSettingsOf(DMOptionsSection, FModel.DMOptions(), TDMOptions());
    return std::move(FWriter).Text();
  }

 private:
  void Section(std::string_view name) {
    FWriter.Line(" ");
    FWriter.Header(name);
  }

  void WriteMain() {
    const std::pair<std::string_view, std::size_t> counts[] = {
        {OperatCountKey, FModel.GetOperatCount()},     {TableCountKey, FModel.GetTableCount()},
        {FieldCountKey, FModel.Fields().Count()},      {CondCountKey, FModel.Conditions().Count()},
        {GroupCountKey, FModel.FieldGroups().Count()},
    };
    FWriter.Header(MainSection);
    FWriter.Key(VersionKey, XFloatToStr(CurrentModelVersion));
    for (const auto& [key, count] : counts) FWriter.Key(key, static_cast<std::int64_t>(count));
    FWriter.Key(MainTableKey, FModel.GetDefaultMainTable());
    FWriter.Key(RootFieldsFirstKey, std::int64_t{FModel.GetRootFieldsFirst()});
  }

  void WriteTable(const TDSTable& table, std::size_t number) {
    Section(NumberedName(TablePrefix, number));
    WriteKeys(FWriter, TableKeys(), table);
    std::string aliases;
    for (const TDSLink* link : table.Links()) {
      if (link->GetTable1() == &table) AppendListItem(aliases, link->GetTable2()->GetTableAlias());
    }
    FWriter.Key(LinksKey, aliases);
    for (const TDSLink* link : table.Links()) {
      if (link->GetTable1() != &table) continue;
      Section(LinkName(table.GetTableAlias(), link->GetTable2()->GetTableAlias()));
      WriteKeys(FWriter, LinkKeys(), *link);
    }
  }

  void WriteField(const TDSField& field, std::size_t number) {
    const std::string name = NumberedName(FieldPrefix, number);
    Section(name);
    WriteKeys(FWriter, FieldNameKeys(), field);
    if (field.GetFieldKind() == jfkData) {
      const TDSTable* table = field.GetTable();
      FWriter.Key(TableAliasKey, table != nullptr ? std::string_view(table->GetTableAlias()) : std::string_view());
    }
    WriteKeys(FWriter, FieldTypeKeys(), field);
    FWriter.Key(OperatorsKey, OperatorNames(field.Operators()));
    WriteEditorKeys(FWriter, field.GetValueEditor());
    if (field.GetEditType() == etSQL) {
      Section(name + std::string(SQLSuffix));
      FWriter.FreeLines(static_cast<const TDSSQLEditor&>(*field.GetValueEditor()).GetSQL());
    }
  }

  /// Neighbouring fields often offer the same operators.
  const std::string& OperatorNames(const std::vector<TDSOperator*>& operators) {
    if (operators != FOperators) {
      FOperators = operators;
      FOperatorNames.clear();
      for (const TDSOperator* op : operators) AppendListItem(FOperatorNames, op->GetName());
    }
    return FOperatorNames;
  }

  void WriteGroups() {
    std::size_t number = 0;
    for (const TDSFieldGroup& group : FModel.FieldGroups()) {
      Section(NumberedName(GroupPrefix, ++number));
      FWriter.Key(GroupNameKey, group.GetGroupName());
      FWriter.Key(FieldsKey, FieldIDs(group));
    }
    Section(RootGroupSection);
    FWriter.Key(FieldsKey, FieldIDs(FModel.RootGroup()));
  }

  static std::string FieldIDs(const TDSFieldGroup& group) {
    std::string ids;
    for (const TDSField* field : group) AppendListItem(ids, std::to_string(field->GetID()));
    return ids;
  }

  void WriteSpecInfo() {
    if (FModel.GetDatabaseInfo() == nullptr || !FModel.DMOptions().GetStoreDBInfo()) return;
    if (FModel.GetSpecInfo().Empty()) return;
    Section(SpecInfoSection);
    FWriter.FreeLines(FModel.GetSpecInfo());
  }

  template <typename T>
  void WriteSettingsOf(std::string_view name, const T& settings, const T& byDefault) {
    if (settings == byDefault) return;
    Section(name);
    WriteSettings(FWriter, settings);
  }

  const TJCustomDBStructure& FModel;
  TSectionWriter FWriter;
  std::vector<TDSOperator*> FOperators;
  std::string FOperatorNames;
};

class TModelTextReader {
 public:
  TModelTextReader(std::string_view text, TJCustomDBStructure& model)
      : FText(text, IsModelHeader), FModel(model), FMain(FindMain()), FVersion(ReadVersion()) {}

  double Read() {
    // The settings first: the expressions of fields and conditions are read by them.
    if (const auto section = FText.First(SQLFormatsSection)) FModel.SQLFormats() = ReadSQLFormats(*section);
    if (const auto section = FText.First(DMOptionsSection)) FModel.DMOptions() = ReadDMOptions(*section);
    FModel.SetDefaultMainTable(FMain.Value(MainTableKey));
    FModel.SetRootFieldsFirst(FVersion >= RootFieldsFirstSince && FMain.Boolean(RootFieldsFirstKey, false));
    if (FVersion >= OperatorSectionsSince) {
      ReadOperators();
    } else if (FVersion >= OperationsSince) {
      ReadLegacyOperators();
    }
    if (FVersion >= TableSectionsSince) {
      ReadTables();
    } else {
      ReadLegacyTables();
    }
    AddLinks();
    ReadFields();
    ReadGroups();
    ReadConditions();
    if (const std::optional<TStrings> lines = FText.NextFree(SpecInfoSection)) FModel.SetSpecInfo(*lines);
    return FVersion;
  }

 private:
  /// A link section found behind its first table; its second table may stand further on.
  struct TFoundLink {
    TSection section;
    TDSTable* table1;
    std::string alias2;
    /// Where the table lists the link.
    TSection listSection;
    std::string listKey;
  };

  TSection FindMain() {
    if (const std::optional<TSection> main = FText.Next(MainSection)) return *main;
    throw EJDBStructError(9, SDBSECantFindSection, {MainSection});
  }

  double ReadVersion() const {
    const std::string_view text = Trim(FMain.Find(VersionKey).value_or(std::string_view()));
    if (text.empty()) return UnnumberedModelVersion;
    const std::optional<double> version = TryStrToFloat(text);
    if (!version || *version <= 0) RaiseWrongValue(FMain, VersionKey, text, "version");
    if (*version > CurrentModelVersion) {
      throw EConvertError(
          "%s: the model was written in version %s of the format; this program reads versions up to %s. Use a newer "
          "release of the program, or save the model in version %s",
          {FMain.Where(VersionKey), text, XFloatToStr(CurrentModelVersion), XFloatToStr(CurrentModelVersion)});
    }
    return *version;
  }

  /// Counts are only compared with, never allocated by.
  std::size_t ReadCount(std::string_view key) const {
    const std::int64_t count = FMain.Integer(key, 0);
    if (count < 0) RaiseWrongValue(FMain, key, std::to_string(count), "count");
    return static_cast<std::size_t>(count);
  }

  [[noreturn]] static void RaiseStructError(std::int32_t code, std::string_view message, std::string_view name,
                                            const TSection& section, std::string_view key) {
    throw EJDBStructError(code, section.Where(key) + ": " + Format(message, {name}));
  }

  /// Calls `read(section)` for as many sections of the prefix as the count says.
  template <typename TRead>
  void ReadCounted(std::string_view prefix, std::string_view countKey, TRead read) {
    const std::size_t count = ReadCount(countKey);
    for (std::size_t number = 1; number <= count; ++number) {
      const std::string name = NumberedName(prefix, number);
      const std::optional<TSection> section = FText.Next(name);
      if (!section) RaiseStructError(9, SDBSECantFindSection, name, FMain, countKey);
      read(*section);
    }
  }

  /// A display name that is missing, unlike an empty one, is the name.
  template <typename T>
  static void CompleteDisplayName(const TSection& section, T& object, const std::string& name) {
    if (object.GetDisplayName().empty() && !section.Find(DisplayNameKey)) object.SetDisplayName(name);
  }

  // Operators

  void ReadOperators() {
    ReadCounted(OperatorPrefix, OperatCountKey, [this](const TSection& section) {
      auto op = std::make_unique<TDSOperator>();
      ReadKeys(section, OperatorKeys(), *op);
      AddOperator(section, std::move(op));
    });
  }

  void ReadLegacyOperators() {
    const auto read = [this](const TSection& section) {
      auto op = std::make_unique<TDSOperator>();
      ReadLegacyOperator(section, OperatorKeys(), *op);
      AddOperator(section, std::move(op));
    };
    if (!FText.Next(LegacyOperationsSection)) {
      RaiseStructError(9, SDBSECantFindSection, LegacyOperationsSection, FMain, VersionKey);
    }
    if (FMain.Find(OperatCountKey)) return ReadCounted(LegacyOperationPrefix, OperatCountKey, read);
    for (std::size_t number = 1;; ++number) {
      const std::optional<TSection> section = FText.Next(NumberedName(LegacyOperationPrefix, number));
      if (!section) return;
      read(*section);
    }
  }

  void AddOperator(const TSection& section, std::unique_ptr<TDSOperator> op) {
    CompleteDisplayName(section, *op, op->GetName());
    FModel.AddOperatorRef(std::move(op));
  }

  // Tables and links

  void ReadTables() {
    ReadCounted(TablePrefix, TableCountKey, [this](const TSection& section) {
      auto table = std::make_unique<TDSTable>();
      ReadKeys(section, TableKeys(), *table);
      CompleteDisplayName(section, *table, table->GetTableName());
      std::string alias = section.Value(AliasKey);
      if (alias.empty() && !section.Find(AliasKey)) {
        alias = table->GetTableName();
        table->SetTableAlias(alias);
      }
      AddTable(std::move(table), alias, SplitList(section.Value(LinksKey)), section, LinksKey);
    });
  }

  void ReadLegacyTables() {
    const std::optional<TSection> section = FText.First(LegacyTablesSection);
    const std::optional<TStrings> lines = FText.NextFree(LegacyTablesSection);
    if (!section || !lines) RaiseStructError(9, SDBSECantFindSection, LegacyTablesSection, FMain, VersionKey);
    for (const std::string_view line : *lines) {
      const auto [key, value] = GetNameAndValueSep(line, "=");
      if (key.size() == line.size()) continue;  // no key
      auto table = std::make_unique<TDSTable>();
      const TLegacyTable found = ReadLegacyTable(*section, key, value, *table);
      AddTable(std::move(table), found.alias, found.links, *section, key);
    }
  }

  /// Finds the table's links behind its own section; `alias` is the alias as written.
  void AddTable(std::unique_ptr<TDSTable> newTable, const std::string& alias, const std::vector<std::string>& links,
                const TSection& section, std::string_view key) {
    TDSTable& table = FModel.GetTable(FModel.AddTableRef(std::move(newTable)));
    for (const std::string& alias2 : links) {
      const std::string name = LinkName(alias, alias2);
      const std::optional<TSection> found = FText.Next(name);
      if (!found) RaiseStructError(9, SDBSECantFindSection, name, section, key);
      FLinks.push_back({*found, &table, alias2, section, std::string(key)});
    }
  }

  void AddLinks() {
    for (const TFoundLink& found : FLinks) {
      TDSTable* table2 = TableByAlias(found.alias2);
      if (table2 == nullptr) RaiseStructError(4, SDBSENoTable, found.alias2, found.listSection, found.listKey);
      auto link = std::make_unique<TDSLink>(*found.table1, *table2);
      ReadKeys(found.section, LinkKeys(), *link);
      FModel.AddLinkByRef(std::move(link));
    }
  }

  /// Aliases have no blanks, but those in a text that was not written by the model may have.
  TDSTable* TableByAlias(std::string_view alias) const {
    if (TDSTable* table = FModel.TableByName(tnAlias, alias)) return table;
    if (alias.find(' ') == std::string_view::npos) return nullptr;
    return FModel.TableByName(tnAlias, ReplaceStr(alias, " ", "_"));
  }

  // Fields and groups

  void ReadFields() {
    ReadCounted(FieldPrefix, FieldCountKey, [this](const TSection& section) {
      auto field = std::make_unique<TDSField>();
      ReadKeys(section, FieldNameKeys(), *field);
      CompleteDisplayName(section, *field, field->GetFieldExpr());
      if (field->GetFieldKind() == jfkData) ReadFieldTable(section, *field);
      ReadKeys(section, FieldTypeKeys(), *field);
      // Texts without operators have nothing that the field could offer.
      if (FVersion >= OperationsSince) ReadFieldOperators(section, *field);
      ReadEditorKeys(section, field->GetValueEditor());
      if (field->GetEditType() == etSQL) ReadEditorQuery(section, *field);
      FModel.AddFieldRef(std::move(field));
    });
  }

  void ReadFieldTable(const TSection& section, TDSField& field) const {
    if (!section.Find(TableAliasKey)) return;
    const std::string alias = section.Value(TableAliasKey);
    TDSTable* table = TableByAlias(alias);
    // A field of no table, unless there is a table with that alias.
    if (table == nullptr && alias.empty()) return;
    if (table == nullptr) RaiseStructError(4, SDBSENoTable, alias, section, TableAliasKey);
    field.SetTable(table);
  }

  void ReadFieldOperators(const TSection& section, TDSField& field) {
    // Many fields offer the same operators, and their lists are equal texts.
    const auto [entry, isNew] = FOperatorLists.try_emplace(section.Value(OperatorsKey));
    if (isNew) {
      for (const std::string& name : SplitList(entry->first)) {
        TDSOperator* op = FModel.OperatorByName(name);
        if (op == nullptr) RaiseStructError(6, SDBSEOperatorNotFound, name, section, OperatorsKey);
        entry->second.push_back(op);
      }
    }
    for (TDSOperator* op : entry->second) field.AddOperator(*op);
  }

  void ReadEditorQuery(const TSection& section, TDSField& field) {
    const std::string name = std::string(section.Name()).append(SQLSuffix);
    const std::optional<TStrings> lines = FText.NextFree(name);
    if (!lines) RaiseStructError(9, SDBSECantFindSection, name, section, "EditType");
    static_cast<TDSSQLEditor&>(*field.GetValueEditor()).SetSQL(*lines);
  }

  void ReadGroups() {
    // Taken out from the end, the fields are placed anew without a search each.
    TDSFieldGroup& root = FModel.RootGroup();
    while (!root.Empty()) root.Delete(root.Count() - 1);
    for (TDSField& field : FModel.Fields()) {
      if (FModel.FieldByID(field.GetID()) != &field) FTwins[field.GetID()].push_back(&field);
    }
    ReadCounted(GroupPrefix, GroupCountKey, [this](const TSection& section) {
      PlaceFields(section, FModel.FieldGroups().AddGroup(section.Value(GroupNameKey)));
    });
    if (const std::optional<TSection> section = FText.Next(RootGroupSection)) PlaceFields(*section, root);
    for (TDSField& field : FModel.Fields()) {
      if (field.GetGroup() == nullptr) root.Add(field);
    }
  }

  /// A field that is listed more than once stays where it is listed first; an ID that several fields have is listed
  /// once for each.
  void PlaceFields(const TSection& section, TDSFieldGroup& group) {
    for (const std::string& item : SplitCommaText(section.Value(FieldsKey))) {
      const std::optional<std::int64_t> id = TryStrToInt(item);
      TDSField* field =
          id && *id == static_cast<std::int32_t>(*id) ? FModel.FieldByID(static_cast<std::int32_t>(*id)) : nullptr;
      if (field == nullptr) RaiseWrongValue(section, FieldsKey, item, "field ID of this model");
      if (field->GetGroup() != nullptr) field = NextTwin(field->GetID());
      if (field != nullptr) group.Add(*field);
    }
  }

  /// The next field of an ID that an earlier field has; null when all are placed.
  TDSField* NextTwin(std::int32_t id) {
    const auto twins = FTwins.find(id);
    if (twins == FTwins.end() || twins->second.empty()) return nullptr;
    TDSField* field = twins->second.front();
    twins->second.pop_front();
    return field;
  }

  void ReadConditions() {
    std::int32_t lastID = 0;
    ReadCounted(ConditionPrefix, CondCountKey, [this, &lastID](const TSection& section) {
      auto condition = std::make_unique<TDSCondition>();
      ReadKeys(section, ConditionKeys(), *condition);
      ReadValueEditors(section, condition->Values(), FModel);
      if (condition->GetID() == 0 && lastID < std::numeric_limits<std::int32_t>::max()) condition->SetID(lastID + 1);
      lastID = std::max(lastID, condition->GetID());
      FModel.Conditions().Add(std::move(condition));
    });
  }

  TSectionedText FText;
  TJCustomDBStructure& FModel;
  const TSection FMain;
  const double FVersion;
  std::vector<TFoundLink> FLinks;
  std::unordered_map<std::string, std::vector<TDSOperator*>> FOperatorLists;
  std::unordered_map<std::int32_t, std::deque<TDSField*>> FTwins;
};

}  // namespace

std::string WriteModelText(const TJCustomDBStructure& model) { return TModelTextWriter(model).Write(); }

double ReadModelText(std::string_view text, TJCustomDBStructure& model) { return TModelTextReader(text, model).Read(); }

}  // namespace tolvi
