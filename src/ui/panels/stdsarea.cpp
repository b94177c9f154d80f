#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include <tolvi/ui/panels/stdsarea.h>

namespace tolvi {
namespace {

/// For one notch of the wheel, one key.
constexpr double ZoomStep = 1.2;
/// Right of and below the boxes, in pixels of the content.
constexpr double ContentAir = 24;
constexpr QSize MinimapSize(150, 110);
constexpr int MinimapAir = 6, SeenAir = 8;

}  // namespace

TJDesignArea::TJDesignArea(QWidget* parent) : QGraphicsView(parent), FMinimap(new TDesignMinimap(*this)) {
  setScene(new QGraphicsScene(this));
  // Not that of the first boxes: the view would begin there.
  setSceneRect(0, 0, 1, 1);
  setFrameShape(QFrame::NoFrame);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setBackgroundRole(QPalette::Base);
  setBackgroundBrush(Qt::NoBrush);
  setViewportUpdateMode(SmartViewportUpdate);
  setTransformationAnchor(NoAnchor);
  setResizeAnchor(NoAnchor);
  setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);
  setMouseTracking(true);
  viewport()->setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
}

void TJDesignArea::SetZoom(double zoom) { SetZoom(zoom, viewport()->rect().center()); }

void TJDesignArea::SetZoom(double zoom, QPoint stays) {
  zoom = std::clamp(zoom, MinZoom, MaxZoom);
  if (zoom == FZoom) return;
  const QPointF content = mapToScene(stays);
  FZoom = zoom;
  setTransform(QTransform::fromScale(zoom, zoom));
  const QPoint moved = mapFromScene(content) - stays;
  ScrollBy(moved.x(), moved.y());
  PlaceMinimap();
}

/// By pixels of the viewport, whichever side the scroll bar begins at.
void TJDesignArea::ScrollBy(int dx, int dy) {
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + (isRightToLeft() ? -dx : dx));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + dy);
}

void TJDesignArea::BringIntoView(const QRectF& content) {
  const QRect part = mapFromScene(content).boundingRect().adjusted(-SeenAir, -SeenAir, SeenAir, SeenAir);
  const QRect room = viewport()->rect();
  const auto way = [](int from, int to, int first, int last) {
    if (from >= first && to <= last) return 0;
    return from < first || to - from > last - first ? from - first : to - last;
  };
  ScrollBy(way(part.left(), part.right(), room.left(), room.right()),
           way(part.top(), part.bottom(), room.top(), room.bottom()));
}

void TJDesignArea::ZoomToFit() {
  const QSizeF content = sceneRect().size();
  const QSize room = maximumViewportSize();
  if (content.isEmpty()) return;
  SetZoom(std::min({1.0, room.width() / content.width(), room.height() / content.height()}));
  centerOn(sceneRect().center());
}

void TJDesignArea::SetContent(const QRectF& boxes, bool mayShrink) {
  QRectF content(0, 0, boxes.right() + ContentAir, boxes.bottom() + ContentAir);
  if (!mayShrink) content |= sceneRect();
  if (content == sceneRect()) return;
  // What is seen stays, also where the scroll bar begins at the right.
  const QPointF corner = mapToScene(QPoint());
  setSceneRect(content);
  if (isRightToLeft()) ScrollBy(mapFromScene(corner).x(), 0);
  PlaceMinimap();
}

TDesignPoint TJDesignArea::ToContent(QPoint inViewport) const {
  const QPointF point = mapToScene(inViewport);
  return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

int TJDesignArea::ClientWidth() const { return static_cast<int>(maximumViewportSize().width() / FZoom); }

void TJDesignArea::SetShowMinimap(bool show) {
  FShowMinimap = show;
  PlaceMinimap();
}

void TJDesignArea::PlaceMinimap() {
  const bool isAllSeen = horizontalScrollBar()->minimum() == horizontalScrollBar()->maximum() &&
                         verticalScrollBar()->minimum() == verticalScrollBar()->maximum();
  FMinimap->setVisible(FShowMinimap && !isAllSeen && viewport()->width() > 3 * MinimapSize.width());
  const QPoint corner = isRightToLeft() ? QPoint(MinimapAir, viewport()->height() - MinimapSize.height() - MinimapAir)
                                        : QPoint(viewport()->width() - MinimapSize.width() - MinimapAir,
                                                 viewport()->height() - MinimapSize.height() - MinimapAir);
  FMinimap->setGeometry(QRect(corner, MinimapSize));
  FMinimap->update();
}

void TJDesignArea::mousePressEvent(QMouseEvent* event) {
  setFocus(Qt::MouseFocusReason);
  if (event->button() == Qt::MiddleButton || (FSpace && event->button() == Qt::LeftButton)) {
    FPushing = true;
    FPushedFrom = event->pos();
    viewport()->setCursor(Qt::ClosedHandCursor);
    event->accept();
    return;
  }
  if (OnPress && OnPress(*event)) event->accept();
}

void TJDesignArea::mouseMoveEvent(QMouseEvent* event) {
  if (FPushing) {
    Push(event->pos());
  } else if (!FSpace && OnMove && OnMove(*event)) {
    event->accept();
  }
}

void TJDesignArea::mouseReleaseEvent(QMouseEvent* event) {
  if (FPushing) {
    EndPush();
  } else if (OnRelease && OnRelease(*event)) {
    event->accept();
  }
}

void TJDesignArea::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && OnDoubleClick && OnDoubleClick(*event)) event->accept();
}

