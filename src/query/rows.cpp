#include <algorithm>

#include <tolvi/foundation/errors.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/rows.h>

namespace tolvi {
namespace {

constexpr std::string_view LinkTypeTitles[] = {"ttlAll", "ttlAny", "ttlNone", "ttlNotAll"};

}  // namespace

TFilterRow::TFilterRow(TFilterRowType rowType, TJQueryPanel& panel)
    : FRowType(rowType), FQueryPanel(panel), FSerial(++panel.FLastRowSerial) {}

TFilterRow::~TFilterRow() = default;

bool TFilterRow::IsWithin(const TFilterRow& outer) const {
  const TFilterRow* row = this;
  while (row != nullptr && row != &outer) row = row->FParentBracket;
  return row != nullptr;
}

std::size_t TFilterRow::GetRowIndex() const {
  return FParentBracket != nullptr ? FParentBracket->IndexOfChild(*this) : 0;
}

std::string TFilterRow::GetRowID() const {
  std::vector<std::size_t> numbers;
  for (const TFilterRow* row = this; row->FParentBracket != nullptr; row = row->FParentBracket) {
    numbers.push_back(row->GetRowIndex() + 1);
  }
  std::string result;
  for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
    result.append(".").append(std::to_string(*number));
  }
  return result;
}

int TFilterRow::GetRowLevel() const {
  int level = 0;
  for (const TFilterRow* row = FParentBracket; row != nullptr; row = row->FParentBracket) ++level;
  return level;
}

int TFilterRow::GetRowNum() const {
  FQueryPanel.EnumerateBracket(FQueryPanel.RootBracket());
  return FRowNum;
}

void TFilterRow::StoreEnabled(bool enabled) {
  if (FEnabled == enabled) return;
  FEnabled = enabled;
  if (FParentBracket == nullptr) return;
  if (enabled) {
    ++FParentBracket->FEnabledCount;
  } else {
    --FParentBracket->FEnabledCount;
  }
}

void TFilterRow::SetEnabled(bool enabled) {
  if (FEnabled == enabled) return;
  TJQueryPanel& panel = FQueryPanel;
  panel.HoldBack();
  StoreEnabled(enabled);
  ApplyEnabled(enabled);
  Changed();
  if (FParentBracket != nullptr) FParentBracket->CheckIfAllDisabled();
  panel.Release();
}

void TFilterRow::SetHidden(bool hidden) {
  if (FHidden == hidden) return;
  FHidden = hidden;
  if (TQueryPanelView* view = Viewer()) view->RowChanged(*this);
}

bool TFilterRow::GetVisible() const {
  for (const TFilterRow* row = this; row != nullptr; row = row->FParentBracket) {
    if (row->FHidden) return false;
  }
  return FQueryPanel.GetActive();
}

bool TFilterRow::MoveUp() {
  if (FParentBracket == nullptr || GetRowIndex() == 0) return false;
  return MoveTo(*FParentBracket, GetRowIndex() - 1);
}

bool TFilterRow::MoveDown() {
  if (FParentBracket == nullptr || GetRowIndex() + 1 >= FParentBracket->GetRowCount()) return false;
  return MoveTo(*FParentBracket, GetRowIndex() + 1);
}

bool TFilterRow::MoveLeft() {
  if (FParentBracket == nullptr || FParentBracket->IsRoot()) return false;
  return MoveTo(*FParentBracket->FParentBracket, FParentBracket->GetRowIndex() + 1);
}

bool TFilterRow::MoveRight() {
  if (FParentBracket == nullptr || GetRowIndex() == 0) return false;
  TFilterRow& before = FParentBracket->GetRow(GetRowIndex() - 1);
  if (before.FRowType != frtBracket) return false;
  auto& bracket = static_cast<TFilterBracket&>(before);
  return MoveTo(bracket, bracket.GetRowCount());
}

