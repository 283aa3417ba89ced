#include "motor/session/session.h"

#include "motor/session/session_fixture.h"

namespace motor {
namespace {

TEST_F(SessionTest, windowIdsAreNeverGivenTwice) {
  openYear();
  const std::string first = eval("frontwindow()");
  Session other(windows, {.roots = {study().path()}});
  other.run("run application \"" + writtenPath("2001\\Año2001.wor") + "\"");
  EXPECT_NE(other.eval("frontwindow()").text(), first);
}

TEST_F(SessionTest, aThemeIsALayerAboveItsBase) {
  openWorkspace("Tematicos\\Tumores.wor");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),9)"), "2");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),16)"), "1");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "Tumores(1)");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,9)"), "3");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,24)"), "3");
  EXPECT_EQ(eval("layerinfo(frontwindow(),2,1)"), "Tumores");
  EXPECT_EQ(rejectedRun("set map layer 1 label default layer 2 label default"), "accepted");
  EXPECT_EQ(eval("SearchPoint(WindowID(1),-5,41)"), "1");
  EXPECT_EQ(eval("SearchInfo(1,1)"), "Tumores");
  ASSERT_NE(map().map().layers[0].theme, nullptr);
  EXPECT_NE(map().map().layers[0].legend, nullptr);
  run("Shade 2 with Valor values 10.5 Brush (2,255,0), 30.5 Brush (2,0,0)");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "Tumores(2)");
  run("Remove Map Layer \"Tumores(2)\"");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),9)"), "2");
  run("Remove Map Layer \"Tumores\"");
  EXPECT_EQ(eval("numwindows()"), "0");
}

TEST_F(SessionTest, aThemeStaysAboveItsBaseInAnyOrder) {
  openYear();
  run("Shade 2 with Valor values 1 Brush (2,255,0)");
  run("set map order 1,4,3,2");
  EXPECT_EQ(eval("layerinfo(frontwindow(),2,1)"), "Veldoria2001");
  EXPECT_EQ(eval("layerinfo(frontwindow(),3,1)"), "ZonasBasicas2001(1)");
  EXPECT_EQ(eval("layerinfo(frontwindow(),4,1)"), "ZonasBasicas2001");
}

TEST_F(SessionTest, aSearchFindsCosmeticObjectsFirst) {
  openYear();
  run("Create Point (-3,41) Create Rect (-6,40) (-5.5,41)");
  ASSERT_EQ(eval("SearchPoint(WindowID(1),-5.75,40.5)"), "3");
  EXPECT_EQ(eval("SearchInfo(1,1)"), "Cosmetic1");
  EXPECT_EQ(eval("SearchInfo(1,2)"), "2");
  EXPECT_EQ(eval("SearchInfo(2,1)"), "Provincias2001");
}

TEST_F(SessionTest, theLegendsWindowMayHaveAHandleAndACloseBox) {
  openYear();
  windows.legend = 4712;
  EXPECT_EQ(eval("windowinfo(1009,12)"), "0");
  run("open window legend");
  EXPECT_EQ(eval("windowinfo(1009,12)"), "4712");
  map().legendClosed();
  EXPECT_EQ(eval("windowinfo(1009,11)"), "F");
  EXPECT_EQ(eval("windowinfo(1009,12)"), "0");
  EXPECT_EQ(eval("numallwindows()"), "1");
}

TEST_F(SessionTest, labelsGoBackToDefault) {
  openYear();
  run("Set Map Layer 1 Label Object 2 Visibility On Anchor (-3,41) Text \"Aquí\" Object 3 Visibility Off");
  const std::vector<EditedLabel>& edited = map().map().layers[0].label.edited;
  ASSERT_EQ(edited.size(), 2U);
  EXPECT_EQ(edited[0].row, 2U);
  EXPECT_EQ(edited[0].text, "Aquí");
  EXPECT_EQ(edited[0].anchor, (Point{-3, 41}));
  EXPECT_FALSE(edited[1].visible);
  run("set map layer 1 label default ");
  EXPECT_TRUE(map().map().layers[0].label.edited.empty());
  EXPECT_EQ(map().map().layers[0].label.expression, "Nombre");
}

