#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/panel/stdslayout.h>

namespace tolvi {
namespace {

using TSizes = std::vector<TDesignSize>;
using TPlaces = std::vector<TDesignPoint>;
using TLinks = std::vector<TBoxLink>;

constexpr TArrangeSettings Gaps;

/// Whether the boxes keep the gaps, in one direction at least, and none stands above or left of the start.
testing::AssertionResult AreApart(const TSizes& sizes, const TPlaces& places) {
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    if (places[i].X < Gaps.XStart || places[i].Y < Gaps.YStart) return testing::AssertionFailure() << i << " outside";
    for (std::size_t k = 0; k < i; ++k) {
      const bool isBeside = places[i].X >= places[k].X + sizes[k].Width + Gaps.XMargin ||
                            places[k].X >= places[i].X + sizes[i].Width + Gaps.XMargin;
      const bool isBelow = places[i].Y >= places[k].Y + sizes[k].Height + Gaps.YMargin ||
                           places[k].Y >= places[i].Y + sizes[i].Height + Gaps.YMargin;
      if (!isBeside && !isBelow) return testing::AssertionFailure() << i << " and " << k << " are too near";
    }
  }
  return testing::AssertionSuccess();
}

double LengthOfLinks(const TSizes& sizes, const TPlaces& places, const TLinks& links) {
  const auto middle = [&](std::size_t box) {
    return std::pair(places[box].X + sizes[box].Width / 2.0, places[box].Y + sizes[box].Height / 2.0);
  };
  double length = 0;
  for (const auto& [one, other] : links) {
    const auto [x1, y1] = middle(one);
    const auto [x2, y2] = middle(other);
    length += std::hypot(x1 - x2, y1 - y2);
  }
  return length;
}

TEST(StructureLayout, PutsAChainInOneLineAndAStarRoundItsMiddle) {
  const TSizes boxes(5, {110, 160});
  const TPlaces chain = LayOutTables(boxes, TLinks{{2, 0}, {0, 4}, {4, 1}, {1, 3}});
  for (const TDesignPoint& place : chain) EXPECT_EQ(place.Y, Gaps.YStart);
  // One end of the chain stands first.
  EXPECT_TRUE(chain[2].X < chain[0].X ? chain[0].X < chain[4].X && chain[4].X < chain[1].X
                                      : chain[3].X < chain[1].X && chain[1].X < chain[4].X);

  const TPlaces star = LayOutTables(boxes, TLinks{{2, 0}, {2, 1}, {2, 3}, {2, 4}});
  EXPECT_TRUE(AreApart(boxes, star));
  int left = 0, right = 0;
  for (const std::size_t leaf : {0U, 1U, 3U, 4U}) (star[leaf].X < star[2].X ? left : right) += 1;
  EXPECT_GT(left, 0);
  EXPECT_GT(right, 0);
}

TEST(StructureLayout, TakesWhatItGets) {
  EXPECT_TRUE(LayOutTables({}, {}).empty());
  const TSizes boxes{{110, 160}, {2000, 10}, {0, 0}};
  const TLinks nonsense{{0, 0}, {1, 7}, {9, 9}};
  EXPECT_TRUE(AreApart(boxes, LayOutTables(boxes, nonsense)));
  EXPECT_TRUE(AreApart(boxes, LayOutTables(boxes, TLinks{{0, 1}, {1, 0}, {0, 1}, {2, 2}})));
}

TEST(StructureLayout, KeepsBoxesApartAndLinkedOnesNear) {
  std::mt19937 random(7);
  const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  for (int round = 0; round < 60; ++round) {
    TSizes boxes;
    TLinks links;
    const int count = 2 + below(60);
    for (int box = 0; box < count; ++box) {
      boxes.push_back({60 + below(200), 40 + below(300)});
      // Mostly to one of a few earlier boxes, as tables are.
      if (box > 0 && below(8) != 0) links.push_back({std::size_t(box), std::size_t(below(std::min(box, 9)))});
      if (box > 1 && below(4) == 0) links.push_back({std::size_t(box), std::size_t(below(box))});
    }
    const TPlaces places = LayOutTables(boxes, links);
    ASSERT_TRUE(AreApart(boxes, places)) << "round " << round;
    EXPECT_EQ(LayOutTables(boxes, links), places);
    if (count < 20) continue;
    int right = 0;
    for (std::size_t box = 0; box < boxes.size(); ++box) right = std::max(right, places[box].X + boxes[box].Width);
    const TPlaces plain = ArrangeTables(boxes, right + Gaps.XMargin);
    EXPECT_LT(LengthOfLinks(boxes, places, links), LengthOfLinks(boxes, plain, links)) << "round " << round;
  }
}

}  // namespace
}  // namespace tolvi
