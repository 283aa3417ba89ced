#include "motor/drawing/frame_sections.h"

#include <gtest/gtest.h>

#include "motor/drawing/themed_maps.h"

namespace motor {
namespace {

using Kind = LegendSwatch::Kind;

std::vector<LegendSection> sectionsOf(const Map& map) {
  Themes themes;
  return legendSections(map, themes);
}

Map mapWithFrames(std::vector<MapLegendFrame> frames) {
  const Layer base = small::squares(3, {2, small::kBlue, kTransparent});
  Map map = small::map({small::theme(base, "shade 1 with Valor ranges 0: 1 Brush (2,1), 1: 5 Brush (2,2)"), base});
  map.legendFrames = std::move(frames);
  return map;
}

MapLegendFrame frameOf(const std::string& layer) {
  MapLegendFrame frame;
  frame.layer = layer;
  return frame;
}

TEST(FrameSectionsTest, showWhatTheFramesSay) {
  MapLegendFrame frame = frameOf("Capa");
  frame.title = "Zonas";
  frame.lineFont = Font{"Arial", 1, 8, 0};
  frame.lines = {{"una", MapObject::Kind::region, {}},
                 {"otra", MapObject::Kind::polyline, {}},
                 {"más", MapObject::Kind::point, {}}};
  frame.lines[0].style.brush = Brush{2, 7, 8};
  frame.lines[1].style.pen = Pen{3, 2, 9};
  frame.lines[2].style.symbol = Symbol();
  const std::vector<LegendSection> sections = sectionsOf(mapWithFrames({frame}));
  ASSERT_EQ(sections.size(), 1U);
  EXPECT_EQ(sections[0].title, "Zonas");
  EXPECT_EQ(sections[0].lineFont.size, 8);
  ASSERT_EQ(sections[0].lines.size(), 3U);
  EXPECT_EQ(sections[0].lines[0].swatch.kind, Kind::region);
  EXPECT_EQ(sections[0].lines[0].swatch.style.brush.fore, 7);
  EXPECT_EQ(sections[0].lines[1].swatch.kind, Kind::line);
  EXPECT_EQ(sections[0].lines[1].swatch.style.pen.width, 3);
  EXPECT_EQ(sections[0].lines[2].swatch.kind, Kind::symbol);
  EXPECT_EQ(sections[0].lines[2].text, "más");
}

TEST(FrameSectionsTest, askTheLayerForWhatTheyDoNotSay) {
  const Map map = mapWithFrames({frameOf("Capa"), frameOf("Capa(1)"), frameOf("Nada")});
  Map named = map;
  named.layers[0].name = "Capa(1)";
  const std::vector<LegendSection> sections = sectionsOf(named);
  ASSERT_EQ(sections.size(), 2U);
  ASSERT_EQ(sections[0].lines.size(), 1U);
  EXPECT_EQ(sections[0].lines[0].text, "Capa");
  EXPECT_EQ(sections[0].lines[0].swatch.style.brush.fore, small::kBlue);
  EXPECT_GE(sections[1].lines.size(), 2U);
  named.layers[0].display = Display::off;
  EXPECT_EQ(sectionsOf(named).size(), 1U);
}

}  // namespace
}  // namespace motor
