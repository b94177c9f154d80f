#include <QPainter>

#include <tolvi/model/link.h>
#include <tolvi/ui/panels/stdslink.h>
#include <tolvi/ui/panels/stdstable.h>

namespace tolvi {
namespace {

constexpr double LineAir = 2;
constexpr double BelowBoxes = -1;

QPoint ToPoint(TDesignPoint point) { return {point.X, point.Y}; }

}  // namespace

TLinkRep::TLinkRep(TDSLink& link, TTableRep& table1, TTableRep& table2, const TDesignStyle& style)
    : FLink(&link), FTableRep1(&table1), FTableRep2(&table2), FStyle(style) {
  setZValue(BelowBoxes);
  setAcceptedMouseButtons(Qt::NoButton);
  RefreshFields();
}

void TLinkRep::SetActive(bool active) {
  FActive = active;
  update();
}

void TLinkRep::RefreshFields() {
  FFields1 = FLink->GetFields1();
  FFields2 = FLink->GetFields2();
  RecalcPositions();
}

void TLinkRep::RecalcPositions() {
  const TTableBox box1 = FTableRep1->GetBox(), box2 = FTableRep2->GetBox();
  FLinkNodes1 = LinkNodes(FFields1, box1, box2.Place, {});
  FLinkNodes2 = LinkNodes(FFields2, box2, box1.Place, {});
  RefreshLines();
}

void TLinkRep::MoveSecondEnd(TDesignPoint to) {
  FLinkNodes2.resize(1);
  FLinkNodes2.front().X = to.X;
  FLinkNodes2.front().Y = to.Y;
  if (!FLinkNodes1.empty()) FLinkNodes2.front().Dir = to.X < FLinkNodes1.front().X ? 1 : -1;
  RefreshLines();
}

void TLinkRep::RefreshLines() {
  prepareGeometryChange();
  FLines.clear();
  QRect bounds;
  for (const TDesignLine& line : LinkLines(FLinkNodes1, FLinkNodes2)) {
    FLines.append(QLine(ToPoint(line.From), ToPoint(line.To)));
    bounds |= QRect(ToPoint(line.From), QSize(1, 1)) | QRect(ToPoint(line.To), QSize(1, 1));
  }
  FBounds = QRectF(bounds).adjusted(-LineAir, -LineAir, LineAir, LineAir);
  update();
}

void TLinkRep::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
  QPen pen(FStyle.Palette.color(QPalette::Text), FActive && !FStyle.ForExport ? 2 : 1);
  // As wide on the screen at any zoom; on paper it grows with the picture.
  pen.setCosmetic(!FStyle.ForExport);
  painter->setPen(pen);
  painter->drawLines(FLines);
}

TLinkRep* IsOverSomeLink(const TLinkRepList& links, TDesignPoint point) {
  for (TLinkRep& link : links) {
    if (link.IsOver(point)) return &link;
  }
  return nullptr;
}

}  // namespace tolvi
