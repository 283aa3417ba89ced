#include "motor/session/hand_labels.h"

#include "motor/session/session_fixture.h"

namespace motor {
namespace {

class HandLabels : public SessionTest {
 protected:
  // The label tool over a map of 640 by 480 pixels, with a point of its coordinates in the middle.
  void lookAt(double x, double y) {
    map().resized(640, 480);
    run("set map zoom 100 units \"km\" center (" + std::to_string(x) + "," + std::to_string(y) + ")");
    run("run menu command 1708");
  }
  void clickMiddle() { map().clicked({320, 240}, false, false); }
  std::vector<EditedLabel>& labels(std::size_t layer) { return map().map().layers[layer].label.edited; }
};

TEST_F(HandLabels, ASecondClickTakesTheLabelAway) {
  openYear();
  lookAt(-3.25, 41.5);
  clickMiddle();
  ASSERT_EQ(labels(0).size(), 1U);
  EXPECT_EQ(labels(0).front().row, 1U);
  clickMiddle();
  EXPECT_TRUE(labels(0).empty());
}

// A workspace may label any of the rows that share the object.
TEST_F(HandLabels, RowsOfOneObjectShareItsLabel) {
  openYear();
  lookAt(-3.25, 41.5);
  run("Set Map Layer 1 Label Object 7 Visibility On");
  EXPECT_TRUE(hasHandLabel(map().map(), {0, 1}));
  clickMiddle();
  EXPECT_TRUE(labels(0).empty());
}

TEST_F(HandLabels, ALabelThatIsHiddenIsShownAgain) {
  openYear();
  lookAt(-3.25, 41.5);
  run("Set Map Layer 1 Label Object 1 Visibility Off");
  EXPECT_FALSE(hasHandLabel(map().map(), {0, 1}));
  clickMiddle();
  ASSERT_EQ(labels(0).size(), 1U);
  EXPECT_TRUE(labels(0).front().visible);
}

TEST_F(HandLabels, AThemesObjectsAreLabelledInTheBase) {
  openWorkspace("Tematicos\\Tumores.wor");
  lookAt(-3.25, 41.5);
  ASSERT_NE(map().map().layers[0].theme, nullptr);
  clickMiddle();
  EXPECT_TRUE(labels(0).empty());
  EXPECT_EQ(labels(1).size(), 1U);
}

TEST_F(HandLabels, OnlyLayersWhoseLabelsAreSeenAreLabelled) {
  openYear();
  lookAt(-3.25, 41.5);
  const Point p{-3.25, 41.5};
  struct Case {
    const char* change;
    std::size_t layer;
  };
  for (const Case& c : {Case{"layer 1 label visibility on", 0}, Case{"layer 1 label visibility off", 1},
                        Case{"layer 1 label visibility zoom (0, 200) units \"km\"", 0},
                        Case{"layer 1 label visibility zoom (200, 300) units \"km\"", 1},
                        Case{"layer 1 label visibility on selectable off", 1}, Case{"layer 2 selectable off", 0},
                        Case{"layer 1 selectable on display off", 1}}) {
    run(std::string("set map ") + c.change);
    const std::optional<Hit> object = labelableAt(map().map(), p);
    ASSERT_TRUE(object.has_value()) << c.change;
    EXPECT_EQ(object->layer, c.layer) << c.change;
  }
  EXPECT_FALSE(labelableAt(map().map(), {30, 41}).has_value());
}

TEST_F(HandLabels, AnAutomaticLabelIsTakenAwayByHidingIt) {
  openYear();
  run("Set Map Layer 1 Label Auto On");
  map().labelRemoved({0, 1});
  ASSERT_EQ(labels(0).size(), 1U);
  EXPECT_FALSE(labels(0).front().visible);
  run("run menu command 814");
  EXPECT_TRUE(labels(0).empty());
}

TEST_F(HandLabels, AMovedLabelHasItsMiddleWhereItWasPut) {
  openYear();
  map().labelMoved({0, 1}, {-2.5, 41.25});
  ASSERT_EQ(labels(0).size(), 1U);
  EXPECT_EQ(labels(0).front().anchor, (Point{-2.5, 41.25}));
  EXPECT_EQ(labels(0).front().position, 0);
  EXPECT_TRUE(labels(0).front().visible);
}

TEST_F(HandLabels, WhatIsPointedAtIsWhatTheToolTakes) {
  openYear();
  lookAt(-3.25, 41.5);
  using Layers = std::vector<std::size_t>;
  const auto layersFor = [&](const char* tool) {
    run(std::string("run menu command ") + tool);
    std::vector<std::size_t> layers;
    for (const Hit& hit : map().pointedAt({320, 240})) layers.push_back(hit.layer);
    return layers;
  };
  run("Create Buttonpad \"C\" As Toolbutton ID 2001 DrawMode 34 Calling OLE \"Info\"");
  EXPECT_EQ(layersFor("1701"), Layers{0});
  EXPECT_EQ(layersFor("1708"), Layers{0});
  run("set map layer 1 selectable off");
  EXPECT_EQ(layersFor("1701"), Layers{1});
  EXPECT_EQ(layersFor("ID 2001"), (Layers{1, 0})) << "a zone is smaller than its province";
  run("set map center (30, 41.5)");
  EXPECT_EQ(layersFor("ID 2001"), Layers{});
}

// Laid over the map that its table is in, without the labels that were written there by hand.
TEST_F(HandLabels, AQueryIsLabelledAsItsTableIsAndThenAsItIsTold) {
  openYear();
  lookAt(-3.25, 41.5);
  run("set map layer 1 label auto on");
  clickMiddle();
  run("select * from Provincias2001 where nombre=\"Ñorga\"");
  run("Add map layer Selection");
  run("set map layer 1 label font (\"Tahoma\",1,8,16777215)");
  const std::vector<Layer>& layers = map().map().layers;
  EXPECT_TRUE(layers[0].label.automatic);
  EXPECT_EQ(layers[0].label.font.fore, Colour{16777215});
  EXPECT_TRUE(labels(0).empty());
  EXPECT_EQ(labels(1).size(), 1U);
  EXPECT_NE(layers[1].label.font.fore, Colour{16777215});
  run("select * from Veldoria2001");
  run("set map layer 1 label auto off");
  run("Add map layer Selection");
  EXPECT_FALSE(map().map().layers[0].label.automatic) << "its own table's layer has none";
}

}  // namespace
}  // namespace motor
