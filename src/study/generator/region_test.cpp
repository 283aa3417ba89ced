#include "study/generator/region.h"

#include <geos_c.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <tuple>

#include "text/collation.h"
#include "text/utf8.h"

namespace study::generator {
namespace {

struct FinishGeos {
  void operator()(GEOSContextHandle_HS* context) const { GEOS_finish_r(context); }
};
using Geos = std::unique_ptr<GEOSContextHandle_HS, FinishGeos>;

GEOSGeometry* closedLine(GEOSContextHandle_t geos, const Ring& ring) {
  GEOSCoordSequence* points = GEOSCoordSeq_create_r(geos, static_cast<unsigned>(ring.size() + 1), 2);
  for (std::size_t i = 0; i <= ring.size(); ++i) {
    const Point& p = ring[i % ring.size()];
    GEOSCoordSeq_setXY_r(geos, points, static_cast<unsigned>(i), p.x, p.y);
  }
  return GEOSGeom_createLinearRing_r(geos, points);
}

GEOSGeometry* polygonOf(GEOSContextHandle_t geos, const Area& area) {
  std::vector<GEOSGeometry*> holes;
  for (std::size_t i = 1; i < area.size(); ++i) holes.push_back(closedLine(geos, area[i]));
  return GEOSGeom_createPolygon_r(geos, closedLine(geos, area.front()), holes.data(),
                                  static_cast<unsigned>(holes.size()));
}

struct RegionCase {
  std::uint64_t seed;
  std::size_t provinces;
  std::size_t zones;
  std::size_t vertices;
};

void PrintTo(const RegionCase& c, std::ostream* out) {
  *out << "seed " << c.seed << ", " << c.provinces << " provinces, " << c.zones << " zones, " << c.vertices
       << " vertices";
}

class RegionTest : public testing::TestWithParam<RegionCase> {
 protected:
  RegionTest() : region_(made()) {}

  // Made once for all tests.
  static const Region& made() {
    static std::map<std::uint64_t, Region> regions;
    const auto known = regions.find(GetParam().seed);
    return known != regions.end() ? known->second
                                  : regions.emplace(GetParam().seed, makeRegion(settings())).first->second;
  }

  static GeneratorSettings settings() {
    GeneratorSettings result;
    result.seed = GetParam().seed;
    result.provinces = GetParam().provinces;
    result.zones = GetParam().zones;
    result.vertices = GetParam().vertices;
    return result;
  }

