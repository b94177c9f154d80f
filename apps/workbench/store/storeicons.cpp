#include "apps/workbench/store/storeicons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QWidget>

#include <tolvi/ui/controls/drawnicon.h>

namespace tolvi {
namespace {

// On a square of 16 units.

QPainterPath PathOf(TStoreSign sign) {
  QPainterPath path;
  switch (sign) {
    case stRename:
      // A pencil.
      path.addPolygon(QPolygonF{{2.5, 13.5}, {3.3, 10}, {10.8, 2.5}, {13.5, 5.2}, {6, 12.7}, {2.5, 13.5}});
      path.addPolygon(QPolygonF{{9, 4.3}, {11.7, 7}});
      break;
    case stDuplicate:
      path.addRect(5.5, 5.5, 8, 8);
      path.addPolygon(QPolygonF{{10.5, 2.5}, {2.5, 2.5}, {2.5, 10.5}});
      break;
    case stDescribe:
      for (const double y : {3.5, 6.5, 9.5}) path.addPolygon(QPolygonF{{2.5, y}, {13.5, y}});
      path.addPolygon(QPolygonF{{2.5, 12.5}, {8.5, 12.5}});
      break;
    case stRefresh:
      path.arcMoveTo(3, 3, 10, 10, 40);
      path.arcTo(3, 3, 10, 10, 40, 290);
      path.addPolygon(QPolygonF{{12.4, 1.6}, {12.2, 5.2}, {8.6, 5}});
      break;
    case stMore:
      for (const double x : {3.0, 8.0, 13.0}) path.addEllipse(QPointF(x, 8), 0.7, 0.7);
      break;
  }
  return path;
}

class TStoreEngine final : public TDrawnIconEngine {
 public:
  TStoreEngine(TStoreSign sign, const QWidget& owner) : TDrawnIconEngine(16), FSign(sign), FOwner(&owner) {}

  QIconEngine* clone() const override { return new TStoreEngine(*this); }

 protected:
  void Draw(QPainter& painter, QIcon::Mode mode) const override {
    const QPalette palette = FOwner ? FOwner->palette() : QGuiApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
    painter.setPen(QPen(palette.color(group, role), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(PathOf(FSign));
  }

  bool IsMirrored() const override { return FSign == stDescribe && FOwner && FOwner->isRightToLeft(); }

 private:
  const TStoreSign FSign;
  const QPointer<const QWidget> FOwner;
};

}  // namespace

QIcon StoreIcon(TStoreSign sign, const QWidget& owner) { return QIcon(new TStoreEngine(sign, owner)); }

}  // namespace tolvi
