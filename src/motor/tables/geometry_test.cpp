#include "motor/tables/geometry.h"

#include <gtest/gtest.h>

#include <cmath>

#include "motor/tables/testing_regions.h"

namespace motor {
namespace {

Ring square(double x, double y, double side) {
  return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}, {x, y}};
}

TEST(BoxTest, growsAndMeets) {
  Box box;
  EXPECT_TRUE(box.isEmpty());
  EXPECT_FALSE(box.intersects(Box{0, 0, 1, 1}));
  box.add(Point{std::nan(""), 3});
  EXPECT_TRUE(box.isEmpty());
  box.add(Point{2, 3});
  EXPECT_EQ(box, (Box{2, 3, 2, 3}));
  box.add(Box{});
  box.add(Box{-1, 0, 0, 9});
  EXPECT_EQ(box, (Box{-1, 0, 2, 9}));
  EXPECT_TRUE(box.intersects(Box{2, 9, 4, 10}));
  EXPECT_FALSE(box.intersects(Box{2.1, 9, 4, 10}));
}

TEST(RingAreaTest, hasTheSignOfTheDirection) {
  Ring ring = square(500000, 4500000, 3);
  EXPECT_DOUBLE_EQ(ringArea(ring.data(), ring.size()), 9);
  std::reverse(ring.begin(), ring.end());
  EXPECT_DOUBLE_EQ(ringArea(ring.data(), ring.size()), -9);
}

TEST(ContainsTest, goesByTheEvenOddRule) {
  const MapObject zone = regionOf({square(0, 0, 10), square(2, 2, 4), square(3, 3, 1), square(20, 0, 5)});
  struct Case {
    Point p;
    bool inside;
  };
  const Case cases[] = {
      {{1, 1}, true},    {{2.5, 2.5}, false}, {{3.5, 3.5}, true}, {{22, 2}, true},  {{15, 2}, false},
      {{0, 0}, true},    {{10, 5}, true},     {{2, 3}, true},     {{10, 10}, true}, {{10.001, 10}, false},
      {{-1, 10}, false}, {{5, 11}, false},    {{8, 6}, true},     {{4, 6}, true},   {{5, 5.5}, false},
  };
  for (const Case& c : cases) EXPECT_EQ(contains(zone, c.p), c.inside) << c.p.x << " " << c.p.y;
  EXPECT_FALSE(contains(objectOf(MapObject::Kind::polyline, {square(0, 0, 10)}), {5, 5}));
}

TEST(ContainsTest, countsAVertexAtTheHeightOfThePointOnce) {
  const MapObject diamond = regionOf({{{0, -5}, {5, 0}, {0, 5}, {-5, 0}, {0, -5}}});
  EXPECT_TRUE(contains(diamond, {-4, 0}));
  EXPECT_TRUE(contains(diamond, {4, 0}));
  EXPECT_FALSE(contains(diamond, {-6, 0}));
}

TEST(CentroidTest, liesInTheObject) {
  // A horseshoe open to the right: its area's centroid falls into the gap.
  const Ring horseshoe = {{0, 0}, {10, 0}, {10, 2}, {2, 2}, {2, 8}, {10, 8}, {10, 10}, {0, 10}, {0, 0}};
  struct Case {
    const char* what;
    MapObject object;
    Point centroid;
  };
  const Case cases[] = {
      {"square", regionOf({square(0, 0, 10)}), {5, 5}},
      {"far from the origin", regionOf({square(500000, 4500000, 4)}), {500002, 4500002}},
      {"the larger of two", regionOf({square(0, 0, 2), square(100, 0, 10)}), {105, 5}},
      {"hole aside", regionOf({square(0, 0, 10), square(6, 3, 3)}), {(500 - 9 * 7.5) / 91, (500 - 9 * 4.5) / 91}},
      {"hole in the middle: the left span of two alike", regionOf({square(0, 0, 10), square(4, 4, 2)}), {2, 5}},
      {"an island in a hole counts for itself",
       regionOf({square(0, 0, 10), square(6, 3, 3), square(7, 4, 1)}),
       {(500 - 9 * 7.5) / 91, (500 - 9 * 4.5) / 91}},
      {"horseshoe", regionOf({horseshoe}), {1, 5}},
      {"line", objectOf(MapObject::Kind::polyline, {{{0, 0}, {3, 0}, {3, 5}}}), {3, 1}},
      {"line of two parts", objectOf(MapObject::Kind::polyline, {{{0, 0}, {1, 0}}, {{5, 5}, {5, 8}}}), {5, 6}},
      {"point", objectOf(MapObject::Kind::point, {{{7, 8}}}), {7, 8}},
      {"region without area", regionOf({{{1, 1}, {2, 2}, {1, 1}}}), {1, 1}},
  };
  for (const Case& c : cases) {
    const Point p = centroid(c.object);
    EXPECT_NEAR(p.x, c.centroid.x, 1e-9) << c.what;
    EXPECT_NEAR(p.y, c.centroid.y, 1e-9) << c.what;
  }
  EXPECT_TRUE(std::isnan(centroid(MapObject{}).x));
}

}  // namespace
}  // namespace motor
