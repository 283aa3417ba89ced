#include "motor/language/testing_statements.h"

namespace motor {
namespace {

using testing_scope::FixedScope;
using testing_statements::parsed;
using testing_statements::shown;

TEST(MapStatementsTest, openMapsAndChangeLayers) {
  const auto map = parsed<MapFrom>(
      "Map From test_streets,Cl_port,\n  abandoned \n  Position (0.05,0.02) Units \"in\"\n  Width 7.7 Units \"in\" "
      "Height 4.6 "
      "Units \"in\" Min");
  EXPECT_EQ(shown(map.tables), "test_streets;Cl_port;abandoned;");
  EXPECT_EQ(shown(map.shape.position->at), "0.05,0.02");
  EXPECT_EQ(shown(*map.shape.width), "7.7 in");
  EXPECT_EQ(map.shape.state, WindowState::minimized);
  EXPECT_EQ(shown(parsed<AddMapLayer>("Add map layer Selection").tables), "Selection;");
  const auto add = parsed<AddMapLayer>("Add Map Window 5 Auto Layer a, b");
  EXPECT_EQ(shown(add.window), "5");
  EXPECT_TRUE(add.automatic);
  const auto remove = parsed<RemoveMapLayer>("Remove map layer 1 Interactive");
  EXPECT_EQ(shown(remove.layers.at(0).number), "1");
  EXPECT_TRUE(remove.interactive);
  const auto byName = parsed<RemoveMapLayer>("Remove Map Window 3 Layer \"Zones(1)\", Zonas");
  EXPECT_EQ(byName.layers.at(0).name, "Zones(1)");
  EXPECT_EQ(byName.layers.at(1).name, "Zonas");
  EXPECT_FALSE(byName.interactive);
}

TEST(SetMapTest, changesTheView) {
  const auto map = parsed<SetMap>(
      "Set Map\n  CoordSys Earth Projection 12, 62, \"m\", -0.5\n  Center (0,1)\n  Zoom 25000 Units \"mi\"\n"
      "  Preserve Zoom Display Position\n  Distance Units \"km\" Area Units \"sq km\" XY Units \"m\"\n"
      "  Distance Type Cartesian Redraw Off Clipping Off Order 2,1,3");
  EXPECT_EQ(map.coordSys->text, "Earth Projection 12, 62, \"m\", -0.5");
  EXPECT_EQ(shown(*map.center), "0,1");
  EXPECT_EQ(shown(std::get<Measure>(*map.zoom)), "25000 mi");
  EXPECT_EQ(map.preserve, SetMap::Preserve::zoom);
  EXPECT_EQ(map.status, SetMap::Status::position);
  EXPECT_EQ(map.distanceUnit + "/" + map.areaUnit + "/" + map.xyUnit, "km/sq km/m");
  EXPECT_EQ(map.order.size(), 3U);
  EXPECT_TRUE(map.layers.empty());
  EXPECT_FALSE(map.window);
}

TEST(SetMapTest, zooms) {
  EXPECT_EQ(shown(std::get<Measure>(*parsed<SetMap>("Set map zoom 200 units \"km\" center(1, 2)").zoom)), "200 km");
  EXPECT_EQ(shown(std::get<Measure>(*parsed<SetMap>("Set map window v Zoom (2 * 1.01) units \"ft\"").zoom)), "2.02 ft");
  EXPECT_FALSE(std::get<ZoomEntire>(*parsed<SetMap>("set map zoom entire").zoom).layer);
  const auto byName = parsed<SetMap>("Set Map Window  v Zoom Entire Layer \"ProjArea\"");
  EXPECT_EQ(std::get<ZoomEntire>(*byName.zoom).layer->name, "ProjArea");
  EXPECT_EQ(shown(byName.window), "7");
  const auto byNumber = parsed<SetMap>("Set Map Window v zoom entire layer 18");
  EXPECT_EQ(shown(std::get<ZoomEntire>(*byNumber.zoom).layer->number), "18");
  const auto scale = parsed<SetMap>("Set Map Scale 1 Units \"cm\" For 5 Units \"km\"");
  EXPECT_EQ(shown(std::get<ScaleClause>(*scale.zoom).ground), "5 km");
}

TEST(SetMapTest, readsTheHighlightStatement) {
  const char* const texts[] = {
      "Set map center (1.5,-2.5)zoom 300 units \"Km\" layer 1 display global global brush (2,255,255) Pen (1,2,44031) "
      "Label Font (\"Tahoma\",1,8,16777215)",
      "Set map center(1.5, -2.5) zoom 300 units \"Km\" layer 1 display global global brush (2,255,255) Pen (1,2,44031) "
      "Label Font (\"Tahoma\",1,8,16777215)",
      "Set map zoom 300 units \"Km\" center (1.5,-2.5) layer 1 display global global brush (2,255,255) pen (1,2,44031) "
      "Label Font (\"Tahoma\",1,8,16777215)",
  };
  for (const char* text : texts) {
    const auto map = parsed<SetMap>(text);
    EXPECT_EQ(shown(*map.center), "1.5,-2.5") << text;
    EXPECT_EQ(shown(std::get<Measure>(*map.zoom)), "300 Km") << text;
    ASSERT_EQ(map.layers.size(), 1U);
    const LayerChange& layer = map.layers[0];
    EXPECT_EQ(shown(layer.layer.number), "1");
    EXPECT_EQ(layer.display, LayerDisplay::global);
    const Styles styles = evaluate(layer.global, FixedScope());
    EXPECT_EQ(styles.brush, (Brush{2, 255, 255}));
    EXPECT_EQ(styles.pen, (Pen{1, 2, 44031}));
    EXPECT_FALSE(styles.font);
    EXPECT_EQ(evaluateFont(*layer.label->font, FixedScope()), (Font{"Tahoma", 1, 8, 16777215}));
  }
}

TEST(SetMapTest, readsLayersInOrder) {
  const auto map = parsed<SetMap>(
      "set map layer 1 selectable off display graphic zoom (310,100000) units \"Km\" On label default layer 2 display "
      "global "
      "Layer Zonas Display Off Editable Arrows On Nodes Off Centroids Default Zoom");
  ASSERT_EQ(map.layers.size(), 3U);
  EXPECT_EQ(map.layers[0].selectable, false);
  EXPECT_EQ(map.layers[0].display, LayerDisplay::graphic);
  EXPECT_EQ(shown(map.layers[0].zoom->minimum) + "-" + shown(map.layers[0].zoom->maximum), "310-100000");
  EXPECT_EQ(map.layers[0].zoom->unit, "Km");
  EXPECT_EQ(map.layers[0].zoom->on, true);
  EXPECT_TRUE(map.layers[0].label->toDefault);
  EXPECT_EQ(map.layers[1].display, LayerDisplay::global);
  EXPECT_FALSE(map.layers[1].label);
  EXPECT_EQ(map.layers[2].layer.name, "Zonas");
  EXPECT_EQ(map.layers[2].display, LayerDisplay::off);
  EXPECT_EQ(map.layers[2].editable, true);
  EXPECT_EQ(map.layers[2].arrows, true);
  EXPECT_EQ(map.layers[2].nodes, false);
  EXPECT_EQ(map.layers[2].centroids, true);
}

TEST(SetMapTest, knowsTheFormsThatTheProgramSends) {
  const char* const texts[] = {
      "set map layer 1 label default ",
      "Set map layer 1 label default",
      "set map layer 1 label default layer 2 label default layer 3 label default",
      "set map layer 1 label default display global layer 2 label default display off",
      "Set Map layer 1 selectable on display global zoom (0,100000) Off layer 2 display off",
      "set map layer 1 selectable on display global zoom (0,100000) units \"Km\" On  layer 2 Label Default display "
      "off ",
      "set map order 2,1,3",
      "Set Map Layer 0 Editable",
      "Set Map Layer 1 Display Graphic Selectable Off Zoom (25, 10000) Units \"ft\" contrast 50 brightness 50 alpha "
      "255 "
      "transparency on color 0 grayscale off",
  };
  for (const char* text : texts) parsed<SetMap>(text);
  const auto off = parsed<SetMap>("Set Map layer 1 zoom (0,100000) Off layer 2 display off");
  EXPECT_EQ(off.layers.at(0).zoom->on, false);
  EXPECT_EQ(off.layers.at(1).display, LayerDisplay::off);
}

TEST(LabelClauseTest, isRead) {
  const auto map = parsed<SetMap>(
      "Set Map Layer 1 Label Line Arrow Position Above Right Font (\"Arial\",517,8,0) Pen (1,2,0)\n"
      "With \"Cota: \"+Alt Parallel Off Follow Path On Auto On Overlap Off PartialSegments On Duplicates Off Max 6 "
      "Offset 5 "
      "Visibility Zoom (0, 2000) Units \"ft\"\n"
      "Object 11 Line Simple Anchor (1.5,2) Visibility Off Object 12 Table t Text \"x\" Position Left Font "
      "(\"A\",1,2,3) "
      "Angle 30 Offset 2 Callout (3,4)");
  const LabelClause& label = *map.layers.at(0).label;
  EXPECT_EQ(label.line, LabelLine::arrow);
  EXPECT_EQ(label.placement, 3);
  EXPECT_TRUE(label.font);
  EXPECT_TRUE(label.pen);
  EXPECT_EQ(label.with->text, "\"Cota: \"+Alt");
  EXPECT_EQ(label.parallel, false);
  EXPECT_EQ(label.automatic, true);
  EXPECT_EQ(label.overlap, false);
  EXPECT_EQ(label.duplicates, false);
  EXPECT_EQ(shown(label.offset), "5");
  EXPECT_EQ(shown(label.maximum), "6");
  EXPECT_EQ(label.visibility, LabelClause::Visibility::zoom);
  EXPECT_EQ(shown(label.visibilityZoom->maximum), "2000");
  ASSERT_EQ(label.objects.size(), 2U);
  EXPECT_EQ(shown(label.objects[0].row), "11");
  EXPECT_EQ(shown(*label.objects[0].anchor), "1.5,2");
  EXPECT_EQ(label.objects[0].visible, false);
  EXPECT_EQ(label.objects[1].table->text, "t");
  EXPECT_EQ(shown(label.objects[1].text), "x");
  EXPECT_EQ(label.objects[1].placement, 4);
  EXPECT_EQ(shown(*label.objects[1].callout), "3,4");
}

TEST(LabelClauseTest, codesPositions) {
  const char* const words[] = {"Center", "Above Left", "Above", "Above Right", "Left",
                               "Right",  "Below Left", "Below", "Below Right"};
  for (int i = 0; i < 9; ++i) {
    const auto map = parsed<SetMap>(std::string("Set Map Layer 1 Label Position ") + words[i]);
    EXPECT_EQ(map.layers.at(0).label->placement, i) << words[i];
  }
}

TEST(LabelClauseTest, switchesOnAndOff) {
  const auto label = [](const std::string& clauses) {
    return *parsed<SetMap>("Set Map Layer 1 Label " + clauses).layers.at(0).label;
  };
  EXPECT_EQ(label("Visibility On").visibility, LabelClause::Visibility::on);
  EXPECT_EQ(label("Visibility Off").visibility, LabelClause::Visibility::off);
  EXPECT_EQ(label("Auto Off").automatic, false);
  EXPECT_FALSE(label("Auto Retry On").automatic);
  EXPECT_EQ(label("Max Overlap On").overlap, true);
  EXPECT_TRUE(label("Max Overlap On").saysMaximum);
  EXPECT_EQ(label("Max Overlap On").maximum, nullptr);
  EXPECT_FALSE(label("Overlap On").saysMaximum);
  EXPECT_EQ(label("Line None").line, LabelLine::none);
}

}  // namespace
}  // namespace motor
