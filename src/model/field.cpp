#include <algorithm>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/field.h>

namespace tolvi {

void TDSField::SetID(std::int32_t id) { Set(FID, id == 0 && FDBStruct != nullptr ? FDBStruct->NextFieldID() : id); }

void TDSField::SetFieldName(std::string_view name) {
  if (FFieldKind == jfkVirtual) throw EJDBStructError(7, std::string(SDBSEAssignVirtFldName));
  Set(FFieldExpr, name);
}

const std::string& TDSField::GetSQLExpr() const {
  const TDSTable* table = GetTable();
  if (FFieldKind == jfkVirtual) return FFieldExpr;
  const std::uint64_t revision = FDBStruct != nullptr ? FDBStruct->GetRevision() : 0;
  if (revision == 0 || FSQLExprRevision != revision) {
    FSQLExpr.clear();
    if (table != nullptr) {
      table->AppendWhereExpr(FSQLExpr);
      FSQLExpr += '.';
    }
    FSQLExpr += GetFilterSQLExpr();
    FSQLExprRevision = revision;
  }
  return FSQLExpr;
}

void TDSField::SetSQLExpr(std::string_view expr) {
  if (FFieldKind == jfkData) throw EJDBStructError(8, std::string(SDBSEAssignExpr));
  FFieldExpr = expr;
  UpdateTables();
  Modified();
}

std::string TDSField::GetFilterSQLExpr() const {
  if (!FQuoted) return FFieldExpr;
  std::string result;
  FormatsOf(FDBStruct).AppendQuoted(result, FFieldExpr);
  return result;
}

std::string TDSField::GetNormalSQLExpr() const {
  if (FFieldKind == jfkVirtual) return FFieldExpr;
  std::string result;
  if (const TDSTable* table = GetTable()) {
    table->AppendWhereExpr(result);
    result += '.';
  }
  TSQLFormats().AppendQuoted(result, FFieldExpr);
  return result;
}

std::string TDSField::GetFullName() const {
  const TDSTable* table = GetTable();
  if (FFieldKind == jfkVirtual || table == nullptr) return FFieldExpr;
  return table->GetTableName() + "." + FFieldExpr;
}

std::string TDSField::GetCompoundName(std::string_view separator) const {
  const std::string& group = GetGroupName();
  return group.empty() ? FDisplayName : group + std::string(separator) + FDisplayName;
}

std::string TDSField::GetGroupByFields() const {
  if (FFieldKind == jfkData) return GetSQLExpr();
  return FIsAggregate ? std::string() : DBFields().Joined(", ");
}

void TDSField::SetTable(TDSTable* table) {
  if (GetTable() == table && FTables.Count() <= 1) return;
  FTables.Clear();
  if (table != nullptr) FTables.Add(*table);
  Modified();
}

void TDSField::SetEditType(TDSEditType type) {
  if (type == FEditType) return;
  FValueEditor = CreateValueEditor(type, FDBStruct);
  FEditType = type;
  Modified();
}

TDSOperator& TDSField::GetOperator(std::size_t index) const { return *FOperators[CheckedOperator(index)]; }

std::ptrdiff_t TDSField::IndexOfOperator(const TDSOperator& op) const {
  const auto found = std::find(FOperators.begin(), FOperators.end(), &op);
  return found == FOperators.end() ? -1 : found - FOperators.begin();
}

void TDSField::AddOperator(TDSOperator& op) {
  FOperators.push_back(&op);
  Modified();
}

void TDSField::AddOperatorByName(std::string_view name) {
  TDSOperator* op = FDBStruct != nullptr ? FDBStruct->OperatorByName(name) : nullptr;
  if (op == nullptr) throw EJDBStructError(6, SDBSEOperatorNotFound, {name});
  AddOperator(*op);
}

void TDSField::DelOperator(std::size_t index) {
  FOperators.erase(FOperators.begin() + static_cast<std::ptrdiff_t>(CheckedOperator(index)));
  Modified();
}

void TDSField::RemoveOperator(const TDSOperator& op) {
  if (const std::ptrdiff_t index = IndexOfOperator(op); index >= 0) DelOperator(static_cast<std::size_t>(index));
}

void TDSField::MoveOperat(std::size_t curIndex, std::size_t newIndex) {
  TDSOperator* op = FOperators[CheckedOperator(curIndex)];
  CheckedOperator(newIndex);
  FOperators.erase(FOperators.begin() + static_cast<std::ptrdiff_t>(curIndex));
  FOperators.insert(FOperators.begin() + static_cast<std::ptrdiff_t>(newIndex), op);
  Modified();
}

void TDSField::ClearOperators() {
  if (FOperators.empty()) return;
  FOperators.clear();
  Modified();
}

void TDSField::AddAppliedOperators() {
  FOperators.clear();
  if (FDBStruct != nullptr) {
    for (TDSOperator& op : FDBStruct->Operators()) {
      if (op.GetAppliedTypes().Contains(FFieldType)) FOperators.push_back(&op);
    }
  }
  Modified();
}

void TDSField::SetGroup(TDSFieldGroup& group) {
  if (FGroup != &group) group.Add(*this);
}

const std::string& TDSField::GetGroupName() const {
  static const std::string none;
  return FGroup != nullptr ? FGroup->GetGroupName() : none;
}

void TDSField::Modified() {
  if (FDBStruct != nullptr) FDBStruct->FieldsModified();
}

void TDSField::RefreshTables() const {
  if (FDBStruct != nullptr && FTablesStamp != FDBStruct->TablesStamp()) UpdateTables();
}

void TDSField::UpdateTables() const {
  FTables.Clear();
  FDBFields.Clear();
  if (FDBStruct == nullptr) return;
  FDBStruct->ExcludeTablesBySQLExpr(FFieldExpr, FTables, FDBFields);
  FTablesStamp = FDBStruct->TablesStamp();
}

std::size_t TDSField::CheckedOperator(std::size_t index) const {
  if (index >= FOperators.size()) throw EJDBStructError(3, SDBSEInvalidOperatorIndex, {index});
  return index;
}

}  // namespace tolvi
