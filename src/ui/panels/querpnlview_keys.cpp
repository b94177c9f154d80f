// How the user gets about in the panel: focus, keys, commands and menus.
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <algorithm>
#include <limits>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/ui/panels/linklabel.h>
#include <tolvi/ui/panels/qpdrag.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

// Focus

bool TJQueryPanelView::HasFocusInside() const {
  const QWidget* focused = QApplication::focusWidget();
  return focused != nullptr && (focused == this || isAncestorOf(focused));
}

TQPRow* TJQueryPanelView::FocusedRow() const {
  const QWidget* focused = QApplication::focusWidget();
  if (focused == nullptr || !isAncestorOf(focused)) return nullptr;
  for (const auto& [serial, row] : FWidgets) {
    if (row->isAncestorOf(focused)) return row;
  }
  return nullptr;
}

// The row that commands act on: none while the label that adds to the panel has the focus.
TFilterRow* TJQueryPanelView::TargetRow() const {
  return FPanel && !FAddLabel->hasFocus() ? FPanel->GetCurrentRow() : nullptr;
}

void TJQueryPanelView::FocusPart(TQPRow& row, int part) {
  QWidget* widget = row.GetPart(std::clamp(part, 0, row.GetPartCount() - 1));
  if (widget == nullptr) return;
  if (!widget->isEnabled()) widget = &row.GetButton();
  const QPointer<QWidget> alive(widget);
  widget->setFocus(Qt::OtherFocusReason);
  if (!alive) return;
  // As much of the part as fits is to be seen.
  const QRect place(widget->mapTo(viewport(), QPoint()), widget->size());
  const int left = place.left() - FMetrics.Left, right = place.right() + 1 + FMetrics.Left - viewport()->width();
  const int step =
      left < 0 || isRightToLeft() ? (right > 0 ? right : std::min(left, 0)) : std::max(0, std::min(right, left));
  QScrollBar& bar = *horizontalScrollBar();
  if (step != 0) bar.setValue(bar.value() + (isRightToLeft() ? -step : step));
}

void TJQueryPanelView::FocusRow(TFilterRow& row, int part) {
  ShowChanges();
  const std::ptrdiff_t index = IndexOfRow(row);
  if (index < 0) return;
  BringIntoView(static_cast<std::size_t>(index));
  PlaceRows();
  if (TQPRow* widget = RowWidget(row)) FocusPart(*widget, part);
}

// Where the focus belongs after the rows have changed, if it is in the view at all.
void TJQueryPanelView::RestoreFocus() {
  if (!HasFocusInside() || FAddLabel->hasFocus() || FDrag->IsDragging()) return;
  TFilterRow* current = FPanel ? FPanel->GetCurrentRow() : nullptr;
  TQPRow* widget = current != nullptr ? RowWidget(*current) : nullptr;
  const TQPRow* focused = FocusedRow();
  if (widget == nullptr) {
    if (focused == nullptr && !hasFocus()) setFocus();
    return;
  }
  const bool isNew = FNewRow == current->GetSerial();
  if (focused == widget && !isNew) return;
  FocusPart(*widget, isNew ? widget->GetFirstLabel() : FPart);
}

void TJQueryPanelView::PartFocused(TQPRow& row, int part) {
  TFilterRow* own = row.GetRow();
  if (own == nullptr || part < 0 || FShowing) return;
  FPart = part;
  const QPointer<TJQueryPanelView> self(this);
  if (FPanel && FPanel->GetCurrentRow() != own) FPanel->SetCurrentRow(own);
  if (self) UpdateActions();
}

// Who comes to the view gets to the current row, or else makes the first one current.
void TJQueryPanelView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (FPanel && FPanel->GetCurrentRow() == nullptr && hasFocus() && !FRows.empty())
          FPanel->SetCurrentRow(FRows.front().Row);
      },
      Qt::QueuedConnection);
  Schedule();
}

