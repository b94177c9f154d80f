#pragma once

#include <QProxyStyle>

namespace tolvi {

/// Check boxes of the size of the text, which can be seen in any palette.
class TCheckStyle final : public QProxyStyle {
  Q_OBJECT

 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

/// Gives the style to all check boxes and lists in `parent`, which owns it.
void UseCheckStyle(QWidget& parent);

}  // namespace tolvi
