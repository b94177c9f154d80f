#include <QPainter>
#include <QPolygonF>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/panels/qpsigns.h>

namespace tolvi {

TQPTriangle::TQPTriangle(QWidget* parent) : QAbstractButton(parent) {
  setObjectName(QStringLiteral("triangle"));
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_Hover);
}

void TQPTriangle::SetCollapsed(bool collapsed) {
  FCollapsed = collapsed;
  update();
}

QSize TQPTriangle::sizeHint() const {
  const int side = fontMetrics().ascent();
  return {side, side};
}

void TQPTriangle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor background = palette().color(parentWidget()->backgroundRole());
  const QColor color = palette().color(underMouse() ? QPalette::Highlight : QPalette::Text);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ReadableColor(underMouse() ? color : MixedColor(color, background, 0.7), background, 3));
  painter.translate(QRectF(rect()).center());
  if (FCollapsed) painter.rotate(isRightToLeft() ? 90 : -90);
  const double half = width() * 0.32;
  painter.drawPolygon(QPolygonF{{-half, -half / 2}, {half, -half / 2}, {0, half * 0.7}});
}

void PaintPadlock(QPainter& painter, const QRectF& place, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double width = place.height() * 0.72, line = place.height() * 0.12;
  const QRectF body(place.center().x() - width / 2, place.top() + place.height() * 0.45, width, place.height() * 0.55);
  const QRectF bow(body.left() + width * 0.18, place.top() + line / 2, width * 0.64, place.height() * 0.7);
  painter.setPen(QPen(color, line));
  painter.drawArc(bow, 0, 180 * 16);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawRoundedRect(body, line, line);
  painter.restore();
}

}  // namespace tolvi