// Goes to the next part of the row; with `beyond` on to the next row, and at last to the label below them.
bool TJQueryPanelView::GoToPart(bool next, bool beyond) {
  ShowChanges();
  const TQPRow* row = FocusedRow();
  if (row == nullptr || row->GetRow() == nullptr) {
    if (!FAddLabel->hasFocus() || next || FRows.empty()) return false;
    TFilterRow& last = *FRows.back().Row;
    FocusRow(last, std::numeric_limits<int>::max());
    return true;
  }
  int part = row->IndexOfPart(QApplication::focusWidget());
  do {
    part += next ? 1 : -1;
  } while (part > 0 && part < row->GetPartCount() && !row->GetPart(part)->isEnabled());
  if (part >= 0 && part < row->GetPartCount()) {
    FocusPart(const_cast<TQPRow&>(*row), part);
    return true;
  }
  if (!beyond) return true;
  const std::ptrdiff_t index = IndexOfRow(*row->GetRow()) + (next ? 1 : -1);
  if (index < 0) return false;
  if (static_cast<std::size_t>(index) >= FRows.size()) {
    FAddLabel->setFocus(Qt::TabFocusReason);
    return true;
  }
  FocusRow(*FRows[static_cast<std::size_t>(index)].Row, next ? 0 : std::numeric_limits<int>::max());
  return true;
}

