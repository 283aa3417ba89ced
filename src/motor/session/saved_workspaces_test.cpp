#include "motor/session/session_fixture.h"

// What saved workspaces of other hands hold, on small tables of their own.
namespace motor {
namespace {

constexpr const char* kHeader = "!Workspace\n!Version 650\n!Charset WindowsLatin1\n";

class SavedWorkspaces : public SessionTest {
 protected:
  void SetUp() override {
    const std::vector<std::string> columns{"Nombre Char(20)", "Uno Float", "Dos Float"};
    const std::vector<std::string> rows{"\"Alta\",1,4", "\"Baja\",2,5", "\"Media\",3,6"};
    std::vector<std::string> objects;
    for (const tiny::Unit& unit : tiny::kProvinces) objects.push_back(tiny::rectangle(unit));
    tiny::writeTable(folder_.path(), "Zonas", columns, rows, objects);
    tiny::writeTable(folder_.path(), "Pozos", columns, rows, {"Point -3 41\n", "Point -2 42\n", "Point -1 40.5\n"});
  }

  // Opens a workspace beside the tables.
  void open(const std::string& statements) {
    tiny::writeLatin(folder_.path() / "mapa.wor", kHeader + statements);
    own_.run("Run Application \"" + (folder_.path() / "mapa.wor").string() + "\"");
  }
  std::string rejectedOpen(const std::string& statements) {
    return rejection([&] { open(statements); });
  }
  std::string ownEval(const std::string& expression) { return own_.eval(expression).text(); }
  const Map& ownMap(std::size_t window = 0) { return own_.mapWindows().at(window)->map(); }

