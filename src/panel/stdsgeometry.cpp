#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include <tolvi/foundation/text.h>
#include <tolvi/model/link.h>
#include <tolvi/panel/stdsgeometry.h>

namespace tolvi {
namespace {

constexpr int StubLength = 8, HitDistance = 4, BelowTop = 10, AboveBottom = 5;

/// The value at `at` on the line through (from, start) and (to, end), cut toward zero; from and to differ.
std::int64_t OnLine(int from, int start, int to, int end, int at) {
  const std::int64_t offset = at, rise = end, run = to;
  return (offset - from) * (rise - start) / (run - from) + start;
}

bool IsNear(std::int64_t position, int point) {
  return position - HitDistance < point && point < position + HitDistance;
}

bool IsBetween(int value, int one, int other) { return value >= std::min(one, other) && value <= std::max(one, other); }

bool IsOverLine(TDesignPoint from, TDesignPoint to, TDesignPoint point) {
  if (!IsBetween(point.X, from.X, to.X) || !IsBetween(point.Y, from.Y, to.Y)) return false;
  if (from.X != to.X && IsNear(OnLine(from.X, from.Y, to.X, to.Y, point.X), point.Y)) return true;
  return from.Y != to.Y && IsNear(OnLine(from.Y, from.X, to.Y, to.X, point.Y), point.X);
}

}  // namespace

bool TDesignRect::Contains(TDesignPoint point) const {
  return point.X >= Left && point.X <= Left + Width && point.Y >= Top && point.Y <= Top + Height;
}

std::vector<TDesignPoint> ArrangeTables(std::span<const TDesignSize> boxes, int clientWidth,
                                        const TArrangeSettings& settings) {
  std::vector<TDesignPoint> places;
  places.reserve(boxes.size());
  int x = settings.XStart, y = settings.YStart, rowHeight = 0;
  for (const TDesignSize& box : boxes) {
    if (x + box.Width + settings.XMargin > clientWidth && !places.empty()) {
      y += rowHeight + settings.YMargin;
      x = settings.XStart;
    }
    places.push_back({x, y});
    rowHeight = std::max(rowHeight, box.Height);
    x += box.Width + settings.XMargin;
  }
  return places;
}

TDesignPoint ArrangeNewTable(std::span<const TDesignRect> boxes, TDesignSize added, int clientWidth,
                             const TArrangeSettings& settings) {
  int right = 0, top = 0, bottom = 0;
  for (const TDesignRect& box : boxes) {
    right = std::max(right, box.Left + box.Width);
    top = std::max(top, box.Top);
    bottom = std::max(bottom, box.Top + box.Height);
  }
  // The box's own width counts as a part of the gap.
  const int gap = added.Width + settings.XMargin;
  if (clientWidth >= right + gap) return {right + gap, top};
  return {settings.XStart, bottom + settings.YMargin};
}

int FieldYPosition(const TTableBox& box, std::string_view fieldName) {
  const auto found = std::find_if(box.Fields.begin(), box.Fields.end(),
                                  [&](const std::string& name) { return SameText(name, fieldName); });
  const auto index = static_cast<std::size_t>(found - box.Fields.begin());
  if (found == box.Fields.end() || index < box.TopIndex) return box.Place.Top + BelowTop;
  const auto above = static_cast<std::int64_t>(index - box.TopIndex) * box.ItemHeight;
  if (above + box.ItemHeight > box.Place.Height) return box.Place.Top + box.Place.Height - AboveBottom;
  return box.Place.Top + box.ListTop + static_cast<int>((2 * above + box.ItemHeight) / 2);
}

TDesignPoint TLinkNode::StubEnd() const { return {X + StubLength * Dir, Y}; }

std::vector<TLinkNode> LinkNodes(const TStrings& fields, const TTableBox& box, const TDesignRect& other,
                                 TDesignPoint scroll) {
  const int right = box.Place.Left + box.Place.Width;
  const bool toRight = other.Left > right;
  std::vector<TLinkNode> nodes;
  for (std::string_view name : fields) {
    if (IsLinkConstant(name)) continue;
    name = LinkEntryText(name);
    const bool isKnown =
        std::any_of(nodes.begin(), nodes.end(), [&](const TLinkNode& node) { return SameText(node.FieldName, name); });
    if (isKnown) continue;
    nodes.push_back({(toRight ? right + 1 : box.Place.Left - 1) + scroll.X, FieldYPosition(box, name) + scroll.Y,
                     toRight ? 1 : -1, std::string(name)});
  }
  return nodes;
}

std::vector<TDesignLine> LinkLines(std::span<const TLinkNode> nodes1, std::span<const TLinkNode> nodes2) {
  std::vector<TDesignLine> lines;
  if (nodes1.empty() || nodes2.empty()) return lines;
  const TDesignPoint stub1 = nodes1.front().StubEnd(), stub2 = nodes2.front().StubEnd();
  const auto gather = [&lines](std::span<const TLinkNode> nodes, TDesignPoint stub) {
    for (const TLinkNode& node : nodes.subspan(1)) {
      lines.push_back({{node.X, node.Y}, {stub.X, node.Y}});
      lines.push_back({{stub.X, node.Y}, stub});
    }
  };
  lines.push_back({{nodes1.front().X, nodes1.front().Y}, stub1});
  gather(nodes1, stub1);
  lines.push_back({stub1, stub2});
  lines.push_back({stub2, {nodes2.front().X, nodes2.front().Y}});
  gather(nodes2, stub2);
  return lines;
}

bool IsOverLink(std::span<const TLinkNode> nodes1, std::span<const TLinkNode> nodes2, TDesignPoint point) {
  for (std::size_t i = 0; i < std::min(nodes1.size(), nodes2.size()); ++i) {
    if (IsOverLine(nodes1[i].StubEnd(), nodes2[i].StubEnd(), point)) return true;
  }
  return false;
}

}  // namespace tolvi
