#include "motor/drawing/legend_sections.h"

#include <gtest/gtest.h>

#include "motor/drawing/themed_maps.h"

namespace motor {
namespace {

using Kind = LegendSwatch::Kind;
using Texts = std::vector<std::string>;

const Brush kFill{2, small::kBlue, kTransparent};
const std::string kRanges =
    "shade 1 with Valor ranges 0: 1 Brush (2,1) Pen (1,2,3), 1: 2.5 Brush (2,2), 1000: 2000.5 Brush (2,3) default "
    "Brush (2,4)";

std::vector<LegendSection> sectionsOf(const std::vector<Layer>& layers) {
  Themes themes;
  return legendSections(small::map(layers), themes);
}

// The section of one theme over three objects.
LegendSection section(const std::string& shade, const std::string& legend = "", std::size_t rows = 3) {
  const Layer base = small::squares(rows, kFill);
  Layer theme = small::theme(base, shade);
  if (!legend.empty()) theme.legend = small::legend(legend);
  const std::vector<LegendSection> sections = sectionsOf({theme, base});
  EXPECT_EQ(sections.size(), 1U);
  return sections.front();
}

Texts texts(const LegendSection& section) {
  Texts words;
  for (const LegendLine& line : section.lines) {
    words.push_back(line.text.toStdString() + (line.count ? " (" + std::to_string(*line.count) + ")" : ""));
  }
  return words;
}

TEST(LegendSections, sayByThemselvesWhatAThemeShows) {
  const LegendSection own = section(kRanges);
  EXPECT_EQ(own.title, "Capa");
  EXPECT_EQ(own.subtitle, "por Valor");
  EXPECT_EQ(texts(own), (Texts{"1.000 a 2.000,5", "1 a 2,5", "0 a 1", "los demás"}));
  EXPECT_EQ(own.lines[0].swatch.kind, Kind::region);
  EXPECT_EQ(own.lines[0].swatch.style.brush.fore, 3);
  EXPECT_EQ(own.lines[3].swatch.style.brush.fore, 4);
}

TEST(LegendSections, areWordedAndOrderedAsTold) {
  const std::string rows =
      " ranges Font (\"Arial\",2,7,255) \"sin datos\" display on, \"pocos\" display on, auto display "
      "on, \"muchos\" display off";
  const LegendSection told = section(
      kRanges, "set legend layer 1 display on count on title \"Tasa\" Font (\"Arial\",1,12,9) subtitle \"\"" + rows);
  EXPECT_EQ(told.title, "Tasa");
  EXPECT_EQ(told.titleFont.size, 12);
  EXPECT_EQ(told.subtitle, "");
  EXPECT_EQ(told.lineFont.style, 2);
  EXPECT_EQ(texts(told), (Texts{"1 a 2,5 (1)", "pocos (1)", "sin datos (1)"}));
  EXPECT_EQ(texts(section(kRanges, "set legend layer 1 ascending on title auto" + rows)),
            (Texts{"pocos", "1 a 2,5", "sin datos"}));
  EXPECT_EQ(texts(section(kRanges, "set legend layer 1 ranges auto display off")),
            (Texts{"1.000 a 2.000,5", "1 a 2,5", "0 a 1"}));
}

TEST(LegendSections, ofTablesWithoutRowsShowTheClassesWithNothingInThem) {
  const LegendSection empty = section(kRanges, "set legend layer 1 count on", 0);
  EXPECT_EQ(texts(empty), (Texts{"1.000 a 2.000,5 (0)", "1 a 2,5 (0)", "0 a 1 (0)"}));
  EXPECT_EQ(empty.lines[0].swatch.kind, Kind::region);
  EXPECT_EQ(texts(section(kRanges, "set legend layer 1 count on ranges \"sin datos\" display on", 0)).back(),
            "sin datos");
}

TEST(LegendSections, showTheKindsOfSwatchesThatAreOn) {
  const std::string lines = "shade 1 with Valor values 0.5 Brush (2,1) Line (2,2,7) Symbol (34,1,9)";
  EXPECT_EQ(section(lines).lines[0].swatch.kind, Kind::region) << "as the objects are";
  const LegendSwatch line = section(lines, "set legend layer 1 shades off symbols off lines on").lines[0].swatch;
  EXPECT_EQ(line.kind, Kind::line);
  EXPECT_EQ(line.style.pen.colour, 7);
  EXPECT_EQ(section(lines, "set legend layer 1 shades off lines off").lines[0].swatch.kind, Kind::symbol);
  EXPECT_EQ(section(lines, "set legend layer 1 shades off lines off symbols off").lines[0].swatch.kind, Kind::none);
}

TEST(LegendSections, valuesAreWordedAsTheyAre) {
  EXPECT_EQ(texts(section("shade 1 with Nombre values \"b\" Brush (2,1), \"\" Brush (2,2), 1234.5 Brush (2,3)")),
            (Texts{"1.234,5", "(en blanco)", "b"}));
}

TEST(LegendSections, symbolsAreExplainedBySomeReadableValues) {
  const LegendSection counts =
      section("shade 1 with 10*Valor graduated 0:0 50000:36 Symbol (34,5,36) vary size by \"SQRT\"");
  EXPECT_EQ(texts(counts), (Texts{"50.000", "20.000", "5.000", "1.000"}));
  EXPECT_EQ(counts.lines[0].swatch.kind, Kind::sign);
  EXPECT_EQ(counts.lines[0].swatch.points, 36);
  EXPECT_NEAR(counts.lines[2].swatch.points, 11.38, 0.01);
  EXPECT_EQ(texts(section("shade 1 with 10*Valor graduated 0:0 5:36 Symbol (34,5,36)")), (Texts{"5", "2", "1"}));
  EXPECT_EQ(texts(section("shade 1 with Valor graduated 0:0 2.5:36 Symbol (34,5,36)")),
            (Texts{"2,5", "1", "0,2", "0,05"}));
  EXPECT_EQ(texts(section("shade 1 with 10*Valor graduated 0:0 100:20 Symbol (34,5,36) inflect Symbol (36,5,9)")),
            (Texts{"100", "50", "10", "2", "-2", "-10", "-50", "-100"}));
  EXPECT_EQ(
      texts(section("shade 1 with 10*Valor graduated 0:0 5:36 Symbol (34,5,36)",
                    "set legend layer 1 ascending on ranges auto display off, \"uno\" display on, auto display off"))
          .front(),
      "uno");
}

TEST(LegendSections, chartsAreExplainedByTheirParts) {
  const LegendSection pie =
      section("shade 1 with Valor, 2*Valor pie style brush (2,1), brush (2,2)",
              "set legend layer 1 ranges auto display off, \"Hombres\" display on, auto display on");
  EXPECT_EQ(texts(pie), (Texts{"Hombres", "2*Valor"}));
  EXPECT_EQ(pie.lines[1].swatch.style.brush.fore, 2);
  EXPECT_EQ(texts(section("shade 1 with Valor density 400")), (Texts{"1 punto = 400"}));
}

TEST(LegendSections, onlyThemesAreShownWhereThereAreAny) {
  const Layer base = small::squares(3, kFill);
  Layer hidden = small::theme(base, kRanges, 2);
  hidden.legend = small::legend("set legend layer 1 display off");
  const Layer theme = small::theme(base, kRanges);
  EXPECT_EQ(sectionsOf({hidden, theme, base, base}).size(), 1U);
  EXPECT_EQ(sectionsOf({theme, theme, base}).size(), 2U);
  EXPECT_EQ(sectionsOf({hidden, base}).front().subtitle, "Ningún mapa temático a la vista");
}

TEST(LegendSections, mapsWithoutThemesShowTheirLayers) {
  const Layer base = small::squares(3, kFill);
  Layer hidden = base;
  hidden.display = Display::off;
  const std::vector<LegendSection> layers = sectionsOf({base, hidden});
  ASSERT_EQ(layers.size(), 1U);
  EXPECT_EQ(texts(layers[0]), (Texts{"Capa"}));
  EXPECT_EQ(layers[0].title, "");
  EXPECT_EQ(sectionsOf({hidden}).front().subtitle, "El mapa no muestra capas");
}

TEST(LegendSections, aThemeThatCannotBeEvaluatedKeepsItsTitle) {
  EXPECT_EQ(section("shade 1 with NoHay ranges 0: 9 Brush (2,1)").title, "Capa");
  EXPECT_TRUE(section("shade 1 with Valor ranges NoHay: 9 Brush (2,1)").lines.empty());
  EXPECT_EQ(section(kRanges, "set legend layer 1 title NoHay").title, "Capa(1)");
}

}  // namespace
}  // namespace motor
