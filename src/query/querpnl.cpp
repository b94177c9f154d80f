#include <algorithm>
#include <utility>

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

/// An event whose handler runs; where to tell that it has destroyed the panel.
struct TJQueryPanel::TFiring {
  TFiring(TJQueryPanel& panel, TEvent event) : panel(panel), event(event), outer(panel.FFiring) {
    panel.FFiring = this;
  }
  TFiring(const TFiring&) = delete;
  TFiring& operator=(const TFiring&) = delete;
  ~TFiring() {
    if (!destroyed) panel.FFiring = outer;
  }

  TJQueryPanel& panel;
  TEvent event;
  TFiring* outer;
  bool destroyed = false;
};

TJQueryPanel::~TJQueryPanel() {
  for (TFiring* firing = FFiring; firing != nullptr; firing = firing->outer) firing->destroyed = true;
  FQResult->Params().Clear();
  if (FDBStruct) FDBStruct->RemoveListener(*this);
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
  Raise(evActiveChange);
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

// Conditions

TSimpleCond& TJQueryPanel::AddCondition(TFilterBracket& bracket, TDSField& field) {
  auto condition = std::make_unique<TSimpleCond>(*this);
  condition->SetField(field);
  return AddAsCurrent(bracket, bracket.GetRowCount(), std::move(condition));
}

TSimpleCond& TJQueryPanel::AddConditionNum(TFilterBracket& bracket, int rowNum, TDSField& field) {
  auto condition = std::make_unique<TSimpleCond>(*this);
  condition->SetField(field);
  return AddAsCurrent(bracket, bracket.IndexForNewRow(rowNum), std::move(condition));
}

TFilterBracket& TJQueryPanel::AddBracket(TFilterBracket& bracket) {
  return AddAsCurrent(bracket, bracket.GetRowCount(), std::make_unique<TFilterBracket>(*this));
}

TFilterBracket& TJQueryPanel::AddBracketNum(TFilterBracket& bracket, int rowNum) {
  return AddAsCurrent(bracket, bracket.IndexForNewRow(rowNum), std::make_unique<TFilterBracket>(*this));
}

TCustomCond& TJQueryPanel::AddCustomCondition(TFilterBracket& bracket, TDSCondition& condition) {
  return AddAsCurrent(bracket, bracket.GetRowCount(), std::make_unique<TCustomCond>(*this, condition));
}

TSQLFragment& TJQueryPanel::AddSQLFragment(TFilterBracket& bracket, std::string_view sql) {
  auto fragment = std::make_unique<TSQLFragment>(*this);
  fragment->SetSQLExpr(sql);
  return AddAsCurrent(bracket, bracket.GetRowCount(), std::move(fragment));
}

template <typename TRow>
TRow& TJQueryPanel::AddAsCurrent(TFilterBracket& bracket, std::size_t index, std::unique_ptr<TRow> row) {
  TRow& result = *row;
  Together([&] {
    bracket.InsertRow(index, std::move(row));
    SetCurrentRow(&result);
  });
  return result;
}

TSimpleCond& TJQueryPanel::AddSimpleCond(TFilterBracket& bracket, TDSField& field, TDSOperator& op,
                                         std::string_view value1, std::string_view value2) {
  auto condition = std::make_unique<TSimpleCond>(*this);
  condition->SetField(field);
  condition->SetOperator(op);
  condition->SetValue(1, value1);
  condition->SetValue(2, value2);
  TSimpleCond& result = *condition;
  bracket.AddRow(std::move(condition));
  return result;
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

}  // namespace

void TJQueryPanel::EnumerateBracket(const TFilterBracket&) const {
  if (FNumbered) return;
  NumberRows(*FRoot, 1, [](TFilterRow& row, int number) { row.FRowNum = number; });
  FNumbered = true;
}

TFilterRow* TJQueryPanel::RowByNum(int rowNum) const {
  if (rowNum == 0) return FRoot.get();
  if (rowNum < 0 || rowNum > FRoot->GetLastRowNum()) return nullptr;
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

void TJQueryPanel::SetView(TQueryPanelView* view) {
  TQueryPanelView* old = std::exchange(FView, view);
  if (old != nullptr && view != nullptr && old != view) old->ActiveChanged(false);
}

void TJQueryPanel::SetCurrentRow(TFilterRow* row) {
  if (FCurrentRow == row) return;
  FCurrentRow = row;
  if (TQueryPanelView* view = Viewer()) view->CurrentRowChanged(row);
  Raise(evCurrentRowChange);
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
  if (FCurrentRow == nullptr || !FCurrentRow->IsWithin(row)) return;
  TFilterRow* next = nullptr;
  if (FRoot->GetRowCount() > 1) {
    next = RowBehind(row);
    if (next == nullptr) next = RowBefore(row);
  }
  SetCurrentRow(next);
}

void TJQueryPanel::RowInserted(TFilterRow& row) {
  RowsMoved();
  if (FLoading > 0) return;
  HoldBack();
  if (TQueryPanelView* view = row.Viewer()) view->RowInserted(row);
  row.GetParentBracket()->CheckIfAllDisabled();
  if (row.IsPlaced()) ShapeChanged();
  Release();
}

void TJQueryPanel::ClearRows() {
  HoldBack();
  SetCurrentRow(nullptr);
  FRoot->ClearRows();
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
  FQueryTopClause.clear();
  FQueryLimitClause.clear();
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
  Raise(evChange);
}

void TJQueryPanel::Raise(TEvent event) {
  if (FLoading > 0) return;
  for (const TFiring* firing = FFiring; firing != nullptr; firing = firing->outer) {
    if (firing->event == event) return;
  }
  FPending.Include(event);
  if (FHeldBack == 0) Fire();
}

void TJQueryPanel::Fire() {
  for (const auto& [event, member] : {std::pair(evActiveChange, &TJQueryPanel::OnActiveChange),
                                      std::pair(evCurrentRowChange, &TJQueryPanel::OnCurrentRowChange),
                                      std::pair(evChange, &TJQueryPanel::OnChange)}) {
    if (!FPending.Contains(event)) continue;
    FPending.Exclude(event);
    if (!(this->*member)) continue;
    const TPanelEvent handler = this->*member;
    const TFiring firing(*this, event);
    handler(*this);
    if (firing.destroyed) return;
  }
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

void TJQueryPanel::SetSQLTopClause(std::string_view clause) { SetHostClause(FSQLTopClause, clause, FQueryTopClause); }

void TJQueryPanel::SetSQLLimitClause(std::string_view clause) {
  SetHostClause(FSQLLimitClause, clause, FQueryLimitClause);
}

void TJQueryPanel::SetHostClause(std::string& own, std::string_view clause, std::string& ofQuery) {
  if (own == clause && ofQuery.empty()) return;
  own = clause;
  ofQuery.clear();
  ShapeChanged();
}

void TJQueryPanel::SetAllowSQLFragments(bool on) {
  if (FAllowSQLFragments == on) return;
  FAllowSQLFragments = on;
  ++FShapeRevision;
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
