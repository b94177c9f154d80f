// Where the panel's widgets stand, and how the user gets from one to the next.
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <algorithm>

#include <tolvi/ui/panels/rfldpnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

// Places

// The content's co-ordinates are those of the window scrolled to its start; the scroll area moves the content.
void TJResultFieldsPanel::PutAt(QWidget& widget, TRFPoint place, int width, int height) {
  widget.setGeometry(isRightToLeft() ? FMirroredWidth - place.X - width : place.X, place.Y, width, height);
}

void TJResultFieldsPanel::ShowAddRowLabel() {
  FAddRowLabel->setText(ToQString(AddRowText(FTitles)));
  const TResultFieldRow* last = GetLastRow();
  const QSize size = FAddRowLabel->sizeHint();
  PutAt(
      *FAddRowLabel,
      PlaceAddRowLabel(last != nullptr ? std::optional(last->GetPlaces().Button) : std::nullopt, FAppearance->Spaces()),
      size.width(), size.height());
  FAddRowLabel->show();
  if (last != nullptr) QWidget::setTabOrder(&last->GetSortLabel(), FAddRowLabel);
  FitContent();
}

void TJResultFieldsPanel::ArrangeAll() {
  for (TResultFieldRow& row : FRows) row.Arrange();
  if (FAddRowLabel->isHidden()) {
    FitContent();
  } else {
    ShowAddRowLabel();
  }
}

// Gives the content the size of what is on it, and the margins once more.
void TJResultFieldsPanel::FitContent() {
  int right = 0, bottom = 0;
  for (const TResultFieldRow& row : FRows) right = std::max(right, row.GetRight());
  if (const TResultFieldRow* last = GetLastRow()) {
    bottom = last->GetPlaces().Button.Top + last->GetPlaces().Button.Height;
  }
  if (!FAddRowLabel->isHidden()) {
    right = std::max(right, FAppearance->GetLeftMargin() + FAddRowLabel->width());
    bottom = std::max(bottom, FAddRowLabel->y() + FAddRowLabel->height());
  }
  widget()->setMinimumSize(right + FAppearance->GetLeftMargin(), bottom + FAppearance->GetTopMargin());
  // The scroll bars must be right at once: who appends a row scrolls to it.
  QEvent layout(QEvent::LayoutRequest);
  QApplication::sendEvent(this, &layout);
  Mirror();
}

// From right to left, everything keeps its distance from the content's right side.
void TJResultFieldsPanel::Mirror() {
  const int growth = widget()->width() - FMirroredWidth;
  FMirroredWidth = widget()->width();
  if (!isRightToLeft() || growth == 0) return;
  for (QObject* child : widget()->children()) {
    auto* element = qobject_cast<QWidget*>(child);
    if (element != nullptr && !element->isWindow()) element->move(element->x() + growth, element->y());
  }
}

void TJResultFieldsPanel::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  Mirror();
}

void TJResultFieldsPanel::changeEvent(QEvent* event) {
  QScrollArea::changeEvent(event);
  const QEvent::Type type = event->type();
  if (type == QEvent::PaletteChange && FAddRowLabel != nullptr) {
    for (TResultFieldRow& row : FRows) row.Colour();
  }
  if (type != QEvent::FontChange && type != QEvent::StyleChange && type != QEvent::LayoutDirectionChange) return;
  // The base class may tell of changes before the panel is complete.
  if (FAddRowLabel != nullptr) ArrangeAll();
}

// Focus

void TJResultFieldsPanel::ChainTabs(std::size_t from) {
  // The first row comes behind the panel itself, so that Tab finds it between its neighbours in the window.
  QWidget* previous = from > 0 && from <= FRows.Count() ? static_cast<QWidget*>(&FRows[from - 1].GetSortLabel()) : this;
  for (std::size_t i = from; i < FRows.Count(); ++i) {
    for (const TRFRowPart part : {rpButton, rpField, rpSorting}) {
      QWidget* next = &FRows[i].GetPart(part);
      if (next == previous) continue;
      QWidget::setTabOrder(previous, next);
      previous = next;
    }
  }
}

// Whether the user has gone to another place, from which the focus must not be taken away.
bool TJResultFieldsPanel::HasFocusElsewhere() const {
  const QWidget* focused = QApplication::focusWidget();
  for (const QWidget* widget = focused; widget != nullptr; widget = widget->parentWidget()) {
    if (widget == this) return false;
  }
  return focused != nullptr && focused->isVisible();
}

std::optional<std::pair<std::size_t, TRFRowPart>> TJResultFieldsPanel::FocusedPlace() const {
  for (std::size_t i = 0; i < FRows.Count(); ++i) {
    const QWidget* focused = FRows[i].GetFocusedPart();
    for (const TRFRowPart part : {rpButton, rpField, rpSorting}) {
      if (focused != nullptr && focused == &FRows[i].GetPart(part)) return std::pair(i, part);
    }
  }
  return std::nullopt;
}

void TJResultFieldsPanel::FocusPart(QWidget& part) {
  part.setFocus(Qt::OtherFocusReason);
  ensureWidgetVisible(&part, FAppearance->GetLeftMargin(), FAppearance->GetTopMargin());
}

// The button of that row; of the last row, or the label that appends one, where there is none.
void TJResultFieldsPanel::FocusRow(std::size_t index) {
  if (FRows.Empty()) {
    FocusPart(*FAddRowLabel);
  } else {
    FocusPart(FRows[std::min(index, FRows.Count() - 1)].GetButton());
  }
}

