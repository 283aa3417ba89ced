#include "study/reports/map_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "study/reports/test_pages.h"
#include "study/reports/test_study.h"
#include "study/thematic/thematic_palette.h"

namespace study::reports {
namespace {

const QRectF kBox(60, 100, 400, 300);

std::vector<int> fillsOf(const Page& page) {
  std::vector<int> fills;
  for (const Mark& mark : page.marks()) {
    const auto* shape = std::get_if<ShapeMark>(&mark);
    if (shape && shape->fill) fills.push_back(*shape->fill);
  }
  return fills;
}

TEST(MapPicture, ClassesAreThoseOfTheThematicMaps) {
  const std::vector<double> limits{0, 10, 20, 30};
  for (const auto& [value, index] :
       std::vector<std::pair<double, std::size_t>>{{-1, 0}, {0, 0}, {9.9, 0}, {10, 1}, {20, 2}, {99, 2}}) {
    EXPECT_EQ(classOf(value, limits), index) << value;
  }
}

TEST(MapPicture, FillsUnitsByClassAndGreyWithoutValue) {
  const Study study = testStudy();
  MapPicture map{&study, UnitKind::province, {5.0, 25.0, std::nullopt}, {0, 10, 20, 30}};
  Page page;
  paintMap(page, kBox, map);
  const std::vector<int> colours = palette::sequence(3);
  EXPECT_EQ(fillsOf(page), (std::vector<int>{colours[0], colours[2], palette::kNoFigure}));
  expectWithin(page, kBox);
}

TEST(MapPicture, ShowsProvincesOverZones) {
  const Study study = testStudy();
  MapPicture map{&study, UnitKind::zone, std::vector<std::optional<double>>(study.zones.size(), 5.0), {0, 10}};
  Page page;
  paintMap(page, kBox, map);
  EXPECT_EQ(fillsOf(page).size(), study.zones.size());
  const auto limits = std::count_if(page.marks().begin(), page.marks().end(), [](const Mark& mark) {
    const auto* shape = std::get_if<ShapeMark>(&mark);
    return shape && !shape->fill && shape->stroke->colour == palette::kThematicLimit;
  });
  EXPECT_EQ(limits, 3);
  EXPECT_TRUE(hasText(page, "km"));
}

TEST(MapPicture, NamesStayInTheBoxAndOffEachOther) {
  const Study study = testStudy({.provinces = 60, .zonesPerProvince = 1});
  MapPicture map{&study, UnitKind::province, {}, {0, 10}, true};
  Page page;
  paintMap(page, kBox, map);
  EXPECT_TRUE(hasText(page, "Provincia 1"));
  expectWithin(page, kBox);
  expectLegible(page);
}

TEST(MapPicture, HeightKeepsTheShape) {
  const Study study = testStudy();  // 40 km by 30 km
  MapPicture map{&study, UnitKind::province, {}, {0, 10}};
  map.hasScale = false;
  EXPECT_NEAR(mapHeight(map, 402), 302, 0.01);
}

TEST(MapPicture, LegendTellsClassesAndMissingValues) {
  const Study study = testStudy();
  MapPicture map{&study, UnitKind::province, {5.0, 25.0, std::nullopt}, {0, 10, 20, 30}};
  Page page;
  const double height = paintMapLegend(page, kBox.topLeft(), 150, map);
  for (const char* text : {"menos de 10", "10 a 20", "20 y más", "sin datos"}) EXPECT_TRUE(hasText(page, text)) << text;
  expectWithin(page, {kBox.left(), kBox.top(), 150, height});
  map.values.back() = 1;
  Page complete;
  EXPECT_LE(paintMapLegend(complete, kBox.topLeft(), 150, map), height);
  EXPECT_FALSE(hasText(complete, "sin datos"));
}

}  // namespace
}  // namespace study::reports
