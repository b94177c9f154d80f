#include <algorithm>
#include <memory>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/panel/paneleditor.h>
#include <tolvi/query/querytext.h>

// What users do with rows.

namespace tolvi {

TRowPlace PlaceAfter(const TFilterRow& row) {
  return {row.GetParentBracket(), row.GetParentBracket() != nullptr ? row.GetRowIndex() + 1 : 0};
}

TRowPlace PlaceInside(TFilterRow& row) {
  if (row.GetRowType() != frtBracket) return {nullptr, 0};
  auto& bracket = static_cast<TFilterBracket&>(row);
  return {&bracket, bracket.GetRowCount()};
}

TRowPlace DefaultPlace(TJQueryPanel& panel, TFilterRow* row) {
  if (row == nullptr) return PlaceInside(panel.RootBracket());
  return row->GetRowType() == frtBracket ? PlaceInside(*row) : PlaceAfter(*row);
}

// An error leaves what the call has done so far as a step.
template <typename TCall>
void TPanelEditor::AsStep(TCall call) {
  BeginStep();
  try {
    call();
  } catch (...) {
    EndStep();
    throw;
  }
  EndStep();
}

namespace {

TRowPlace PlaceOf(const TFilterRow& row) { return {row.GetParentBracket(), row.GetRowIndex()}; }

/// Levels below the row.
int DepthOf(const TFilterRow& row) {
  int deepest = row.GetRowLevel();
  ForEachRow(const_cast<TFilterRow&>(row),
             [&deepest](const TFilterRow& inner) { deepest = std::max(deepest, inner.GetRowLevel()); });
  return deepest - row.GetRowLevel();
}

}  // namespace

// Whether

bool TPanelEditor::CanAdd(const TRowPlace& place) const {
  return IsActive() && place.Bracket != nullptr && place.Index <= place.Bracket->GetRowCount() &&
         !IsLocked(*place.Bracket) && place.Bracket->GetRowLevel() < MaxRowLevel;
}

bool TPanelEditor::CanMove(const TFilterRow& row, const TRowPlace& place) const {
  return CanAdd(place) && CanDelete(row) && row.CanMoveInto(*place.Bracket, place.Index);
}

bool TPanelEditor::CanDuplicate(const TFilterRow& row) const { return CanAdd(PlaceAfter(row)); }

bool TPanelEditor::CanWrap(const TFilterRow& row) const {
  return CanDelete(row) && row.GetRowLevel() + DepthOf(row) < MaxRowLevel;
}

bool TPanelEditor::CanUngroup(const TFilterRow& row) const { return row.GetRowType() == frtBracket && CanDelete(row); }

// Rows that come and go

void TPanelEditor::AddCondition(const TRowPlace& place) {
  if (!CanAdd(place)) return;
  AsStep([&] {
    FPanel->SetCurrentRow(&place.Bracket->InsertRow(place.Index, std::make_unique<TSimpleCond>(*FPanel.Get())));
  });
}

TFilterBracket& TPanelEditor::AddNewBracket(const TRowPlace& place) {
  auto bracket = std::make_unique<TFilterBracket>(*FPanel.Get());
  for (const TFilterLinkType linkType : {fltNotAll, fltNone, fltAny, fltAll}) {
    if (FPanel->GetLinkTypes().Contains(linkType)) bracket->SetLinkType(linkType);
  }
  TFilterBracket& result = *bracket;
  place.Bracket->InsertRow(place.Index, std::move(bracket));
  return result;
}

void TPanelEditor::AddBracket(const TRowPlace& place) {
  if (!CanAdd(place)) return;
  AsStep([&] { FPanel->SetCurrentRow(&AddNewBracket(place)); });
}

void TPanelEditor::AddCustomCondition(const TRowPlace& place, TDSCondition& condition) {
  if (!CanAdd(place)) return;
  AsStep([&] {
    FPanel->SetCurrentRow(
        &place.Bracket->InsertRow(place.Index, std::make_unique<TCustomCond>(*FPanel.Get(), condition)));
  });
}

void TPanelEditor::Delete(TFilterRow& row) {
  if (!CanDelete(row)) return;
  AsStep([&] { row.GetParentBracket()->DeleteRow(row.GetRowIndex()); });
}

void TPanelEditor::Duplicate(TFilterRow& row) {
  if (!CanDuplicate(row)) return;
  const std::string text = CopyText(row);
  AsStep([&] {
    const TRowPlace place = PlaceAfter(row);
    FPanel->SetCurrentRow(FPanel->InsertRowsFromText(*place.Bracket, place.Index, text).Rows.back());
  });
}

// Rows that change

void TPanelEditor::SetEnabled(TFilterRow& row, bool enabled) {
  if (!CanEdit(row) || row.GetEnabled() == enabled) return;
  AsStep([&] { row.SetEnabled(enabled); });
}

void TPanelEditor::SetValueIsParam(TFilterCond& condition, int index, bool isParam) {
  if (!CanEdit(condition) || condition.GetValueIsParam(index) == isParam) return;
  AsStep([&] { condition.SetValueIsParam(index, isParam); });
}

// Rows that move

void TPanelEditor::Move(TFilterRow& row, const TRowPlace& place) {
  if (!CanMove(row, place)) return;
  AsStep([&] { row.MoveInto(*place.Bracket, place.Index); });
}

TRowPlace TPanelEditor::PlaceAbove(const TFilterRow& row) const {
  const auto [bracket, own] = PlaceOf(row);
  for (std::size_t index = own; bracket != nullptr && index > 0; --index) {
    if (!bracket->GetRow(index - 1).GetHidden()) return {bracket, index - 1};
  }
  return {nullptr, 0};
}

TRowPlace TPanelEditor::PlaceBelow(const TFilterRow& row) const {
  const auto [bracket, own] = PlaceOf(row);
  for (std::size_t index = own + 1; bracket != nullptr && index < bracket->GetRowCount(); ++index) {
    if (!bracket->GetRow(index).GetHidden()) return {bracket, index + 1};
  }
  return {nullptr, 0};
}

TRowPlace TPanelEditor::PlaceOutside(const TFilterRow& row) const {
  return row.GetParentBracket() != nullptr ? PlaceAfter(*row.GetParentBracket()) : TRowPlace{nullptr, 0};
}

TRowPlace TPanelEditor::PlaceInNeighbour(const TFilterRow& row) const {
  if (const TRowPlace above = PlaceAbove(row); above.Bracket != nullptr) {
    TFilterRow& neighbour = above.Bracket->GetRow(above.Index);
    if (neighbour.GetRowType() == frtBracket) return PlaceInside(neighbour);
  }
  if (const TRowPlace below = PlaceBelow(row); below.Bracket != nullptr) {
    TFilterRow& neighbour = below.Bracket->GetRow(below.Index - 1);
    if (neighbour.GetRowType() == frtBracket) return {&static_cast<TFilterBracket&>(neighbour), 0};
  }
  return {nullptr, 0};
}

void TPanelEditor::Wrap(TFilterRow& row) {
  if (!CanWrap(row)) return;
  AsStep([&] { row.MoveInto(AddNewBracket(PlaceOf(row)), 0); });
}

void TPanelEditor::Ungroup(TFilterRow& row) {
  if (!CanUngroup(row)) return;
  auto& bracket = static_cast<TFilterBracket&>(row);
  AsStep([&] {
    TFilterRow* first = bracket.FirstRow();
    if (FPanel->GetCurrentRow() == &bracket && first != nullptr) FPanel->SetCurrentRow(first);
    while (bracket.GetRowCount() > 0) bracket.FirstRow()->MoveInto(*bracket.GetParentBracket(), bracket.GetRowIndex());
    bracket.GetParentBracket()->DeleteRow(bracket.GetRowIndex());
  });
}

// Copies

std::string TPanelEditor::CopyText(const TFilterRow& row) const {
  std::vector<const TFilterRow*> rows{&row};
  if (row.GetParentBracket() == nullptr) {
    const auto& root = static_cast<const TFilterBracket&>(row);
    if (root.GetLinkType() != fltAll) return WriteRowsText(row.GetQueryPanel(), rows);
    rows.clear();
    for (const TFilterRow& inner : root) rows.push_back(&inner);
  }
  return WriteRowsText(row.GetQueryPanel(), rows);
}

void TPanelEditor::Cut(TFilterRow& row) {
  if (!CanDelete(row)) return;
  SetClipboard(CopyText(row));
  Delete(row);
}

bool TPanelEditor::CanPasteText(std::string_view text) { return HasRows(text); }

std::vector<TQueryWarning> TPanelEditor::PasteText(std::string_view text, const TRowPlace& place) {
  if (!CanAdd(place)) return {};
  if (!CanPasteText(text)) throw EJQueryPanelError(0, "The clipboard holds no conditions of a query");
  std::vector<TQueryWarning> warnings;
  AsStep([&] {
    TJQueryPanel::TInsertedRows inserted = FPanel->InsertRowsFromText(*place.Bracket, place.Index, text);
    warnings = std::move(inserted.Warnings);
    FPanel->SetCurrentRow(inserted.Rows.back());
  });
  return warnings;
}

void TPanelEditor::SetClipboard(const std::string& text) {
  if (OnWriteClipboard) {
    OnWriteClipboard(text);
  } else {
    FClipboard = text;
  }
}

}  // namespace tolvi
