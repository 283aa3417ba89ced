#include "motor/language/testing_statements.h"

namespace motor {
namespace {

using testing_statements::parsed;
using testing_statements::shown;

TEST(ShadeTest, readsRanges) {
  const auto shade = parsed<Shade>(
      "shade 12 with 100*DeltaImp/AreaFt ranges apply all use all Brush (2,14737632,16777215)\n"
      "  -500: 6 Brush (2,16711680,16777215) Pen (1,2,0) ,\n  6: 8.5 Brush (2,1,2)\n"
      "  default Brush (2,16777215,16777215)\n  # use 1 round 1 inflect off Brush (0,0,0) at 0 by 0 color 1 #");
  EXPECT_EQ(shown(shade.layer.number), "12");
  EXPECT_EQ(shade.with.at(0).text, "100*DeltaImp/AreaFt");
  const auto& ranges = std::get<ShadeRanges>(shade.kind);
  EXPECT_EQ(ranges.apply, ThemeAttribute::all);
  EXPECT_EQ(ranges.use, ThemeAttribute::all);
  EXPECT_TRUE(ranges.useStyle.brush);
  ASSERT_EQ(ranges.ranges.size(), 2U);
  EXPECT_EQ(shown(ranges.ranges[0].minimum) + ":" + shown(ranges.ranges[1].maximum), "-500:8.5");
  EXPECT_TRUE(ranges.ranges[0].style.pen);
  EXPECT_TRUE(ranges.otherwise->brush);
}

TEST(ShadeTest, readsValues) {
  const auto shade = parsed<Shade>(
      "shade window v Zonas with GENZONE ignore \"\", 0 values \"COM\" Brush (2,1) Pen (1,1,0) , \"IND\" Brush (2,2) "
      "default # "
      "color 1 #");
  EXPECT_EQ(shade.layer.name, "Zonas");
  EXPECT_EQ(shown(shade.window), "7");
  EXPECT_EQ(shade.ignored.size(), 2U);
  const auto& values = std::get<ShadeValues>(shade.kind);
  ASSERT_EQ(values.values.size(), 2U);
  EXPECT_EQ(shown(values.values[1].value), "IND");
  EXPECT_TRUE(values.otherwise->isEmpty());
  EXPECT_FALSE(std::get<ShadeValues>(parsed<Shade>("shade 1 with a values 1 Pen (1,2,3)").kind).otherwise);
}

TEST(ShadeTest, readsChartsAndSymbols) {
  const auto pie = parsed<Shade>(
      "shade 1 with a, b+1 half pie angle 90 counter max size 0.4 units \"in\" at value 85 by \"SQRT\" border pen "
      "(1,2,0) position "
      "center style brush (2,1,0), brush (2,2,0)");
  EXPECT_EQ(pie.with.size(), 2U);
  const auto& chart = std::get<ShadeChart>(pie.kind);
  EXPECT_TRUE(chart.isPie && chart.half && chart.counterClockwise);
  EXPECT_EQ(shown(chart.angle), "90");
  EXPECT_EQ(shown(*chart.maximumSize), "0.4 in");
  EXPECT_EQ(shown(chart.atValue) + chart.by, "85sqrt");
  EXPECT_EQ(chart.placement, 0);
  EXPECT_EQ(chart.parts.size(), 2U);
  const auto bar = parsed<Shade>(
      "shade 1 with a, b bar stacked normalized frame brush (1,0,0) width 0.2 units \"in\" style brush (2,1,0), brush "
      "(2,2,0)");
  const auto& bars = std::get<ShadeChart>(bar.kind);
  EXPECT_TRUE(!bars.isPie && bars.stacked && bars.normalized);
  EXPECT_TRUE(bars.frame);
  const auto graduated = std::get<ShadeGraduated>(
      parsed<Shade>(
          "shade 1 with a graduated 0:0 11000000:24 Symbol (34,16711680,24) Inflect Symbol (34,255,24) vary size by "
          "\"SQRT\"")
          .kind);
  EXPECT_EQ(shown(graduated.maximum) + "/" + shown(graduated.maximumSize) + graduated.by, "11000000/24sqrt");
  EXPECT_TRUE(graduated.symbol && graduated.inflect);
  const auto density =
      std::get<ShadeDensity>(parsed<Shade>("shade 1 with a density 400 square width 4 color 255").kind);
  EXPECT_EQ(shown(density.value) + "/" + shown(density.width) + "/" + shown(density.colour), "400/4/255");
  EXPECT_TRUE(density.square);
  const auto set = parsed<SetShade>("Set Shade Prev with a values 1 Pen (1,2,3)");
  EXPECT_TRUE(set.previous);
  EXPECT_EQ(parsed<SetShade>("Set Shade \"States(1)\" with a values 1 Pen (1,2,3)").shade.layer.name, "States(1)");
}

TEST(LegendTest, isRead) {
  const auto legend = parsed<SetLegend>(
      "set legend window v layer 5 display on shades off symbols on lines off count on title \"Nodos\" Font "
      "(\"Arial\",5,9,0) "
      "subtitle auto Font (\"Arial\",0,8,0) ascending off style size small columns 2 ranges Font (\"Arial\",1,8,0) "
      "auto display off "
      ", \"Uno\" display on layer Prev display off");
  ASSERT_EQ(legend.layers.size(), 2U);
  const LegendLayer& layer = legend.layers[0];
  EXPECT_EQ(shown(layer.layer->number), "5");
  EXPECT_EQ(layer.shown, true);
  EXPECT_EQ(layer.shades, false);
  EXPECT_EQ(layer.symbols, true);
  EXPECT_EQ(layer.lines, false);
  EXPECT_EQ(layer.count, true);
  EXPECT_EQ(layer.ascending, false);
  EXPECT_EQ(shown(layer.title->text), "Nodos");
  EXPECT_TRUE(layer.subtitle->automatic);
  EXPECT_TRUE(layer.rowFont);
  ASSERT_EQ(layer.rows.size(), 2U);
  EXPECT_TRUE(layer.rows[0].text.automatic);
  EXPECT_FALSE(layer.rows[0].shown);
  EXPECT_EQ(shown(layer.rows[1].text.text), "Uno");
  EXPECT_FALSE(legend.layers[1].layer);
  const auto created = parsed<CreateLegend>("Create Legend From Window 5 Hide");
  EXPECT_EQ(shown(created.window), "5");
  EXPECT_FALSE(created.shown);
}

TEST(LegendTest, cartographicIsRead) {
  const auto legend = parsed<CreateCartographicLegend>(
      "Create Cartographic Legend\n From Window v Position (8.2,0.2) Units \"in\"\n Width 3 Units \"in\" Height 2 "
      "Units \"in\"\n "
      "Window Title \"Legend\"\n Scrollbars Off Portrait Default Frame Style \"# Legend\" Font (\"Arial\",1,8,0)\n"
      "Frame From Layer 21 Position (1,2) Units \"in\" Border Pen (0,1,0) Using Column object Style Font "
      "(\"Arial\",1,8,0)\n"
      "Text \"Project Area\" Region Pen (90,2,1)  Brush (1,0,2) Text \"Line\" Line Pen (4,2,3) Text \"Sym\" Symbol "
      "(46,1,18)\n"
      "Frame From Layer Zonas Border Pen (0,1,0) Title \"T\" Subtitle \"S\"");
  EXPECT_EQ(shown(legend.defaultStyle.text), "# Legend");
  EXPECT_TRUE(legend.defaultStyle.font);
  ASSERT_EQ(legend.frames.size(), 2U);
  ASSERT_EQ(legend.frames[0].samples.size(), 3U);
  EXPECT_TRUE(legend.frames[0].samples[0].style.pen && legend.frames[0].samples[0].style.brush);
  EXPECT_TRUE(legend.frames[0].samples[1].style.pen);
  EXPECT_TRUE(legend.frames[0].samples[2].style.symbol);
  EXPECT_TRUE(legend.frames[0].border && legend.frames[1].border);
  EXPECT_FALSE(legend.defaultBorder);
  EXPECT_EQ(legend.frames[1].layer.name, "Zonas");
  EXPECT_EQ(shown(legend.frames[1].title.text) + shown(legend.frames[1].subtitle.text), "TS");
  EXPECT_EQ(shown(legend.frames[0].place->at), "1,2");
  using Kind = LegendSample::Kind;
  const Kind kinds[] = {Kind::region, Kind::line, Kind::point};
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(legend.frames[0].samples[i].kind, kinds[i]) << i;
}

TEST(CreateObjectTest, readsHowTheLinesOfATextStand) {
  const auto text = [](const std::string& clauses) {
    return parsed<CreateObject>("Create Text \"a\" (1,2) (3,4) " + clauses);
  };
  EXPECT_EQ(text("").justify, TextJustify::left);
  EXPECT_EQ(text("").spacing, nullptr);
  EXPECT_EQ(text("Justify Center").justify, TextJustify::center);
  EXPECT_EQ(text("Justify Right Justify Left").justify, TextJustify::left);
  EXPECT_EQ(text("Spacing 1.5 Justify Right").justify, TextJustify::right);
  EXPECT_EQ(shown(text("Spacing 1.5").spacing), "1.5");
}

TEST(CreateObjectTest, readsEveryShape) {
  struct Case {
    const char* source;
    CreateObject::Kind kind;
    std::size_t parts;
    std::size_t points;
  };
  const Case cases[] = {
      {"Create Point (7643244.3,713530.9) Symbol (\"INTE1-32.BMP\",2105599,14,0)", CreateObject::Kind::point, 1, 1},
      {"Create Point Into Window 5 (1,2)", CreateObject::Kind::point, 1, 1},
      {"Create Line (1,2) (3,4) Pen (1,2,3)", CreateObject::Kind::line, 1, 2},
      {"Create Pline 3 (1,2) (3,4) (5,6) Pen (1,2,3) Smooth", CreateObject::Kind::polyline, 1, 3},
      {"Create Pline (1,2) (3,4)", CreateObject::Kind::polyline, 1, 2},
      {"Create Pline Multiple 2 2 (1,2) (3,4) 3 (1,2) (3,4) (5,6)", CreateObject::Kind::polyline, 2, 2},
      {"Create Region 1 3 (1,2) (3,4) (5,6) Pen (1,2,3) Brush (1,2,3) Center (3,4)", CreateObject::Kind::region, 1, 3},
      {"Create Rect (1,2) (3,4) Pen (5,2,1) Brush (1,0,2)", CreateObject::Kind::rectangle, 1, 2},
      {"Create RoundRect (1,2) (3,4) 0.5 Pen (5,2,1)", CreateObject::Kind::roundedRectangle, 1, 2},
      {"Create Ellipse (1,2) (3,4) Pen (5,2,1) Brush (1,0,2)", CreateObject::Kind::ellipse, 1, 2},
      {"Create Arc (1,2) (3,4) 0 90 Pen (5,2,1)", CreateObject::Kind::arc, 1, 2},
      {"Create Text \"Project \\nArea\" (1,2) (3,4) Font (\"A\",257,0,0,9) Justify Center Spacing 1.5 Angle 30 Label "
       "Line Arrow (1,2)",
       CreateObject::Kind::text, 1, 2},
  };
  for (const Case& c : cases) {
    const auto object = parsed<CreateObject>(c.source);
    EXPECT_EQ(object.kind, c.kind) << c.source;
    ASSERT_EQ(object.parts.size(), c.parts) << c.source;
    EXPECT_EQ(object.parts[0].size(), c.points) << c.source;
  }
}

}  // namespace
}  // namespace motor
