#include "apps/designer/widgeticons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/drawnicon.h>

namespace tolvi {
namespace {

constexpr double FieldSize = 22;

void Paint(QPainter& painter, const TIconShape& shape, const QColor& color) {
  const QRectF box(shape.X, shape.Y, shape.Width, shape.Height);
  const bool outlined = shape.Kind == TIconShape::isBox || shape.Kind == TIconShape::isCheck;
  painter.setPen(outlined ? QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin) : QPen(Qt::NoPen));
  painter.setBrush(outlined ? QBrush(Qt::NoBrush) : QBrush(color));
  const QPointF center = box.center();
  switch (shape.Kind) {
    case TIconShape::isBox:
      return painter.drawRoundedRect(box, 2, 2);
    case TIconShape::isBar:
      return painter.drawRect(box);
    case TIconShape::isDisc:
      return painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);
    case TIconShape::isCheck:
      return painter.drawPolyline(
          QPolygonF{{box.left(), center.y()}, {box.left() + box.width() * 0.4, box.bottom()}, box.topRight()});
    case TIconShape::isArrow:
      return painter.drawPolygon(QPolygonF{box.topLeft(), box.topRight(), {center.x(), box.bottom()}});
  }
}

class TShapeEngine final : public TDrawnIconEngine {
 public:
  explicit TShapeEngine(std::span<const TIconShape> shapes) : TDrawnIconEngine(FieldSize), FShapes(shapes) {}

  QIconEngine* clone() const override { return new TShapeEngine(*this); }

 protected:
  void Draw(QPainter& painter, QIcon::Mode mode) const override {
    const QPalette palette = QGuiApplication::palette();
    const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor ink = palette.color(group, QPalette::WindowText), paper = palette.color(group, QPalette::Window);
    const QColor link = ReadableColor(palette.color(group, QPalette::Link), paper, 3);
    const QColor tones[] = {ink, mode == QIcon::Disabled ? ink : link, MixedColor(ink, paper, 0.45)};
    for (const TIconShape& shape : FShapes) Paint(painter, shape, tones[shape.Tone]);
  }

 private:
  std::span<const TIconShape> FShapes;
};

}  // namespace

QIcon ShapeIcon(std::span<const TIconShape> shapes) { return QIcon(new TShapeEngine(shapes)); }

}  // namespace tolvi