  tiny::Folder folder_;
  Session own_{windows, {.roots = {folder_.path()}}};
};

const std::string kOpen = "Open Table \"Zonas\" As Zonas Interactive\nOpen Table \"Pozos\" As Pozos Interactive\n";
const std::string kMap = kOpen + "Map From Pozos,Zonas Width 6 Units \"in\" Height 4 Units \"in\"\n";

TEST_F(SavedWorkspaces, tablesOfOtherMachinesLieBesideTheWorkspace) {
  open(
      "Open Table \"\\\\SERVIDOR\\datos\\zonas\" As Zonas Interactive\nOpen Table \"W:\\mapas\\POZOS\" As Pozos\n"
      "Map From Pozos,Zonas\n");
  EXPECT_EQ(ownEval("NumTables()"), "2");
  EXPECT_NE(rejectedOpen("Open Table \"\\\\SERVIDOR\\datos\\falta\"\n").find("ruta no permitida"), std::string::npos);
  EXPECT_NE(rejectedOpen("Open Table \"\\\\.\\COM1\"\n").find("ruta no permitida"), std::string::npos);
}

TEST_F(SavedWorkspaces, haveSeveralMapsEachWithItsOwnThemes) {
  open(kMap +
       "Set Window FrontWindow() Title \"Principal\"\n"
       "shade 2 with Uno ranges apply all 1: 2 Brush (2,255,0) ,2: 4 Brush (2,65280,0) default Brush (1,0,0)\n"
       "Map From Zonas\nSet Window FrontWindow() Title \"Detalle\"\n"
       "shade 1 with Uno, Dos pie Max Size 0.3 Units \"in\" Style Brush (2,255,0), Brush (2,65280,0)\n");
  ASSERT_EQ(own_.mapWindows().size(), 2U);
  EXPECT_EQ(ownEval("WindowInfo(WindowID(1),1)"), "Principal");
  EXPECT_EQ(ownEval("LayerInfo(WindowID(1),2,1)"), "Zonas(1)");
  EXPECT_EQ(ownEval("LayerInfo(FrontWindow(),1,1)"), "Zonas(1)");
  EXPECT_TRUE(std::holds_alternative<ShadeRanges>(ownMap(0).layers[1].theme->kind));
  EXPECT_TRUE(std::holds_alternative<ShadeChart>(ownMap(1).layers[0].theme->kind));
}

TEST_F(SavedWorkspaces, addColumnsAndQueriesBeforeTheyAreShown) {
  open(kOpen +
       "Select * From Zonas Where (Uno + Dos)/2 > 3 Into Q_altas NoSelect\n"
       "Add Column \"Pozos\" (Resto) From Zonas Set To Dos-Uno Where COL1 = COL1  Dynamic\n"
       "Map From Q_altas,Pozos\n");
  EXPECT_EQ(ownEval("TableInfo(Q_altas,8)"), "2");
  EXPECT_EQ(ownEval("Pozos.Resto"), "3");
  EXPECT_EQ(ownEval("LayerInfo(FrontWindow(),1,1)"), "Q_altas");
}

TEST_F(SavedWorkspaces, drawTextsInTheirBoxes) {
  open(kMap +
       "Set CoordSys Earth Projection 1, 104\nSet Map Layer 0 Editable\n"
       "Create Text \"Zona \\nde obras\" (-4,40) (-2,41) Font (\"Arial\",257,0,0,16776960) Justify Center\n"
       "Set Map Layer 0 Editable Off\nSet CoordSys Earth\n");
  const Table& drawn = *ownMap().cosmetic.table;
  ASSERT_EQ(drawn.rowCount(), 1U);
  EXPECT_EQ(drawn.object(1)->text, "Zona \nde obras");
  EXPECT_DOUBLE_EQ(drawn.object(1)->lineHeight, 0.5);
  EXPECT_EQ(drawn.object(1)->points.front(), (Point{-4, 40}));
  EXPECT_EQ(drawn.object(1)->justify, TextJustify::center);
}

TEST_F(SavedWorkspaces, drawTextsInLinesApart) {
  const auto lineHeight = [&](const std::string& spacing) {
    open("Close All\n" + kMap +
         "Set CoordSys Earth Projection 1, 104\nSet Map Layer 0 Editable\n"
         "Create Text \"a\\nb\\nc\" (-4,40) (-2,42) Spacing " +
         spacing);
    return ownMap().cosmetic.table->object(1)->lineHeight;
  };
  EXPECT_DOUBLE_EQ(lineHeight("1"), 2.0 / 3);
  EXPECT_DOUBLE_EQ(lineHeight("1.5"), 0.5);
  EXPECT_DOUBLE_EQ(lineHeight("-3"), 2.0 / 3);
  EXPECT_NEAR(lineHeight("1e300"), 2.0 / 21, 1e-6);
}

TEST_F(SavedWorkspaces, limitTheLabelsOfALayer) {
  open(kMap + "Set Map Layer 1 Label Auto On Max 6\n");
  EXPECT_EQ(ownMap().layers[0].label.maximum, 6);
  own_.run("Set Map Layer 1 Label Overlap On");
  EXPECT_EQ(ownMap().layers[0].label.maximum, 6);
  own_.run("Set Map Layer 1 Label Max");
  EXPECT_EQ(ownMap().layers[0].label.maximum, std::nullopt);
}

TEST_F(SavedWorkspaces, keepTheCoordinateSystemAcrossALayout) {
  open(kMap +
       "Set CoordSys Earth Projection 1, 104\nLayout Width 8 Units \"in\"\nDim s As String\n"
       "s = \"Set \" + SessionInfo(1)\nSet CoordSys Layout Units \"in\"\nCreate Rect (1,1) (2,2)\nRun Command s\nUndim "
       "s\n"
       "Create Point Into Window WindowID(1) (-3,41)\n");
  EXPECT_EQ(ownEval("SessionInfo(1)"), "CoordSys Earth Projection 1, 104");
  ASSERT_EQ(ownMap().cosmetic.table->rowCount(), 1U);
  EXPECT_EQ(ownMap().cosmetic.table->object(1)->points.front(), (Point{-3, 41}));
}

TEST_F(SavedWorkspaces, giveAMapTheFramesOfItsLegend) {
  open(kMap +
       "Create Cartographic Legend From Window FrontWindow() Custom Default Frame Title \"# (%)\" Font "
       "(\"Arial\",1,10,255) Default Frame Style \"%\" Font (\"Arial\",0,8,0) Default Frame Border Pen (1,2,255)\n"
       "Frame From Layer 1 Position (1,5) Units \"in\" Border Pen (0,1,0) Title \"Puntos\" Style Text \"Pozo\\nviejo\" "
       "Symbol (34,255,9)\n"
       "Frame From Layer Zonas Position (1,2) Units \"in\" Using Column object Style Font (\"Arial\",1,8,0) Text \"a\" "
       "Region Pen (1,2,255) Brush (2,65280,0) Text \"b\" Line Pen (3,2,255)\n");
  const std::vector<MapLegendFrame>& frames = ownMap().legendFrames;
  ASSERT_EQ(frames.size(), 2U);
  EXPECT_EQ(frames[0].layer, "Zonas");
  EXPECT_EQ(frames[0].title, "Zonas (Región)");
  EXPECT_EQ(frames[0].titleFont->size, 10);
  EXPECT_EQ(frames[0].lineFont->style, 1);
  ASSERT_EQ(frames[0].lines.size(), 2U);
  EXPECT_EQ(frames[0].lines[0].kind, MapObject::Kind::region);
  EXPECT_EQ(frames[0].lines[0].style.brush->fore, 65280);
  EXPECT_EQ(frames[0].lines[1].kind, MapObject::Kind::polyline);
  EXPECT_EQ(frames[0].border, (Pen{1, 2, 255}));
  EXPECT_EQ(frames[1].border, (Pen{0, 1, 0}));
  EXPECT_EQ(frames[1].title, "Puntos");
  EXPECT_EQ(frames[1].lines.at(0).text, "Pozo\nviejo");
  EXPECT_EQ(frames[1].lineFont->size, 8);
  EXPECT_NE(rejectedOpen(kMap + "Create Cartographic Legend Frame From Layer 7\n").find("no tiene esa capa"),
            std::string::npos);
}

TEST_F(SavedWorkspaces, keepWhatLabelsPointAt) {
  open(kMap +
       "Set CoordSys Earth Projection 1, 104\nSet Map Layer 1 Label Line Arrow Pen (2,2,255) With Nombre Object 2 "
       "Anchor "
       "(-5,40) Callout (-2,42) Line Simple Pen (3,2,65280)\n");
  const LabelSettings& label = ownMap().layers[0].label;
  EXPECT_EQ(label.line, LabelLine::arrow);
  EXPECT_EQ(label.pen, (Pen{2, 2, 255}));
  ASSERT_EQ(label.edited.size(), 1U);
  EXPECT_EQ(label.edited[0].line, LabelLine::simple);
  EXPECT_EQ(label.edited[0].pen, (Pen{3, 2, 65280}));
  EXPECT_EQ(label.edited[0].callout, (Point{-2, 42}));
}

TEST_F(SavedWorkspaces, keepTheScaleOrTheZoomOfAWindowThatGrows) {
  open(kMap + "Set Map Zoom 100 Units \"km\" Preserve Scale\n");
  const int width = ownMap().pixelWidth;
  own_.mapWindows().front()->resized(width * 2, 300);
  EXPECT_NEAR(ownMap().zoomMetres, 200'000, 1e-6);
  own_.run("Set Map Preserve Zoom");
  own_.mapWindows().front()->resized(width, 300);
  EXPECT_NEAR(ownMap().zoomMetres, 200'000, 1e-6);
}

TEST_F(SavedWorkspaces, stopAtTheFirstStatementThatWrites) {
  EXPECT_EQ(rejectedOpen(kOpen + "Update Zonas Set Uno = 2\nClose All\n"),
            "mapa.wor: línea 6, columna 1: «Update»: no se permite: los datos solo se leen");
  EXPECT_EQ(ownEval("NumTables()"), "2");
  EXPECT_NE(
      rejectedOpen("Run Application \"\\\\SERVIDOR\\x\\Programa.MBX\"\n").find("no se permite ejecutar programas"),
      std::string::npos);
}

// A workspace may not take all of the machine.
TEST_F(SavedWorkspaces, haveLimits) {
  std::string layers = "Map From Zonas";
  for (int i = 0; i < 1000; ++i) layers += ",Zonas";
  EXPECT_NE(rejectedOpen(kOpen + layers).find("no puede tener más de 1000 capas"), std::string::npos);
  std::string themes;
  for (int i = 0; i < 1000; ++i) themes += "shade 1 with Uno values 1 Brush (2,1,1)\n";
  EXPECT_NE(rejectedOpen("Close All\n" + kOpen + "Map From Zonas\n" + themes).find("1000 capas"), std::string::npos);
  std::string columns;
  for (int i = 0; i < 1000; ++i) columns += "Add Column Zonas (c" + std::to_string(i) + ") Values 1\n";
  EXPECT_NE(rejectedOpen("Close All\n" + kOpen + columns).find("no puede tener más columnas"), std::string::npos);
  std::string maps;
  for (int i = 0; i < 201; ++i) maps += "Map From Zonas\n";
  EXPECT_NE(rejectedOpen("Close All\n" + kOpen + maps).find("más de 200 ventanas"), std::string::npos);
}

}  // namespace
}  // namespace motor
