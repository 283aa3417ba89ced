#include "motor/tables/coordinate_system.h"

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

#include "motor/language/error.h"

namespace motor {
namespace {

constexpr const char* kUtm30Ed50 = "Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0";

TEST(CoordinateSystemTest, isLongitudeAndLatitudeByDefault) {
  const CoordinateSystem system;
  EXPECT_TRUE(system.isLongLat());
  EXPECT_TRUE(system.isEarth());
  EXPECT_EQ(system.clause(), "Earth Projection 1, 104");
  EXPECT_EQ(system, CoordinateSystem::fromClause("Earth"));
  EXPECT_EQ(system, CoordinateSystem::fromClause("coordsys earth PROJECTION 1,104 Bounds (-180, -90) (180, 90)"));
}

TEST(CoordinateSystemTest, defaultIsWhatTheLibraryMakesOfItsClause) {
  const CoordinateSystem system;
  const auto asked = CoordinateSystem::fromClause(system.clause());
  EXPECT_EQ(system.wkt(), asked.wkt());
  EXPECT_EQ(system.name(), asked.name());
  EXPECT_EQ(system.isLongLat(), asked.isLongLat());
  EXPECT_EQ(system.isEarth(), asked.isEarth());
  EXPECT_EQ(system.metresPerUnit(), asked.metresPerUnit());
}

TEST(CoordinateSystemTest, readsClauses) {
  struct Case {
    const char* clause;
    const char* same;
    double metresPerUnit;
    bool isEarth;
  };
  const Case cases[] = {
      {kUtm30Ed50, kUtm30Ed50, 1, true},
      {"CoordSys Earth Projection 8,28,\"m\",-3,0,0.9996,500000,0 Bounds (-1e6, 0) (2000000, 9.5e6)", kUtm30Ed50, 1,
       true},
      {"Earth Projection 34, 28, \"m\", -3, 0, 0.9996, 500000, 0", kUtm30Ed50, 1, true},
      {"Earth Projection 2008, 28, \"m\", -3, 0, 0.9996, 500000, 0", kUtm30Ed50, 1, true},
      {"Earth Projection 3, 33, \"ft\", -120.5, 43.6666666667, 44.3333333333, 46, 8202099.738, 0",
       "Earth Projection 3, 33, \"ft\", -120.5, 43.6666666667, 44.3333333333, 46, 8202099.738, 0", 0.3048, true},
      {"NonEarth Units \"ft\"", "NonEarth Units \"ft\"", 0.3048, false},
      {"nonearth units \"m\" bounds (0, 0) (10, 10)", "NonEarth Units \"m\"", 1, false},
      {"Layout Units \"in\"", "NonEarth Units \"in\"", 0.0254, false},
  };
  for (const Case& c : cases) {
    const CoordinateSystem system = CoordinateSystem::fromClause(c.clause);
    EXPECT_EQ(system, CoordinateSystem::fromClause(c.same)) << c.clause;
    EXPECT_EQ(system.clause(), c.same) << c.clause;
    EXPECT_NEAR(system.metresPerUnit(), c.metresPerUnit, 1e-9) << c.clause;
    EXPECT_EQ(system.isEarth(), c.isEarth) << c.clause;
    EXPECT_FALSE(system.isLongLat()) << c.clause;
    EXPECT_EQ(CoordinateSystem::fromWkt(system.wkt()), system) << c.clause;
  }
  EXPECT_FALSE(CoordinateSystem() == CoordinateSystem::fromClause(kUtm30Ed50));
  EXPECT_EQ(CoordinateSystem::fromClause(kUtm30Ed50).name(), "Transverse Mercator");
}

TEST(CoordinateSystemTest, rejectsWhatItDoesNotUnderstand) {
  const char* const clauses[] = {
      "",
      "CoordSys",
      "Mars",
      "Earth Projection",
      "Earth Projection 8",
      "Earth Projection 8, 28",
      "NonEarth",
      "Earth Projection 8, 28, \"m\", -3, 0",
      "Earth Projection 8, 28, \"m, -3, 0, 0.9996, 500000, 0",
      "Earth Projection 99, 28, \"m\", -3, 0, 0.9996, 500000, 0",
      "Earth Projection 8, 28, \"m\", x, 0, 0.9996, 5, 0",
      "NonEarth Units \"parsec\"",
      "Earth Bounds (0, 0)",
      "Earth Bounds (0, 0) (1, 1) more",
      "Earth Projection 1.5, 104",
  };
  for (const char* clause : clauses) {
    EXPECT_THROW(static_cast<void>(CoordinateSystem::fromClause(clause)), EngineError) << clause;
  }
  EXPECT_THROW(static_cast<void>(CoordinateSystem::fromWkt("PROJCS[")), EngineError);
}

TEST(CoordinateSystemTest, takesNoWktAsAPlainGrid) {
  EXPECT_EQ(CoordinateSystem::fromWkt(""), CoordinateSystem::fromClause("NonEarth Units \"m\""));
}

TEST(TransformationTest, turnsPointsThereAndBack) {
  const CoordinateSystem longLat;
  const CoordinateSystem utm = CoordinateSystem::fromClause("Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0");
  const Transformation forward(longLat, utm);
  // The central meridian keeps its false easting; at the equator it starts from 0.
  const Point origin = forward(Point{-3, 0});
  EXPECT_NEAR(origin.x, 500000, 1e-6);
  EXPECT_NEAR(origin.y, 0, 1e-6);
  const Point north = forward(Point{-3, 40});
  EXPECT_NEAR(north.x, 500000, 1e-6);
  EXPECT_NEAR(north.y, 0.9996 * 4429529.03, 0.5);  // the meridian's length to 40 degrees on the ellipsoid
  const Point back = Transformation(utm, longLat)(north);
  EXPECT_NEAR(back.x, -3, 1e-9);
  EXPECT_NEAR(back.y, 40, 1e-9);
}

TEST(TransformationTest, shiftsDatums) {
  // The European datum of 1950 lies about 110 m east and 205 m north of WGS 84 in UTM coordinates of Spain.
  const CoordinateSystem ed50 = CoordinateSystem::fromClause(kUtm30Ed50);
  const CoordinateSystem wgs84 =
      CoordinateSystem::fromClause("Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0");
  const Point p = Transformation(ed50, wgs84)(Point{440000, 4474000});
  EXPECT_NEAR(p.x, 440000 - 110, 15);
  EXPECT_NEAR(p.y, 4474000 - 205, 15);
}

TEST(TransformationTest, givesNoImageWhereThereIsNone) {
  const CoordinateSystem plain = CoordinateSystem::fromClause("NonEarth Units \"m\"");
  const Transformation toEarth(plain, CoordinateSystem());
  EXPECT_TRUE(std::isnan(toEarth(Point{1, 2}).x));
  EXPECT_TRUE(toEarth(Box{0, 0, 1, 1}).isEmpty());
  const Transformation inFeet(plain, CoordinateSystem::fromClause("NonEarth Units \"ft\""));
  EXPECT_NEAR(inFeet(Point{0.3048, 3.048}).y, 10, 1e-9);
}

TEST(TransformationTest, costsNothingBetweenEqualSystems) {
  const Transformation same(CoordinateSystem::fromClause(kUtm30Ed50), CoordinateSystem::fromClause(kUtm30Ed50));
  EXPECT_TRUE(same.isIdentity());
  std::vector<Point> points{{1, 2}};
  same.apply(points);
  EXPECT_EQ(points.front(), (Point{1, 2}));
  EXPECT_EQ(same(Box{1, 2, 3, 4}), (Box{1, 2, 3, 4}));
}

TEST(TransformationTest, boxHoldsTheBulgeOfItsEdges) {
  const CoordinateSystem utm = CoordinateSystem::fromClause(kUtm30Ed50);
  const Transformation forward(CoordinateSystem(), utm);
  const Box box = forward(Box{-9, 40, 3, 44});
  // The parallel of 40 degrees is lowest on the central meridian.
  EXPECT_NEAR(box.minY, forward(Point{-3, 40}).y, 1);
  EXPECT_LT(box.minY, forward(Point{-9, 40}).y);
}

TEST(TransformationTest, worksInSeveralThreads) {
  const auto turn = [] {
    const Transformation forward(CoordinateSystem(), CoordinateSystem::fromClause(kUtm30Ed50));
    for (int i = 0; i < 200; ++i) EXPECT_NEAR(forward(Point{-3, 40}).x, 500000, 200);
  };
  std::thread other(turn);
  turn();
  other.join();
}

TEST(DistanceUnitTest, isKnownByName) {
  struct Case {
    const char* unit;
    double metres;
  };
  const Case cases[] = {
      {"mi", 1609.344},         {"Km", 1000},   {"m", 1},      {"cm", 0.01},       {"mm", 0.001},     {"ft", 0.3048},
      {"in", 0.0254},           {"yd", 0.9144}, {"nmi", 1852}, {"ch", 20.1168402}, {"li", 0.2011684}, {"rd", 5.0292101},
      {"Survey Ft", 12 / 39.37}};
  for (const Case& c : cases) EXPECT_NEAR(metresPerDistanceUnit(c.unit), c.metres, 1e-6) << c.unit;
  EXPECT_THROW(static_cast<void>(metresPerDistanceUnit("leagues")), EngineError);
}

}  // namespace
}  // namespace motor