// The focus goes to what follows the view, or precedes it, in the window.
bool TJQueryPanelView::LeaveByTab(bool next) {
  const auto step = [next](QWidget* at) { return next ? at->nextInFocusChain() : at->previousInFocusChain(); };
  for (QWidget* at = step(this); at != this; at = step(at)) {
    const bool takesFocus = (at->focusPolicy() & Qt::TabFocus) != 0 && at->focusProxy() == nullptr;
    if (isAncestorOf(at) || at->isWindow() || !takesFocus || !at->isVisible() || !at->isEnabled()) continue;
    at->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return false;
}

bool TJQueryPanelView::focusNextPrevChild(bool next) {
  // Widgets that are hidden would hand the focus on; it comes back with the next rows.
  if (FShowing || FReleasing) return true;
  if (GoToPart(next, true)) return true;
  return HasFocusInside() ? LeaveByTab(next) : QAbstractScrollArea::focusNextPrevChild(next);
}

// Commands

bool TJQueryPanelView::GoToRow(TPanelCommand command) {
  ShowChanges();
  if (FRows.empty()) return false;
  const std::ptrdiff_t last = static_cast<std::ptrdiff_t>(FRows.size()) - 1;
  const TFilterRow* target = TargetRow();
  std::ptrdiff_t index = target != nullptr ? IndexOfRow(*target) : last + 1;
  if (command == pcFirstRow) index = 0;
  if (command == pcLastRow) index = last;
  if (command == pcPrevRow) index = std::max<std::ptrdiff_t>(index - 1, 0);
  if (command == pcNextRow) ++index;
  if (index > last) {
    FAddLabel->setFocus(Qt::OtherFocusReason);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    return true;
  }
  const int part = FPart;
  TFilterRow& row = *FRows[static_cast<std::size_t>(index)].Row;
  if (!MakeCurrent(&row)) return true;
  if (HasFocusInside()) FocusRow(row, part);
  // The same column again in a longer row.
  FPart = part;
  return true;
}

bool TJQueryPanelView::RunViewCommand(TPanelCommand command, int argument) {
  TQPRow* focused = FocusedRow();
  TFilterRow* current = TargetRow();
  TQPRow* row = focused == nullptr && current != nullptr ? RowWidget(*current) : focused;
  switch (command) {
    case pcPrevPart:
    case pcNextPart:
      return GoToPart(command == pcNextPart, false);
    case pcOpenPart:
      if (row != nullptr) row->OpenPart(focused != nullptr ? row->IndexOfPart(QApplication::focusWidget()) : FPart);
      return row != nullptr;
    case pcRowMenu:
      if (row == nullptr) {
        if (FAddLabel->hasFocus()) OpenAddMenu();
        return FAddLabel->hasFocus();
      }
      OpenRowMenu(*row, row->GetButton().mapToGlobal(QPoint(0, row->GetButton().height())));
      return true;
    case pcAddMenu:
      OpenAddMenu();
      return true;
    case pcValueList:
      EditValueList(static_cast<TFilterCond&>(*current), argument);
      return true;
    case pcAddCustomCond: {
      const TPanelMenu menu = AddMenu(*FEditor, FCommandTitles);
      const auto entry = std::find_if(menu.begin(), menu.end(),
                                      [](const TPanelMenuItem& item) { return item.Command == pcAddCustomCond; });
      QWidget* at = row != nullptr ? static_cast<QWidget*>(&row->GetButton()) : FAddLabel;
      if (entry == menu.end() || entry->Items.empty()) return false;
      OpenMenu(entry->Items, current != nullptr ? current->GetSerial() : 0, at->mapToGlobal(QPoint(0, at->height())));
      return true;
    }
    default:
      return false;
  }
}

// Of the current row: the value that has the focus, else the first one.
int TJQueryPanelView::TargetValue() const {
  const TQPRow* focused = FocusedRow();
  return focused != nullptr ? std::max(1, focused->ValueOfPart(focused->IndexOfPart(QApplication::focusWidget()))) : 1;
}

void TJQueryPanelView::UpdateActions() {
  TFilterRow* row = TargetRow();
  const int value = row != nullptr && row->GetRowType() != frtBracket ? TargetValue() : -1;
  for (const TPanelCommandInfo& info : PanelCommands()) {
    const int argument = IsValueCommand(info.Command) ? value : -1;
    // The clipboard is looked at when it is needed.
    const bool isPossible =
        FEditor && (info.Command == pcPaste ? FEditor->IsActive() : CanRun(*FEditor, info.Command, row, argument));
    QAction& action = FActions->Get(info.Command);
    action.setEnabled(isPossible);
    action.setChecked(action.isCheckable() && FEditor && IsOn(*FEditor, info.Command, row, argument));
  }
}

bool TJQueryPanelView::RunCommand(TPanelCommand command, int argument) {
  // A failed import leaves the panel inactive.
  if (!FEditor || (!FEditor->IsActive() && command != pcUndo && command != pcRedo)) return false;
  ShowChanges();
  if (command >= pcPrevRow && command <= pcLastRow) return GoToRow(command);
  TFilterRow* row = TargetRow();
  if (argument < 0 && IsValueCommand(command)) argument = TargetValue();
  if (!CanRun(*FEditor, command, row, argument)) return false;
  const QPointer<TJQueryPanelView> self(this);
  bool done = false;
  try {
    // New rows take the focus from the label that added them.
    if (FAddLabel->hasFocus() && !IsViewCommand(command)) setFocus();
    done = tolvi::RunCommand(*FEditor, command, row, argument);
  } catch (const std::exception& error) {
    if (self) ShowError(QString::fromUtf8(error.what()));
    return false;
  }
  if (!self) return done;
  return done || RunViewCommand(command, argument);
}

// Keys

// A key of a command, unless the part that has the focus uses it itself.
bool TJQueryPanelView::RunKey(QKeyEvent& event) {
  if (FDrag->IsDragging() && event.key() == Qt::Key_Escape) {
    FDrag->Cancel();
    return true;
  }
  const std::optional<TPanelCommand> command = FActions->CommandOf(event);
  if (!command || !FEditor) return false;
  const bool onPart = QApplication::focusWidget() != this;
  if (onPart && command == pcEnable && !(event.modifiers() & Qt::ControlModifier)) return false;
  if (onPart && command == pcOpenPart &&
      (event.key() != Qt::Key_F2 || qobject_cast<TDropDownLabel*>(QApplication::focusWidget()) != nullptr)) {
    return false;
  }
  if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) return false;
  const TJCustomDBStructure* model = command == pcAddCond && FPanel ? FPanel->GetDBStruct() : nullptr;
  if (model != nullptr && model->GetEmpty()) {
    ShowError(ToQString(SStructureIsEmpty.Text));
  } else {
    RunCommand(*command);
  }
  return true;
}

void TJQueryPanelView::keyPressEvent(QKeyEvent* event) {
  if (!RunKey(*event)) event->ignore();
}

