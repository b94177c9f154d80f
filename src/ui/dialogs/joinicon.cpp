#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QWidget>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/drawnicon.h>
#include <tolvi/ui/dialogs/joinicon.h>

namespace tolvi {
namespace {

constexpr double FieldSize = 24, Radius = 7.5, Shift = 3.7;

class TJoinEngine final : public TDrawnIconEngine {
 public:
  TJoinEngine(TDSLinkType linkType, const QWidget& owner)
      : TDrawnIconEngine(FieldSize), FLinkType(linkType), FOwner(&owner) {}

  QIconEngine* clone() const override { return new TJoinEngine(*this); }

 protected:
  void Draw(QPainter& painter, QIcon::Mode mode) const override {
    const QPointF middle(FieldSize / 2, FieldSize / 2), shift(Shift, 0);
    QPainterPath first, second;
    first.addEllipse(middle - shift, Radius, Radius);
    second.addEllipse(middle + shift, Radius, Radius);
    const QPainterPath kept[] = {first & second, first, second, first | second};
    const QPalette palette = FOwner ? FOwner->palette() : QGuiApplication::palette();
    const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor face = palette.color(group, QPalette::Window);
    painter.fillPath(kept[FLinkType], ReadableColor(palette.color(group, QPalette::Highlight), face, 3));
    painter.setPen(QPen(palette.color(group, QPalette::WindowText), 1.2));
    painter.drawPath(first);
    painter.drawPath(second);
  }

  bool IsMirrored() const override { return FOwner && FOwner->isRightToLeft(); }

 private:
  const TDSLinkType FLinkType;
  const QPointer<const QWidget> FOwner;
};

}  // namespace

QIcon JoinIcon(TDSLinkType linkType, const QWidget& owner) { return QIcon(new TJoinEngine(linkType, owner)); }

}  // namespace tolvi
