// The wavy line below what is wrong.
#pragma once

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace tolvi {

inline void DrawWave(QPainter& painter, double left, double right, double middle, double height) {
  QPainterPath path(QPointF(left, middle));
  for (double x = left, side = 1; x < right; x += 2 * height, side = -side)
    path.quadTo(x + height, middle + side * height, std::min(x + 2 * height, right), middle);
  painter.drawPath(path);
}

}  // namespace tolvi