bool TFilterRow::CanMoveInto(const TFilterBracket& bracket, std::size_t index) const {
  if (FParentBracket == nullptr || &bracket.FQueryPanel != &FQueryPanel || index > bracket.GetRowCount()) return false;
  if (&bracket == FParentBracket) return index != GetRowIndex() && index != GetRowIndex() + 1;
  return !bracket.IsWithin(*this) && FitsBelow(bracket);
}

bool TFilterRow::MoveInto(TFilterBracket& bracket, std::size_t index) {
  if (!CanMoveInto(bracket, index)) return false;
  return MoveTo(bracket, &bracket == FParentBracket && index > GetRowIndex() ? index - 1 : index);
}

bool TFilterRow::FitsBelow(const TFilterBracket& bracket) const {
  const int depth = FRowType == frtBracket ? static_cast<const TFilterBracket*>(this)->Depth() : 0;
  return bracket.GetRowLevel() + 1 + depth <= MaxRowLevel;
}

// `index` counts without this row. A subtree as deep as the limit allows stays where it is.
bool TFilterRow::MoveTo(TFilterBracket& bracket, std::size_t index) {
  if (&bracket != FParentBracket && !FitsBelow(bracket)) return false;
  TFilterBracket& old = *FParentBracket;
  FQueryPanel.HoldBack();
  bracket.PlaceRow(index, old.TakeRow(GetRowIndex()));
  FQueryPanel.RowsMoved();
  if (TQueryPanelView* view = Viewer()) view->RowMoved(*this);
  if (&bracket != &old) {
    if (!old.FRows.Empty()) old.CheckIfAllDisabled();
    bracket.CheckIfAllDisabled();
  }
  if (IsPlaced()) FQueryPanel.ShapeChanged();
  FQueryPanel.Release();
  return true;
}

bool TFilterRow::IsPlaced() const {
  const TFilterRow* outermost = this;
  while (outermost->FParentBracket != nullptr) outermost = outermost->FParentBracket;
  return outermost == FQueryPanel.FRoot.get();
}

TQueryPanelView* TFilterRow::Viewer() const {
  TQueryPanelView* view = FQueryPanel.Viewer();
  return view != nullptr && IsPlaced() ? view : nullptr;
}

void TFilterRow::Changed() {
  if (!IsPlaced()) return;
  if (TQueryPanelView* view = FQueryPanel.Viewer()) view->RowChanged(*this);
  FQueryPanel.ShapeChanged();
}

// Bracket

TFilterBracket::~TFilterBracket() = default;

void TFilterBracket::SetLinkType(TFilterLinkType linkType) {
  if (FLinkType == linkType) return;
  FLinkType = linkType;
  Changed();
}

std::string TFilterBracket::GetBracketKind() const { return GetQueryPanel().GetTitle(LinkTypeTitles[FLinkType]); }

bool TFilterBracket::GetIsHavingRow() const {
  const TFilterCond* first = GetFirstCondition();
  return first != nullptr && first->GetIsHavingRow();
}

int TFilterBracket::GetLastRowNum() const {
  const TFilterRow* last = this;
  while (last->GetRowType() == frtBracket) {
    const TFilterRow* below = static_cast<const TFilterBracket*>(last)->LastRow();
    if (below == nullptr) break;
    last = below;
  }
  return last->GetRowNum();
}

TFilterCond* TFilterBracket::GetFirstCondition() const {
  for (TFilterRow& row : FRows) {
    if (row.GetRowType() != frtBracket) return static_cast<TFilterCond*>(&row);
  }
  return nullptr;
}

std::ptrdiff_t TFilterBracket::IndexOf(const TFilterRow& row) const {
  return row.FParentBracket == this ? static_cast<std::ptrdiff_t>(IndexOfChild(row)) : -1;
}

std::size_t TFilterBracket::IndexOfChild(const TFilterRow& row) const {
  if (row.FIndex >= FIndexed || &FRows[row.FIndex] != &row) {
    for (; FIndexed < FRows.Count(); ++FIndexed) FRows[FIndexed].FIndex = FIndexed;
  }
  return row.FIndex;
}

