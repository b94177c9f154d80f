#include <QPainter>
#include <QPolygonF>
#include <algorithm>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/drawing.h>

namespace tolvi {

int CheckBoxSide(const QFontMetrics& metrics) { return std::max(9, metrics.ascent()); }

void DrawCheckBox(QPainter& painter, const QRect& box, Qt::CheckState state, const TCheckColors& colors,
                  double edgeWidth) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = box.width();
  painter.setPen(QPen(colors.edge, edgeWidth));
  painter.setBrush(colors.face);
  painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), side / 6, side / 6);

  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colors.plain, std::max(1.5, side / 7), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const auto at = [&](double x, double y) { return QPointF(box.left() + x * side, box.top() + y * side); };
  if (state == Qt::Checked)
    painter.drawPolyline(QPolygonF{at(0.25, 0.52), at(0.43, 0.71), at(0.76, 0.31)});
  else if (state == Qt::PartiallyChecked)
    painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
  painter.restore();
}

TEditorFrame::TEditorFrame(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::Box | QFrame::Plain);  // for the room; the edge is ours
  setAutoFillBackground(true);
}

void TEditorFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(MixedColor(palette().color(foregroundRole()), BackgroundOf(*this), 0.45));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tolvi
