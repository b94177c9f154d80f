#include "apps/designer/widgeticons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <algorithm>

#include <tolvi/ui/controls/contrast.h>

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

class TShapeEngine final : public QIconEngine {
 public:
  explicit TShapeEngine(std::span<const TIconShape> shapes) : FShapes(shapes) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor ink = palette.color(group, QPalette::WindowText), paper = palette.color(group, QPalette::Window);
    const QColor link = ReadableColor(palette.color(group, QPalette::Link), paper, 3);
    const QColor tones[] = {ink, mode == QIcon::Disabled ? ink : link, MixedColor(ink, paper, 0.45)};
    const double side = std::min(rect.width(), rect.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
    painter->scale(side / FieldSize, side / FieldSize);
    for (const TIconShape& shape : FShapes) Paint(*painter, shape, tones[shape.Tone]);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new TShapeEngine(*this); }

 private:
  std::span<const TIconShape> FShapes;
};

}  // namespace

QIcon ShapeIcon(std::span<const TIconShape> shapes) { return QIcon(new TShapeEngine(shapes)); }

}  // namespace tolvi
