#include "motor/session/session_fixture.h"

namespace motor {
namespace {

class CallbackTest : public SessionTest {
 protected:
  void SetUp() override {
    openYear();
    run("Create Menu \"MapperShortcut\" ID 17 as \"&Ver Toda la Capa...\" calling 807,\"&Borrar Etiquetas...\" calling "
        "814,\"&Quitar Selección...\" calling OLE \"borraseleccion\"");
    run("Create Buttonpad \"Callback\" As Toolbutton ID 2001 DrawMode 34 Cursor 138 Calling OLE \"Info\"");
    run("Alter buttonpad \"Callback\" add Toolbutton ID 2002 DrawMode 34 Cursor 138 Calling OLE \"InfoEstadisticas\"");
    run("Alter buttonpad \"Callback\" add Toolbutton ID 2003 DrawMode 34 Cursor 138 Calling OLE \"InfoDatos\"");
    session.setCallback(callback);
    run("Set map zoom 200 units \"km\" center(-3.25, 41.5)");
  }

  static constexpr Point kCentre{320, 240};  // of a window of 640 by 480 pixels

  std::shared_ptr<NotingCallback> callback = std::make_shared<NotingCallback>();
};

TEST_F(CallbackTest, buttonsCallBackWithThePoint) {
  map().resized(640, 480);
  run("run menu command ID 2003");
  EXPECT_EQ(map().tool().buttonId, 2003);
  EXPECT_EQ(map().tool().cursor, 138);
  map().clicked(kCentre, false, true);
  run("run menu command ID 2001");
  map().clicked(kCentre, true, false);
  EXPECT_EQ(callback->calls,
            (std::vector<std::string>{"InfoDatos MI:-3.25,41.5,F,T,,,2003,", "Info MI:-3.25,41.5,T,F,,,2001,"}));
}

TEST_F(CallbackTest, aButtonThatIsGoneGivesWayToTheSelectTool) {
  run("run menu command ID 2001");
  run("Alter ButtonPad \"Callback\" Remove 2001");
  EXPECT_NO_THROW(map().clicked(kCentre, false, false));
  EXPECT_TRUE(callback->calls.empty());
  EXPECT_EQ(map().tool().command, 1701);
  EXPECT_EQ(eval("selectioninfo(3)"), "0");
}

TEST_F(CallbackTest, ofSeveralButtonsWithOneIdTheNewestPadsCounts) {
  run("Create ButtonPad \"A\" As ToolButton ID 2001 DrawMode 34 Cursor 2 Calling OLE \"deA\"");
  run("run menu command ID 2001");
  EXPECT_EQ(map().tool().cursor, 2);
  map().clickedAt({-3, 41}, false, false);
  run("Create Buttonpad \"Callback\" As Toolbutton ID 2001 DrawMode 34 Cursor 138 Calling OLE \"Info\"");
  map().clickedAt({-3, 41}, false, false);
  EXPECT_EQ(callback->calls, (std::vector<std::string>{"deA MI:-3,41,F,F,,,2001,", "Info MI:-3,41,F,F,,,2001,"}));
}

TEST_F(CallbackTest, coordinatesAreTheSessions) {
  map().resized(640, 480);
  run("Set CoordSys Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0");
  run("run menu command ID 2003");
  map().clicked(kCentre, false, false);
  ASSERT_EQ(callback->calls.size(), 1U);
  EXPECT_EQ(callback->calls.front().substr(0, 18), "InfoDatos MI:47913");
}

TEST_F(CallbackTest, draggingToolsTellTheReleasePoint) {
  map().resized(640, 480);
  run("Create ButtonPad \"Otra\" As ToolButton ID 9 DrawMode 32 Calling OLE \"caja\"");
  run("run menu command ID 9");
  map().clicked(kCentre, false, false);
  EXPECT_EQ(callback->calls, std::vector<std::string>{"caja MI:-3.25,41.5,F,F,-3.25,41.5,9,"});
}

TEST_F(CallbackTest, commandInfoTellsTheClickWhileTheCallbackRuns) {
  map().resized(640, 480);
  run("run menu command ID 2002");
  std::string seen;
  callback->whenCalled = [&] {
    for (int code = 1; code <= 8; ++code) seen += eval("CommandInfo(" + std::to_string(code) + ")") + "|";
  };
  map().clicked(kCentre, false, true);
  EXPECT_EQ(seen, "-3.25|41.5|F|T|||2002||");
}

TEST_F(CallbackTest, menuEntriesCallBackOrRunACommand) {
  const std::vector<MenuEntry>& menu = map().shortcutMenu();
  ASSERT_EQ(menu.size(), 3U);
  EXPECT_EQ(menu[0].text, "&Ver Toda la Capa...");
  EXPECT_EQ(menu[0].command, 807);
  EXPECT_EQ(menu[2].method, "borraseleccion");
  windows.notes.clear();
  map().menuChosen(2);
  EXPECT_EQ(callback->calls, std::vector<std::string>{"borraseleccion MI:,,,,,,,3"});
  map().menuChosen(0);
  EXPECT_EQ(windows.notes, std::vector<std::string>{"command 807"});
  EXPECT_NE(eval("mapperinfo(frontwindow(),3)"), "-3.25");
  map().menuChosen(7);
  EXPECT_EQ(callback->calls.size(), 1U);
}

TEST_F(CallbackTest, viewEntireLayerIsLeftToAScreenThatAsks) {
  windows.answersCommands = true;
  map().menuChosen(0);
  EXPECT_EQ(eval("mapperinfo(frontwindow(),3)"), "-3.25");
}

TEST_F(CallbackTest, clearLabelsDropsEditedLabels) {
  map().resized(640, 480);
  run("run menu command 1708");
  map().clicked(kCentre, false, false);
  ASSERT_EQ(map().map().layers[0].label.edited.size(), 1U);
  EXPECT_EQ(map().map().layers[0].label.edited[0].row, 1U);
  map().menuChosen(1);
  EXPECT_TRUE(map().map().layers[0].label.edited.empty());
}

TEST_F(CallbackTest, aCallbackMayEndTheSession) {
  run("run menu command ID 2001");
  callback->whenCalled = [&] { run("end mapinfo"); };
  map().clicked(kCentre, false, false);
  EXPECT_TRUE(session.mapWindows().empty());
}

TEST_F(CallbackTest, withoutACallbackObjectNothingHappens) {
  session.setCallback(nullptr);
  run("run menu command ID 2001");
  map().clicked(kCentre, false, false);
  EXPECT_TRUE(callback->calls.empty());
  EXPECT_EQ(callback.use_count(), 1);
}

TEST_F(CallbackTest, standardToolsActOnTheMap) {
  map().resized(640, 480);
  run("Set Distance Units \"km\"");
  run("run menu command 1705");
  map().clicked(kCentre, false, false);
  EXPECT_EQ(eval("mapperinfo(frontwindow(),1)"), "100");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),3)"), "-3.25");
  run("run menu command 1706");
  const double left = map().map().toMap({0, 240}).x;
  map().clicked({0, 240}, false, false);
  EXPECT_EQ(eval("mapperinfo(frontwindow(),1)"), "200");
  EXPECT_NEAR(std::stod(eval("mapperinfo(frontwindow(),3)")), left, 1e-9);
  run("run menu command 1702");
  map().clicked(kCentre, false, false);
  EXPECT_EQ(eval("mapperinfo(frontwindow(),1)"), "200");
  EXPECT_TRUE(callback->calls.empty());
}

