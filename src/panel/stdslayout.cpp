#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>

#include <tolvi/panel/stdslayout.h>

namespace tolvi {
namespace {

constexpr int Sweeps = 12, Passes = 8;
// How much wider than high a group, and the whole, should be.
constexpr double Aspect = 1.6;

using TIndexes = std::vector<std::size_t>;

/// The boxes and, of each, those that it is linked with; each once.
struct TBoxGraph {
  std::span<const TDesignSize> Boxes;
  std::vector<TIndexes> Neighbours;

  TBoxGraph(std::span<const TDesignSize> boxes, std::span<const TBoxLink> links)
      : Boxes(boxes), Neighbours(boxes.size()) {
    for (const auto& [one, other] : links) {
      if (one == other || one >= boxes.size() || other >= boxes.size()) continue;
      Neighbours[one].push_back(other);
      Neighbours[other].push_back(one);
    }
    for (TIndexes& list : Neighbours) {
      std::sort(list.begin(), list.end());
      list.erase(std::unique(list.begin(), list.end()), list.end());
    }
  }
};

/// The boxes that can be reached from `from`, nearest first; their distances go to `distance`, which holds -1 for them.
TIndexes Reach(const TBoxGraph& graph, std::size_t from, std::vector<int>& distance) {
  TIndexes reached{from};
  distance[from] = 0;
  for (std::size_t i = 0; i < reached.size(); ++i) {
    for (const std::size_t next : graph.Neighbours[reached[i]]) {
      if (distance[next] >= 0) continue;
      distance[next] = distance[reached[i]] + 1;
      reached.push_back(next);
    }
  }
  return reached;
}

/// A group of boxes that links join, in columns.
class TGroupLayout final {
 public:
  TGroupLayout(const TBoxGraph& graph, std::vector<TIndexes> columns, const TArrangeSettings& settings)
      : FGraph(graph),
        FSettings(settings),
        FColumns(std::move(columns)),
        FColumnOf(graph.Boxes.size(), None),
        FMiddle(graph.Boxes.size()) {}

  /// Gives the boxes their places from (0, 0) on; returns the size of the whole.
  TDesignSize Run(std::vector<TDesignPoint>& places) {
    SplitHighColumns();
    for (std::size_t column = 0; column < FColumns.size(); ++column) {
      for (const std::size_t box : FColumns[column]) FColumnOf[box] = column;
    }
    for (TIndexes& column : FColumns) Stack(column);
    for (int sweep = 0; sweep < Sweeps; ++sweep) Order(sweep % 2 == 0);
    for (int pass = 0; pass < Passes; ++pass) Straighten(pass % 2 == 0);
    return Place(places);
  }

 private:
  static constexpr std::size_t None = std::numeric_limits<std::size_t>::max();

  int HeightOf(std::size_t box) const { return FGraph.Boxes[box].Height; }

  // Columns that are much higher than the group should be become several.
  void SplitHighColumns() {
    double area = 0;
    int highest = 0;
    for (const TIndexes& column : FColumns) {
      for (const std::size_t box : column) {
        area += (FGraph.Boxes[box].Width + FSettings.XMargin) * double(HeightOf(box) + FSettings.YMargin);
        highest = std::max(highest, HeightOf(box));
      }
    }
    const double limit = std::max<double>(std::sqrt(area / Aspect) * Aspect, highest);
    std::vector<TIndexes> columns;
    for (const TIndexes& column : FColumns) {
      double height = 0;
      columns.emplace_back();
      for (const std::size_t box : column) {
        if (height > 0 && height + HeightOf(box) > limit) {
          columns.emplace_back();
          height = 0;
        }
        columns.back().push_back(box);
        height += HeightOf(box) + FSettings.YMargin;
      }
    }
    FColumns = std::move(columns);
  }

  // One below the other, with the middle of the column at 0.
  void Stack(const TIndexes& column) {
    double height = -FSettings.YMargin;
    for (const std::size_t box : column) height += HeightOf(box) + FSettings.YMargin;
    double y = -height / 2;
    for (const std::size_t box : column) {
      FMiddle[box] = y + HeightOf(box) / 2.0;
      y += HeightOf(box) + FSettings.YMargin;
    }
  }

  /// The mean height of the linked boxes in the columns before, or behind; its own without one.
  double Wanted(std::size_t box, bool before, bool both) const {
    double sum = 0;
    int count = 0;
    for (const std::size_t other : FGraph.Neighbours[box]) {
      const bool isBefore = FColumnOf[other]<FColumnOf[box], isBehind = FColumnOf[other]> FColumnOf[box];
      if (!(both ? isBefore || isBehind : before ? isBefore : isBehind)) continue;
      sum += FMiddle[other];
      ++count;
    }
    return count > 0 ? sum / count : FMiddle[box];
  }

  template <typename TVisit>
  void EachColumn(bool forward, TVisit visit) {
    if (forward) {
      for (TIndexes& column : FColumns) visit(column);
    } else {
      std::for_each(FColumns.rbegin(), FColumns.rend(), visit);
    }
  }

