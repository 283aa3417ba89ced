#include "motor/session/session_fixture.h"

// Themes in a session: what is said about their layers and their legend.
namespace motor {
namespace {

constexpr const char* kShade = "shade 1 with Nombre values \"Ñorga\" Brush (2,255,0), \"Brisa\" Brush (2,1,0)";

TEST_F(SessionTest, aThemeIsHiddenAndShownAgain) {
  openYear();
  run("Map From Provincias2001");
  run(kShade);
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,9)"), "3");
  run("set map layer 1 display off");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,9)"), "0");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,24)"), "3");
  run("set map layer 1 display value");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,9)"), "3");
  EXPECT_EQ(eval("layerinfo(frontwindow(),2,9)"), "1");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),16)"), "1");
  run("set shade \"Provincias2001(1)\" with Nombre graduated 0:0 9:9 Symbol (34,1,9)");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),16)"), "1");
}

TEST_F(SessionTest, aTableWithoutRowsMayBeShaded) {
  openYear();
  run("Select * From Provincias2001 Where Nombre = \"nadie\" Into Vacia NoSelect");
  run("Map From Provincias2001");
  run("set map zoom entire");
  const std::string zoom = eval("mapperinfo(frontwindow(),1)");
  run("Map From Vacia,Provincias2001");
  run(kShade);
  run("set map zoom entire");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),1)"), zoom);
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "Vacia(1)");
  run("set map zoom entire layer 1");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),1)"), zoom) << "there is nothing to zoom to";
  EXPECT_EQ(eval("SearchPoint(frontwindow(),-3,41)"), "1");
}

TEST_F(SessionTest, theLegendIsThatOfTheMapInFront) {
  openYear();
  run("Set Window Legend Parent 4711");
  run("open window legend");
  windows.notes.clear();
  run("Map From Provincias2001");
  EXPECT_NE(std::count(windows.notes.begin(), windows.notes.end(), "legend in 4711 at 0,0"), 0);
  windows.notes.clear();
  run("Close Window FrontWindow()");
  EXPECT_EQ(windows.notes.back(), "legend in 4711 at 0,0");
  EXPECT_EQ(eval("windowinfo(1009,11)"), "T");
  run("Close Window FrontWindow()");
  EXPECT_EQ(eval("windowinfo(1009,11)"), "F");
}

}  // namespace
}  // namespace motor
