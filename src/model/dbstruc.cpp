#include <algorithm>
#include <limits>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/model/pathfinder.h>

namespace tolvi {
namespace {

/// Types that no result column shows unless the developer says so.
constexpr TFieldTypes HiddenResultTypes{ftVarBytes, ftBlob, ftTypedBinary};

constexpr int VirtualFieldSize = 100;

}  // namespace

TJCustomDBStructure::TJCustomDBStructure()
    : FVersion(CurrentModelVersion),
      FSQLFormats([this] { SettingsModified(); }),
      FDMOptions([this] { SettingsModified(); }),
      FConditions(*this),
      FFieldGroups(*this),
      FRootGroup(this),
      FNullField(std::make_unique<TDSField>()),
      FNullOperator(std::make_unique<TDSOperator>()),
      FNullCondition(std::make_unique<TDSCondition>(this)),
      FCurPath(this),
      FPathFinder(std::make_unique<TPathFinder>()) {
  FNullField->FDBStruct = this;
  FNullField->FFieldExpr = SUnrecognizedField.Text;
  FNullField->FDisplayName = SUnrecognizedField.Text;
  FNullOperator->SetName(SUnrecognizedOperator.Text);
  FNullOperator->SetSQLExpr("@f @1");
  FNullOperator->SetDisplayName(SUnrecognizedOperator.Text);
  FNullCondition->SetDisplayFormat(SUnrecognizedCondition.Text);
  LoadDefsOpertors();
  AddDefOperators(true);
}

// Tables

std::size_t TJCustomDBStructure::AddTable(std::string_view tableName, std::string_view displayName) {
  auto table = std::make_unique<TDSTable>();
  table->SetTableName(tableName);
  table->SetTableAlias(tableName);
  table->SetDisplayName(displayName);
  table->SetQuoted(tableName.find(' ') != std::string_view::npos);
  return AddTableRef(std::move(table));
}

std::size_t TJCustomDBStructure::AddTableRef(std::unique_ptr<TDSTable> table) {
  table->FDBStruct = this;
  FTables.Add(std::move(table));
  ++FRevisions.links;
  const std::size_t index = FTables.Count() - 1;
  Changed();
  return index;
}

void TJCustomDBStructure::DelTable(std::size_t index) {
  TDSTable& table = GetTable(index);
  Tell([](TDSListener& listener) { listener.TablesChanging(); });
  for (std::size_t i = FLinks.Count(); i-- > 0;) {
    if (FLinks[i].ContainsTable(table)) DropLink(i);
  }
  for (std::size_t i = FFields.Count(); i-- > 0;) {
    TDSField& field = FFields[i];
    if (field.FFieldKind == jfkData && field.GetTable() == &table) {
      DropField(i);
    } else {
      field.FTables.Remove(table);
    }
  }
  for (TDSCondition& condition : FConditions) condition.FTables.Remove(table);
  FCurPath.Clear();
  const std::unique_ptr<TDSTable> dropped = FTables.Delete(index);
  ++FRevisions.links;
  TablesModified();
}

void TJCustomDBStructure::MoveTable(std::size_t from, std::size_t to) {
  GetTable(from);
  GetTable(to);
  FTables.Move(from, to);
  ++FRevisions.links;
  TablesModified();
}

TDSTable& TJCustomDBStructure::GetTable(std::size_t index) const {
  if (index >= FTables.Count()) throw EJDBStructError(1, SDBSEInvalidTableIndex, {index});
  return FTables[index];
}

namespace {

std::string TableNameOf(const TDSTable& table, int what) {
  switch (what) {
    case tnName:
      return table.GetTableName();
    case tnAlias:
      return table.GetTableAlias();
    case tnDisplayName:
      return table.GetDisplayName();
    case tnCompoundName:
      return table.GetCompoundName();
    case tnFromExpr:
      return table.GetFromExpr();
    default:
      return table.GetFullName();
  }
}

std::string WithoutQuoteSymbols(std::string_view expr, const TSQLFormats& formats) {
  std::string result(expr);
  std::erase_if(result,
                [&formats](char c) { return c == formats.GetQuoteSymbol1() || c == formats.GetQuoteSymbol2(); });
  return result;
}

std::string FieldNameOf(const TDSField& field, int what, const TSQLFormats& formats) {
  switch (what) {
    case fnFieldExpr:
      return field.GetFieldExpr();
    case fnDisplayName:
      return field.GetDisplayName();
    case fnFullName:
      return field.GetFullName();
    default:
      return WithoutQuoteSymbols(field.GetSQLExpr(), formats);
  }
}

}  // namespace

TDSTable* TJCustomDBStructure::TableByName(int what, std::string_view name) const {
  if (what < tnName || what > tnFullName) return nullptr;
  return FTableIndexes[static_cast<std::size_t>(what)].Find(
      FTables, FRevisions.tables, name, [what](const TDSTable& table) { return TableNameOf(table, what); });
}

void TJCustomDBStructure::GetTableNames(int what, TStrings& names) const {
  names.Clear();
  if (what < tnName || what > tnFullName) return;
  for (const TDSTable& table : FTables) names.Add(TableNameOf(table, what));
}

// Fields

std::size_t TJCustomDBStructure::AddField(TJFieldKind kind, std::string_view sqlExpr, std::string_view displayName,
                                          TDSTable* table) {
  auto field = std::make_unique<TDSField>(kind);
  field->FFieldExpr = sqlExpr;
  field->FDisplayName = displayName;
  if (kind == jfkVirtual) {
    field->FFieldType = ftString;
    field->FFieldSize = VirtualFieldSize;
  } else {
    field->SetTable(table);
    field->FQuoted = sqlExpr.find(' ') != std::string_view::npos;
    ProcessNewField(*field);
    if (HiddenResultTypes.Contains(field->FFieldType)) field->FUseInResult = false;
  }
  AppendField(std::move(field));
  const std::size_t index = FFields.Count() - 1;
  Changed();
  return index;
}

std::size_t TJCustomDBStructure::AddFieldRef(std::unique_ptr<TDSField> field) {
  if (field->FFieldKind == jfkData) ProcessNewField(*field);
  AppendField(std::move(field));
  const std::size_t index = FFields.Count() - 1;
  Changed();
  return index;
}

std::int32_t TJCustomDBStructure::NextFieldID() const {
  if (GetLastFieldID() == std::numeric_limits<std::int32_t>::max()) {
    throw EJDBStructError(0, "No free field ID is left: a field has the largest one, give that field a smaller ID");
  }
  return GetLastFieldID() + 1;
}

TDSField& TJCustomDBStructure::AppendField(std::unique_ptr<TDSField> field) {
  if (field->FID == 0) field->FID = NextFieldID();
  field->FDBStruct = this;
  BindEditor(field->FValueEditor.get(), this);
  if (field->FFieldKind == jfkVirtual) field->UpdateTables();
  if (FLastFieldID) FLastFieldID = std::max(*FLastFieldID, field->FID);
  TDSField& result = FFields.Add(std::move(field));
  result.FGroup = &FRootGroup;
  FRootGroup.FFields.push_back(&result);
  return result;
}

void TJCustomDBStructure::BindEditor(TDSValueEditor* editor, TJCustomDBStructure* model) {
  if (auto* sqlEditor = dynamic_cast<TDSSQLEditor*>(editor)) sqlEditor->FDBStruct = model;
}

void TJCustomDBStructure::ProcessNewField(TDSField& field) {
  const TDSTable* table = field.GetTable();
  if (!FDBInfo || !FDBInfo->GetConnected() || table == nullptr) return;
  const TDBFieldInfo* info = FDBInfo->GetFieldList(table->GetFullName()).FindByName(field.FFieldExpr);
  if (info == nullptr) throw EJDBStructError(10, SDBSECantFindFieldInTbl, {field.FFieldExpr, table->GetTableName()});
  field.FFieldType = info->GetFieldType();
  field.FFieldSize = info->GetFieldSize();
}

void TJCustomDBStructure::DelField(std::size_t index) {
  DropField(index);
  FieldsModified();
}

void TJCustomDBStructure::DropField(std::size_t index) {
  const std::unique_ptr<TDSField> field = FFields.Delete(index);
  ForgetField(*field);
  ++FRevisions.fields;
  FLastFieldID.reset();
}

void TJCustomDBStructure::ForgetField(TDSField& field) {
  Tell([&field](TDSListener& listener) { listener.FieldRemoved(field); });
  if (field.FGroup != nullptr) std::erase(field.FGroup->FFields, &field);
}

TDSField* TJCustomDBStructure::FieldByName(int what, std::string_view name) const {
  if (what < fnFieldExpr || what > fnSQLExpr) return nullptr;
  const auto keyOf = [what, this](const TDSField& field) { return FieldNameOf(field, what, FSQLFormats); };
  const TNameIndex<TDSField>& index = FFieldIndexes[static_cast<std::size_t>(what)];
  if (what != fnSQLExpr) return index.Find(FFields, FRevisions.fields, name, keyOf);
  return index.Find(FFields, FRevisions.fields, WithoutQuoteSymbols(name, FSQLFormats), keyOf);
}

TDSField* TJCustomDBStructure::FieldByID(std::int32_t id) const {
  return FFieldIDs.Find(FFields, FRevisions.fields, id, [](const TDSField& field) { return field.FID; });
}

void TJCustomDBStructure::GetFieldNames(int what, TStrings& names) const {
  names.Clear();
  if (what < fnFieldExpr || what > fnSQLExpr) return;
  for (const TDSField& field : FFields) {
    names.Add(what == fnSQLExpr ? field.GetSQLExpr() : FieldNameOf(field, what, FSQLFormats));
  }
}

std::int32_t TJCustomDBStructure::GetLastFieldID() const {
  if (!FLastFieldID) {
    std::int32_t last = 0;
    for (const TDSField& field : FFields) last = std::max(last, field.FID);
    FLastFieldID = last;
  }
  return *FLastFieldID;
}

bool TJCustomDBStructure::CheckIfAggregate(std::string_view expr) {
  const std::string lower = FoldCase(expr);
  for (std::string_view call : {"sum(", "count(", "max(", "min(", "avg(", "list("}) {
    if (lower.find(call) != std::string::npos) return true;
  }
  return false;
}

// Links

std::size_t TJCustomDBStructure::AddLinkByRef(std::unique_ptr<TDSLink> link) {
  for (const TDSTable* table : {link->FTable1, link->FTable2}) {
    if (table == nullptr || table->FDBStruct != this) {
      throw EJDBStructError(4, SDBSENoTable, {table != nullptr ? table->GetTableName() : std::string()});
    }
  }
  if (link->FOperators.Empty()) link->ApplyDefOperator();
  link->FDBStruct = this;
  TDSLink& added = FLinks.Add(std::move(link));
  added.FTable1->FLinks.push_back(&added);
  if (added.FTable2 != added.FTable1) added.FTable2->FLinks.push_back(&added);
  const std::size_t index = FLinks.Count() - 1;
  LinksModified();
  return index;
}

void TJCustomDBStructure::DelLink(std::size_t index) {
  GetLink(index);
  Tell([](TDSListener& listener) { listener.TablesChanging(); });
  DropLink(index);
  LinksModified();
}

void TJCustomDBStructure::DropLink(std::size_t index) {
  const std::unique_ptr<TDSLink> link = FLinks.Delete(index);
  for (TDSTable* table : {link->FTable1, link->FTable2}) std::erase(table->FLinks, link.get());
  ++FRevisions.links;
}

TDSLink& TJCustomDBStructure::GetLink(std::size_t index) const {
  if (index >= FLinks.Count()) throw EJDBStructError(2, SDBSEInvalidLinkIndex, {index});
  return FLinks[index];
}

TDSLink* TJCustomDBStructure::FindLink(std::string_view table1Name, std::string_view table2Name) const {
  for (TDSLink& link : FLinks) {
    const std::string& first = link.FTable1->GetTableName();
    const std::string& second = link.FTable2->GetTableName();
    if ((first == table1Name && second == table2Name) || (first == table2Name && second == table1Name)) return &link;
  }
  return nullptr;
}

// Paths

const TDSPath* TJCustomDBStructure::GetPath(std::string_view alias1, std::string_view alias2) const {
  const TDSTable* table1 = TableByName(tnAlias, alias1);
  if (table1 == nullptr) throw EJDBStructError(4, SDBSENoTable, {alias1});
  const TDSTable* table2 = TableByName(tnAlias, alias2);
  if (table2 == nullptr) throw EJDBStructError(4, SDBSENoTable, {alias2});
  return GetPath(*table1, *table2);
}

const TDSPath* TJCustomDBStructure::GetPath(const TDSTable& table1, const TDSTable& table2) const {
  for (const TDSTable* table : {&table1, &table2}) {
    if (table->FDBStruct != this) throw EJDBStructError(4, SDBSENoTable, {table->GetTableAlias()});
  }
  return FPathFinder->Find(*this, FRevisions.links, table1, table2, FCurPath) ? &FCurPath : nullptr;
}

// Settings

void TJCustomDBStructure::SetDefaultMainTable(std::string_view alias) {
  if (FDefaultMainTable == alias) return;
  FDefaultMainTable = alias;
  Changed();
}

void TJCustomDBStructure::SetRootFieldsFirst(bool on) {
  if (FRootFieldsFirst == on) return;
  FRootFieldsFirst = on;
  Changed();
}

void TJCustomDBStructure::SetSpecInfo(const TStrings& lines) {
  if (FSpecInfo == lines) return;
  FSpecInfo = lines;
  Changed();
}

const TSQLFormats& FormatsOf(const TJCustomDBStructure* model) {
  static const TSQLFormats byDefault;
  return model != nullptr ? model->SQLFormats() : byDefault;
}

}  // namespace tolvi
