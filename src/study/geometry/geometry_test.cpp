#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <utility>

#include "study/geometry/division.h"
#include "study/geometry/polygon.h"

namespace study {
namespace {

Ring box(double x, double y, double width, double height) {
  return {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
}

using Directed = std::pair<std::pair<double, double>, std::pair<double, double>>;

// The borders that areas do not share: a piece and its reverse cancel each other.
std::map<Directed, int> openBorders(const std::vector<Area>& areas) {
  std::map<Directed, int> open;
  for (const Area& area : areas) {
    for (const Ring& ring : area) {
      for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point& a = ring[i];
        const Point& b = ring[(i + 1) % ring.size()];
        const Directed reverse{{b.x, b.y}, {a.x, a.y}};
        if (const auto found = open.find(reverse); found != open.end()) {
          open.erase(found);
        } else {
          ++open[{{a.x, a.y}, {b.x, b.y}}];
        }
      }
    }
  }
  return open;
}

double sum(const std::vector<Area>& areas) {
  double squares = 0;
  for (const Area& area : areas) squares += squareMetres(area);
  return squares;
}

void expectAgreement(const Division& division) {
  EXPECT_EQ(openBorders(division.zones), openBorders({division.region}));
  EXPECT_EQ(openBorders(division.provinces), openBorders({division.region}));
  EXPECT_NEAR(sum(division.zones), squareMetres(division.region), 1e-3);
  EXPECT_NEAR(sum(division.provinces), squareMetres(division.region), 1e-3);
}

TEST(Polygon, RingsAreTurnedTheirWay) {
  const Ring outer = box(0, 0, 100, 100);
  const Ring hole = box(40, 40, 10, 10);
  const Area area = areaOf({{{outer.rbegin(), outer.rend()}, {hole}}});
  ASSERT_EQ(area.size(), 2U);
  EXPECT_EQ(squareMetres(area[0]), 10000);
  EXPECT_EQ(squareMetres(area[1]), -100);
}

TEST(Polygon, PointsLieOnTheGrid) {
  EXPECT_EQ(onGrid({1.004, -2.006}), (Point{1, -2.01}));
  EXPECT_EQ(onGrid({4412345.678, 0.1 + 0.2}), (Point{4412345.68, 0.3}));
}

TEST(Polygon, ValidPolygonsKeepTheirPoints) {
  const Polygons kept = mended({{box(0, 0, 10, 10), {box(2, 2, 3, 3)}}});
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_EQ(kept[0].outer, box(0, 0, 10, 10));
  EXPECT_EQ(kept[0].holes, std::vector<Ring>{box(2, 2, 3, 3)});
}

TEST(Polygon, RepeatedPointsAreLeftOut) {
  const Polygons kept = mended({{{{0, 0}, {10, 0}, {10, 0.001}, {10, 10}, {0, 10}, {0.002, 0}, {0, 0}}, {}}});
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_EQ(kept[0].outer, box(0, 0, 10, 10));
}

TEST(Polygon, CrossedPolygonsAreMended) {
  struct {
    const char* what;
    Polygons drawn;
    double squareMetres;
  } const cases[] = {
      {"a bow tie is two triangles", {{{{0, 0}, {10, 10}, {10, 0}, {0, 10}}, {}}}, 50},
      {"pieces that overlap are joined", {{box(0, 0, 10, 10), {}}, {box(5, 0, 10, 10), {}}}, 150},
      {"a spike is cut off", {{{{0, 0}, {10, 0}, {10, 10}, {10, 50}, {10, 10}, {0, 10}}, {}}}, 100},
      {"a hole that touches its ring along a line is cut out", {{box(0, 0, 10, 10), {box(0, 2, 3, 3)}}}, 91},
  };
  for (const auto& c : cases) EXPECT_NEAR(squareMetres(areaOf(mended(c.drawn))), c.squareMetres, 1e-6) << c.what;
}

TEST(Polygon, NothingIsMadeOfWhatEnclosesNothing) {
  EXPECT_TRUE(mended({}).empty());
  EXPECT_TRUE(mended({{{}, {}}}).empty());
  EXPECT_TRUE(mended({{{{0, 0}, {10, 0}}, {}}}).empty());
  EXPECT_TRUE(mended({{{{0, 0}, {10, 10}, {20, 20}}, {}}}).empty());
  EXPECT_TRUE(mended({{{{0, 0}, {10, std::numeric_limits<double>::quiet_NaN()}, {20, 20}}, {}}}).empty());
  EXPECT_TRUE(mended({{{{0, 0}, {10, 0}, {std::numeric_limits<double>::infinity(), 20}}, {}}}).empty());
}

TEST(Division, JoinsZonesToProvincesAndRegion) {
  const Division division =
      divide({{{box(0, 0, 100, 100), {}}}, {{box(100, 0, 100, 100), {}}}, {{box(0, 100, 200, 100), {}}}}, {0, 0, 1}, 2);
  EXPECT_TRUE(division.overlaps.empty());
  EXPECT_EQ(squareMetres(division.zones[0]), 10000);
  EXPECT_EQ(squareMetres(division.provinces[0]), 20000);
  EXPECT_EQ(squareMetres(division.provinces[1]), 20000);
  EXPECT_EQ(division.region.size(), 1U);
  expectAgreement(division);
}

TEST(Division, NeighboursGetThePointsOfEachOther) {
  const Division division =
      divide({{{box(0, 0, 200, 100), {}}}, {{box(0, 100, 50, 100), {}}}, {{box(50, 100, 150, 100), {}}}}, {0, 0, 0}, 1);
  EXPECT_EQ(division.zones[0].front().size(), 5U) << "a point where its upper neighbours meet";
  expectAgreement(division);
}

TEST(Division, SliversAreClosed) {
  const Ring left{{0, 0}, {1000, 0}, {1001, 500}, {1000, 1000}, {0, 1000}};
  const Ring right{{1000, 0}, {2000, 0}, {2000, 1000}, {1000, 1000}, {1003, 500}};
  const Ring rightOver{{1000, 0}, {2000, 0}, {2000, 1000}, {1000, 1000}, {999, 500}};
  for (const Ring& other : {right, rightOver}) {
    const Division division = divide({{{left, {}}}, {{other, {}}}}, {0, 1}, 2);
    EXPECT_TRUE(division.overlaps.empty());
    EXPECT_EQ(division.region.size(), 1U);
    EXPECT_NEAR(squareMetres(division.region), 2e6, 1);
    expectAgreement(division);
  }
}

TEST(Division, RealHolesStay) {
  const Division division = divide({{{box(0, 0, 1000, 1000), {box(100, 100, 50, 50)}}}}, {0}, 1);
  ASSERT_EQ(division.region.size(), 2U);
  EXPECT_EQ(squareMetres(division.region), 1e6 - 2500);
  EXPECT_LT(squareMetres(division.region[1]), 0);
  const Division tiny = divide({{{box(0, 0, 1000, 1000), {box(100, 100, 8, 8)}}}}, {0}, 1);
  EXPECT_EQ(tiny.region.size(), 1U);
}

TEST(Division, AnEnclaveFillsItsHole) {
  const Division division =
      divide({{{box(0, 0, 1000, 1000), {box(100, 100, 50, 50)}}}, {{box(100, 100, 50, 50), {}}}}, {0, 1}, 2);
  EXPECT_EQ(division.zones[0].size(), 2U);
  EXPECT_EQ(squareMetres(division.zones[1]), 2500);
  EXPECT_EQ(division.region.size(), 1U);
  expectAgreement(division);
}

TEST(Division, IslandsAndPartsThatTouchInAPointStayApart) {
  const Division division =
      divide({{{box(0, 0, 100, 100), {}}, {box(100, 100, 100, 100), {}}, {box(500, 0, 50, 50), {}}}}, {0}, 1);
  EXPECT_EQ(division.zones[0].size(), 3U);
  EXPECT_EQ(division.region.size(), 3U);
  expectAgreement(division);
}

TEST(Division, OverlapsAreFound) {
  const Division division = divide({{{box(0, 0, 1000, 1000), {}}},
                                    {{box(2000, 0, 1000, 1000), {}}},
                                    {{box(980, 0, 1020, 1000), {}}},
                                    {{box(2500, 500, 100, 100), {}}}},
                                   {0, 0, 0, 0}, 1);
  ASSERT_EQ(division.overlaps.size(), 2U);
  EXPECT_EQ(division.overlaps[0].first, 0U);
  EXPECT_EQ(division.overlaps[0].second, 2U);
  EXPECT_NEAR(division.overlaps[0].squareMetres, 20000, 1e-6);
  EXPECT_GT(division.overlaps[0].at.x, 980);
  EXPECT_LT(division.overlaps[0].at.x, 1000);
  EXPECT_EQ(division.overlaps[1].first, 1U);
  EXPECT_EQ(division.overlaps[1].second, 3U);
  EXPECT_NEAR(division.overlaps[1].squareMetres, 10000, 1e-6);
  EXPECT_TRUE(division.zones.empty());
}

TEST(Division, AZoneThatIsASliverInAnotherIsEmpty) {
  const Division division = divide({{{box(0, 0, 1000, 1000), {}}}, {{box(10, 10, 4, 900), {}}}}, {0, 0}, 1);
  EXPECT_TRUE(division.overlaps.empty());
  EXPECT_TRUE(division.zones[1].empty());
}

// Zones of a square pattern whose borders have ten pieces a side, bent to and fro.
std::vector<Polygons> bentZones(int across) {
  const auto bent = [](double x, double y) { return Point{x + 37 * std::sin(y / 61), y + 41 * std::sin(x / 53)}; };
  std::vector<Polygons> zones;
  for (int i = 0; i < across * across; ++i) {
    const double x = 1000.0 * (i % across);
    const double y = 1000.0 * (i / across);
    Ring ring;
    for (int s = 0; s < 10; ++s) ring.push_back(bent(x + 100 * s, y));
    for (int s = 0; s < 10; ++s) ring.push_back(bent(x + 1000, y + 100 * s));
    for (int s = 0; s < 10; ++s) ring.push_back(bent(x + 1000 - 100 * s, y + 1000));
    for (int s = 0; s < 10; ++s) ring.push_back(bent(x, y + 1000 - 100 * s));
    zones.push_back(mended({{ring, {}}}));
  }
  return zones;
}

TEST(Division, ManagesThousandsOfZones) {
  const int across = 90;
  std::vector<std::size_t> provinceOf;
  for (int i = 0; i < across * across; ++i) provinceOf.push_back(static_cast<std::size_t>(i % across) / 10);
  const Division division = divide(bentZones(across), provinceOf, 9);
  EXPECT_TRUE(division.overlaps.empty());
  EXPECT_EQ(division.region.size(), 1U);
  expectAgreement(division);
}

}  // namespace
}  // namespace study
