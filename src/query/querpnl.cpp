#include <algorithm>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/sqlbuilder.h>

namespace tolvi {

TJQueryPanel::TJQueryPanel()
    : FDBStruct([this] { ModelDestroyed(); }),
      FQResult(std::make_unique<TQueryResult>(*this)),
      FBuilder(std::make_unique<TSQLBuilder>(*this)),
      FRoot(std::make_unique<TFilterBracket>(*this)) {
  FQResult->RFields().OnChange = [this] {
    if (TQueryPanelView* view = Viewer()) view->ResultFieldsChanged();
    ShapeChanged();
  };
}

TJQueryPanel::~TJQueryPanel() {
  if (FDBStruct) FDBStruct->RemoveListener(*this);
}

// Model

void TJQueryPanel::SetDBStruct(TJCustomDBStructure* dbStruct) {
  TJCustomDBStructure* old = FDBStruct.Get();
  if (old == dbStruct) return;
  if (dbStruct == nullptr) {
    SetActive(false);
    ClearRows();
    RFields().Clear();
  }
  if (old != nullptr) old->RemoveListener(*this);
  FDBStruct.Set(dbStruct);
  TablesChanging();
  FQResult->DbStructChanged();
  if (dbStruct != nullptr) {
    dbStruct->AddListener(*this);
    EachCondition(*FRoot, [](TFilterCond& condition) {
      condition.Forget(nullptr);
      condition.Resolve();
    });
  }
  ShapeChanged();
}

// The model's parts are gone already: nothing here may touch them.
void TJQueryPanel::ModelDestroyed() {
  TablesChanging();
  RFields().Clear();
  ClearRows();
  FQResult->DbStructChanged();
  SetActive(false);
}

void TJQueryPanel::CheckIfDBStructAssigned() const {
  if (!FDBStruct) throw EJQueryPanelError(0, std::string(SDBStructNotSpecified));
}

void TJQueryPanel::SetActive(bool active) {
  if (FActive == active) return;
  if (active) CheckIfDBStructAssigned();
  FActive = active;
  ++FShapeRevision;
  if (TQueryPanelView* view = Viewer()) view->ActiveChanged(active);
  if (OnActiveChange && FLoading == 0) {
    const TPanelEvent handler = OnActiveChange;
    handler(*this);
  }
}

TDSField* TJQueryPanel::GetDefaultField() const {
  for (TDSField& field : FDBStruct->Fields()) {
    if (field.GetUseInConditions()) return &field;
  }
  return &FDBStruct->GetNullField();
}

TDSOperator* TJQueryPanel::GetDefaultOperator(const TDSField& field) const {
  if (field.GetOperatCount() > 0) return &field.GetOperator(0);
  return FDBStruct->GetOperatCount() > 0 ? &FDBStruct->GetOperator(0) : &FDBStruct->GetNullOperator();
}

void TJQueryPanel::FieldRemoved(TDSField& field) {
  EachCondition(*FRoot, [&field](TFilterCond& condition) { condition.Forget(&field); });
  RFields().FieldRemoved(field);
  ShapeChanged();
}

void TJQueryPanel::OperatorRemoved(TDSOperator& op) {
  EachCondition(*FRoot, [&op](TFilterCond& condition) { condition.Forget(&op); });
  ShapeChanged();
}

void TJQueryPanel::ConditionRemoved(TDSCondition& condition) {
  EachCondition(*FRoot, [&condition](TFilterCond& row) { row.Forget(&condition); });
  ShapeChanged();
}

void TJQueryPanel::TablesChanging() {
  FMainTable = nullptr;
  FQResult->RTables().Clear();
  FQResult->FTableFilters.Clear();
  ++FShapeRevision;
}

void TJQueryPanel::StructureClearing() {
  TablesChanging();
  EachCondition(*FRoot, [](TFilterCond& condition) { condition.Forget(nullptr); });
  RFields().ForgetFields();
}

void TJQueryPanel::StructureLoaded() {
  EachCondition(*FRoot, [](TFilterCond& condition) { condition.Resolve(); });
  RFields().ResolveFields();
  ShapeChanged();
}

// Conditions

TSimpleCond& TJQueryPanel::AddCondition(TFilterBracket& bracket, TDSField& field) {
  auto condition = std::make_unique<TSimpleCond>(*this);
  condition->SetField(field);
  TFilterRow& row = bracket.AddRow(std::move(condition));
  SetCurrentRow(&row);
  return static_cast<TSimpleCond&>(row);
}

TSimpleCond& TJQueryPanel::AddConditionNum(TFilterBracket& bracket, int rowNum, TDSField& field) {
  auto condition = std::make_unique<TSimpleCond>(*this);
  condition->SetField(field);
  TFilterRow& row = bracket.InsertRow(bracket.IndexForNewRow(rowNum), std::move(condition));
  SetCurrentRow(&row);
  return static_cast<TSimpleCond&>(row);
}

TFilterBracket& TJQueryPanel::AddBracket(TFilterBracket& bracket) {
  TFilterBracket& row = bracket.AddNewBracket();
  SetCurrentRow(&row);
  return row;
}

TFilterBracket& TJQueryPanel::AddBracketNum(TFilterBracket& bracket, int rowNum) {
  TFilterBracket& row = bracket.InsertNewBracketByNum(rowNum);
  SetCurrentRow(&row);
  return row;
}

TCustomCond& TJQueryPanel::AddCustomCondition(TFilterBracket& bracket, TDSCondition& condition) {
  TCustomCond& row = bracket.AddCustomCond(condition);
  SetCurrentRow(&row);
  return row;
}

TSimpleCond& TJQueryPanel::AddSimpleCond(TFilterBracket& bracket, TDSField& field, TDSOperator& op,
                                         std::string_view value1, std::string_view value2) {
  auto condition = std::make_unique<TSimpleCond>(*this);
  condition->SetField(field);
  condition->SetOperator(op);
  condition->SetValue(1, value1);
  condition->SetValue(2, value2);
  return static_cast<TSimpleCond&>(bracket.AddRow(std::move(condition)));
}

void TJQueryPanel::EachCondition(TFilterBracket& bracket, const std::function<void(TFilterCond&)>& call) {
  for (TFilterRow& row : bracket) {
    if (row.GetRowType() == frtBracket) {
      EachCondition(static_cast<TFilterBracket&>(row), call);
    } else {
      call(static_cast<TFilterCond&>(row));
    }
  }
}

namespace {

int NumberRows(const TFilterBracket& bracket, int next, const std::function<void(TFilterRow&, int)>& store) {
  for (TFilterRow& row : bracket) {
    store(row, next++);
    if (row.GetRowType() == frtBracket) next = NumberRows(static_cast<TFilterBracket&>(row), next, store);
  }
  return next;
}

/// The row that follows in display order, the rows inside it left out.
TFilterRow* RowBehind(const TFilterRow& row) {
  for (const TFilterRow* at = &row; at->GetParentBracket() != nullptr; at = at->GetParentBracket()) {
    const TFilterBracket& parent = *at->GetParentBracket();
    const std::size_t next = at->GetRowIndex() + 1;
    if (next < parent.GetRowCount()) return &parent.GetRow(next);
  }
  return nullptr;
}

TFilterRow* RowAfter(const TFilterRow& row) {
  if (row.GetRowType() == frtBracket) {
    if (TFilterRow* first = static_cast<const TFilterBracket&>(row).FirstRow()) return first;
  }
  return RowBehind(row);
}

TFilterRow* RowBefore(const TFilterRow& row) {
  TFilterBracket* parent = row.GetParentBracket();
  if (parent == nullptr || row.GetRowIndex() == 0) return parent;
  TFilterRow* before = &parent->GetRow(row.GetRowIndex() - 1);
  while (before->GetRowType() == frtBracket) {
    TFilterRow* last = static_cast<TFilterBracket*>(before)->LastRow();
    if (last == nullptr) break;
    before = last;
  }
  return before;
}

bool IsWithin(const TFilterRow* row, const TFilterRow& outer) {
  while (row != nullptr && row != &outer) row = row->GetParentBracket();
  return row != nullptr;
}

}  // namespace

void TJQueryPanel::EnumerateBracket(const TFilterBracket&) const {
  if (FNumbered) return;
  NumberRows(*FRoot, 1, [](TFilterRow& row, int number) { row.FRowNum = number; });
  FNumbered = true;
}

TFilterRow* TJQueryPanel::RowByNum(int rowNum) const {
  if (rowNum == 0) return FRoot.get();
  const TFilterBracket* bracket = FRoot.get();
  while (true) {
    const std::size_t behind = bracket->IndexForNewRow(rowNum + 1);
    if (behind == 0) return nullptr;
    TFilterRow& row = bracket->GetRow(behind - 1);
    if (row.GetRowNum() == rowNum) return &row;
    if (row.GetRowType() != frtBracket) return nullptr;
    bracket = static_cast<const TFilterBracket*>(&row);
  }
}

void TJQueryPanel::SetCurrentRow(TFilterRow* row) {
  if (FCurrentRow == row) return;
  FCurrentRow = row;
  if (TQueryPanelView* view = Viewer()) view->CurrentRowChanged(row);
  if (OnCurrentRowChange && FLoading == 0) {
    const TPanelEvent handler = OnCurrentRowChange;
    handler(*this);
  }
}

bool TJQueryPanel::NextRow() {
  TFilterRow* next = FCurrentRow != nullptr ? RowAfter(*FCurrentRow) : FRoot.get();
  if (next != nullptr) SetCurrentRow(next);
  return next != nullptr;
}

bool TJQueryPanel::PrevRow() {
  TFilterRow* before = FCurrentRow != nullptr ? RowBefore(*FCurrentRow) : nullptr;
  if (before != nullptr) SetCurrentRow(before);
  return before != nullptr;
}

void TJQueryPanel::DeleteCurrentRow() {
  if (FCurrentRow == nullptr || FCurrentRow->GetParentBracket() == nullptr) return;
  FCurrentRow->GetParentBracket()->DeleteRow(FCurrentRow->GetRowIndex());
}

void TJQueryPanel::LeaveRow(const TFilterRow& row) {
  if (!IsWithin(FCurrentRow, row)) return;
  TFilterRow* next = nullptr;
  if (FRoot->GetRowCount() > 1) {
    next = RowBehind(row);
    if (next == nullptr) next = RowBefore(row);
  }
  SetCurrentRow(next);
}

void TJQueryPanel::RowInserted(TFilterRow& row) {
  RowsMoved();
  if (row.GetParentBracket() != nullptr && FLoading == 0) row.GetParentBracket()->CheckIfAllDisabled();
  if (TQueryPanelView* view = Viewer()) view->RowInserted(row);
  ShapeChanged();
}

void TJQueryPanel::RowRemoved(TFilterRow& row) {
  RowsMoved();
  row.FRowState = rsDestroying;
  if (TQueryPanelView* view = Viewer()) view->RowRemoved(row);
  ShapeChanged();
}

void TJQueryPanel::ClearRows() {
  FCurrentRow = nullptr;
  FRoot->ClearRows();
  HoldBack();
  FRoot->SetLinkType(fltAll);
  FRoot->SetEnabled(true);
  Release();
}

void TJQueryPanel::ClearAll() {
  HoldBack();
  ClearRows();
  RFields().Clear();
  FQResult->ClearParams();
  FQueryName.clear();
  FDescription.Clear();
  FUserData.Clear();
  ShapeChanged();
  Release();
}

// Change notification

void TJQueryPanel::ShapeChanged() {
  ++FShapeRevision;
  ContentChanged();
}

void TJQueryPanel::ContentChanged() {
  if (FLoading > 0) return;
  FModified = true;
  if (FHeldBack > 0) {
    FChangePending = true;
    return;
  }
  if (!OnChange) return;
  const TPanelEvent handler = OnChange;
  handler(*this);
}

void TJQueryPanel::Release() {
  if (--FHeldBack > 0 || !FChangePending) return;
  FChangePending = false;
  ContentChanged();
}

// Statement

void TJQueryPanel::RefreshMainTable() {
  FMainTable = FDBStruct ? FDBStruct->TableByName(tnAlias, FDBStruct->GetDefaultMainTable()) : nullptr;
}

void TJQueryPanel::BuildQuery() {
  CheckIfDBStructAssigned();
  FBuilder->BuildQuery();
}

const std::string& TJQueryPanel::GetQueryText() {
  BuildQuery();
  return FQResult->GetSQLText();
}

TStrings TJQueryPanel::GetSQL() {
  BuildQuery();
  return FQResult->GetSQL();
}

TBoundStatement TJQueryPanel::GetBoundStatement(TMarkerStyle style) {
  CheckIfDBStructAssigned();
  return FBuilder->BuildBound(style);
}

void TJQueryPanel::BuildFilters() {
  CheckIfDBStructAssigned();
  FBuilder->BuildFilters();
}

std::string TJQueryPanel::ExtractValue(const TFilterCond& condition, int index) const {
  return FBuilder->ExtractValue(condition, index);
}

void TJQueryPanel::SetSQLTopClause(std::string_view clause) {
  if (FSQLTopClause == clause) return;
  FSQLTopClause = clause;
  ShapeChanged();
}

void TJQueryPanel::SetSQLLimitClause(std::string_view clause) {
  if (FSQLLimitClause == clause) return;
  FSQLLimitClause = clause;
  ShapeChanged();
}

void TJQueryPanel::SetFormatSettings(const TFormatSettings& settings) {
  if (FFormatSettings == settings) return;
  FFormatSettings = settings;
  ShapeChanged();
}

// Texts

void TJQueryPanel::SetQueryName(std::string_view name) {
  if (FQueryName == name) return;
  FQueryName = name;
  ContentChanged();
}

void TJQueryPanel::SetDescription(const TStrings& lines) {
  if (FDescription == lines) return;
  FDescription = lines;
  ContentChanged();
}

void TJQueryPanel::SetUserData(const TStrings& lines) {
  if (FUserData == lines) return;
  FUserData = lines;
  ContentChanged();
}

void TJQueryPanel::SetTitle(std::string_view name, std::string_view text) {
  FTitles.SetTitle(name, text);
  if (TQueryPanelView* view = Viewer()) view->TitlesChanged();
}

void TJQueryPanel::SetTitles(const TStrings& lines) {
  FTitles.Assign(lines);
  if (TQueryPanelView* view = Viewer()) view->TitlesChanged();
}

void TJQueryPanel::LoadDefTitles() {
  FTitles.LoadDefTitles();
  if (TQueryPanelView* view = Viewer()) view->TitlesChanged();
}

}  // namespace tolvi
