#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/panel/stdsgeometry.h>

namespace tolvi {
namespace {

TEST(StructureGeometry, PlacesBoxesInRows) {
  using TPoints = std::vector<TDesignPoint>;
  const std::vector<TDesignSize> boxes{{110, 160}, {110, 300}, {110, 100}, {110, 50}, {500, 10}};
  // The third row goes down by the tall box of the first one, too.
  EXPECT_EQ(ArrangeTables(boxes, 320), (TPoints{{12, 10}, {162, 10}, {12, 330}, {162, 330}, {12, 650}}));
  EXPECT_EQ(ArrangeTables(boxes, 312), (TPoints{{12, 10}, {162, 10}, {12, 330}, {162, 330}, {12, 650}}));
  EXPECT_EQ(ArrangeTables(boxes, 311)[1], (TDesignPoint{12, 190})) << "with its gap it does not fit";
  EXPECT_EQ(ArrangeTables(boxes, 0)[0], (TDesignPoint{12, 10})) << "the first row takes the first box";
  EXPECT_TRUE(ArrangeTables({}, 100).empty());
}

TEST(StructureGeometry, PlacesANewBoxBesideOrBelow) {
  const std::vector<TDesignRect> boxes{{12, 10, 110, 160}, {162, 30, 110, 50}};
  EXPECT_EQ(ArrangeNewTable(boxes, {110, 160}, 422), (TDesignPoint{422, 30}));
  EXPECT_EQ(ArrangeNewTable(boxes, {110, 160}, 421), (TDesignPoint{12, 190}));
  EXPECT_EQ(ArrangeNewTable({}, {110, 160}, 150), (TDesignPoint{150, 0}));
}

class LinkGeometry : public testing::Test {
 protected:
  const std::vector<std::string> names{"ID", "Name", "City", "Zip"};
  // Four items of 13 pixels below a title of 20; the last does not fit in.
  TTableBox box{{100, 50, 110, 51}, names, 0, 20, 13};
};

TEST_F(LinkGeometry, MeetsFieldsWhereTheyAreSeen) {
  EXPECT_EQ(FieldYPosition(box, "id"), 50 + 20 + 6);
  EXPECT_EQ(FieldYPosition(box, "City"), 50 + 20 + 32);
  EXPECT_EQ(FieldYPosition(box, "Zip"), 50 + 51 - 5) << "its lower edge is below the box";
  EXPECT_EQ(FieldYPosition(box, "Street"), 60);
  box.TopIndex = 1;
  EXPECT_EQ(FieldYPosition(box, "ID"), 60) << "scrolled out above";
  EXPECT_EQ(FieldYPosition(box, "Zip"), 50 + 20 + 32);
}

TEST_F(LinkGeometry, HasOneNodeForEachColumn) {
  const TStrings fields{"val:5", "fld:City", "ID", "city", "val:'x'"};
  const std::vector<TLinkNode> right{{211 + 7, 102 + 9, 1, "City"}, {211 + 7, 76 + 9, 1, "ID"}};
  EXPECT_EQ(LinkNodes(fields, box, {211, 0, 10, 10}, {7, 9}), right);
  EXPECT_EQ(LinkNodes(fields, box, {210, 0, 10, 10}, {})[0], (TLinkNode{99, 102, -1, "City"}))
      << "the other box begins where this one ends";
  EXPECT_TRUE(LinkNodes({"val:1"}, box, {}, {}).empty());
}

TEST_F(LinkGeometry, GathersFurtherColumnsAtTheStubs) {
  const std::vector<TLinkNode> one{{100, 10, 1, "a"}, {100, 30, 1, "b"}}, other{{200, 50, -1, "c"}, {200, 70, -1, "d"}};
  EXPECT_EQ(LinkLines(one, other), (std::vector<TDesignLine>{{{100, 10}, {108, 10}},
                                                             {{100, 30}, {108, 30}},
                                                             {{108, 30}, {108, 10}},
                                                             {{108, 10}, {192, 50}},
                                                             {{192, 50}, {200, 50}},
                                                             {{200, 70}, {192, 70}},
                                                             {{192, 70}, {192, 50}}}));
  EXPECT_TRUE(LinkLines({}, other).empty());
  EXPECT_TRUE(LinkLines(one, {}).empty());
}

TEST_F(LinkGeometry, IsHitNearTheLinesBetweenStubs) {
  const auto isOver = [](TDesignPoint from, TDesignPoint to, TDesignPoint at) {
    return IsOverLink(std::vector<TLinkNode>{{from.X - 8, from.Y, 1, "a"}},
                      std::vector<TLinkNode>{{to.X + 8, to.Y, -1, "b"}}, at);
  };
  const struct {
    TDesignPoint from, to, at;
    bool isOver;
  } cases[] = {
      {{0, 0}, {100, 50}, {50, 25}, true},
      {{0, 0}, {100, 50}, {50, 28}, true},
      {{0, 0}, {100, 50}, {50, 29}, false},  // 4 below the line, 8 beside it
      {{0, 0}, {100, 100}, {50, 53}, true},
      {{0, 0}, {100, 100}, {50, 54}, false},
      {{0, 0}, {100, 100}, {53, 50}, true},
      {{0, 0}, {100, 0}, {50, 0}, true},
      {{0, 0}, {100, 0}, {50, 1}, false},  // outside the rectangle, which is flat
      {{0, 0}, {0, 100}, {0, 50}, true},
      {{0, 0}, {0, 100}, {1, 50}, false},
      {{100, 50}, {0, 0}, {101, 50}, false},
      {{100, 50}, {0, 0}, {100, 50}, true},
      {{0, 0}, {0, 0}, {0, 0}, false},  // a point
      {{0, 0}, {1000000, 2000000}, {500000, 1000003}, true},
  };
  for (const auto& [from, to, at, expected] : cases) {
    EXPECT_EQ(isOver(from, to, at), expected) << to.X << "," << to.Y << " at " << at.X << "," << at.Y;
  }
}

}  // namespace
}  // namespace tolvi