void TJResultFieldsPanel::focusInEvent(QFocusEvent* event) {
  QScrollArea::focusInEvent(event);
  if (event->reason() == Qt::MouseFocusReason || !FActive) return;
  const std::ptrdiff_t current = FCurrentRow != nullptr ? FCurrentRow->GetRowIndex() : 0;
  FocusRow(static_cast<std::size_t>(std::max<std::ptrdiff_t>(current, 0)));
}

namespace {

/// What can be reached with the arrow keys, row by row; the label that appends a row is the last row.
struct TFocusGrid {
  std::vector<std::vector<QWidget*>> Rows;
  std::size_t Row = 0, Column = 0;
  bool HasFocus = false;
};

TFocusGrid MakeGrid(const TResultFieldRows& rows, QWidget& addRowLabel) {
  TFocusGrid grid;
  const auto add = [&grid](std::vector<QWidget*> widgets, const QWidget* focused) {
    for (std::size_t column = 0; column < widgets.size(); ++column) {
      if (widgets[column] != focused) continue;
      grid.Row = grid.Rows.size();
      grid.Column = column;
      grid.HasFocus = true;
    }
    grid.Rows.push_back(std::move(widgets));
  };
  for (const TResultFieldRow& row : rows) {
    std::vector<QWidget*> widgets{&row.GetButton(), &row.GetSortLabel()};
    if (row.GetFieldLabel() != nullptr) widgets.insert(widgets.begin() + 1, row.GetFieldLabel());
    add(std::move(widgets), row.GetFocusedPart());
  }
  if (!addRowLabel.isHidden()) add({&addRowLabel}, addRowLabel.hasFocus() ? &addRowLabel : nullptr);
  return grid;
}

}  // namespace

bool TJResultFieldsPanel::MoveFocus(int key) {
  TFocusGrid grid = MakeGrid(FRows, *FAddRowLabel);
  if (!grid.HasFocus) return false;
  if (isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right)) {
    key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
  }
  auto& [rows, row, column, hasFocus] = grid;
  switch (key) {
    case Qt::Key_Up:
      if (row > 0) --row;
      break;
    case Qt::Key_Down:
      if (row + 1 < rows.size()) ++row;
      break;
    case Qt::Key_Home:
      row = 0;
      break;
    case Qt::Key_End:
      row = rows.size() - 1;
      break;
    case Qt::Key_Left:
      if (column > 0) --column;
      break;
    case Qt::Key_Right:
      ++column;
      break;
    default:
      return false;
  }
  FocusPart(*rows[row][std::min(column, rows[row].size() - 1)]);
  return true;
}

// Deletes or moves the row that has the focus.
bool TJResultFieldsPanel::EditByKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  TRFMenuTag tag = mtSeparator;
  if (event.key() == Qt::Key_Delete && modifiers == Qt::NoModifier) tag = mtDelete;
  if (event.key() == Qt::Key_Up && modifiers == Qt::AltModifier) tag = mtMoveUp;
  if (event.key() == Qt::Key_Down && modifiers == Qt::AltModifier) tag = mtMoveDown;
  if (tag == mtSeparator) return false;
  for (TResultFieldRow& row : FRows) {
    const QWidget* focused = row.GetFocusedPart();
    if (focused == nullptr || (tag != mtDelete && focused != &row.GetButton())) continue;
    FCurrentRow = &row;
    Guarded([this, tag] { MenuItemClick(tag); });
    return true;
  }
  return false;
}

void TJResultFieldsPanel::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  if (FActive && modifiers == Qt::ControlModifier && event->key() == Qt::Key_E) {
    event->accept();
    EditFields();
    return;
  }
  if (FActive && (EditByKey(*event) || (modifiers == Qt::NoModifier && MoveFocus(event->key())))) {
    event->accept();
    return;
  }
  QScrollArea::keyPressEvent(event);
}

void TJResultFieldsPanel::contextMenuEvent(QContextMenuEvent* event) {
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const int y = widget()->mapFromGlobal(event->globalPos()).y();
  for (TResultFieldRow& row : FRows) {
    const TRFBox& button = row.GetPlaces().Button;
    const bool isMeant = byKey ? row.GetFocusedPart() != nullptr : y >= button.Top && y < button.Top + button.Height;
    if (!isMeant || !FActive) continue;
    event->accept();
    return RowButtonClick(row);
  }
  if (!FActive) return QScrollArea::contextMenuEvent(event);
  event->accept();
  const QPoint below = FAddRowLabel->mapToGlobal(QPoint(0, FAddRowLabel->height()));
  OpenPanelMenu(byKey ? below : event->globalPos());
}

// What can be done besides the rows.
void TJResultFieldsPanel::OpenPanelMenu(const QPoint& globalPos) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* add = menu->addAction(GetTitle("ttlClickToAdd"));
  QAction* edit = menu->addAction(ToQString(FEditorTitles.GetTitle("ttlRFETitle")) + QStringLiteral("..."));
  // The menu must be gone before a handler can destroy the panel.
  connect(add, &QAction::triggered, FAddRowLabel, &QAbstractButton::click, Qt::QueuedConnection);
  connect(
      edit, &QAction::triggered, this, [this] { EditFields(); }, Qt::QueuedConnection);
  edit->setObjectName(QStringLiteral("editFields"));
  edit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
  edit->setShortcutVisibleInContextMenu(true);
  menu->popup(isRightToLeft() ? globalPos - QPoint(menu->sizeHint().width(), 0) : globalPos);
}

}  // namespace tolvi
