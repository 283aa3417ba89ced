#include "motor/session/session_fixture.h"

namespace motor {
namespace {

// After a year's workspace is open: statements, each run by itself; then what an expression gives.
struct Case {
  std::vector<std::string> statements;
  std::string expression;
  std::string expected;
};

void PrintTo(const Case& c, std::ostream* out) {
  for (const std::string& s : c.statements) *out << s << "; ";
  *out << c.expression;
}

class SessionConformance : public SessionTest, public testing::WithParamInterface<Case> {};

TEST_P(SessionConformance, gives) {
  openYear();
  run("Set Distance Units \"km\"");
  for (const std::string& statement : GetParam().statements) {
    ASSERT_EQ(rejectedRun(statement), "accepted") << statement;
  }
  EXPECT_EQ(eval(GetParam().expression), GetParam().expected);
}

const std::string kAvalos = "select * from Provincias2001 where nombre=\"Ávalos\"";

INSTANTIATE_TEST_SUITE_P(
    Workspace, SessionConformance,
    testing::Values(Case{{}, "numtables()", "3"}, Case{{}, "numwindows()", "1"},
                    Case{{}, "tableinfo(1,1)", "Provincias2001"}, Case{{}, "TableInfo(ZonasBasicas2001,4)", "7"},
                    Case{{}, "tableinfo(Provincias2001,8)", "36"}, Case{{}, "tableinfo(0,1)", "Veldoria2001"},
                    Case{{}, "TableInfo(2,2)", "2"}, Case{{}, "tableinfo(1,3)", "1"}, Case{{}, "tableinfo(1,5)", "T"},
                    Case{{}, "tableinfo(1,7)", "F"}, Case{{}, "tableinfo(1,20)", "-6"},
                    Case{{}, "tableinfo(1,23)", "43"}, Case{{}, "layerinfo(frontwindow(),1,1)", "Provincias2001"},
                    Case{{}, "layerinfo(frontwindow(),2,1)", "ZonasBasicas2001"},
                    Case{{}, "layerinfo(frontwindow(),1,9)", "2"}, Case{{}, "Layerinfo(frontwindow(),3,9)", "0"},
                    Case{{}, "layerinfo(frontwindow(),3,3)", "F"}, Case{{}, "layerinfo(frontwindow(),0,24)", "1"},
                    Case{{}, "layerinfo(frontwindow(),\"ZonasBasicas2001\",24)", "0"},
                    Case{{}, "layerinfo(frontwindow(),1,15)", "Nombre"},
                    Case{{}, "layerinfo(frontwindow(),2,15)", "Año"},
                    Case{{}, "layerinfo(frontwindow(),1,12)", "Brush (2,12632256,16777215)"},
                    Case{{}, "layerinfo(frontwindow(),1,18)", "Font (\"Arial\",1,8,0)"},
                    Case{{}, "mapperinfo(frontwindow(),9) ", "3"}, Case{{}, "mapperinfo(frontwindow(),1)", "700"},
                    Case{{}, "mapperinfo(frontwindow(),3)", "-3"}, Case{{}, "mapperinfo(frontwindow(),4)", "41.5"},
                    Case{{}, "mapperinfo(frontwindow(),12)", "km"}, Case{{}, "mapperinfo(frontwindow(),16)", "0"},
                    Case{{}, "mapperinfo(frontwindow(),10)", "-1"},
                    Case{{}, "mapperinfo(frontwindow(),17)", "CoordSys Earth Projection 1, 104"}));

INSTANTIATE_TEST_SUITE_P(
    Windows, SessionConformance,
    testing::Values(Case{{}, "WindowID(1)-frontwindow()", "0"}, Case{{}, "windowid(0)-WindowID(1)", "0"},
                    Case{{}, "len(str$(windowid(1)))>=9", "T"}, Case{{}, "windowid(1009)", "1009"},
                    Case{{}, "WindowInfo(windowid(1), 12)", "900001"}, Case{{}, "windowinfo(frontwindow(),3)", "1"},
                    Case{{}, "windowinfo(frontwindow(),10)", "Cosmetic1"},
                    Case{{"set window frontwindow() width 5 height 2.5"}, "windowinfo(frontwindow(),4)", "5"},
                    Case{{"set window frontwindow() width 5 height 2.5"}, "windowinfo(frontwindow(),5)", "2.5"},
                    Case{{"set window frontwindow() Max"}, "windowinfo(frontwindow(),9)", "2"},
                    Case{{"set window frontwindow() title \"Mapa\""}, "windowinfo(frontwindow(),1)", "Mapa"},
                    Case{{}, "Windowinfo(1009,11)", "F"}, Case{{"open window legend"}, "Windowinfo(1009,11)", "T"},
                    Case{{"open window legend", "close window legend"}, "Windowinfo(1009,11)", "F"},
                    Case{{"Close Window Legend"}, "Windowinfo(1009,11)", "F"}, Case{{}, "Windowinfo(1009,12)", "0"},
                    Case{{"open window legend"}, "Windowinfo(1009,12)", "0"},
                    Case{{"run menu command 1710"}, "Windowinfo(1007,11)", "T"},
                    Case{{"run menu command 1710", "run menu command 1701"}, "Windowinfo(1007,11)", "F"},
                    Case{{"run menu command 1710", "Close Window Ruler"}, "Windowinfo(1007,11)", "F"},
                    Case{{"Open Window Ruler"}, "Windowinfo(1007,11)", "T"},
                    Case{{"Open Window Ruler", "Close Window Ruler"}, "Windowinfo(1007,11)", "F"},
                    Case{
                        {"Set Window Toolbar Position (1,1) Units \"in\"", "Open Window Linkinfo",
                         "Close Window LinkInfo", "Set Window MapInfo Max", "Set Window Statistics Hide",
                         "Open Window Help", "Set Window ToolPicker Hide", "Set Window Message Font (\"Arial\",0,9,0)"},
                        "numallwindows()",
                        "1"},
                    Case{{"Set application Window 42", "Set Window Ruler Parent 42", "Set Window Legend Parent 42"},
                         "numallwindows()",
                         "1"}));

INSTANTIATE_TEST_SUITE_P(
    Layers, SessionConformance,
    testing::Values(
        Case{{"Set Map layer 1 selectable on display global zoom (0,100000) Off layer 2 display off"},
             "layerinfo(frontwindow(),2,9)",
             "0"},
        Case{{"set map layer 1 selectable off display graphic layer 2 display global"},
             "layerinfo(frontwindow(),1,3)",
             "F"},
        Case{{"set map layer 1 selectable off display graphic layer 2 display global"},
             "layerinfo(frontwindow(),1,9)",
             "1"},
        Case{{"set map layer 1 selectable on display global zoom (0,100000) units \"Km\" On  layer 2 Label Default "
              "display off "},
             "layerinfo(frontwindow(),1,6)",
             "100000"},
        Case{{"set map layer 1 selectable off display graphic zoom (310,100000) units \"Km\" On label default layer 2 "
              "display global"},
             "layerinfo(frontwindow(),1,5)",
             "310"},
        Case{{"set map layer 1 selectable off display graphic zoom (310,100000) units \"Km\" On label default layer 2 "
              "display global"},
             "layerinfo(frontwindow(),1,4)",
             "T"},
        Case{{"set map order 2,1,3"}, "layerinfo(frontwindow(),1,1)", "ZonasBasicas2001"},
        Case{{"set map order 2,1,3", "set map order 2,1,3"}, "layerinfo(frontwindow(),1,1)", "Provincias2001"},
        Case{{"set map order 3"}, "layerinfo(frontwindow(),2,1)", "Provincias2001"},
        Case{{"Shade 2 with Valor values 1 Brush (2,255,0)", "set map order 2"},
             "layerinfo(frontwindow(),1,1)",
             "ZonasBasicas2001(1)"},
        Case{{"Shade 2 with Valor values 1 Brush (2,255,0)", "set map order 2"},
             "layerinfo(frontwindow(),2,1)",
             "ZonasBasicas2001"},
        Case{{"Shade 2 with Valor values 1 Brush (2,255,0)", "set map order 2"},
             "layerinfo(frontwindow(),3,1)",
             "Provincias2001"},
        Case{{"Shade 2 with Valor values 1 Brush (2,255,0)", "Shade 2 with Valor values 2 Brush (2,255,0)",
              "set map order 3"},
             "layerinfo(frontwindow(),1,1)",
             "ZonasBasicas2001(1)"},
        Case{{"Add Map Layer Veldoria2001"}, "mapperinfo(frontwindow(),9)", "4"},
        Case{{"Add Map Layer Veldoria2001"}, "layerinfo(frontwindow(),1,1)", "Veldoria2001"},
        Case{{"Add Map Auto Layer Veldoria2001"}, "layerinfo(frontwindow(),1,1)", "Veldoria2001"},
        Case{{"Remove map layer 1 Interactive"}, "layerinfo(frontwindow(),1,1)", "ZonasBasicas2001"},
        Case{{"Remove Map Layer \"ZonasBasicas2001\",3"}, "mapperinfo(frontwindow(),9)", "1"},
        Case{{"Remove Map Layer 1,2,3"}, "numwindows()", "0"},
        Case{{"set map layer 1 label default display global layer 2 label default display off"},
             "layerinfo(frontwindow(),2,9)",
             "0"}));

INSTANTIATE_TEST_SUITE_P(
    View, SessionConformance,
    testing::Values(
        Case{{"Set map zoom 200 units \"km\" center(-3.25, 41)"}, "mapperinfo(frontwindow(),1)", "200"},
        Case{{"Set map zoom 200 units \"km\" center(-3.25, 41)"}, "mapperinfo(frontwindow(),3)", "-3.25"},
        Case{{"Set map zoom 200 units \"km\"  center(-3.25, 41)"}, "mapperinfo(frontwindow(),4)", "41"},
        Case{{"Set map zoom 200"}, "mapperinfo(frontwindow(),1)", "200"},
        Case{{"Set map zoom 200 units \"km\"", "Set Distance Units \"m\""}, "mapperinfo(frontwindow(),1)", "200000"},
        Case{{"Set map zoom 200 units \"km\"", "set map zoom entire"}, "mapperinfo(frontwindow(),3)", "-3"},
        Case{{"Set map zoom 200 units \"km\"", "Set map zoom entire"}, "mapperinfo(frontwindow(),5)<=-6", "T"},
        Case{{"Set map zoom 200 units \"km\"", "Set map zoom entire"}, "mapperinfo(frontwindow(),8)>=43", "T"},
        Case{{kAvalos, "Add map layer Selection",
              "Set map center (centroidX(selection.obj),centroidy(selection.obj))zoom 300 units \"Km\" layer 1 display "
              "global global brush (2,255,255) Pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215)"},
             "mapperinfo(frontwindow(),3)",
             "-5"},
        Case{{kAvalos,
              "Add map layer Selection Set map center (centroidx(selection.obj),centroidy(selection.obj)) zoom 300 "
              "units \"km\" layer 1 display global global brush (2,255,255) Pen (1,2,44031) Label Font "
              "(\"Tahoma\",1,8,16777215)"},
             "layerinfo(frontwindow(),1,12)",
             "Brush (2,255,255)"},
        Case{
            {kAvalos, "Add map layer Selection",
             "Set map zoom 200 units \"Km\" center (centroidX(selection.obj),centroidY(selection.obj)) layer 1 display "
             "global global brush (2,255,255) pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215)"},
            "layerinfo(frontwindow(),1,18)",
            "Font (\"Tahoma\",1,8,16777215)"},
        Case{{"Set CoordSys Earth Projection 1, 104",
              "Set Map CoordSys Earth Projection 8, 104, \"m\", -3, 0, 0.9996, "
              "500000, 0 Center (500000, 4594000)"},
             "round(mapperinfo(frontwindow(),3),0.001)",
             "-3"}));

INSTANTIATE_TEST_SUITE_P(
    Selections, SessionConformance,
    testing::Values(
        Case{{}, "selectioninfo(3)", "0"}, Case{{}, "selectioninfo(1)", ""}, Case{{kAvalos}, "Selectioninfo(3)", "12"},
        Case{{kAvalos}, "SelectionInfo(1)", "Provincias2001"}, Case{{kAvalos}, "selectioninfo(2)", "Query1"},
        Case{{kAvalos}, "tableinfo(\"Selection\",8)", "12"}, Case{{kAvalos}, "tableinfo(Selection,4)", "6"},
        Case{{kAvalos}, "Selection.nombre", "Ávalos"}, Case{{kAvalos}, "Selection.año", "2001"},
        Case{{kAvalos}, "Selection.COL2", "Ávalos"}, Case{{kAvalos}, "selection.col(3)", "Mujeres"},
        Case{{kAvalos}, "Selection.rowid", "1"}, Case{{kAvalos}, "Provincias2001.rowid", "13"},
        Case{{kAvalos}, "centroidx(selection.obj)", "-5"},
        Case{{kAvalos}, "Formatnumber$(round(Selection.valor,0.01))", "12,35"},
        Case{{kAvalos, "fetch next from selection"}, "Formatnumber$(round(Selection.valor,0.01))", "1.234"},
        Case{{kAvalos, "fetch next from selection"}, "Provincias2001.indicador", "Fallecidos"},
        Case{{kAvalos, "Fetch last from selection"}, "EOT(\"Selection\")", "F"},
        Case{{kAvalos, "Fetch last from selection", "fetch next from selection"}, "EOT(\"Selection\")", "T"},
        Case{{kAvalos, "Fetch Rec 3 From Provincias2001"}, "Provincias2001.nombre", "Ñorga"},
        Case{{"Select obj from Provincias2001 where rowid=25"}, "Selectioninfo(3)", "1"},
        Case{{"Select nombre from Provincias2001 group by nombre"}, "Selection.nombre", "Ávalos"},
        Case{{"Select CentroidX(obj), CentroidY(obj) from Provincias2001 where nombre=\"Ñorga\""},
             "Selection.COL2",
             "41.5"},
        Case{{"Select * from Provincias2001  where obj contains createpoint(-2.5,41) order by sexo,tipo"},
             "Selection.nombre",
             "Ñorga"},
        Case{{"Select * from Provincias2001  where obj contains createpoint(-20,41) order by sexo,tipo"},
             "Selectioninfo(3)",
             "0"},
        Case{{kAvalos, "select * from Provincias2001 where nombre=\"Nadie\""}, "EOT(Selection)", "T"},
        Case{{kAvalos, "run menu command 304"}, "selectioninfo(3)", "0"},
        Case{{kAvalos, "Close Table Selection"}, "selectioninfo(3)", "0"},
        Case{{kAvalos + " into Elegidas"}, "tableinfo(\"elegidas\",8)", "12"},
        Case{{kAvalos + " into Elegidas"}, "selectioninfo(2)", "Elegidas"},
        Case{{kAvalos + " into Elegidas noselect"}, "selectioninfo(3)", "0"},
        Case{{kAvalos + " into Q", "select * from Veldoria2001 into Q"}, "SelectionInfo(1)", "Veldoria2001"},
        Case{{kAvalos, "Add map layer Selection"}, "layerinfo(frontwindow(),1,1)", "Query1"},
        Case{{"set map layer 1 label with Nombre+\"!\"", kAvalos, "Add map layer Selection"},
             "layerinfo(frontwindow(),1,15)",
             "Nombre+\"!\""},
        Case{{kAvalos, "Add map layer Selection", "select * from Veldoria2001", "Add map layer Selection"},
             "layerinfo(frontwindow(),1,1)",
             "Query2"},
        Case{{kAvalos, "Add map layer Selection", "select * from Veldoria2001"}, "tableinfo(Query1,7)", "T"},
        Case{{kAvalos, "Add map layer Selection", "Close Table Query1"},
             "layerinfo(frontwindow(),1,1)",
             "Provincias2001"},
        Case{{kAvalos, "Close Table Provincias2001"}, "layerinfo(frontwindow(),1,1)", "ZonasBasicas2001"},
        Case{{"Close All"}, "numtables()+numwindows()", "0"}));

INSTANTIATE_TEST_SUITE_P(
    Searches, SessionConformance,
    testing::Values(Case{{}, "SearchPoint(WindowID(1),-5,40.5)", "2"},
                    Case{{"set map layer 2 display off"}, "SearchPoint(WindowID(1),-5,40.5)", "1"},
                    Case{{"set map layer 1 zoom (0,10) units \"km\" on"}, "SearchPoint(WindowID(1),-5,40.5)", "1"},
                    Case{{"Create Rect (-6,40) (-5.5,41)"}, "SearchPoint(WindowID(1),-5.75,40.5)", "3"},
                    Case{{"Create Rect (-6,40) (-5.5,41)"}, "SearchPoint(WindowID(1),-5,40.5)", "2"},
                    Case{{"Create Rect (-6,40) (-5.5,41)", "set map layer 0 selectable off"},
                         "SearchPoint(WindowID(1),-5.75,40.5)",
                         "2"},
                    Case{{}, "SearchPoint(WindowID(1),10,10)", "0"}));

INSTANTIATE_TEST_SUITE_P(
    Others, SessionConformance,
    testing::Values(
        Case{{"Dim a As String a = \"Set Distance Units \"\"m\"\"\" Run Command a Undim a"},
             "mapperinfo(frontwindow(),1)",
             "700000"},
        Case{{"Set Format Number \"9,999.9\""}, "FormatNumber$(1234.5)", "1,234.5"},
        Case{{"Set Format Number \"9,999.9\"", "Set Format Number \"Local\""}, "FormatNumber$(1234.5)", "1.234,5"},
        Case{{"Set Paper Units \"cm\"", "set window frontwindow() width 2.54 units \"cm\""},
             "windowinfo(frontwindow(),4)",
             "2.54"},
        Case{{"Add Column Provincias2001 (Doble Float) From Veldoria2001 Set To Valor Where Indicador = "
              "Indicador Dynamic"},
             "round(Provincias2001.doble,0.001)",
             "37.035"},
        Case{{"Add Column Veldoria2001 (Orden Integer) Values 7,8,9", "fetch rec 3 from Veldoria2001"},
             "Veldoria2001.orden",
             "9"},
        Case{{"Set Map Layer 0 Editable On", "Create Rect (-4,40) (-3,41) Pen (2,2,255)"},
             "mapperinfo(frontwindow(),10)",
             "0"},
        Case{{"run menu command 807"}, "mapperinfo(frontwindow(),3)", "-3"},
        Case{{"run menu command 112", "run menu command 801", "run menu command 814"}, "numwindows()", "1"}));

}  // namespace
}  // namespace motor