  // Boxes stand in the order of those that they are linked with in the columns before.
  void Order(bool forward) {
    EachColumn(forward, [&](TIndexes& column) {
      std::vector<std::pair<double, std::size_t>> wanted;
      for (const std::size_t box : column) wanted.emplace_back(Wanted(box, forward, false), box);
      std::stable_sort(wanted.begin(), wanted.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
      std::transform(wanted.begin(), wanted.end(), column.begin(), [](const auto& entry) { return entry.second; });
      Stack(column);
    });
  }

  // Boxes come as near to the height of their linked ones as the order and the gaps allow.
  void Straighten(bool forward) {
    EachColumn(forward, [&](const TIndexes& column) {
      if (column.empty()) return;
      std::vector<double> wanted;
      for (const std::size_t box : column) wanted.push_back(Wanted(box, forward, true));
      // Runs of boxes that touch each other, with their mean shift from where they would stand alone.
      struct TRun {
        std::size_t First;
        double Offset, Sum;
        int Count;
      };
      std::vector<TRun> runs;
      double offset = 0;
      for (std::size_t i = 0; i < column.size(); ++i) {
        if (i > 0) offset += (HeightOf(column[i - 1]) + HeightOf(column[i])) / 2.0 + FSettings.YMargin;
        runs.push_back({i, offset, wanted[i] - offset, 1});
        while (runs.size() > 1) {
          TRun& last = runs[runs.size() - 1];
          TRun& above = runs[runs.size() - 2];
          if (last.Sum / last.Count >= above.Sum / above.Count) break;
          above.Sum += last.Sum;
          above.Count += last.Count;
          runs.pop_back();
        }
      }
      offset = 0;
      std::size_t run = 0;
      for (std::size_t i = 0; i < column.size(); ++i) {
        if (i > 0) offset += (HeightOf(column[i - 1]) + HeightOf(column[i])) / 2.0 + FSettings.YMargin;
        if (run + 1 < runs.size() && runs[run + 1].First == i) ++run;
        FMiddle[column[i]] = offset + runs[run].Sum / runs[run].Count;
      }
    });
  }

  TDesignSize Place(std::vector<TDesignPoint>& places) const {
    double top = std::numeric_limits<double>::max();
    for (const TIndexes& column : FColumns) {
      for (const std::size_t box : column) top = std::min(top, FMiddle[box] - HeightOf(box) / 2.0);
    }
    TDesignSize size;
    int x = 0;
    for (const TIndexes& column : FColumns) {
      int width = 0, below = 0;
      for (const std::size_t box : column) {
        const int y = std::max(below, static_cast<int>(std::lround(FMiddle[box] - HeightOf(box) / 2.0 - top)));
        places[box] = {x, y};
        width = std::max(width, FGraph.Boxes[box].Width);
        below = y + HeightOf(box) + FSettings.YMargin;
        size.Height = std::max(size.Height, y + HeightOf(box));
      }
      size.Width = x + width;
      x += width + FSettings.XMargin;
    }
    return size;
  }

  const TBoxGraph& FGraph;
  const TArrangeSettings& FSettings;
  std::vector<TIndexes> FColumns;
  TIndexes FColumnOf;
  // Of each box, the height of its middle.
  std::vector<double> FMiddle;
};

struct TGroup {
  TIndexes Boxes;
  TDesignSize Size;
};

/// The boxes of a group in columns: by their distance from one at its edge, so that what has many links is in the
/// middle.
std::vector<TIndexes> ColumnsOf(const TBoxGraph& graph, const TIndexes& group, std::vector<int>& distance) {
  const auto forget = [&] {
    for (const std::size_t box : group) distance[box] = -1;
  };
  forget();
  const std::size_t edge = Reach(graph, group.front(), distance).back();
  forget();
  std::vector<TIndexes> columns;
  for (const std::size_t box : Reach(graph, edge, distance)) {
    const auto column = static_cast<std::size_t>(distance[box]);
    if (columns.size() <= column) columns.resize(column + 1);
    columns[column].push_back(box);
  }
  return columns;
}

/// Puts the groups in rows, the highest first.
void PlaceGroups(std::vector<TGroup>& groups, std::vector<TDesignPoint>& places, const TArrangeSettings& settings) {
  double area = 0;
  int widest = 0;
  for (const TGroup& group : groups) {
    area += (group.Size.Width + settings.XMargin) * double(group.Size.Height + settings.YMargin);
    widest = std::max(widest, group.Size.Width);
  }
  const int width = std::max(widest, static_cast<int>(std::sqrt(area * Aspect)));
  int x = 0, y = 0, rowHeight = 0;
  for (const TGroup& group : groups) {
    if (x > 0 && x + group.Size.Width > width) {
      x = 0;
      y += rowHeight + settings.YMargin;
      rowHeight = 0;
    }
    for (const std::size_t box : group.Boxes) {
      places[box] = {settings.XStart + x + places[box].X, settings.YStart + y + places[box].Y};
    }
    x += group.Size.Width + settings.XMargin;
    rowHeight = std::max(rowHeight, group.Size.Height);
  }
}

}  // namespace

std::vector<TDesignPoint> LayOutTables(std::span<const TDesignSize> boxes, std::span<const TBoxLink> links,
                                       const TArrangeSettings& settings) {
  const TBoxGraph graph(boxes, links);
  std::vector<TDesignPoint> places(boxes.size());
  std::vector<int> distance(boxes.size(), -1);
  std::vector<TGroup> groups, single;
  for (std::size_t box = 0; box < boxes.size(); ++box) {
    if (distance[box] >= 0) continue;
    TGroup group{Reach(graph, box, distance), boxes[box]};
    if (group.Boxes.size() == 1) {
      single.push_back(std::move(group));
      continue;
    }
    group.Size = TGroupLayout(graph, ColumnsOf(graph, group.Boxes, distance), settings).Run(places);
    groups.push_back(std::move(group));
  }
  std::stable_sort(groups.begin(), groups.end(),
                   [](const TGroup& a, const TGroup& b) { return a.Size.Height > b.Size.Height; });
  std::move(single.begin(), single.end(), std::back_inserter(groups));
  PlaceGroups(groups, places, settings);
  return places;
}

}  // namespace tolvi
