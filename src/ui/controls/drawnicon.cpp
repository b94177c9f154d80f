#include <QPainter>
#include <algorithm>

#include <tolvi/ui/controls/drawnicon.h>

namespace tolvi {

void TDrawnIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) {
  const double unit = std::min(rect.width(), rect.height()) / FFieldSize;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->translate(QRectF(rect).center());
  painter->scale(IsMirrored() ? -unit : unit, unit);
  painter->translate(-FFieldSize / 2, -FFieldSize / 2);
  Draw(*painter, mode);
  painter->restore();
}

QPixmap TDrawnIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  paint(&painter, QRect(QPoint(), size), mode, state);
  return pixmap;
}

}  // namespace tolvi
