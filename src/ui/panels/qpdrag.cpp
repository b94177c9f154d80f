#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <cstdlib>
#include <utility>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/panels/qpdrag.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/querpnlview.h>

namespace tolvi {
namespace {

constexpr int scrollPause = 60;  // milliseconds from row to row

/// A line with a knob at its start.
class TInsertMark final : public QWidget {
 public:
  explicit TInsertMark(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("insertMark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = ReadableColor(palette().color(QPalette::Highlight), palette().color(QPalette::Base), 3);
    const double knob = height() - 2.0, middle = height() / 2.0;
    painter.setPen(QPen(color, 2));
    painter.setBrush(color);
    const bool mirrored = isRightToLeft();
    painter.drawEllipse(QRectF(mirrored ? width() - 1 - knob : 1, 1, knob, knob));
    painter.drawLine(QPointF(mirrored ? 0 : knob, middle), QPointF(mirrored ? width() - knob : width(), middle));
  }
};

}  // namespace

TQPDrag::TQPDrag(TJQueryPanelView& view) : QObject(&view), FView(view), FMark(new TInsertMark(view.viewport())) {}

// The view is half gone by now, and perhaps the mark with it.
TQPDrag::~TQPDrag() { Cancel(); }

void TQPDrag::Watch(QWidget& button) { button.installEventFilter(this); }

TFilterRow* TQPDrag::DraggedRow() const {
  for (const TJQueryPanelView::TPlacedRow& at : FView.Rows()) {
    if (at.Row->GetSerial() == FSerial) return at.Row;
  }
  return nullptr;
}

bool TQPDrag::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      return Press(watched, static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
      return MoveTo(watched, static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
      return Release(static_cast<QMouseEvent&>(*event));
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
      return FDragging && KeyPress(static_cast<QKeyEvent&>(*event));
    case QEvent::ContextMenu:
      return FDragging;
    case QEvent::Hide:
      // The row goes: nobody will release its button.
      if (watched == FButton) Cancel();
      return false;
    default:
      return false;
  }
}

bool TQPDrag::KeyPress(QKeyEvent& event) {
  event.accept();
  if (event.type() == QEvent::KeyPress && event.key() == Qt::Key_Escape) Cancel();
  return true;
}

bool TQPDrag::Press(QObject* button, const QMouseEvent& event) {
  if (FDragging) return true;
  const auto* row = qobject_cast<TQPRow*>(button->parent());
  FButton = button;
  FPressed = event.button() == Qt::LeftButton && row != nullptr && row->GetRow() != nullptr;
  FSerial = FPressed ? row->GetRow()->GetSerial() : 0;
  FStart = event.globalPosition().toPoint();
  return false;
}

bool TQPDrag::MoveTo(QObject* button, const QMouseEvent& event) {
  if (!(event.buttons() & Qt::LeftButton)) Cancel();
  if (!FPressed) return false;
  const QPoint at = event.globalPosition().toPoint();
  const TFilterRow* row = DraggedRow();
  const TPanelEditor* editor = FView.GetEditor();
  if (row == nullptr || editor == nullptr || !editor->CanDelete(*row)) return false;
  if (!FDragging && (at - FStart).manhattanLength() < QApplication::startDragDistance()) return false;
  if (!std::exchange(FDragging, true)) {
    static_cast<QAbstractButton*>(button)->setDown(false);
    QApplication::setOverrideCursor(Qt::ClosedHandCursor);
  }
  FLast = FView.viewport()->mapFromGlobal(at);
  if (StepAtEdge() == 0) FScrolling.stop();
  if (StepAtEdge() != 0 && !FScrolling.isActive()) FScrolling.start(scrollPause, this);
  ShowMark(FLast);
  return true;
}

// How far to scroll while the mouse is held where it is.
int TQPDrag::StepAtEdge() const {
  const int step = FView.verticalScrollBar()->singleStep();
  return FLast.y() < 0 ? -step : FLast.y() >= FView.viewport()->height() ? step : 0;
}

void TQPDrag::timerEvent(QTimerEvent*) {
  QScrollBar& bar = *FView.verticalScrollBar();
  bar.setValue(bar.value() + StepAtEdge());
  ShowMark(FLast);
}

bool TQPDrag::Release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return FDragging;
  FPressed = false;
  if (!FDragging) return false;
  TFilterRow* row = DraggedRow();
  const std::optional<TRowPlace> place = row != nullptr ? PlaceAt(*row, FLast) : std::nullopt;
  Cancel();
  // The panel's handlers may destroy the view.
  if (place) FView.GetEditor()->Move(*row, *place);
  return true;
}

void TQPDrag::Cancel() {
  FPressed = false;
  if (!std::exchange(FDragging, false)) return;
  FScrolling.stop();
  if (FMark) FMark->hide();
  QApplication::restoreOverrideCursor();
}

std::optional<TRowPlace> TQPDrag::PlaceAt(const TFilterRow& row, QPoint at) const {
  const auto& rows = FView.Rows();
  const TQPMetrics& metrics = FView.Metrics();
  const TPanelEditor* editor = FView.GetEditor();
  if (rows.empty() || editor == nullptr) return std::nullopt;
  // The row above the edge that is nearest.
  const std::size_t above = std::max<std::size_t>(FView.RowAt(at.y() + metrics.RowHeight / 2), 1) - 1;
  TFilterRow* upper = rows[std::min(above, rows.size() - 1)].Row;
  const bool isOpen = upper->GetRowType() == frtBracket && !editor->IsCollapsed(*upper);
  const std::size_t next = std::min(above, rows.size() - 1) + 1;
  const bool leads = isOpen && next < rows.size() && rows[next].Row->IsWithin(*upper);
  std::vector<TRowPlace> places;
  if (isOpen) places.push_back({static_cast<TFilterBracket*>(upper), 0});
  for (TFilterRow* last = upper; !leads && last->GetParentBracket() != nullptr; last = last->GetParentBracket()) {
    places.push_back(PlaceAfter(*last));
    if (next < rows.size() && rows[next].Row->IsWithin(*last->GetParentBracket())) break;
  }
  // Of the brackets that end there, the one whose rows begin nearest to the mouse.
  const int x = (FView.isRightToLeft() ? FView.viewport()->width() - at.x() : at.x()) +
                FView.horizontalScrollBar()->value() - metrics.Left - metrics.ButtonWidth / 2;
  std::optional<TRowPlace> best;
  int bestDistance = 0;
  for (const TRowPlace& place : places) {
    const int distance = std::abs(x - (place.Bracket->GetRowLevel() + 1) * metrics.Indent);
    if (!editor->CanMove(row, place) || (best && distance >= bestDistance)) continue;
    best = place;
    bestDistance = distance;
  }
  return best;
}

void TQPDrag::ShowMark(QPoint at) {
  const TFilterRow* row = DraggedRow();
  const std::optional<TRowPlace> place = row != nullptr ? PlaceAt(*row, at) : std::nullopt;
  FMark->setVisible(place.has_value());
  if (!place) return;
  const TQPMetrics& metrics = FView.Metrics();
  const int height = std::max(7, metrics.RowHeight / 4) | 1;
  const int x =
      metrics.Left + (place->Bracket->GetRowLevel() + 1) * metrics.Indent - FView.horizontalScrollBar()->value();
  const int width = FView.viewport()->width() - x - metrics.Left;
  const std::size_t edge = std::max<std::size_t>(FView.RowAt(at.y() + metrics.RowHeight / 2), 1);
  FMark->setGeometry(FView.isRightToLeft() ? metrics.Left : x, FView.TopOfRow(edge) - height / 2, width, height);
  FMark->raise();
}

}  // namespace tolvi
