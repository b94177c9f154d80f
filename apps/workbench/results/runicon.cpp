#include "apps/workbench/results/runicon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QWidget>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/drawnicon.h>

namespace tolvi {
namespace {

constexpr QColor runColor(0x2e, 0x9d, 0x46);

class TRunEngine final : public TDrawnIconEngine {
 public:
  TRunEngine(TRunSign sign, const QWidget& owner) : TDrawnIconEngine(16), FSign(sign), FOwner(&owner) {}

  QIconEngine* clone() const override { return new TRunEngine(*this); }

 protected:
  void Draw(QPainter& painter, QIcon::Mode mode) const override {
    const QPalette palette = FOwner ? FOwner->palette() : QGuiApplication::palette();
    const bool isOff = mode == QIcon::Disabled;
    const QColor text = palette.color(isOff ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
    const auto colored = [&](const QColor& color) {
      constexpr double ratio = 3;
      return isOff ? text : ReadableColor(color, palette.color(QPalette::Button), ratio);
    };
    switch (FSign) {
      case rsRun:
        painter.setPen(QPen(colored(runColor), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(colored(runColor));
        painter.drawPolygon(QPolygonF{{4.5, 3}, {13, 8}, {4.5, 13}});
        break;
      case rsStop:
        painter.setPen(QPen(colored(FaultColor()), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(colored(FaultColor()));
        painter.drawRect(QRectF(4, 4, 8, 8));
        break;
      case rsPreview: {
        // An eye.
        QPainterPath path(QPointF(1.5, 8));
        path.quadTo(8, 0.5, 14.5, 8);
        path.quadTo(8, 15.5, 1.5, 8);
        painter.setPen(QPen(text, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
        painter.setBrush(text);
        painter.drawEllipse(QPointF(8, 8), 1.7, 1.7);
        break;
      }
    }
  }

 private:
  const TRunSign FSign;
  const QPointer<const QWidget> FOwner;
};

}  // namespace

QIcon RunIcon(TRunSign sign, const QWidget& owner) { return QIcon(new TRunEngine(sign, owner)); }

}  // namespace tolvi
