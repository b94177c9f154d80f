// The structure panel without its widgets: where the boxes of tables stand, how the lines of links run, and what the
// mouse is over. All sizes and positions are in pixels.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

struct TDesignPoint {
  int X = 0, Y = 0;
  bool operator==(const TDesignPoint&) const = default;
};

struct TDesignSize {
  int Width = 0, Height = 0;
  bool operator==(const TDesignSize&) const = default;
};

struct TOLVI_CORE_API TDesignRect {
  int Left = 0, Top = 0, Width = 0, Height = 0;
  bool operator==(const TDesignRect&) const = default;
  /// The edges belong to it.
  bool Contains(TDesignPoint point) const;
};

// Places of boxes

/// The origin, and the gaps between boxes.
struct TArrangeSettings {
  int XStart = 12, YStart = 10, XMargin = 40, YMargin = 20;
};

/// Places boxes in rows, left to right, each row as wide as the panel. A row break goes down by the tallest box placed
/// so far. The first box stands in the first row, however wide it is.
TOLVI_CORE_API std::vector<TDesignPoint> ArrangeTables(std::span<const TDesignSize> boxes, int clientWidth,
                                                       const TArrangeSettings& settings = {});
/// Places a new box beside those that stand, in the row of the lowest top; else below all of them.
TOLVI_CORE_API TDesignPoint ArrangeNewTable(std::span<const TDesignRect> boxes, TDesignSize added, int clientWidth,
                                            const TArrangeSettings& settings = {});

// Lines of links

/// A box as it is seen: its place in the area (less what is scrolled), and its list of fields.
struct TTableBox {
  TDesignRect Place;
  /// Names as the list shows them; the index of the first one to be seen.
  std::span<const std::string> Fields;
  std::size_t TopIndex = 0;
  /// From the box's top to that of the list; of one item.
  int ListTop = 0, ItemHeight = 1;
};

/// The height at which a link meets the field: the middle of its item; above the box's lower edge where the item is
/// below it; below the upper edge where it is above or there is none.
TOLVI_CORE_API int FieldYPosition(const TTableBox& box, std::string_view fieldName);

/// An end of a line, in co-ordinates of the area's content. `Dir` is 1 where the line leaves the box to the right, -1
/// to the left.
struct TOLVI_CORE_API TLinkNode {
  int X = 0, Y = 0, Dir = 1;
  std::string FieldName;
  /// Where the short straight piece at the box ends.
  TDesignPoint StubEnd() const;
  bool operator==(const TLinkNode&) const = default;
};

/// The nodes of one side of a link, one for each column in the order of its field list; constants have none. `other` is
/// the place of the box at the other side, `scroll` how far the area is scrolled.
TOLVI_CORE_API std::vector<TLinkNode> LinkNodes(const TStrings& fields, const TTableBox& box, const TDesignRect& other,
                                                TDesignPoint scroll);

struct TDesignLine {
  TDesignPoint From, To;
  bool operator==(const TDesignLine&) const = default;
};

/// The lines of a link, in the order in which they are drawn: from the first column to the first one of the other side,
/// with the further columns of each side gathered at its stub. None without nodes on both sides.
TOLVI_CORE_API std::vector<TDesignLine> LinkLines(std::span<const TLinkNode> nodes1, std::span<const TLinkNode> nodes2);

/// Whether the point is less than 4 pixels away from a line between two stubs of the same index. Stubs do not count.
TOLVI_CORE_API bool IsOverLink(std::span<const TLinkNode> nodes1, std::span<const TLinkNode> nodes2,
                               TDesignPoint point);

}  // namespace tolvi
