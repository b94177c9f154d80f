#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelfill.h>
#include <tolvi/model/modelfill_plan.h>

namespace tolvi {
namespace {

struct TReportList {
  std::string_view Word;
  TStrings TFillReport::*Lines;
};

constexpr TReportList ReportLists[] = {
    {"table: ", &TFillReport::AddedTables},
    {"group: ", &TFillReport::AddedGroups},
    {"field: ", &TFillReport::AddedFields},
    {"list of values: ", &TFillReport::AddedLists},
    {"link: ", &TFillReport::AddedLinks},
    {"vanished table: ", &TFillReport::VanishedTables},
    {"vanished field: ", &TFillReport::VanishedFields},
    {"vanished link: ", &TFillReport::VanishedLinks},
    {"changed type: ", &TFillReport::ChangedTypes},
    {"note: ", &TFillReport::Notes},
};

/// Carries a plan out.
class TModelFiller final {
 public:
  TModelFiller(TJCustomDBStructure& model, const TFillPlan& plan)
      : FModel(model), FPlan(plan), FNextID(model.GetLastFieldID()) {}

  void Run() {
    if (FPlan.AddOperators) FModel.AddDefOperators(true);
    if (FPlan.QualifyTables) FModel.DMOptions().SetMultiDB(true);
    if (!FPlan.FullTableName.empty()) FModel.SQLFormats().SetFullTableName(FPlan.FullTableName);
    for (const TPlannedTable& table : FPlan.Tables)
      FTables.push_back(table.Existing ? table.Existing : AddTable(table));
    for (const TPlannedGroup& group : FPlan.Groups) {
      FGroups.push_back(group.Existing ? group.Existing : &FModel.FieldGroups().AddGroup(group.Name));
    }
    for (const TPlannedField& field : FPlan.Fields) AddField(field);
    for (const TPlannedLink& link : FPlan.Links) AddLink(link);
    for (const TPlannedType& type : FPlan.Types) ChangeType(type);
  }

 private:
  TDSTable* AddTable(const TPlannedTable& plan) {
    auto table = std::make_unique<TDSTable>();
    table->SetDatabaseName(plan.DatabaseName);
    table->SetTableName(plan.Name);
    table->SetTableAlias(plan.Alias);
    table->SetDisplayName(plan.DisplayName);
    table->SetQuoted(plan.Quoted);
    return &FModel.GetTable(FModel.AddTableRef(std::move(table)));
  }

  void AddField(const TPlannedField& plan) {
    auto added = std::make_unique<TDSField>(jfkData);
    added->SetID(plan.ID != 0 ? plan.ID : ++FNextID);
    added->SetFieldName(plan.Column);
    added->SetDisplayName(plan.DisplayName);
    added->SetFieldType(plan.Type);
    added->SetFieldSize(plan.Size);
    added->SetQuoted(plan.Quoted);
    added->SetUseInConditions(plan.UseInConditions);
    added->SetUseInResult(plan.UseInResult);
    if (!plan.ListSQL.empty()) {
      added->SetEditType(etSQL);
      static_cast<TDSSQLEditor&>(*added->GetValueEditor()).SetSQL({plan.ListSQL});
    }
    TDSField& field = *added;
    // The model asks the catalogue for fields that have a table; this one comes from there.
    FModel.AddFieldRef(std::move(added));
    field.SetTable(FTables[plan.Table]);
    field.SetGroup(*FGroups[plan.Group]);
    if (plan.UseInConditions) field.AddAppliedOperators();
  }

  void AddLink(const TPlannedLink& plan) {
    auto link = std::make_unique<TDSLink>(*FTables[plan.Table1], *FTables[plan.Table2]);
    link->SetFields1(plan.Fields1);
    link->SetFields2(plan.Fields2);
    link->SetLinkType(plan.LinkType);
    link->SetQuoteFields(plan.QuoteFields);
    FModel.AddLinkByRef(std::move(link));
  }

  static void ChangeType(const TPlannedType& plan) {
    TDSField& field = *plan.Field;
    const std::vector<TDSOperator*> before = field.Operators();
    field.AddAppliedOperators();
    const bool usual = field.Operators() == before;
    field.SetFieldType(plan.Type);
    field.SetFieldSize(plan.Size);
    if (usual) {
      field.AddAppliedOperators();
    } else {
      field.ClearOperators();
      for (TDSOperator* op : before) field.AddOperator(*op);
    }
  }

  TJCustomDBStructure& FModel;
  const TFillPlan& FPlan;
  std::int32_t FNextID;
  std::vector<TDSTable*> FTables;
  std::vector<TDSFieldGroup*> FGroups;
};

}  // namespace

bool TFillPlan::Empty() const {
  const bool noTables = std::all_of(Tables.begin(), Tables.end(), [](const auto& table) { return table.Existing; });
  return noTables && Fields.empty() && Links.empty() && Types.empty() && !AddOperators;
}

std::string TFillPlan::LinkText(const TPlannedLink& link) const {
  std::string text;
  for (std::size_t index = 0; index < link.Fields1.Count(); ++index) {
    if (!text.empty()) text += " and ";
    text.append(Tables[link.Table1].Alias).append(".").append(link.Fields1[index]).append(" = ");
    text.append(Tables[link.Table2].Alias).append(".").append(link.Fields2[index]);
  }
  return text;
}

TFillReport TFillPlan::Report() const {
  TFillReport report = Found;
  for (const TPlannedTable& table : Tables) {
    if (!table.Existing) report.AddedTables.Add(table.Alias);
  }
  for (const TPlannedGroup& group : Groups) {
    if (!group.Existing) report.AddedGroups.Add(group.Name);
  }
  for (const TPlannedField& field : Fields) {
    const std::string name = Tables[field.Table].Alias + "." + field.Column;
    report.AddedFields.Add(name);
    if (!field.ListSQL.empty()) report.AddedLists.Add(name);
  }
  for (const TPlannedLink& link : Links) report.AddedLinks.Add(LinkText(link));
  report.Notes.Clear();
  if (AddOperators) report.Notes.Add("The model had no operators: it gets the default ones");
  if (QualifyTables) report.Notes.Add("Statements name the tables with their schema: MultiDB is switched on");
  report.Notes.AddStrings(Found.Notes);
  return report;
}

bool TFillReport::Empty() const { return *this == TFillReport(); }

TStrings TFillReport::ToStrings() const {
  TStrings lines;
  for (const TReportList& list : ReportLists) {
    for (const std::string& line : this->*list.Lines) lines.Add(std::string(list.Word) + line);
  }
  return lines;
}

void ApplyFillPlan(TJCustomDBStructure& model, const TFillPlan& plan) {
  if (model.GetRevision() != plan.Revision) {
    throw EJDBStructError(0, "The model has changed since its catalogue was read: fill it again");
  }
  model.AsOneChange([&] { TModelFiller(model, plan).Run(); });
}

TFillReport FillModel(TJCustomDBStructure& model, TJDBInfo& info, const TFillOptions& options) {
  const TFillPlan plan = PlanFill(model, info, options);
  ApplyFillPlan(model, plan);
  return plan.Report();
}

TFillReport PreviewFill(const TJCustomDBStructure& model, TJDBInfo& info, const TFillOptions& options) {
  return PlanFill(model, info, options).Report();
}

}  // namespace tolvi
