#include "apps/palette/reduced.h"

#include <QHash>
#include <QList>
#include <algorithm>
#include <utility>

namespace tolvi {

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