TEST_F(CallbackTest, wheelKeepsThePointUnderThePointer) {
  map().resized(640, 480);
  const Point pixel{100, 50};
  const Point before = map().map().toMap(pixel);
  map().zoomedBy(0.5, pixel);
  EXPECT_NEAR(map().map().toMap(pixel).x, before.x, 1e-9);
  EXPECT_NEAR(map().map().toMap(pixel).y, before.y, 1e-9);
  for (int i = 0; i < 100; ++i) map().zoomedBy(0.5, pixel);
  EXPECT_EQ(map().map().zoomMetres, 50);
}

TEST_F(CallbackTest, draggingMovesTheMapAlong) {
  map().resized(640, 480);
  const Point before = map().map().toMap(kCentre);
  const std::uint64_t revision = map().revision();
  map().pannedBy(30, -20);
  EXPECT_NEAR(map().map().toMap({350, 220}).x, before.x, 1e-9);
  EXPECT_NEAR(map().map().toMap({350, 220}).y, before.y, 1e-9);
  EXPECT_GT(map().revision(), revision);
}

TEST_F(CallbackTest, theSelectToolSelectsTheTopmostObject) {
  map().resized(640, 480);
  run("run menu command 1701");
  map().clicked(kCentre, false, false);
  EXPECT_EQ(eval("SelectionInfo(1)"), "Provincias2001");
  EXPECT_EQ(eval("Selection.nombre"), "Ñorga");
  EXPECT_EQ(map().selectedRows().rows, std::vector<RowId>{1});
  run("set map center (20,20)");
  map().clicked(kCentre, false, false);
  EXPECT_EQ(eval("SelectionInfo(3)"), "0");
  EXPECT_EQ(map().selectedRows().table, nullptr);
}

TEST_F(CallbackTest, selectingInAQueryLayerSelectsInItsBase) {
  map().resized(640, 480);
  run("select * from Provincias2001 where nombre=\"Ñorga\" and sexo=\"Hombres\"");
  run("Add map layer Selection");
  run("run menu command 1701");
  map().clicked(kCentre, false, false);
  EXPECT_EQ(eval("SelectionInfo(1)"), "Provincias2001");
  EXPECT_EQ(eval("Selection.sexo"), "Hombres");
  EXPECT_EQ(map().selectedRows().rows, std::vector<RowId>{9});
}

}  // namespace
}  // namespace motor
