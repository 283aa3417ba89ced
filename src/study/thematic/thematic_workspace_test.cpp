#include "study/thematic/thematic_workspace.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "study/thematic/testing_study.h"
#include "study/thematic/thematic_palette.h"

namespace study {
namespace {

class ThematicWorkspaces : public ::testing::Test {
 protected:
  [[nodiscard]] std::string text(Unit frame, UnitKind units, std::string_view indicator,
                                 std::string_view sex = "Ambos sexos", bool isComplete = true) const {
    return thematicWorkspace(study, {0, sex, frame, units, std::string(indicator)}, scales, mapProjection(study),
                             isComplete);
  }
  void expectPart(const std::string& text, const std::string& part) const {
    EXPECT_NE(text.find(part), std::string::npos) << part << "\nis not in\n" << text;
  }

  Study study = testingStudy();
  FigureBook book{study};
  ThematicScales scales{study, book};
};

TEST_F(ThematicWorkspaces, TheMapsOwnTableIsOpenedFirst) {
  const std::string map = text({}, UnitKind::province, kCrudeRateIndicator);
  EXPECT_EQ(map.find("Open Table "), map.find("Open Table \"Tasa bruta (x100.000)\" As Tematico Interactive\n"));
  expectPart(map, "Open Table \"..\\..\\..\\..\\..\\Base\\Provincias\" As SinDatos Interactive\n");
  expectPart(map, "Map From Tematico,SinDatos\n");
  expectPart(map, " Title \"Tasa bruta (x100.000). Ambos sexos, 2001. Provincias de Veldoria\" ");
}

TEST_F(ThematicWorkspaces, AProvincesMapLiesOneFolderHigher) {
  const std::string map = text({UnitKind::province, 0}, UnitKind::zone, kPopulationIndicator);
  expectPart(map, "Open Table \"..\\..\\..\\..\\Base\\Zonas\\Álava del Río\" As SinDatos Interactive\n");
  EXPECT_EQ(map.find("Limites"), std::string::npos);
  expectPart(map, " Title \"Población. Ambos sexos, 2001. Zonas básicas de salud de Álava del Río\" ");
}

TEST_F(ThematicWorkspaces, ZonesOfTheRegionLieBelowTheProvincesLimits) {
  const std::string map = text({}, UnitKind::zone, kCrudeRateIndicator);
  expectPart(map, "Map From Limites,Tematico,SinDatos\n");
  expectPart(map, "shade 2 with Valor ranges apply all use all Brush (2,");
  expectPart(map, "  Layer 2\n    Display Value\n  Layer 3\n    Display Graphic\n");
  expectPart(map, "Set Legend\n  Layer 2\n");
}

TEST_F(ThematicWorkspaces, RatesAreShownByColours) {
  const std::string map = text({}, UnitKind::province, kCrudeRateIndicator, "Hombres");
  // Three values: 300 of men, 150 of women, 225 of both.
  expectPart(map, "shade 1 with Valor ranges apply all use all");
  expectPart(map, "  default Brush (2," + std::to_string(palette::kNoFigure) + ",16777215) Pen (1,2,");
  expectPart(map, "    Title \"Tasa bruta (x100.000)\" Font (\"Verdana\",1,9,0)\n    Subtitle \"Hombres, 2001\" Font");
  expectPart(map, "      \"sin datos\" Display On ,\n");
  const auto rows = std::count(map.begin(), map.end(), '\n');
  EXPECT_GT(rows, 30);
}

TEST_F(ThematicWorkspaces, TheLegendHasARowForEachClassAndOneForNoFigure) {
  for (const std::string_view indicator : {kCrudeRateIndicator, kStandardisedRateIndicator}) {
    const std::string map = text({}, UnitKind::zone, indicator);
    std::size_t rows = 0;
    for (std::size_t at = map.find("\" Display On"); at != std::string::npos; at = map.find("\" Display On", at + 1)) {
      ++rows;
    }
    const std::size_t classes = scales.limits({0, "", {}, UnitKind::zone, std::string(indicator)}).size() - 1;
    EXPECT_EQ(rows, classes + 1);
  }
}

TEST_F(ThematicWorkspaces, CountsAreShownBySigns) {
  const std::string map = text({}, UnitKind::province, kPopulationIndicator);
  expectPart(map, "shade 1 with Valor graduated 0:0 40000:48 Symbol (34,");
  expectPart(text({}, UnitKind::zone, kPopulationIndicator), " graduated 0:0 20000:36 Symbol (34,");
  expectPart(map, ") vary size by \"SQRT\"\n");
  EXPECT_EQ(map.find("sin datos"), std::string::npos);
}

TEST_F(ThematicWorkspaces, CountsThatLackFiguresSaySo) {
  const std::string map = text({}, UnitKind::zone, kDeathsIndicator, "Hombres", false);
  // From the bottom up: the units in grey, then the signs; then the map's layers with both themes counted.
  const std::size_t grey = map.find("shade 3 with 1 values 1 Brush (2," + std::to_string(palette::kNoFigure));
  ASSERT_NE(grey, std::string::npos);
  EXPECT_GT(map.find("shade 2 with Valor graduated"), grey);
  expectPart(map, "  Layer 2\n    Display Value\n  Layer 3\n    Display Graphic\n");
  expectPart(map, "  Layer 4\n    Display Value\n  Layer 5\n    Display Global\n");
  expectPart(map, "  Layer 4\n    Display On\n    Shades On");
  expectPart(map, "      \"\" Display Off ,\n      \"sin datos\" Display On\n");
  EXPECT_EQ(text({}, UnitKind::zone, kCrudeRateIndicator, "Hombres", false),
            text({}, UnitKind::zone, kCrudeRateIndicator, "Hombres"))
      << "rates always say so";
}

TEST_F(ThematicWorkspaces, LimitsAreTheSameForAllSexes) {
  const auto themeOf = [](const std::string& map) {
    const std::size_t start = map.find("shade ");
    return map.substr(start, map.find("Set Map", start) - start);
  };
  EXPECT_EQ(themeOf(text({}, UnitKind::zone, kCrudeRateIndicator, "Hombres")),
            themeOf(text({}, UnitKind::zone, kCrudeRateIndicator, "Mujeres")));
}

TEST(ClassTexts, AreSpanish) {
  EXPECT_EQ(classTexts({0, 22.5, 1200, 5000}),
            (std::vector<std::string>{"menos de 22,5", "22,5 a 1.200", "1.200 y más"}));
  EXPECT_EQ(classTexts({0, 10}), (std::vector<std::string>{"0 a 10"}));
}

TEST(ThematicPalette, EachClassIsClearlyDarkerThanTheOneBefore) {
  const auto brightness = [](int colour) {
    return 0.2126 * (colour >> 16) + 0.7152 * ((colour >> 8) & 255) + 0.0722 * (colour & 255);
  };
  for (std::size_t classes = 1; classes <= 5; ++classes) {
    const std::vector<int> colours = palette::sequence(classes);
    ASSERT_EQ(colours.size(), classes);
    for (std::size_t i = 1; i < classes; ++i) EXPECT_LT(brightness(colours[i]), brightness(colours[i - 1]) - 25);
  }
}

}  // namespace
}  // namespace study