TEST_F(SessionTest, layerSettingsThatAreLeftOutStay) {
  openYear();
  run("set map layer 1 display graphic");
  const Layer& layer = map().map().layers[0];
  EXPECT_EQ(layer.display, Display::graphic);
  EXPECT_EQ(layer.brush, (Brush{2, 12632256, 16777215}));
  EXPECT_EQ(layer.label.offset, 2);
  EXPECT_TRUE(layer.selectable);
}

TEST_F(SessionTest, cosmeticObjectsAreDrawnInTheMapsSystem) {
  openYear();
  run("Create Point (-3,41) Symbol (34,255,12) Create Ellipse (-4,40) (-3,41)");
  const TablePtr table = map().map().cosmetic.table;
  ASSERT_TRUE(table);
  ASSERT_EQ(table->rowCount(), 2U);
  EXPECT_EQ(table->object(1)->points.front(), (Point{-3, 41}));
  EXPECT_EQ(table->object(1)->symbol.shape, 34);
  EXPECT_EQ(table->object(2)->kind, MapObject::Kind::region);
  EXPECT_TRUE(contains(*table->object(2), {-3.5, 40.5}));
}

TEST_F(SessionTest, legendWindowFollowsItsStatements) {
  openYear();
  windows.notes.clear();
  run("Set Window Legend Parent 4711");
  EXPECT_TRUE(windows.notes.empty());
  run("open window legend");
  run("set window legend position (6,5) units \"in\" ");
  run("close window legend");
  EXPECT_EQ(windows.notes,
            (std::vector<std::string>{"legend in 4711 at 0,0", "legend in 4711 at 576,480", "no legend"}));
}

TEST_F(SessionTest, windowSizesAreInInches) {
  openYear();
  windows.notes.clear();
  const std::string id = eval("windowid(1)");
  run("set window " + id + " width 6.125 height 4.25");
  run("set window " + id + "Max");
  run("set window " + id + " width -2.9 height 0");
  EXPECT_EQ(windows.notes, (std::vector<std::string>{"resize 588x408", "maximize", "resize 1x1"}));
}

TEST_F(SessionTest, theZoomIsAWidthAndStaysWhenTheWindowChanges) {
  openYear();
  run("Set Distance Units \"km\"");
  map().resized(1000, 300);
  EXPECT_EQ(eval("mapperinfo(frontwindow(),1)"), "700");
}

TEST_F(SessionTest, theSessionsEndClosesItsWindows) {
  openYear();
  run("open window legend");
  windows.notes.clear();
  run("end mapinfo");
  EXPECT_EQ(windows.notes, (std::vector<std::string>{"no legend", "close"}));
  EXPECT_EQ(rejectedRun("set map zoom entire"), "la sesión ha terminado");
  EXPECT_EQ(rejectedEval("frontwindow()"), "la sesión ha terminado");
}

TEST_F(SessionTest, destroyingTheSessionClosesItsWindows) {
  {
    Session other(windows, {.roots = {study().path()}});
    other.run("run application \"" + writtenPath("2001\\Año2001.wor") + "\"");
    windows.notes.clear();
  }
  EXPECT_EQ(windows.notes, std::vector<std::string>{"close"});
}

TEST_F(SessionTest, theServiceKnowsOneProgramId) {
  SessionService service(windows, {.roots = {study().path()}});
  EXPECT_EQ(service.current(), nullptr);
  auto engine = service.create("MapInfo.runtime");
  EXPECT_EQ(service.current(), engine);
  EXPECT_EQ(engine->eval("1+1").text(), "2");
  engine.reset();
  EXPECT_EQ(service.current(), nullptr);
  try {
    static_cast<void>(service.create("Otro.motor"));
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.number(), failures::kCannotCreateObject);
  }
}

}  // namespace
}  // namespace motor
