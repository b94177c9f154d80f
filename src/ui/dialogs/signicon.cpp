#include <QAction>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QToolButton>
#include <QWidget>
#include <utility>

#include <tolvi/ui/controls/drawnicon.h>
#include <tolvi/ui/dialogs/signicon.h>

namespace tolvi {
namespace {

// On a square of 16 units.

void Line(QPainterPath& path, double x1, double y1, double x2, double y2) {
  path.moveTo(x1, y1);
  path.lineTo(x2, y2);
}

void Arrow(QPainterPath& path, double x, double from, double to) {
  const double wing = to > from ? -3.5 : 3.5;
  Line(path, x, from, x, to);
  path.moveTo(x - 3.5, to + wing);
  path.lineTo(x, to);
  path.lineTo(x + 3.5, to + wing);
}

/// Three lines beside an arrow, the lengths growing or shrinking.
void Sorted(QPainterPath& path, bool ascending) {
  Arrow(path, 4, 2.5, 13.5);
  for (int i = 0; i < 3; ++i) Line(path, 9.5, 4 + 4.0 * i, 10.5 + (ascending ? i : 2 - i) * 2, 4 + 4.0 * i);
}

void Turn(QPainterPath& path) {
  path.moveTo(6, 2.5);
  path.lineTo(2.5, 6);
  path.lineTo(6, 9.5);
  path.moveTo(2.5, 6);
  path.cubicTo(13, 5, 14.5, 9, 12, 13.5);
}

/// Of a square, in the distance of its edge; their legs lead to the middle or, when negative, away from it.
void Corners(QPainterPath& path, double edge, double leg) {
  for (const double x : {edge, 16 - edge}) {
    for (const double y : {edge, 16 - edge}) {
      path.moveTo(x < 8 ? x + leg : x - leg, y);
      path.lineTo(x, y);
      path.lineTo(x, y < 8 ? y + leg : y - leg);
    }
  }
}

QPainterPath PathOf(TSign sign) {
  QPainterPath path;
  switch (sign) {
    case sgForward:
      Line(path, 2, 8, 14, 8);
      path.moveTo(9.5, 3.5);
      path.lineTo(14, 8);
      path.lineTo(9.5, 12.5);
      break;
    case sgDelete:
      // A bin.
      Line(path, 2.5, 4.5, 13.5, 4.5);
      path.addPolygon(QPolygonF{{6.5, 4}, {6.5, 2}, {9.5, 2}, {9.5, 4}});
      path.addPolygon(QPolygonF{{4, 5}, {5, 14}, {11, 14}, {12, 5}});
      break;
    case sgNew:
      path.addRect(2.5, 2.5, 11, 11);
      Line(path, 8, 5.5, 8, 10.5);
      Line(path, 5.5, 8, 10.5, 8);
      break;
    case sgPlus:
      Line(path, 8, 3, 8, 13);
      [[fallthrough]];
    case sgMinus:
      Line(path, 3, 8, 13, 8);
      break;
    case sgTimes:
      Line(path, 4.5, 4.5, 11.5, 11.5);
      Line(path, 11.5, 4.5, 4.5, 11.5);
      break;
    case sgDivided:
      Line(path, 3, 8, 13, 8);
      path.addEllipse(QPointF(8, 4), 0.7, 0.7);
      path.addEllipse(QPointF(8, 12), 0.7, 0.7);
      break;
    case sgNotSorted:
      for (const double y : {4.0, 8.0, 12.0}) Line(path, 3, y, 13, y);
      break;
    case sgAscending:
    case sgDescending:
      Sorted(path, sign == sgAscending);
      break;
    case sgUp:
      Arrow(path, 8, 13.5, 2.5);
      break;
    case sgDown:
      Arrow(path, 8, 2.5, 13.5);
      break;
    case sgUndo:
    case sgRedo:
      Turn(path);
      break;
    case sgFullScreen:
      Corners(path, 2.5, 3.5);
      break;
    case sgRestore:
      Corners(path, 6, -3.5);
      break;
    case sgNone:
      break;
  }
  return path;
}

class TSignEngine final : public TDrawnIconEngine {
 public:
  TSignEngine(TSign sign, const QWidget& owner) : TDrawnIconEngine(16), FSign(sign), FOwner(&owner) {}

  QIconEngine* clone() const override { return new TSignEngine(*this); }

 protected:
  void Draw(QPainter& painter, QIcon::Mode mode) const override {
    const QPalette palette = FOwner ? FOwner->palette() : QGuiApplication::palette();
    const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
    painter.setPen(QPen(palette.color(group, role), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(PathOf(FSign));
  }

  bool IsMirrored() const override {
    return FSign == sgRedo || (FSign == sgForward && FOwner && FOwner->isRightToLeft());
  }

 private:
  const TSign FSign;
  const QPointer<const QWidget> FOwner;
};

class TSignButton final : public QToolButton {
 public:
  explicit TSignButton(QWidget& parent) : QToolButton(&parent) {
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    FitIcon();
  }

 protected:
  void changeEvent(QEvent* event) override {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::FontChange) FitIcon();
  }

 private:
  void FitIcon() {
    const int side = fontMetrics().height();
    setIconSize(QSize(side, side));
  }
};

}  // namespace

QIcon SignIcon(TSign sign, const QWidget& owner) { return QIcon(new TSignEngine(sign, owner)); }

QToolButton* MakeSignButton(QAction& action, QWidget& parent) {
  auto* button = new TSignButton(parent);
  button->setDefaultAction(&action);
  button->setAccessibleName(action.text());
  return button;
}

}  // namespace tolvi
