#include "apps/screenshots/looks.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QWidget>
#include <algorithm>

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

QImage Reduced(const QImage& picture) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); ++x) ++counts[line[x]];
  }
  QList<QRgb> colors = counts.keys();
  std::sort(colors.begin(), colors.end(),
            [&](QRgb a, QRgb b) { return std::pair(counts[b], a) < std::pair(counts[a], b); });
  return picture.convertToFormat(QImage::Format_Indexed8, colors.mid(0, 256), Qt::ThresholdDither | Qt::AvoidDither);
}

}  // namespace tolvi