  const Region& region_;
};

TEST_P(RegionTest, HasTheProvincesAndZonesAskedFor) {
  EXPECT_EQ(region_.provinces.size(), GetParam().provinces);
  EXPECT_EQ(region_.zones.size(), GetParam().zones);
  std::set<std::size_t> inhabited;
  for (const RegionZone& zone : region_.zones) inhabited.insert(zone.province);
  EXPECT_EQ(inhabited.size(), GetParam().provinces);
}

TEST_P(RegionTest, NamesDifferAndStandInOrder) {
  std::set<std::string> names{"veldoria"};
  for (const std::string& province : region_.provinces) EXPECT_TRUE(names.insert(text::lower(province)).second);
  for (const RegionZone& zone : region_.zones) {
    EXPECT_TRUE(names.insert(text::lower(zone.name)).second) << zone.name;
    EXPECT_LE(text::length(zone.name), 60u);
  }
  for (std::size_t i = 1; i < region_.zones.size(); ++i) {
    const RegionZone& before = region_.zones[i - 1];
    const RegionZone& zone = region_.zones[i];
    EXPECT_TRUE(before.province < zone.province ||
                (before.province == zone.province && std::is_lt(text::collate(before.name, zone.name))));
  }
}

TEST_P(RegionTest, ZonesAreValidAreasOfTheVerticesAskedFor) {
  const Geos geos(GEOS_init_r());
  std::size_t vertices = 0;
  for (const RegionZone& zone : region_.zones) {
    GEOSGeometry* polygon = polygonOf(geos.get(), zone.area);
    EXPECT_EQ(GEOSisValid_r(geos.get(), polygon), 1) << zone.name;
    GEOSGeom_destroy_r(geos.get(), polygon);
    for (std::size_t ring = 0; ring < zone.area.size(); ++ring) {
      EXPECT_EQ(squareMetres(zone.area[ring]) > 0, ring == 0) << zone.name;
      vertices += zone.area[ring].size();
    }
  }
  const double mean = static_cast<double>(vertices) / static_cast<double>(region_.zones.size());
  EXPECT_NEAR(mean / static_cast<double>(GetParam().vertices), 1, 0.1);
}

TEST_P(RegionTest, ZonesLeaveNoGapsAndDoNotOverlap) {
  const Geos geos(GEOS_init_r());
  std::vector<GEOSGeometry*> parts;
  double sum = 0;
  for (const RegionZone& zone : region_.zones) {
    sum += squareMetres(zone.area);
    parts.push_back(polygonOf(geos.get(), zone.area));
  }
  GEOSGeometry* all =
      GEOSGeom_createCollection_r(geos.get(), GEOS_MULTIPOLYGON, parts.data(), static_cast<unsigned>(parts.size()));
  GEOSGeometry* united = GEOSUnaryUnion_r(geos.get(), all);
  double area = 0;
  GEOSArea_r(geos.get(), united, &area);
  // An overlap would make the union smaller than the sum; a gap would be a hole in it.
  EXPECT_NEAR(sum / area, 1, 1e-9);
  EXPECT_EQ(GEOSGeomTypeId_r(geos.get(), united), GEOS_POLYGON);
  EXPECT_EQ(GEOSGetNumInteriorRings_r(geos.get(), united), 0);
  GEOSGeom_destroy_r(geos.get(), united);
  GEOSGeom_destroy_r(geos.get(), all);
}

TEST_P(RegionTest, NeighboursShareEveryStepOfTheirBorders) {
  using Step = std::tuple<double, double, double, double>;
  std::set<Step> steps;
  for (const RegionZone& zone : region_.zones) {
    for (const Ring& ring : zone.area) {
      for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point& a = ring[i];
        const Point& b = ring[(i + 1) % ring.size()];
        EXPECT_NE(a, b) << zone.name;
        EXPECT_EQ(onCentimetres(a), a);
        EXPECT_TRUE(steps.insert({a.x, a.y, b.x, b.y}).second) << zone.name;
      }
    }
  }
  // What has no twin in the other direction is the region's own border: it closes to one line.
  std::map<std::pair<double, double>, std::pair<double, double>> outline;
  for (const auto& [ax, ay, bx, by] : steps) {
    if (steps.contains({bx, by, ax, ay})) continue;
    EXPECT_TRUE(outline.insert({{ax, ay}, {bx, by}}).second);
  }
  ASSERT_FALSE(outline.empty());
  const auto start = outline.begin()->first;
  auto at = outline.begin()->second;
  std::size_t length = 1;
  while (at != start && length <= outline.size()) {
    ASSERT_TRUE(outline.contains(at));
    at = outline[at];
    ++length;
  }
  EXPECT_EQ(length, outline.size());
}

TEST_P(RegionTest, EveryProvinceIsInOnePieceAndHasItsCity) {
  const Geos geos(GEOS_init_r());
  std::vector<std::vector<GEOSGeometry*>> parts(region_.provinces.size());
  std::vector<int> centres(region_.provinces.size(), 0);
  for (const RegionZone& zone : region_.zones) {
    parts[zone.province].push_back(polygonOf(geos.get(), zone.area));
    if (zone.name == region_.provinces[zone.province] + " Centro") ++centres[zone.province];
  }
  for (std::size_t province = 0; province < parts.size(); ++province) {
    GEOSGeometry* all = GEOSGeom_createCollection_r(geos.get(), GEOS_MULTIPOLYGON, parts[province].data(),
                                                    static_cast<unsigned>(parts[province].size()));
    GEOSGeometry* united = GEOSUnaryUnion_r(geos.get(), all);
    EXPECT_EQ(GEOSGeomTypeId_r(geos.get(), united), GEOS_POLYGON) << region_.provinces[province];
    EXPECT_EQ(centres[province], 1) << region_.provinces[province];
    GEOSGeom_destroy_r(geos.get(), united);
    GEOSGeom_destroy_r(geos.get(), all);
  }
}

INSTANTIATE_TEST_SUITE_P(Settings, RegionTest,
                         testing::Values(RegionCase{1999, 8, 120, 100}, RegionCase{1, 8, 120, 100},
                                         RegionCase{2, 1, 1, 60}, RegionCase{3, 12, 12, 30}, RegionCase{4, 40, 600, 40},
                                         RegionCase{5, 3, 40, 600}));

TEST(SampleRegion, IsAsLargeAsARegionOfItsKind) {
  Area all;
  for (const RegionZone& zone : makeRegion({}).zones) all.push_back(zone.area.front());
  const Extent box = extent(all);
  EXPECT_GT(box.width(), 350'000);
  EXPECT_LT(box.width(), 450'000);
  EXPECT_GT(box.height(), 300'000);
  EXPECT_LT(box.height(), 450'000);
}

}  // namespace
}  // namespace study::generator
