#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/rowdrag.h>

namespace tolvi {
namespace {

class TDropMark final : public QWidget {
 public:
  explicit TDropMark(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("dropMark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), ReadableColor(palette().color(QPalette::Highlight), palette().color(QPalette::Base), 3));
  }
};

}  // namespace

TRowDrag::TRowDrag(QAbstractItemView& view) : QObject(&view), FView(view), FMark(new TDropMark(view.viewport())) {
  view.viewport()->installEventFilter(this);
  view.installEventFilter(this);
}

bool TRowDrag::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &FView) {
    const bool givesUp =
        FDragging && event->type() == QEvent::KeyPress && static_cast<QKeyEvent&>(*event).key() == Qt::Key_Escape;
    if (givesUp) Stop();
    return givesUp;
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      Press(static_cast<QMouseEvent&>(*event));
      return false;
    case QEvent::MouseMove:
      return MoveTo(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
      return Release();
    default:
      return false;
  }
}

void TRowDrag::Press(const QMouseEvent& event) {
  FStart = event.position().toPoint();
  FRow = event.button() == Qt::LeftButton ? FView.indexAt(FStart).row() : -1;
}

bool TRowDrag::MoveTo(const QMouseEvent& event) {
  if (FRow < 0 || !(event.buttons() & Qt::LeftButton)) return false;
  const QPoint at = event.position().toPoint();
  if (!FDragging && (at - FStart).manhattanLength() < QApplication::startDragDistance()) return true;
  if (!std::exchange(FDragging, true)) FView.viewport()->setCursor(Qt::ClosedHandCursor);
  QScrollBar& bar = *FView.verticalScrollBar();
  if (at.y() < 0) bar.setValue(bar.value() - bar.singleStep());
  if (at.y() > FView.viewport()->height()) bar.setValue(bar.value() + bar.singleStep());
  ShowMark(EdgeAt(at.y()));
  return true;
}

bool TRowDrag::Release() {
  const int from = FRow, edge = FEdge;
  const bool dragged = FDragging;
  Stop();
  if (!dragged) return false;
  const int to = edge > from ? edge - 1 : edge;
  if (from < FView.model()->rowCount() && to != from && OnMove) {
    const auto move = OnMove;
    move(from, to);
  }
  return true;
}

void TRowDrag::Stop() {
  FRow = -1;
  if (!std::exchange(FDragging, false)) return;
  FMark->hide();
  FView.viewport()->unsetCursor();
}

int TRowDrag::EdgeAt(int y) const {
  const QAbstractItemModel& model = *FView.model();
  const int count = model.rowCount();
  for (int row = 0; row < count; ++row) {
    if (y < FView.visualRect(model.index(row, 0)).center().y()) return row;
  }
  return count;
}

void TRowDrag::ShowMark(int edge) {
  FEdge = edge;
  const QAbstractItemModel& model = *FView.model();
  const int count = model.rowCount();
  const QRect row = FView.visualRect(model.index(std::min(edge, count - 1), 0));
  const int thickness = std::max(2, FView.fontMetrics().lineWidth() * 2);
  const int y = edge < count ? row.top() : row.bottom() + 1;
  const int top = std::clamp(y - thickness / 2, 0, FView.viewport()->height() - thickness);
  FMark->setGeometry(0, top, FView.viewport()->width(), thickness);
  FMark->show();
  FMark->raise();
}

}  // namespace tolvi