void TJDesignArea::Push(QPoint to) {
  const QPoint by = to - FPushedFrom;
  FPushedFrom = to;
  ScrollBy(-by.x(), -by.y());
}

void TJDesignArea::EndPush() {
  FPushing = false;
  if (FSpace) {
    viewport()->setCursor(Qt::OpenHandCursor);
  } else {
    viewport()->unsetCursor();
  }
}

void TJDesignArea::wheelEvent(QWheelEvent* event) {
  if (event->modifiers() & Qt::ControlModifier) {
    SetZoom(FZoom * std::pow(ZoomStep, event->angleDelta().y() / double(QWheelEvent::DefaultDeltasPerStep)),
            event->position().toPoint());
    event->accept();
    return;
  }
  if (OnWheel && OnWheel(*event)) {
    event->accept();
    return;
  }
  QGraphicsView::wheelEvent(event);
}

bool TJDesignArea::event(QEvent* event) {
  const bool isOwn = event->type() == QEvent::ShortcutOverride && OwnsKey && OwnsKey(*static_cast<QKeyEvent*>(event));
  if (!isOwn) return QGraphicsView::event(event);
  event->accept();
  return true;
}

void TJDesignArea::keyPressEvent(QKeyEvent* event) {
  if (OnKey && OnKey(*event)) {
    event->accept();
    return;
  }
  const bool isControl = event->modifiers() & Qt::ControlModifier;
  if (event->key() == Qt::Key_Space && !isControl) {
    if (!event->isAutoRepeat() && !FPushing) viewport()->setCursor(Qt::OpenHandCursor);
    FSpace = true;
  } else if (isControl && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)) {
    SetZoom(FZoom * ZoomStep);
  } else if (isControl && event->key() == Qt::Key_Minus) {
    SetZoom(FZoom / ZoomStep);
  } else if (isControl && event->key() == Qt::Key_0) {
    SetZoom(1);
  } else {
    QGraphicsView::keyPressEvent(event);
    return;
  }
  event->accept();
}

void TJDesignArea::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space || event->isAutoRepeat()) {
    QGraphicsView::keyReleaseEvent(event);
    return;
  }
  FSpace = false;
  if (!FPushing) viewport()->unsetCursor();
}

void TJDesignArea::focusOutEvent(QFocusEvent* event) {
  if (FSpace || FPushing) {
    FSpace = false;
    EndPush();
  }
  QGraphicsView::focusOutEvent(event);
}

void TJDesignArea::contextMenuEvent(QContextMenuEvent* event) {
  if (OnMenu) OnMenu(event->globalPos(), event->pos(), event->reason() == QContextMenuEvent::Keyboard);
  event->accept();
}

void TJDesignArea::resizeEvent(QResizeEvent* event) {
  QGraphicsView::resizeEvent(event);
  PlaceMinimap();
  if (OnResize) OnResize();
}

void TJDesignArea::scrollContentsBy(int dx, int dy) {
  QGraphicsView::scrollContentsBy(dx, dy);
  // The view shifts its children, too.
  PlaceMinimap();
}

/// Tab goes through the boxes; its owner says where it ends.
bool TJDesignArea::focusNextPrevChild(bool next) {
  QKeyEvent key(QEvent::KeyPress, next ? Qt::Key_Tab : Qt::Key_Backtab, next ? Qt::NoModifier : Qt::ShiftModifier);
  if (OnKey && OnKey(key)) return true;
  return QGraphicsView::focusNextPrevChild(next);
}

TDesignMinimap::TDesignMinimap(TJDesignArea& area) : QWidget(area.viewport()), FArea(area) {
  setObjectName(QStringLiteral("minimap"));
  setToolTip(tr("The whole diagram; click to go there"));
  setAccessibleName(tr("The whole diagram"));
  setCursor(Qt::ArrowCursor);
  hide();
}

void TDesignMinimap::SetBoxes(std::vector<QRect> boxes) {
  FBoxes = std::move(boxes);
  update();
}

QTransform TDesignMinimap::ToMap() const {
  const QRectF content = FArea.sceneRect();
  const double scale = std::min((width() - 4) / content.width(), (height() - 4) / content.height());
  return QTransform::fromTranslate((width() - content.width() * scale) / 2, (height() - content.height() * scale) / 2)
      .scale(scale, scale);
}

void TDesignMinimap::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (FArea.sceneRect().isEmpty()) return;
  const QTransform toMap = ToMap();
  const QColor box = palette().color(QPalette::WindowText);
  for (const QRect& place : FBoxes) {
    QRectF small = toMap.mapRect(QRectF(place));
    small.setSize(small.size().expandedTo(QSizeF(1, 1)));
    painter.fillRect(small, QColor(box.red(), box.green(), box.blue(), 150));
  }
  const QRectF seen = toMap.mapRect(FArea.mapToScene(FArea.viewport()->rect()).boundingRect()) & QRectF(rect());
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(seen.adjusted(1, 1, -1, -1));
}

void TDesignMinimap::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) GoTo(event->pos());
}

void TDesignMinimap::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) GoTo(event->pos());
}

void TDesignMinimap::GoTo(QPoint point) { FArea.centerOn(ToMap().inverted().map(QPointF(point))); }

}  // namespace tolvi
