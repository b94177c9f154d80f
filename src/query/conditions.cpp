#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/resultformula.h>
#include <tolvi/query/rows.h>
#include <tolvi/query/sqlfragment.h>
#include <tolvi/query/values.h>

// The rows that compare something: their values, fields, operators and predefined conditions.

namespace tolvi {

// Values

TFilterCond::~TFilterCond() {
  if (FSlots[0].param == nullptr && FSlots[1].param == nullptr) return;
  GetQueryPanel().QResult().Params().DeleteByCondition(*this);
}

TFilterCond::TSlot& TFilterCond::Slot(int index) {
  if (index != 1 && index != 2) throw EListError::OutOfBounds(index);
  return FSlots[static_cast<std::size_t>(index - 1)];
}

const TFilterCond::TSlot& TFilterCond::Slot(int index) const { return const_cast<TFilterCond*>(this)->Slot(index); }

void TFilterCond::SetValue(int index, std::string_view value) {
  TSlot& slot = Slot(index);
  if (slot.value == value) return;
  slot.value = value;
  slot.caption.clear();
  ValueChanged();
}

void TFilterCond::SetCaption(int index, std::string_view caption) {
  TSlot& slot = Slot(index);
  if (slot.caption == caption) return;
  slot.caption = caption;
  ValueChanged();
}

std::string TFilterCond::GetValueCaption(int index) const {
  const TSlot& slot = Slot(index);
  if (!slot.caption.empty()) return slot.caption;
  return ValueToDisplay(slot.value, GetValueType(index), GetQueryPanel().GetFormatSettings());
}

void TFilterCond::SetValueIsParam(int index, bool isParam) {
  TSlot& slot = Slot(index);
  if ((slot.param != nullptr) == isParam) return;
  TQueryResult& result = GetQueryPanel().QResult();
  if (isParam) {
    slot.param = &result.Params().Add(*this, index);
  } else {
    result.Params().Delete(static_cast<std::size_t>(result.Params().IndexOf(*slot.param)));
  }
  Changed();
}

void TFilterCond::SetSubQuery(const TStrings& lines) {
  if (FSubQuery == lines) return;
  FSubQuery = lines;
  Changed();
}

void TFilterCond::SetSubQueryOptions(TSQLOptions options) {
  if (FSubQueryOptions == options) return;
  FSubQueryOptions = options;
  ValueChanged();
}

void TFilterCond::ClearValues() {
  for (int index = 1; index <= 2; ++index) {
    SetValueIsParam(index, false);
    Slot(index) = {};
  }
  FSubQuery.Clear();
  FSubQueryOptions = {};
}

// A value changes the text of this condition only, so that the rest of the statement can be kept.
void TFilterCond::ValueChanged() {
  FTextStamp = 0;
  if (!IsPlaced()) return;
  if (TQueryPanelView* view = GetQueryPanel().Viewer()) view->RowChanged(*this);
  GetQueryPanel().ContentChanged();
}

// Condition on a field

TSimpleCond::TSimpleCond(TJQueryPanel& panel) : TFilterCond(frtSimpleCondition, panel) {
  panel.CheckIfDBStructAssigned();
  FField = panel.GetDefaultField();
  FOperator = panel.GetDefaultOperator(*FField);
}

void TSimpleCond::SetField(TDSField& field) {
  if (FField == &field) return;
  const TFieldType oldType = GetExprType();
  const TValueKind oldKind = FOperator->GetValueKind();
  TJQueryPanel& panel = GetQueryPanel();
  panel.HoldBack();
  FField = &field;
  FMissingFieldID = 0;
  FMissingFieldName.clear();
  if (FField->IndexOfOperator(*FOperator) < 0) {
    FOperator = panel.GetDefaultOperator(field);
    FMissingOperator.clear();
  }
  ClearUnfitValues(oldType, oldKind);
  Changed();
  panel.Release();
}

void TSimpleCond::SetOperator(TDSOperator& op) {
  if (FOperator == &op && FMissingOperator.empty()) return;
  const TFieldType oldType = GetExprType();
  const TValueKind oldKind = FOperator->GetValueKind();
  TJQueryPanel& panel = GetQueryPanel();
  panel.HoldBack();
  FOperator = &op;
  FMissingOperator.clear();
  ClearUnfitValues(oldType, oldKind);
  Changed();
  panel.Release();
}

// After a change of field or operator: empties what the new one cannot use.
void TSimpleCond::ClearUnfitValues(TFieldType oldType, TValueKind oldKind) {
  if (GetExprType() != oldType || (FOperator->GetValueKind() != oldKind && oldKind == vkSubQuery)) ClearValues();
  for (int index = GetValueCount() + 1; index <= 2; ++index) {
    SetValueIsParam(index, false);
    SetValue(index, {});
  }
}

TFieldType TSimpleCond::GetExprType() const {
  return FOperator->GetExprType() != ftUnknown ? FOperator->GetExprType() : FField->GetFieldType();
}

std::int32_t TSimpleCond::GetFieldID() const { return FMissingFieldID != 0 ? FMissingFieldID : FField->GetID(); }

const std::string& TSimpleCond::GetOperatorName() const {
  const bool isMissing = FOperator == &GetQueryPanel().GetDBStruct()->GetNullOperator();
  return isMissing ? FMissingOperator : FOperator->GetName();
}

void TSimpleCond::ReformatValue() {
  TJQueryPanel& panel = GetQueryPanel();
  panel.HoldBack();
  for (int index = 1; index <= GetValueCount(); ++index) {
    if (GetValueKind(index) != vkScalar || GetValueIsParam(index)) continue;
    SetValue(index, NormalizeValue(GetValue(index), GetValueType(index), panel.GetFormatSettings()));
  }
  panel.Release();
}

bool TSimpleCond::GetIsHavingRow() const { return FField->GetIsAggregate(); }

const std::string& TSimpleCond::GetSQLExpr() const { return FOperator->GetSQLExpr(); }

const TSimpleDSTableList& TSimpleCond::GetTables() const { return FField->Tables(); }

int TSimpleCond::GetValueCount() const { return std::min(2, static_cast<int>(FOperator->GetParamCount())); }

TValueKind TSimpleCond::GetValueKind(int) const { return FOperator->GetValueKind(); }

TFieldType TSimpleCond::GetValueType(int) const { return GetExprType(); }

int TSimpleCond::GetValueSize(int) const { return FField->GetFieldSize(); }

std::string TSimpleCond::GetValueName(int) const { return FField->GetDisplayName(); }

TDSValueEditor* TSimpleCond::GetValueEditor(int) const { return FField->GetValueEditor(); }

std::string TSimpleCond::GetMissing() const {
  const TJCustomDBStructure& model = *GetQueryPanel().GetDBStruct();
  if (FField == &model.GetNullField()) {
    if (!FMissingFieldName.empty()) return Format(SUnrecognizedFieldName, {FMissingFieldName});
    return Format(SUnrecognizedFieldName, {std::to_string(FMissingFieldID)});
  }
  if (FOperator == &model.GetNullOperator()) return Format(SUnrecognizedOperatorName, {FMissingOperator});
  return {};
}

void TSimpleCond::Resolve() {
  TJCustomDBStructure& model = *GetQueryPanel().GetDBStruct();
  if (FField == &model.GetNullField()) {
    TDSField* field =
        FMissingFieldName.empty() ? model.FieldByID(FMissingFieldID) : FindNamedField(model, FMissingFieldName);
    if (field != nullptr) {
      FField = field;
      FMissingFieldID = 0;
      FMissingFieldName.clear();
    }
  }
  if (FOperator == &model.GetNullOperator()) {
    if (TDSOperator* op = model.OperatorByName(FMissingOperator)) {
      FOperator = op;
      FMissingOperator.clear();
    }
  }
}

bool TSimpleCond::Forget(const void* part) {
  bool forgotten = false;
  const TJCustomDBStructure& model = *GetQueryPanel().GetDBStruct();
  if ((part == nullptr || part == FField) && FField != &model.GetNullField()) {
    if (FMissingFieldID == 0 && FMissingFieldName.empty()) FMissingFieldID = FField->GetID();
    FField = &model.GetNullField();
    forgotten = true;
  }
  if ((part == nullptr || part == FOperator) && FOperator != &model.GetNullOperator()) {
    if (FMissingOperator.empty()) FMissingOperator = FOperator->GetName();
    FOperator = &model.GetNullOperator();
    forgotten = true;
  }
  if (forgotten) ForgetText();
  return forgotten;
}

// Predefined condition

TCustomCond::TCustomCond(TJQueryPanel& panel, TDSCondition& condition)
    : TFilterCond(frtCustomCondition, panel), FCondition(&condition) {}

void TCustomCond::SetDSCondition(TDSCondition& condition) {
  if (FCondition == &condition) return;
  TJQueryPanel& panel = GetQueryPanel();
  panel.HoldBack();
  FCondition = &condition;
  FMissingID = 0;
  ClearValues();
  Changed();
  panel.Release();
}

std::int32_t TCustomCond::GetConditionID() const { return FMissingID != 0 ? FMissingID : FCondition->GetID(); }

const std::string& TCustomCond::GetSQLExpr() const { return FCondition->GetSQLExpr(); }

const TSimpleDSTableList& TCustomCond::GetTables() const { return FCondition->Tables(); }

int TCustomCond::GetValueCount() const { return std::min(2, static_cast<int>(FCondition->Values().Count())); }

namespace {

const TDSValue* ValueOf(const TDSCondition& condition, int index) {
  const auto at = static_cast<std::size_t>(index - 1);
  return at < condition.Values().Count() ? &condition.Values()[at] : nullptr;
}

}  // namespace

TValueKind TCustomCond::GetValueKind(int index) const {
  const TDSValue* value = ValueOf(*FCondition, index);
  return value != nullptr ? value->GetDataKind() : vkScalar;
}

TFieldType TCustomCond::GetValueType(int index) const {
  const TDSValue* value = ValueOf(*FCondition, index);
  return value != nullptr ? value->GetDataType() : ftString;
}

int TCustomCond::GetValueSize(int) const { return 0; }

std::string TCustomCond::GetValueName(int) const { return std::string(Trim(FCondition->GetCaption())); }

TDSValueEditor* TCustomCond::GetValueEditor(int index) const {
  const TDSValue* value = ValueOf(*FCondition, index);
  return value != nullptr ? value->GetValueEditor() : nullptr;
}

std::string TCustomCond::GetMissing() const {
  if (FCondition != &GetQueryPanel().GetDBStruct()->GetNullCondition()) return {};
  return Format("%s \"%d\"", {SUnrecognizedCondition.Text, FMissingID});
}

void TCustomCond::Resolve() {
  TJCustomDBStructure& model = *GetQueryPanel().GetDBStruct();
  if (FCondition != &model.GetNullCondition()) return;
  if (TDSCondition* condition = model.ConditionByID(FMissingID)) {
    FCondition = condition;
    FMissingID = 0;
  }
}

bool TCustomCond::Forget(const void* part) {
  TDSCondition& none = GetQueryPanel().GetDBStruct()->GetNullCondition();
  if (FCondition == &none || (part != nullptr && part != FCondition)) return false;
  if (FMissingID == 0) FMissingID = FCondition->GetID();
  FCondition = &none;
  ForgetText();
  return true;
}

// SQL

namespace {

std::string NoCondition(std::string_view sql, std::string_view fault) {
  return fault.empty() ? std::string() : Format("SQL \"%s\" is no condition: %s", {sql, fault});
}

}  // namespace

char TSQLFragment::OpenQuote() const { return FormatsOf(GetQueryPanel().GetDBStruct()).GetQuoteSymbol1(); }

void TSQLFragment::SetSQLExpr(std::string_view sql) {
  sql = Trim(sql);
  if (const std::string fault = NoCondition(sql, FragmentFault(sql, OpenQuote())); !fault.empty()) {
    throw EJQueryPanelError(0, fault);
  }
  if (sql == FSQLExpr) return;
  StoreSQLExpr(sql);
  Changed();
}

void TSQLFragment::StoreSQLExpr(std::string_view sql) {
  FSQLExpr = Trim(sql);
  FTablesRevision = 0;
  ForgetText();
}

void TSQLFragment::SetHaving(bool having) {
  if (FHaving == having) return;
  FHaving = having;
  Changed();
}

std::string TSQLFragment::TextFault() const { return NoCondition(FSQLExpr, FragmentFault(FSQLExpr, OpenQuote())); }

std::string TSQLFragment::GetFault() const {
  std::string fault = TextFault();
  if (fault.empty() && !GetQueryPanel().GetAllowSQLFragments()) {
    fault =
        Format("SQL \"%s\" is not allowed here: allow SQL in queries, or replace the row by conditions", {FSQLExpr});
  }
  return fault;
}

const TSimpleDSTableList& TSQLFragment::GetTables() const {
  const TJCustomDBStructure* model = GetQueryPanel().GetDBStruct();
  const std::uint64_t revision = model != nullptr ? model->GetRevision() : 0;
  if (revision != 0 && revision == FTablesRevision) return FTables;
  FTables.Clear();
  TStrings references;
  if (model != nullptr) {
    const TSQLFormats& formats = model->SQLFormats();
    const std::string sql = WithoutInnerTables(FSQLExpr, formats.GetQuoteSymbol1(), formats.GetQuoteSymbol2());
    model->ExcludeTablesBySQLExpr(sql, FTables, references);
  }
  FTablesRevision = revision;
  return FTables;
}

// Tables may be among the parts that go.
bool TSQLFragment::Forget(const void*) {
  FTablesRevision = 0;
  FTables.Clear();
  return false;
}

}  // namespace tolvi
