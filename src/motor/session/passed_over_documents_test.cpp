#include "motor/session/session_fixture.h"

// Browsers, layouts and legends of their own are not kept; what is said about them does not hit the maps.
namespace motor {
namespace {

class PassedOverDocuments : public SessionTest, public testing::WithParamInterface<std::string> {};

TEST_P(PassedOverDocuments, areInFrontUntilAMapIs) {
  openYear();
  const std::string mapId = eval("frontwindow()");
  run("set window frontwindow() title \"Mapa\"");
  run(GetParam());
  EXPECT_NE(eval("frontwindow()"), mapId);
  EXPECT_NE(eval("frontwindow()"), "0");
  windows.notes.clear();
  run("Set Window FrontWindow() Title \"Otro\" Width 1 Units \"in\" Max");
  EXPECT_EQ(eval("windowinfo(" + mapId + ",1)"), "Mapa");
  EXPECT_EQ(windows.notes, std::vector<std::string>());
  EXPECT_EQ(eval("numwindows()"), "1");
  EXPECT_EQ(eval("windowid(1)"), mapId);
  EXPECT_EQ(eval("windowid(0)"), mapId);
  EXPECT_EQ(rejectedRun("Set Map Zoom 100 Units \"km\""), "accepted");

  const std::string passedOver = eval("frontwindow()");
  run("Map From Veldoria2001");
  EXPECT_EQ(eval("frontwindow()"), eval("windowid(2)"));
  EXPECT_EQ(rejectedRun("Set Window " + passedOver + " Title \"Otro\""), "accepted");
  run("Close Window " + passedOver);
  EXPECT_NE(rejectedRun("Set Window " + passedOver + " Title \"Otro\""), "accepted");
  EXPECT_EQ(eval("numwindows()"), "2");
}

INSTANTIATE_TEST_SUITE_P(Session, PassedOverDocuments,
                         testing::Values("Browse * From Provincias2001", "layout",
                                         "Graph Nombre, Valor From Provincias2001",
                                         "Create Cartographic Legend Frame From Layer 1"));

TEST_F(SessionTest, aMapPutInFrontOrAClosedDocumentEndsIt) {
  openYear();
  const std::string mapId = eval("frontwindow()");
  run("Browse * From Provincias2001");
  run("Set Window " + mapId + " Front");
  EXPECT_EQ(eval("frontwindow()"), mapId);
  run("Browse * From Provincias2001");
  run("Close Window FrontWindow()");
  EXPECT_EQ(eval("frontwindow()"), mapId);
  EXPECT_EQ(eval("numwindows()"), "1");
}

TEST_F(SessionTest, objectsOfALayoutAreNotDrawnOnTheMap) {
  openYear();
  run("Layout Position (0,0) Set CoordSys Layout Units \"in\" Create Rect (1,1) (2,2)");
  EXPECT_EQ(map().map().cosmetic.table, nullptr);
  run("Set CoordSys Earth Projection 1, 104 Create Rect Into Window FrontWindow() (1,1) (2,2)");
  EXPECT_EQ(map().map().cosmetic.table, nullptr);
  run("Create Rect (-4,40) (-3,41)");
  ASSERT_NE(map().map().cosmetic.table, nullptr);
  EXPECT_EQ(map().map().cosmetic.table->rowCount(), 1U);
}

}  // namespace
}  // namespace motor