bool TJQueryPanelView::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return RunKey(static_cast<QKeyEvent&>(*event));
    case QEvent::ShortcutOverride:
      // The panel's keys come before those of the window while the focus is here.
      if (FEditor && FActions->CommandOf(static_cast<QKeyEvent&>(*event))) event->accept();
      return false;
    case QEvent::FocusIn:
      if (TQPRow* row = qobject_cast<TQPRow*>(watched->parent())) {
        const QPointer<TJQueryPanelView> self(this);
        PartFocused(*row, row->IndexOfPart(watched));
        return !self;
      }
      if (watched == FAddLabel && !FShowing) UpdateActions();
      return false;
    default:
      return QAbstractScrollArea::eventFilter(watched, event);
  }
}

// Menus

TFilterRow* TJQueryPanelView::RowBySerial(std::uint64_t serial) const {
  TFilterRow* found = nullptr;
  if (FPanel && serial != 0) {
    ForEachRow(FPanel->RootBracket(), [&](TFilterRow& row) {
      if (row.GetSerial() == serial) found = &row;
    });
  }
  return found;
}

bool TJQueryPanelView::MakeCurrent(TFilterRow* row) {
  if (row == nullptr || !FPanel) return false;
  const QPointer<TJQueryPanelView> self(this);
  const std::uint64_t serial = row->GetSerial();
  FPanel->SetCurrentRow(row);
  return self && FPanel && FEditor && RowBySerial(serial) == row;
}

void TJQueryPanelView::OpenMenu(const TPanelMenu& items, std::uint64_t serial, const QPoint& globalPos) {
  if (items.empty()) return;
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setLayoutDirection(layoutDirection());
  FActions->FillMenu(*menu, items, [this, serial](const TPanelMenuItem& item) {
    if (serial != 0) {
      if (!MakeCurrent(RowBySerial(serial))) return;
      if (FAddLabel->hasFocus()) setFocus();
    } else {
      FAddLabel->setFocus();
    }
    RunCommand(item.Command, item.Argument);
  });
  menu->popup(isRightToLeft() ? globalPos - QPoint(menu->sizeHint().width(), 0) : globalPos);
}

void TJQueryPanelView::OpenRowMenu(TQPRow& row, const QPoint& globalPos) {
  TFilterRow* own = row.GetRow();
  if (!MakeCurrent(own)) return;
  OpenMenu(RowMenu(*FEditor, FCommandTitles, *own), own->GetSerial(), globalPos);
}

void TJQueryPanelView::OpenValueMenu(TQPRow& row, int index, const QPoint& globalPos) {
  TFilterRow* own = row.GetRow();
  if (!MakeCurrent(own)) return;
  OpenMenu(ValueMenu(*FEditor, FCommandTitles, static_cast<TFilterCond&>(*own), index), own->GetSerial(), globalPos);
}

void TJQueryPanelView::OpenAddMenu() {
  ShowChanges();
  if (!FEditor || FRows.empty()) return;
  FAddLabel->setFocus();
  OpenMenu(AddMenu(*FEditor, FCommandTitles), 0, FAddLabel->mapToGlobal(QPoint(0, FAddLabel->height())));
}

void TJQueryPanelView::contextMenuEvent(QContextMenuEvent* event) {
  ShowChanges();
  const std::size_t index = RowAt(viewport()->mapFromGlobal(event->globalPos()).y());
  event->accept();
  if (FRows.empty()) {
    if (FEditor) OpenMenu(AddMenu(*FEditor, FCommandTitles), 0, event->globalPos());
  } else if (event->reason() == QContextMenuEvent::Keyboard) {
    if (!RunCommand(pcRowMenu)) OpenAddMenu();
  } else if (index >= FRows.size()) {
    OpenAddMenu();
  } else if (TQPRow* row = RowWidget(*FRows[index].Row)) {
    QWidget* at = row->childAt(row->mapFromGlobal(event->globalPos()));
    const int value = at != nullptr ? row->ValueOfPart(row->IndexOfPart(at)) : 0;
    if (value > 0) return OpenValueMenu(*row, value, event->globalPos());
    OpenRowMenu(*row, event->globalPos());
  }
}

}  // namespace tolvi
