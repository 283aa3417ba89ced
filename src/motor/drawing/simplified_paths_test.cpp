#include "motor/drawing/simplified_paths.h"

#include <gtest/gtest.h>

#include <cmath>

#include "motor/drawing/small_maps.h"

namespace motor {
namespace {

TEST(SimplifiedPaths, TheGridIsAtMostHalfADevicePixelWide) {
  for (const double unitsPerPixel : {0.001, 0.3, 1.0, 1.9, 2.0, 750.0}) {
    const double step = std::ldexp(1.0, simplificationLevel(unitsPerPixel));
    EXPECT_LE(step, unitsPerPixel / 2) << unitsPerPixel;
    EXPECT_GT(step, unitsPerPixel / 4.0001) << unitsPerPixel;
  }
}

TEST(SimplifiedPaths, LeavesOutRepeatedAndStraightPoints) {
  const ObjectPtr object =
      small::region({{{0, 0}, {0.1, 0}, {5, 0}, {10, 0}, {10, 10}, {10.2, 9.9}, {0, 10}, {0, 0}}}, Brush{});
  const SimplifiedShape shape = simplify(*object, 0);
  ASSERT_EQ(shape.partEnds, std::vector<std::uint32_t>{5});
  EXPECT_EQ(shape.at(1), (Point{10, 0}));
  EXPECT_EQ(shape.at(2), (Point{10, 10}));
  EXPECT_EQ(shape.at(4), shape.at(0));
}

TEST(SimplifiedPaths, KeepsASpike) {
  const ObjectPtr object = small::line({{0, 0}, {9, 0}, {4, 0}}, Pen{});
  EXPECT_EQ(simplify(*object, 0).points.size(), 3U);
}

TEST(SimplifiedPaths, LeavesOutPartsThatShrinkToAPoint) {
  const ObjectPtr object = small::region({small::square(0, 0, 40, 40), small::square(10.1, 10.1, 10.2, 10.2)}, Brush{});
  const SimplifiedShape shape = simplify(*object, 0);
  EXPECT_EQ(shape.partEnds.size(), 1U);
  EXPECT_EQ(shape.points.size(), 5U);
}

TEST(SimplifiedPaths, PointsThatNeighboursShareStayShared) {
  const Point p{123456.789, 4567891.234};
  const ObjectPtr west = small::line({{100000.3, 4500000.7}, p, {120000, 4600000}}, Pen{});
  const ObjectPtr east = small::line({{150000, 4512345.6}, p, {160000.1, 4600000}}, Pen{});
  for (const int level : {-5, 0, 4, 9}) EXPECT_EQ(simplify(*west, level).at(1), simplify(*east, level).at(1)) << level;
}

TEST(SimplifiedPaths, GridCoordinatesOfAHugeObjectFit) {
  const ObjectPtr object = small::line({{-2e7, -2e7}, {2e7, 2e7}}, Pen{});
  const SimplifiedShape shape = simplify(*object, -40);
  EXPECT_NEAR(shape.at(1).x, 2e7, 1);
  EXPECT_NEAR(shape.at(1).y, 2e7, 1);
}

TEST(SimplifiedPaths, TakesAnyZoomAndLeavesOutWhatIsNowhere) {
  EXPECT_GT(simplificationLevel(1e300), 0);
  EXPECT_LT(simplificationLevel(1e-300), 0);
  const double nan = std::nan("");
  const ObjectPtr object =
      small::line({{4.5e6, 4.5e6}, {nan, 0}, {4.5e6 + 1e-9, 4.5e6}, {1e200, 0}, {4.5e6 + 10, 4.5e6}}, Pen{});
  for (const int level : {-500, -60, 0}) {
    const SimplifiedShape shape = simplify(*object, level);
    ASSERT_GE(shape.points.size(), 2U) << level;
    EXPECT_NEAR(shape.at(shape.points.size() - 1).x, 4.5e6 + 10, 1e-3) << level;
  }
  EXPECT_TRUE(simplify(*small::line({{nan, 0}, {0, nan}}, Pen{}), 0).points.empty());
}

TEST(SimplifiedPaths, MakesEachShapeOnceALevelAndKeepsTheLastLevels) {
  SimplifiedPaths paths(3);
  const ObjectPtr object = small::line({{0, 0}, {50, 50}}, Pen{});
  for (const int level : {1, 1, 2, 3, 1, 2, 3}) (void)paths.of(object, level);
  EXPECT_EQ(paths.madeCount(), 3U);
  (void)paths.of(object, 4);
  (void)paths.of(object, 1);
  EXPECT_EQ(paths.madeCount(), 5U);
}

TEST(SimplifiedPaths, ForgetsObjectsThatAreGone) {
  SimplifiedPaths paths(1);
  auto object = std::make_shared<MapObject>(*small::line({{0, 0}, {50, 50}}, Pen{}));
  const std::weak_ptr<MapObject> watched = object;
  (void)paths.of(object, 0);
  object.reset();
  EXPECT_TRUE(watched.expired());
  paths.dropUnused();
  (void)paths.of(small::line({{0, 0}, {9, 9}}, Pen{}), 0);
  EXPECT_EQ(paths.madeCount(), 2U);
}

}  // namespace
}  // namespace motor
