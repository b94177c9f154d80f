// The line of a link in the structure designer.
#pragma once

#include <QGraphicsItem>
#include <QVector>
#include <span>
#include <string>
#include <vector>

#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/panel/stdsgeometry.h>
#include <tolvi/ui/api.h>

namespace tolvi {

class TDSLink;
class TTableRep;
struct TDesignStyle;

/// A line between the linked fields of two boxes.
class TOLVI_WIDGETS_API TLinkRep final : public QGraphicsItem {
 public:
  TLinkRep(TDSLink& link, TTableRep& table1, TTableRep& table2, const TDesignStyle& style);

  TDSLink& GetLink() const { return *FLink; }
  TTableRep& GetTableRep1() const { return *FTableRep1; }
  TTableRep& GetTableRep2() const { return *FTableRep2; }
  void SetTableReps(TTableRep& box1, TTableRep& box2) {
    FTableRep1 = &box1;
    FTableRep2 = &box2;
  }
  std::span<const TLinkNode> Nodes1() const { return FLinkNodes1; }
  std::span<const TLinkNode> Nodes2() const { return FLinkNodes2; }

  /// Whether it is the panel's active link.
  bool GetActive() const { return FActive; }
  void SetActive(bool active);

  /// Takes the columns over from the link.
  void RefreshFields();
  const TStrings& Fields(bool second) const { return second ? FFields2 : FFields1; }
  /// Finds the ends anew, from the places of the boxes.
  void RecalcPositions();
  /// Lets the second end follow the mouse, while the link is being added.
  void MoveSecondEnd(TDesignPoint to);
  /// Whether the point of the content is over the line.
  bool IsOver(TDesignPoint point) const { return IsOverLink(FLinkNodes1, FLinkNodes2, point); }

  QRectF boundingRect() const override { return FBounds; }
  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

 private:
  void RefreshLines();

  TDSLink* FLink;
  TTableRep *FTableRep1, *FTableRep2;
  const TDesignStyle& FStyle;
  TStrings FFields1, FFields2;
  std::vector<TLinkNode> FLinkNodes1, FLinkNodes2;
  QVector<QLine> FLines;
  QRectF FBounds;
  bool FActive = false;
};

using TLinkRepList = TJObjectList<TLinkRep>;

/// The first link in list order that the point of the content is over; null when it is over none.
TOLVI_WIDGETS_API TLinkRep* IsOverSomeLink(const TLinkRepList& links, TDesignPoint point);

}  // namespace tolvi
