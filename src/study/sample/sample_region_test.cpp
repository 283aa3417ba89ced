#include "study/sample/sample_region.h"

#include <geos_c.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <tuple>

#include "study/sample/place_names.h"
#include "study/sample/sample_study.h"
#include "study/statistics_table.h"
#include "study/windows1252.h"
#include "text/collation.h"
#include "text/utf8.h"

namespace study {
namespace {

struct GeosContext {
  GEOSContextHandle_t handle = GEOS_init_r();
  GeosContext() = default;
  ~GeosContext() { GEOS_finish_r(handle); }
  GeosContext(const GeosContext&) = delete;
  GeosContext& operator=(const GeosContext&) = delete;
};

struct GeosDelete {
  GEOSContextHandle_t context;
  void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(context, geometry); }
};
using GeosPtr = std::unique_ptr<GEOSGeometry, GeosDelete>;

GEOSGeometry* linearRing(GEOSContextHandle_t context, const Ring& ring) {
  GEOSCoordSequence* points = GEOSCoordSeq_create_r(context, static_cast<unsigned>(ring.size() + 1), 2);
  for (std::size_t i = 0; i <= ring.size(); ++i) {
    const Point& p = ring[i % ring.size()];
    GEOSCoordSeq_setXY_r(context, points, static_cast<unsigned>(i), p.x, p.y);
  }
  return GEOSGeom_createLinearRing_r(context, points);
}

// One outer ring, then its holes.
GeosPtr polygon(GEOSContextHandle_t context, const std::vector<Ring>& rings) {
  std::vector<GEOSGeometry*> holes;
  for (std::size_t i = 1; i < rings.size(); ++i) holes.push_back(linearRing(context, rings[i]));
  return {GEOSGeom_createPolygon_r(context, linearRing(context, rings.front()), holes.data(),
                                   static_cast<unsigned>(holes.size())),
          {context}};
}

class SampleRegionTest : public testing::Test {
 protected:
  static const Study& study() {
    static const Study made = makeSampleStudy(kSampleSeed);
    return made;
  }
  GeosContext geos;
};

TEST_F(SampleRegionTest, HasEightProvincesAndAHundredAndTwentyZones) {
  EXPECT_EQ(study().provinces.size(), 8u);
  EXPECT_EQ(study().zones.size(), 120u);
  for (int province = 0; province < 8; ++province) {
    int zones = 0;
    for (const Zone& zone : study().zones) zones += zone.province == province ? 1 : 0;
    EXPECT_GE(zones, 8) << study().provinces[static_cast<std::size_t>(province)];
  }
}

TEST_F(SampleRegionTest, NamesAreUniqueAndFitForStatementsAndFiles) {
  std::set<std::string> seen;
  std::vector<std::string> names = study().provinces;
  names.emplace_back(kRegion);
  for (const Zone& zone : study().zones) names.push_back(zone.name);
  for (const std::string& name : names) {
    EXPECT_TRUE(seen.insert(text::lower(text::withoutAccents(name))).second) << name;
    EXPECT_EQ(name.find_first_of("\"%_\\/:*?<>|"), std::string::npos) << name;
    EXPECT_EQ(text::trim(name), name);
    EXPECT_NO_THROW(static_cast<void>(toWindows1252(name))) << name;
  }
}

TEST_F(SampleRegionTest, StandsInTheOrderOfItsNames) {
  const auto& zones = study().zones;
  for (std::size_t i = 1; i < zones.size(); ++i) {
    EXPECT_TRUE(zones[i - 1].province < zones[i].province ||
                (zones[i - 1].province == zones[i].province && text::collate(zones[i - 1].name, zones[i].name) < 0))
        << zones[i].name;
  }
  for (std::size_t i = 1; i < study().provinces.size(); ++i) {
    EXPECT_TRUE(text::collate(study().provinces[i - 1], study().provinces[i]) < 0);
  }
}

TEST_F(SampleRegionTest, IsAsLargeAsARegionOfItsKind) {
  const Extent box = extent(study().regionOutline());
  EXPECT_GT(box.width(), 350'000);
  EXPECT_LT(box.width(), 450'000);
  EXPECT_GT(box.height(), 300'000);
  EXPECT_LT(box.height(), 450'000);
}

TEST_F(SampleRegionTest, UnitsAreValidAreasInOnePiece) {
  const auto check = [&](const std::vector<Ring>& rings, const std::string& name) {
    EXPECT_EQ(rings.size(), 1u) << name;
    EXPECT_EQ(GEOSisValid_r(geos.handle, polygon(geos.handle, rings).get()), 1) << name;
  };
  for (std::size_t zone = 0; zone < study().zones.size(); ++zone) {
    check(study().zoneOutline(zone), study().zones[zone].name);
    const std::size_t vertices = study().zoneOutline(zone).front().size();
    EXPECT_GE(vertices, 25u) << study().zones[zone].name;
    EXPECT_LE(vertices, 250u) << study().zones[zone].name;
  }
  for (int province = 0; province < 8; ++province) {
    check(study().provinceOutline(province), study().provinces[static_cast<std::size_t>(province)]);
  }
  check(study().regionOutline(), "region");
}

TEST_F(SampleRegionTest, ZonesMakeUpProvincesAndRegionWithoutGapsOrOverlaps) {
  std::vector<GEOSGeometry*> all;
  double zones = 0;
  std::vector<double> byProvince(8, 0);
  for (std::size_t zone = 0; zone < study().zones.size(); ++zone) {
    const std::vector<Ring> rings = study().zoneOutline(zone);
    const double own = area(rings);
    EXPECT_GT(own, 0);
    zones += own;
    byProvince[static_cast<std::size_t>(study().zones[zone].province)] += own;
    all.push_back(polygon(geos.handle, rings).release());
  }
  const double region = area(study().regionOutline());
  EXPECT_NEAR(zones / region, 1, 1e-6);
  for (int province = 0; province < 8; ++province) {
    EXPECT_NEAR(byProvince[static_cast<std::size_t>(province)] / area(study().provinceOutline(province)), 1, 1e-6);
  }
  // An overlap would make the union smaller than the sum; a gap would make it differ from the outline.
  const GeosPtr parts(
      GEOSGeom_createCollection_r(geos.handle, GEOS_MULTIPOLYGON, all.data(), static_cast<unsigned>(all.size())),
      {geos.handle});
  const GeosPtr united(GEOSUnaryUnion_r(geos.handle, parts.get()), {geos.handle});
  double unitedArea = 0;
  GEOSArea_r(geos.handle, united.get(), &unitedArea);
  EXPECT_NEAR(unitedArea / region, 1, 1e-6);
  EXPECT_EQ(GEOSGeomTypeId_r(geos.handle, united.get()), GEOS_POLYGON);
  EXPECT_EQ(GEOSGetNumInteriorRings_r(geos.handle, united.get()), 0);
}

TEST_F(SampleRegionTest, NeighboursShareEveryStepOfTheirBorders) {
  using Step = std::tuple<double, double, double, double>;
  std::set<Step> steps;
  for (std::size_t zone = 0; zone < study().zones.size(); ++zone) {
    const Ring ring = study().zoneOutline(zone).front();
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const Point& a = ring[i];
      const Point& b = ring[(i + 1) % ring.size()];
      EXPECT_TRUE(steps.insert({a.x, a.y, b.x, b.y}).second);
    }
  }
  const Ring outline = study().regionOutline().front();
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point& a = outline[i];
    const Point& b = outline[(i + 1) % outline.size()];
    EXPECT_EQ(steps.erase({a.x, a.y, b.x, b.y}), 1u);
  }
  // What is not the region's own border is there once in each direction.
  for (const auto& [ax, ay, bx, by] : steps) EXPECT_EQ(steps.count({bx, by, ax, ay}), 1u);
}

TEST_F(SampleRegionTest, SurroundingsHoldNoProvince) {
  const GeosPtr around = polygon(geos.handle, surroundings(study()));
  EXPECT_EQ(GEOSisValid_r(geos.handle, around.get()), 1);
  double provinces = 0;
  for (int i = 0; i < 8; ++i) {
    const GeosPtr province = polygon(geos.handle, study().provinceOutline(i));
    const GeosPtr inside(GEOSPointOnSurface_r(geos.handle, province.get()), {geos.handle});
    EXPECT_EQ(GEOSContains_r(geos.handle, province.get(), inside.get()), 1);
    EXPECT_EQ(GEOSIntersects_r(geos.handle, around.get(), inside.get()), 0);
    provinces += area(study().provinceOutline(i));
  }
  const std::vector<Ring> rings = surroundings(study());
  EXPECT_NEAR((area(rings) + provinces) / area(rings.front()), 1, 1e-6);
}

TEST_F(SampleRegionTest, OtherSeedsMakeSoundRegionsToo) {
  for (const std::uint64_t seed : {1u, 2u, 3u}) {
    const SampleRegion region = makeRegion(seed);
    double sum = 0;
    for (int zone = 0; zone < region.coverage.cellCount(); ++zone) {
      const std::vector<Ring> rings = region.coverage.outline(zone);
      EXPECT_GT(area(rings), 0) << seed;
      EXPECT_EQ(GEOSisValid_r(geos.handle, polygon(geos.handle, rings).get()), 1) << seed << " " << zone;
      sum += area(rings);
    }
    EXPECT_NEAR(sum / area(region.coverage.outline()), 1, 1e-6) << seed;
  }
}

}  // namespace
}  // namespace study
