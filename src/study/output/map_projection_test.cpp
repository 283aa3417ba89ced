#include "study/output/map_projection.h"

#include <gtest/gtest.h>

namespace study {
namespace {

Study studyAround(Extent region, int utmZone) {
  Study study;
  study.utmZone = utmZone;
  study.regionArea = {{{region.minX, region.minY}, {region.maxX, region.minY}, {region.maxX, region.maxY}}};
  return study;
}

TEST(MapProjection, IsTheZonesOwn) {
  const Extent region{400'000, 4'400'000, 600'000, 4'600'000};
  EXPECT_EQ(mapProjection(studyAround(region, 30)).coordSys,
            R"(Earth Projection 8, 104, "m", -3, 0, 0.9996, 500000, 0)");
  EXPECT_EQ(mapProjection(studyAround(region, -19)).coordSys,
            R"(Earth Projection 8, 104, "m", -69, 0, 0.9996, 500000, 10000000)");
}

TEST(MapProjection, BoundsAreARoundSquareAboutTheRegion) {
  const Extent bounds = mapProjection(studyAround({400'000, 4'400'000, 600'000, 4'600'000}, 30)).bounds;
  EXPECT_EQ(bounds, (Extent{0, 4'000'000, 1'000'000, 5'000'000}));
}

TEST(MapProjection, AWideRegionHasWiderBounds) {
  const Extent region{-400'000, 3'900'000, 1'250'000, 5'150'000};
  const Extent bounds = mapProjection(studyAround(region, 30)).bounds;
  EXPECT_LT(bounds.minX, region.minX);
  EXPECT_LT(bounds.minY, region.minY);
  EXPECT_GT(bounds.maxX, region.maxX);
  EXPECT_GT(bounds.maxY, region.maxY);
  EXPECT_EQ(bounds.width(), bounds.height());
}

}  // namespace
}  // namespace study
