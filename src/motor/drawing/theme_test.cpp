#include "motor/drawing/theme.h"

#include <gtest/gtest.h>

#include <cmath>

#include "motor/drawing/themed_maps.h"

namespace motor {
namespace {

const Brush kFill{2, small::kBlue, kTransparent};

template <typename Kind>
Kind themeOf(const std::string& statement, std::size_t rows = 3) {
  const Layer base = small::squares(rows, kFill);
  const Layer layer = small::theme(base, statement);
  Themes themes;
  return std::get<Kind>(themes.of(layer));
}

TEST(Themes, areEvaluatedOnceForATable) {
  const Layer base = small::squares(3, kFill);
  Layer layer = small::theme(base, "shade 1 with Valor ranges 0: 9 Brush (2,1)");
  Themes themes;
  const Theme* first = &themes.of(layer);
  layer.display = Display::off;
  EXPECT_EQ(&themes.of(layer), first);
  EXPECT_EQ(themes.evaluatedCount(), 1U);
  layer.table = small::squares(2, kFill).table;
  EXPECT_NE(&themes.of(layer), first);
  EXPECT_EQ(themes.evaluatedCount(), 2U);
  layer.theme = nullptr;
  themes.dropUnused();
}

TEST(Themes, ofATableWithoutRowsHaveEmptyClasses) {
  const auto ranges = themeOf<ClassTheme>("shade 1 with Valor ranges 0: 9 Brush (2,1) default Brush (2,2)", 0);
  ASSERT_EQ(ranges.classes().size(), 1U);
  EXPECT_EQ(ranges.classes()[0].objects, 0U);
  EXPECT_EQ(ranges.others().objects, 0U);
  EXPECT_EQ(ranges.of(0), nullptr);
  EXPECT_TRUE(themeOf<SymbolTheme>("shade 1 with Valor graduated 0:0 9:9 Symbol (34,1,9)", 0).order().empty());
  EXPECT_TRUE(themeOf<ChartTheme>("shade 1 with Valor, 1 pie style brush (2,1), brush (2,2)", 0).order().empty());
  const Layer layer =
      small::theme(small::squares(0, kFill), "shade 1 with Valor ranges Valor: 9 Brush (2,1) default Brush (2,2)");
  Themes themes;
  EXPECT_TRUE(std::holds_alternative<std::monostate>(themes.of(layer))) << "a limit that needs a row";
}

TEST(Themes, countTheObjectsOfTheirClasses) {
  const auto theme =
      themeOf<ClassTheme>("shade 1 with Capa.Valor ignore 4.5 ranges 0: 1 Brush (2,1), 1: 3 Brush (2,2)", 5);
  EXPECT_EQ(theme.classes()[0].objects, 1U);
  EXPECT_EQ(theme.classes()[1].objects, 2U);
  EXPECT_EQ(theme.others().objects, 1U);
  EXPECT_EQ(theme.of(3), nullptr) << "there is no style for all others";
  EXPECT_EQ(theme.of(4), nullptr) << "ignored";
}

TEST(Themes, applyWhatTheyAreToldTo) {
  MapObject object;
  object.kind = MapObject::Kind::region;
  DrawnStyle without;
  without.brush = {5, 7, 8};
  without.pen = {3, 9, 10};
  struct Case {
    const char* words;
    Brush brush;
    Pen pen;
  };
  for (const Case& c : {Case{"", {2, 1, kTransparent}, {4, 2, 6}}, Case{"apply all", {2, 1, kTransparent}, {4, 2, 6}},
                        Case{"apply color", {5, 1, 8}, {3, 9, 6}}, Case{"apply size", {5, 7, 8}, {4, 9, 10}},
                        Case{"apply all use all Brush (3,2)", {2, 1, kTransparent}, {4, 2, 6}},
                        Case{"apply all use color Brush (3,2,4) Pen (7,5,2)", {3, 1, 4}, {7, 5, 6}},
                        Case{"apply all use size Brush (3,2,4) Pen (7,5,2)", {3, 2, 4}, {4, 5, 2}},
                        Case{"apply color use color Brush (3,2,4)", {5, 1, 8}, {3, 9, 6}}}) {
    const auto theme =
        themeOf<ClassTheme>("shade 1 with Valor ranges " + std::string(c.words) + " 0: 9 Brush (2,1) Pen (4,2,6)");
    const DrawnStyle style = theme.shaded(*theme.of(0), object, without);
    EXPECT_EQ(style.brush, c.brush) << c.words;
    EXPECT_EQ(style.pen, c.pen) << c.words;
  }
}

TEST(Themes, linesTakeTheLineStyle) {
  MapObject line;
  line.kind = MapObject::Kind::polyline;
  const auto theme = themeOf<ClassTheme>("shade 1 with Valor ranges 0: 9 Line (4,2,6) Pen (1,2,3)");
  EXPECT_EQ(theme.shaded(*theme.of(0), line, {}).pen, (Pen{4, 2, 6}));
}

TEST(SymbolThemes, sizesGrowAsTold) {
  struct Case {
    const char* by;
    double quarter;  // the size of a quarter of the greatest value
  };
  for (const Case& c :
       {Case{"\"SQRT\"", 18}, Case{"\"CONST\"", 9}, Case{"\"LOG\"", 36 * std::log(26) / std::log(101)}}) {
    const auto theme = themeOf<SymbolTheme>("shade 1 with Valor graduated 0:0 100:36 Symbol (34,1,36) vary size by " +
                                            std::string(c.by));
    EXPECT_DOUBLE_EQ(theme.pointsOf(100), 36) << c.by;
    EXPECT_NEAR(theme.pointsOf(25), c.quarter, 1e-9) << c.by;
    EXPECT_DOUBLE_EQ(theme.pointsOf(0), 0) << c.by;
    EXPECT_GT(theme.pointsOf(200), 36) << c.by;
  }
  EXPECT_DOUBLE_EQ(themeOf<SymbolTheme>("shade 1 with Valor graduated 0:6 100:36 Symbol (34,1,36)").pointsOf(25), 21);
}

TEST(SymbolThemes, negativeValuesHaveASymbolOfTheirOwnOrNone) {
  const std::string words = "shade 1 with Valor-1.5 graduated 0:0 4:20 Symbol (34,1,36)";
  const auto plain = themeOf<SymbolTheme>(words);
  EXPECT_EQ(plain.symbolOf(-1), nullptr);
  EXPECT_EQ(plain.order(), (std::vector<std::uint32_t>{2}));
  const auto inflected = themeOf<SymbolTheme>(words + " inflect Symbol (36,2,36)");
  ASSERT_NE(inflected.symbolOf(-1), nullptr);
  EXPECT_EQ(inflected.symbolOf(-1)->shape, 36);
  EXPECT_DOUBLE_EQ(inflected.pointsOf(-1), 10);
  EXPECT_EQ(inflected.order(), (std::vector<std::uint32_t>{0, 2}));
}

TEST(SymbolThemes, theLargestComeFirst) {
  EXPECT_EQ(themeOf<SymbolTheme>("shade 1 with Valor graduated 0:0 4:20 Symbol (34,1,36)").order(),
            (std::vector<std::uint32_t>{2, 1, 0}));
}

TEST(ChartThemes, areAsLargeAsTheirValues) {
  const std::string size = " max size 1 units \"in\" at value 40 by ";
  const auto pie =
      themeOf<ChartTheme>("shade 1 with Valor, 3*Valor pie" + size + "\"SQRT\" style brush (2,1), brush (2,2)");
  EXPECT_DOUBLE_EQ(pie.sizeOf(40), 96);
  EXPECT_DOUBLE_EQ(pie.sizeOf(10), 48);
  EXPECT_DOUBLE_EQ(pie.amountOf(pie.valuesOf(1)), 6);
  EXPECT_EQ(pie.look().parts[1].fore, 2);
  const auto bars = themeOf<ChartTheme>("shade 1 with Valor, 3*Valor bar" + size + "\"CONST\"");
  EXPECT_DOUBLE_EQ(bars.amountOf(bars.valuesOf(1)), 4.5);
  EXPECT_DOUBLE_EQ(bars.sizeOf(10), 24);
  const auto stacked = themeOf<ChartTheme>("shade 1 with Valor, 3*Valor bar stacked normalized" + size + "\"CONST\"");
  EXPECT_DOUBLE_EQ(stacked.amountOf(stacked.valuesOf(1)), 6);
  EXPECT_DOUBLE_EQ(stacked.sizeOf(10), 96);
  EXPECT_DOUBLE_EQ(themeOf<ChartTheme>("shade 1 with Valor, 1 pie fixed" + size + "\"SQRT\"").sizeOf(1), 96);
}

TEST(DensityThemes, countDotsByValue) {
  const auto theme = themeOf<DensityTheme>("shade 1 with Valor density 0.5 square width 4 color 255");
  EXPECT_EQ(theme.dots(), (std::vector<std::uint32_t>{1, 3, 5}));
  EXPECT_TRUE(theme.isSquare());
  EXPECT_EQ(theme.width(), 4);
  EXPECT_EQ(theme.colour(), 255);
}

}  // namespace
}  // namespace motor
