#include "apps/screenshots/looks.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include "apps/palette/darkpalette.h"

namespace tolvi {

void Apply(const TLook& look) {
  static const QPalette light = QApplication::palette();
  QApplication::setPalette(look.IsDark ? DarkPalette() : light);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), look.FontSize));
  QApplication::setLayoutDirection(look.IsMirrored ? Qt::RightToLeft : Qt::LeftToRight);
}

QImage PictureOf(QWidget& window) {
  QCoreApplication::processEvents();
  QWidgetList seen;
  QRect all = window.rect();
  for (QWidget* other : QApplication::topLevelWidgets()) {
    const Qt::WindowType type = other->windowType();
    const bool isOther = type == Qt::ToolTip || type == Qt::Window || type == Qt::Dialog;
    if (other == &window || !other->isVisible() || isOther) continue;
    seen << other;
    all |= QRect(window.mapFromGlobal(other->mapToGlobal(QPoint())), other->size());
  }
  const double ratio = window.devicePixelRatioF();
  QImage picture(all.size() * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  picture.fill(window.palette().color(QPalette::Window));
  QPainter painter(&picture);
  painter.drawPixmap(-all.topLeft(), window.grab());
  for (QWidget* other : seen)
    painter.drawPixmap(window.mapFromGlobal(other->mapToGlobal(QPoint())) - all.topLeft(), other->grab());
  return picture;
}

}  // namespace tolvi
