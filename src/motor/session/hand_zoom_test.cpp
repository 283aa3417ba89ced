#include "motor/session/hand_zoom.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

// A window of 400 by 200 pixels over 400 km of a plain grid in kilometres, or over four degrees.
Map plainMap() {
  Map map;
  map.coordinateSystem = CoordinateSystem::fromClause("NonEarth Units \"km\"");
  map.centre = {1000, 500};
  map.zoomMetres = 400000;
  map.pixelWidth = 400;
  map.pixelHeight = 200;
  return map;
}

Map mapInDegrees() {
  Map map = plainMap();
  map.coordinateSystem = CoordinateSystem();
  map.centre = {-3, 41};
  return map;
}

TEST(HandZoom, AClickComesToTheMiddle) {
  Map map = plainMap();
  EXPECT_TRUE(zoomTo(map, 0.5, {300, 50}));
  EXPECT_EQ(map.centre, (Point{1100, 550}));
  EXPECT_EQ(map.zoomMetres, 200000);
  EXPECT_TRUE(zoomTo(map, 2, {200, 100}));
  EXPECT_EQ(map.centre, (Point{1100, 550}));
  EXPECT_EQ(map.zoomMetres, 400000);
}

TEST(HandZoom, ABoxFillsTheWindowAsFarAsItsShapeAllows) {
  Map wide = plainMap();
  EXPECT_TRUE(zoomIntoBox(wide, {100, 90, 300, 110}));
  EXPECT_EQ(wide.centre, (Point{1000, 500}));
  EXPECT_NEAR(wide.zoomMetres, 200000, 1e-6);
  Map high = plainMap();
  EXPECT_TRUE(zoomIntoBox(high, {0, 0, 10, 50}));
  EXPECT_NEAR(high.centre.x, 805, 1e-9);
  EXPECT_NEAR(high.centre.y, 575, 1e-9);
  EXPECT_NEAR(high.zoomMetres, 100000, 1e-6) << "50 of 200 pixels";
}

TEST(HandZoom, WhatWasSeenShrinksIntoABox) {
  for (Map map : {plainMap(), mapInDegrees()}) {
    const Box seen = map.visibleBox();
    EXPECT_TRUE(zoomOutOfBox(map, {200, 50, 300, 100}));
    const Point corner = map.toPixel({seen.minX, seen.maxY});
    const Point opposite = map.toPixel({seen.maxX, seen.minY});
    EXPECT_NEAR(corner.x, 200, 1e-3);
    EXPECT_NEAR(corner.y, 50, 1e-3);
    EXPECT_NEAR(opposite.x, 300, 1e-3);
    EXPECT_NEAR(opposite.y, 100, 1e-3);
  }
}

TEST(HandZoom, IntoABoxAndOutOfItIsThereAndBack) {
  Map map = mapInDegrees();
  const Box box{40, 20, 140, 70};
  zoomIntoBox(map, box);
  zoomOutOfBox(map, box);
  EXPECT_NEAR(map.zoomMetres, 400000, 10);
  EXPECT_NEAR(map.centre.x, -3, 1e-4);
  EXPECT_NEAR(map.centre.y, 41, 1e-4);
}

TEST(HandZoom, StopsAtAHouseAndAtTheWholeEarth) {
  Map map = plainMap();
  EXPECT_TRUE(zoomIntoBox(map, {200, 100, 200.0001, 100.00001}));
  EXPECT_EQ(map.zoomMetres, 50);
  EXPECT_FALSE(zoomAround(map, 0.5, {0, 0}));
  EXPECT_TRUE(zoomOutOfBox(map, {200, 100, 200.0001, 100.00001}));
  for (int i = 0; i < 60; ++i) zoomAround(map, 2, {0, 0});
  EXPECT_EQ(map.zoomMetres, 1e8);
}

TEST(HandZoom, NothingMovesWithoutAMovement) {
  Map map = plainMap();
  EXPECT_FALSE(panBy(map, 0, 0));
  EXPECT_FALSE(zoomIntoBox(map, {10, 10, 10, 10}));
  EXPECT_FALSE(zoomOutOfBox(map, Box{}));
  EXPECT_EQ(map.centre, (Point{1000, 500}));
  EXPECT_TRUE(panBy(map, 40, -10));
  EXPECT_EQ(map.centre, (Point{960, 490}));
}

}  // namespace
}  // namespace motor