std::ptrdiff_t TFilterBracket::IndexByRowNum(int rowNum) const {
  const std::size_t index = IndexForNewRow(rowNum);
  return index < FRows.Count() && FRows[index].GetRowNum() == rowNum ? static_cast<std::ptrdiff_t>(index) : -1;
}

std::size_t TFilterBracket::IndexForNewRow(int rowNum) const {
  std::size_t low = 0, high = FRows.Count();
  while (low < high) {
    const std::size_t middle = low + (high - low) / 2;
    if (FRows[middle].GetRowNum() < rowNum) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

TFilterRow* TFilterBracket::RowByID(std::string_view rowID) const {
  const std::string own = GetRowID();
  if (!rowID.starts_with(own)) return nullptr;
  const TFilterRow* row = this;
  for (std::size_t at = own.size(); at < rowID.size();) {
    std::size_t number = 0, end = at + 1;
    while (end < rowID.size() && rowID[end] >= '0' && rowID[end] <= '9' && number <= 1'000'000'000) {
      number = number * 10 + static_cast<std::size_t>(rowID[end++] - '0');
    }
    if (rowID[at] != '.' || row->FRowType != frtBracket) return nullptr;
    const TJObjectList<TFilterRow>& rows = static_cast<const TFilterBracket*>(row)->FRows;
    if (number == 0 || number > rows.Count() || rowID[at + 1] == '0') return nullptr;
    row = &rows[number - 1];
    at = end;
  }
  return const_cast<TFilterRow*>(row);
}

// Iterative: trees may be as deep as the limit allows.
int TFilterBracket::Depth() const {
  int depth = 0;
  std::vector<std::pair<const TFilterBracket*, int>> todo{{this, 0}};
  while (!todo.empty()) {
    const auto [bracket, level] = todo.back();
    todo.pop_back();
    for (const TFilterRow& row : bracket->FRows) {
      depth = std::max(depth, level + 1);
      if (row.GetRowType() == frtBracket) todo.emplace_back(static_cast<const TFilterBracket*>(&row), level + 1);
    }
  }
  return depth;
}

TFilterRow& TFilterBracket::InsertRow(std::size_t index, std::unique_ptr<TFilterRow> row) {
  if (!row->FitsBelow(*this)) {
    throw EJQueryPanelError(0, "Brackets are nested deeper than %d levels: put the conditions into fewer brackets",
                            {MaxRowLevel});
  }
  TFilterRow& result = *row;
  PlaceRow(index, std::move(row));
  GetQueryPanel().RowInserted(result);
  return result;
}

void TFilterBracket::PlaceRow(std::size_t index, std::unique_ptr<TFilterRow> row) {
  TFilterRow& placed = FRows.Insert(index, std::move(row));
  placed.FParentBracket = this;
  if (placed.FEnabled) ++FEnabledCount;
  if (FIndexed == index) {
    placed.FIndex = FIndexed++;
  } else {
    FIndexed = std::min(FIndexed, index);
  }
  // Insertion in the middle shifts the rows behind it.
  if (index + 1 < FRows.Count()) FIndexed = std::min(FIndexed, index + 1);
}

std::unique_ptr<TFilterRow> TFilterBracket::TakeRow(std::size_t index) {
  std::unique_ptr<TFilterRow> row = FRows.Delete(index);
  row->FParentBracket = nullptr;
  if (row->FEnabled) --FEnabledCount;
  FIndexed = std::min(FIndexed, index);
  return row;
}

TFilterBracket& TFilterBracket::AddNewBracket() {
  return InsertNew(FRows.Count(), std::make_unique<TFilterBracket>(GetQueryPanel()));
}

TFilterBracket& TFilterBracket::InsertNewBracketByNum(int rowNum) {
  return InsertNew(IndexForNewRow(rowNum), std::make_unique<TFilterBracket>(GetQueryPanel()));
}

TSimpleCond& TFilterBracket::AddCond() {
  return InsertNew(FRows.Count(), std::make_unique<TSimpleCond>(GetQueryPanel()));
}

TSimpleCond& TFilterBracket::InsertSimpleCondByNum(int rowNum) {
  return InsertNew(IndexForNewRow(rowNum), std::make_unique<TSimpleCond>(GetQueryPanel()));
}

TCustomCond& TFilterBracket::AddCustomCond(TDSCondition& condition) {
  return InsertNew(FRows.Count(), std::make_unique<TCustomCond>(GetQueryPanel(), condition));
}

TCustomCond& TFilterBracket::InsertCustomCondByNum(int rowNum, TDSCondition& condition) {
  return InsertNew(IndexForNewRow(rowNum), std::make_unique<TCustomCond>(GetQueryPanel(), condition));
}

TSQLFragment& TFilterBracket::AddSQLFragment(std::string_view sql) {
  auto fragment = std::make_unique<TSQLFragment>(GetQueryPanel());
  fragment->SetSQLExpr(sql);
  return InsertNew(FRows.Count(), std::move(fragment));
}

TSQLFragment& TFilterBracket::InsertSQLFragmentByNum(int rowNum, std::string_view sql) {
  auto fragment = std::make_unique<TSQLFragment>(GetQueryPanel());
  fragment->SetSQLExpr(sql);
  return InsertNew(IndexForNewRow(rowNum), std::move(fragment));
}

void TFilterBracket::DeleteRow(std::size_t index) {
  GetRow(index);
  TJQueryPanel& panel = GetQueryPanel();
  panel.HoldBack();
  RemoveRow(index);
  if (!FRows.Empty()) CheckIfAllDisabled();
  panel.Release();
}

// The row is gone before `OnChange` fires: the handler may destroy the panel.
void TFilterBracket::RemoveRow(std::size_t index) {
  TJQueryPanel& panel = GetQueryPanel();
  panel.LeaveRow(GetRow(index));
  const std::unique_ptr<TFilterRow> row = TakeRow(index);
  row->FRowState = rsDestroying;
  if (!IsPlaced()) return;
  panel.RowsMoved();
  if (TQueryPanelView* view = panel.Viewer()) view->RowRemoved(*row);
  panel.ShapeChanged();
}

void TFilterBracket::ClearRows() {
  TJQueryPanel& panel = GetQueryPanel();
  panel.HoldBack();
  while (!FRows.Empty()) RemoveRow(FRows.Count() - 1);
  panel.Release();
}

void TFilterBracket::CheckIfAllDisabled() {
  if (FEnabledChanging) return;
  const bool anyEnabled = FEnabledCount > 0;
  if (GetEnabled() == anyEnabled) return;
  FProcessChildren = false;
  SetEnabled(anyEnabled);
  FProcessChildren = true;
}

void TFilterBracket::ApplyEnabled(bool enabled) {
  if (!FProcessChildren) return;
  FEnabledChanging = true;
  for (TFilterRow& row : FRows) {
    if (row.GetEnabled() == enabled) continue;
    row.StoreEnabled(enabled);
    row.ApplyEnabled(enabled);
    if (TQueryPanelView* view = row.Viewer()) view->RowChanged(row);
  }
  FEnabledChanging = false;
}

void TFilterBracket::CloseEdit(bool accept) {
  if (TQueryPanelView* view = GetQueryPanel().Viewer()) view->CloseEdit(accept);
}

void TFilterBracket::RefreshValueEditors() {
  GetQueryPanel().EachCondition(*this, [](TFilterCond& condition) {
    for (int index = 1; index <= condition.GetValueCount(); ++index) {
      if (TDSValueEditor* editor = condition.GetValueEditor(index)) editor->Refresh();
    }
  });
  if (TQueryPanelView* view = GetQueryPanel().Viewer()) view->RefreshValueEditors(*this);
}

}  // namespace tolvi
