// The box of a table in the structure designer.
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QGraphicsItem>
#include <QPalette>
#include <QStringList>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/panel/stdsgeometry.h>
#include <tolvi/ui/api.h>

namespace tolvi {

class TDSTable;
class TTableRep;

/// What all boxes and lines of a diagram look like. Sizes are those at a zoom of 1, in pixels.
struct TOLVI_WIDGETS_API TDesignStyle {
  QPalette Palette;
  QFont Font;
  int TitleHeight = 18, ItemHeight = 16;
  /// Beside each field, for its mark.
  int MarkWidth = 14;
  /// For pictures and paper: all texts are drawn, however small, and nothing that is selected stands out.
  bool ForExport = false;
  bool RightToLeft = false;

  void Take(const QPalette& palette, const QFont& font, Qt::LayoutDirection direction);
};

/// The fields in a box, and how far they are scrolled. Indexes count from 0.
class TOLVI_WIDGETS_API TTableRepListBox final {
 public:
  enum TMark : std::uint8_t { mkNone = 0, mkKey = 1, mkLinked = 2 };

  explicit TTableRepListBox(TTableRep& box) : FBox(box) {}

  /// The full name of the table whose fields these are.
  const std::string& GetSource() const { return FSource; }
  void SetSource(std::string_view fullName) { FSource = fullName; }

  /// With a message the list shows that text in place of fields.
  void SetItems(const TStrings& names);
  void SetMessage(std::string_view message);
  const std::vector<std::string>& Items() const { return FItems; }
  bool HasFields() const { return FHasFields; }
  /// -1 when there is none of that name, ignoring case.
  std::ptrdiff_t IndexOf(std::string_view name) const;

  /// The first item to be seen. Setting another one keeps the list filled, and lets the ends of links follow.
  std::size_t GetTopIndex() const { return FTopIndex; }
  void SetTopIndex(std::ptrdiff_t index);
  std::size_t MaxTopIndex() const;
  /// After the box or its list has changed: tells nobody.
  void ClampTopIndex();
  /// How many items are seen in full.
  std::size_t VisibleCount() const;
  /// The item chosen; -1 for none. Setting scrolls to it.
  std::ptrdiff_t GetItemIndex() const { return FItemIndex; }
  void SetItemIndex(std::ptrdiff_t index);
  /// The name of the item chosen; empty without one.
  std::string GetItemText() const;

  std::uint8_t GetMarks(std::size_t index) const { return FMarks[index]; }
  void SetKeys(const TStrings& names);
  void SetLinked(const std::vector<std::string>& names);

 private:
  void Mark(std::uint8_t mark, const std::vector<std::string>& names);

  TTableRep& FBox;
  std::string FSource;
  std::vector<std::string> FItems;
  std::vector<std::uint8_t> FMarks;
  std::size_t FTopIndex = 0;
  std::ptrdiff_t FItemIndex = -1;
  bool FHasFields = false;
};

/// A box: a title bar with the table's title and, below it, its fields. It stands in the co-ordinates of the diagram's
/// content, which its place says; the model's stored place is the panel's matter.
class TOLVI_WIDGETS_API TTableRep final : public QGraphicsItem {
 public:
  /// What is at a point of a box.
  enum TPart : std::uint8_t { bpTitle, bpField, bpList, bpScrollBar, bpEdge };
  struct THit {
    TPart Part = bpTitle;
    /// The item at a field.
    std::size_t Field = 0;
    /// The sides that an edge moves.
    Qt::Edges Edges;
  };
  using TBoxEvent = std::function<void(TTableRep& sender)>;

  TTableRep(TDSTable& table, const TDesignStyle& style);

  TDSTable& GetTable() const { return *FTable; }
  void RefreshTitle();
  /// Sizes and colours are others.
  void StyleChanged();
  const QString& GetTitle() const { return FTitle; }

  TTableRepListBox& FieldsLB() { return FFieldsLB; }
  const TTableRepListBox& FieldsLB() const { return FFieldsLB; }

  const TDesignRect& GetPlace() const { return FPlace; }
  /// Keeps the box inside the content, which begins at 0, and at a size that shows a field.
  void SetPlace(TDesignRect place);
  /// For the ends of links.
  TTableBox GetBox() const;
  /// The smallest size; the height at which all fields are seen.
  TDesignSize MinSize() const;
  int FittingHeight() const;

  /// Whether it is the panel's active table.
  bool GetActive() const { return FActive; }
  void SetActive(bool active);
  /// Whether it moves with others.
  bool GetChosen() const { return FChosen; }
  void SetChosen(bool chosen);

  /// A field of the box was clicked; it is the item chosen then.
  TBoxEvent OnFieldClick;
  /// The place, or what is seen of the fields, has changed.
  TBoxEvent OnMove;

  /// What is at the point of the content, which is one of the box.
  THit HitAt(TDesignPoint point) const;
  /// The index to be the first item seen when the scroll bar's thumb is dragged to that height.
  std::ptrdiff_t TopIndexAt(double y) const;

  QRectF boundingRect() const override;
  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

 private:
  friend class TTableRepListBox;

  QRect ListRect() const;
  QRect ThumbRect() const;
  QRect Mirrored(const QRect& part) const;
  void ListChanged();
  void PaintTitle(QPainter& painter) const;
  void PaintFields(QPainter& painter, bool withTexts) const;
  void PaintMark(QPainter& painter, const QRect& place, std::uint8_t marks, const QColor& back) const;

  TDSTable* FTable;
  const TDesignStyle& FStyle;
  TTableRepListBox FFieldsLB;
  TDesignRect FPlace{0, 0, 110, 160};
  QString FTitle;
  bool FActive = false, FChosen = false;
  /// The items' texts as far as they fit; null ones are not known yet.
  mutable std::vector<QString> FShown;
};

/// The boxes in the order in which they were added.
using TTableRepList = TJObjectList<TTableRep>;

/// Whether the point of the content is over a box: the first in list order; null when it is over none.
TOLVI_WIDGETS_API TTableRep* IsOverSomeTable(const TTableRepList& boxes, TDesignPoint point);

}  // namespace tolvi
