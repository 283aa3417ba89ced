#include "motor/language/testing_statements.h"
#include "motor/language/workspace.h"

// Each form of statement that saved workspaces hold: accepted, with what of it is passed over by name, or refused.
namespace motor {
namespace {

struct Form {
  const char* text;
  const char* outcome;  // "done"; "refused: reason"; what is passed over, one behind the other with "; " between
};

std::string outcomeOf(const std::string& source) {
  const Program program = parseProgramWhole(source);
  if (program.statements.empty()) return "nothing";
  if (const auto* refused = std::get_if<Refused>(&program.statements.front()))
    return std::string("refused: ") + refused->reason;
  std::string outcome;
  for (const PassedOverPart& part : program.passedOver) outcome += (outcome.empty() ? "" : "; ") + part.words;
  return outcome.empty() ? "done" : outcome;
}

const char* const kOnlyRead = "refused: no se permite: los datos solo se leen";

const Form kForms[] = {
    // tables and queries
    {"Open Table \"datos\\Zonas\" As Zonas Interactive", "done"},
    {"Open Table \"\\\\servidor\\datos\\Zonas\" As Zonas Interactive ReadOnly DenyWrite NoIndex", "done"},
    {"Open Table \"Zonas\" Hide", "open table ... hide"},
    {"Close Table Zonas Interactive", "done"},
    {"Close All", "done"},
    {"Select * From Zonas Where (Cota-8) <= Fondo Into Q_bajas NoSelect", "done"},
    {"Select * From Zonas , Pozos Where (( Cota - 8 ) > Fondo) And (Zonas . Id = Pozos . Id And (n>0 And d < 10)) "
     "Into Q NoSelect",
     "done"},
    {"Select Nombre, Sum(Area) \"total\" From Zonas Group By Nombre Order By total Desc Into Q", "done"},
    {"Select * From Zonas Into Q Hide", "select ... hide"},
    {"Add Column \"Zonas\" (Urbano Logical) From Catastro Set To Urbano Where COL1 = COL1  Dynamic", "done"},
    {"Add Column Zonas (Delta) From Catastro Set To AreaB+(AreaA-2) Where COL1 = COL1 Dynamic", "done"},
    {"Add Column Zonas (Clave Char(10)) Values \"a\", \"b\", \"c\"", "done"},
    // maps
    {"Map From Zonas,Pozos,\n  Calles \n  Position (0.05,0.02) Units \"in\"\n  Width 3.7 Units \"in\" Height 2.0 Units "
     "\"in\" Min",
     "done"},
    {"Set Map\n  CoordSys Earth Projection 3, 33, \"ft\", -120.5, 43.6, 44.3, 46, 8202099.7, 0\n  Center (764,683)\n"
     "  Zoom 0.54 Units \"mi\"\n  Preserve Zoom Display Zoom\n  Distance Units \"mi\" Area Units \"sq mi\" XY Units "
     "\"ft\"",
     "done"},
    {"Set Map CoordSys NonEarth Units \"ft\" Center (7,8) Preserve Scale Display Position", "done"},
    {"Set Map Distance Units \"ft\" Distance Type Cartesian Redraw Off Clipping Off",
     "set map ... distance type; set map ... redraw; set map ... clipping"},
    {"Set Map Window FrontWindow() Zoom (3.5*(MapperInfo(WindowInfo(WindowID(1),13), 1))/11.9) Units \"ft\"", "done"},
    {"Set Map Window FrontWindow() Zoom Entire Layer \"Zonas\"", "done"},
    {"Set Map Layer 1 Display Global Global Pen (1,2,0)  Brush (2,16777215,16777215)  Symbol "
     "(58,16711680,12,\"Signos\","
     "256,0)  Line (1,2,0)  Font (\"Arial\",0,9,0) Zoom (0, 2500) Units \"mi\" Selectable Off Arrows On Nodes On "
     "Centroids On",
     "done"},
    {"Set Map Layer 1 Label Line Arrow Position Right Font (\"Arial\",517,8,0) Pen (1,2,0) With Capital Auto On "
     "Overlap "
     "Off Duplicates On Offset 5 Visibility Zoom (0, 2000) Units \"ft\" Object 11 Line Arrow Anchor (144,453)",
     "done"},
    {"Set Map Layer 1 Label With \"Cota: \"+Nudo+Chr$(10)+Format$(Cota,\",#.#\") Parallel On PartialSegments On",
     "set map ... partialsegments"},
    {"Set Map Layer 1 Display Graphic Contrast 50 Brightness 50 Alpha 255 Transparency Off Color 0 GrayScale Off",
     "set map ... contrast; set map ... brightness; set map ... alpha; set map ... transparency; set map ... color; "
     "set map ... grayscale"},
    {"Set Map Layer 0 Editable", "done"},
    {"Set Map Order 2, 1, 3", "done"},
    // themes and legends
    {"shade 5 with Tipo values \n  \"3\" Line (2,2,255) ,\n  \"33\" Line (2,2,255) \n  default Line (1,2,0)   # color "
     "1 "
     "# ",
     "done"},
    {"shade 6 with Altura ranges apply all use all Symbol (41,0,8,\"Signos\",0,0) \n  0: 0.01 Symbol (36,16711680,10) "
     ",\n  0.01: 2 Symbol (34,16711680,8) \n  default Symbol (34,16768208,8) \n  # use 1 round 1 inflect off Symbol "
     "(0,0,0) at 0 by 0 color 1 # ",
     "done"},
    {"shade 1 with Uno, Dos pie Angle 180 Max Size 0.3 Units \"in\" At Value 5000 By \"SQRT\" Border Pen (1,2,0) "
     "Position Center Style Brush (2,255,0), Brush (2,65280,0)",
     "done"},
    {"shade 1 with Uno, Dos bar Stacked Normalized Max Size 0.3 Units \"in\" Frame Brush (2,1,2) Width 0.1 Units "
     "\"in\" Style Brush (2,255,0), Brush (2,65280,0)",
     "done"},
    {"shade 1 with Uno graduated 0.0:0 11000:24 Symbol (34,16711680,24) Inflect Off vary size by \"SQRT\"", "done"},
    {"shade 1 with Uno density 100 circle width 2 color 255", "done"},
    {"set legend \n  layer 5 \n    display on \n    shades off \n    symbols off \n    lines on \n    count off \n    "
     "title "
     "auto Font (\"Arial\",0,9,0)\n    subtitle auto Font (\"Arial\",0,8,0)\n    ascending on \n    ranges Font "
     "(\"Arial\",0,8,0)\n      auto display off ,\n      \"Uno\" display on ",
     "done"},
    {"set legend layer 1 display on style size small columns 2", "set legend ... style size; set legend ... columns"},
    {"Create Legend From Window FrontWindow() Show", "done"},
    {"Create Cartographic Legend From Window FrontWindow() Default Frame Title \"# leyenda\" Frame From Layer 2 "
     "Position (1,2) Units \"in\" Title \"Zonas\" Style Font (\"Arial\",1,8,0) Text \"Zona\\nurbana\" Region Pen "
     "(30,2,1) Brush (1,0,2) Text \"Eje\" Line Pen (2,2,3) Text \"Pozo\" Symbol (46,1,18)",
     "done"},
    {"Create Cartographic Legend Position (7,0) Units \"in\" Window Title \"L\" Scrollbars Off Custom Frame From Layer "
     "1 "
     "Border Pen (0,1,0) Using Column object",
     "create cartographic legend ... window title; create cartographic legend ... scrollbars; create cartographic "
     "legend ... custom; create cartographic legend ... using"},
    // objects
    {"Create Point (7,7)\n    Symbol (\"SIGNO.BMP\",2105599,14,0) ", "done"},
    {"Create Rect (MapperInfo(9,5),MapperInfo(9,6)) (MapperInfo(9,7),MapperInfo(9,8)) Pen (5,2,16776960) Brush (1,0,9)",
     "done"},
    {"Create Ellipse (1,2) (3,4) Pen (2,2,16711935) Brush (1,0,16777215)", "done"},
    {"Create Region 1 3 (1,2) (3,4) (5,6) Pen (1,2,3) Center (3,4)", "create region ... center"},
    {"Create Pline 3 (1,2) (3,4) (5,6) Smooth", "create pline ... smooth"},
    {"Create Text \"Zona \\nde obras\" (1,2) (3,4) Font (\"Arial\",257,0,0,16776960) Justify Center Spacing 1.5 Angle "
     "30",
     "done"},
    {"Set CoordSys Layout Units \"in\"", "done"},
    {"Set CoordSys Earth Projection 3, 33, \"ft\", -120.5, 43.6, 44.3, 46, 8, 0 Bounds (-34,-33) (36,37)", "done"},
    // windows
    {"Set Window FrontWindow() ScrollBars Off Autoscroll On", "done"},
    {"Set Window FrontWindow() Printer\n Name \"\\\\S\\P\" Orientation Portrait Copies 1\n Papersize 9",
     "set window ... printer"},
    {"Set Window Info\n  Position (4.9,5.9) Units \"in\"\n  Width 2.6 Units \"in\" Height 0.9 Units \"in\"\n  Font "
     "(\"Arial\",0,8,0)",
     "set window ... font"},
    {"Open Window MapBasic", "done"},
    {"Browse * From Zonas Position (0.1,5.4) Units \"in\" Width 7.9 Units \"in\" Height 1 Units \"in\"", "browse"},
    {"Layout\n  Position (0.1,0.03) Units \"in\"\n  Width 8 Units \"in\" Height 5 Units \"in\"", "layout"},
    {"Set Layout Ruler On Pagebreaks On Frame Contents On Zoom 45/x Center (8*x,5*y) Extents To Fit", "set layout"},
    {"Create Frame (0.6*x,0.6*y) (12*x,10*y) Pen (1,2,0) Brush (2,1,1) Title \"Mapa\" FillFrame On", "create frame"},
    {"Graph Nombre, Uno From Zonas Using \"a\" Series In Columns", "graph"},
    {"Dim ventana As Integer", "done"},
    {"ventana = FrontWindow()", "done"},
    {"Undim ventana", "done"},
    {"Run Menu Command 304", "done"},
    {"Run Application \"otro.wor\"", "done"},
    {"Run Command \"Set \" + SessionInfo(1)", "done"},
    {"Print \"hecho\"", "print"},
    // what writes, runs, deletes or loads
    {"Save Workspace As \"x.wor\"", kOnlyRead},
    {"Save File \"a\" As \"b\"", kOnlyRead},
    {"Commit Table Zonas", kOnlyRead},
    {"Update Q Set Uno = Uno + (Dos + Tres)", kOnlyRead},
    {"Insert Into Zonas (Nombre) Values (\"x\")", kOnlyRead},
    {"Delete From Zonas", kOnlyRead},
    {"Drop Table Zonas", kOnlyRead},
    {"Pack Table Zonas Data", kOnlyRead},
    {"Rename Table Zonas As \"Otras\"", kOnlyRead},
    {"Register Table \"x.dbf\" Type DBF Into \"x.tab\"", kOnlyRead},
    {"Alter Table Zonas (Add Nueva Integer)", kOnlyRead},
    {"Create Table Nueva (a Char(10)) File \"nueva.tab\"", kOnlyRead},
    {"Create Index On Zonas (Nombre)", kOnlyRead},
    {"Export Zonas Into \"x.mif\" Type \"MIF\" Overwrite", kOnlyRead},
    {"Import \"x.mif\" Type \"MIF\"", kOnlyRead},
    {"Kill \"x.tab\"", kOnlyRead},
    {"Open File \"x.txt\" For Output As #1", kOnlyRead},
    {"Write #1, \"x\"", kOnlyRead},
    {"Objects Combine", kOnlyRead},
    {"PrintWin", "refused: no se permite imprimir desde una instrucción: los datos solo se leen"},
    {"Run Program \"programa.exe\"", "refused: no se permite ejecutar ni parar programas: los datos solo se leen"},
    {"Terminate Application \"x.mbx\"", "refused: no se permite ejecutar ni parar programas: los datos solo se leen"},
    {"Declare Function f Lib \"x.dll\" (ByVal a As Integer) As Integer",
     "refused: no se permite cargar código: los datos solo se leen"},
    {"Include \"x.def\"", "refused: no se permite cargar código: los datos solo se leen"},
    {"DDEExecute 5, \"x\"", "refused: no se permite hablar con otros programas: los datos solo se leen"},
    {"Server 1 Commit", "refused: no se permite hablar con otros programas: los datos solo se leen"},
};

TEST(ConformanceTest, formsOfSavedWorkspaces) {
  for (const Form& form : kForms) EXPECT_EQ(outcomeOf(form.text), form.outcome) << form.text;
}

TEST(ConformanceTest, tellsWhereItPassesOver) {
  const Workspace workspace = parseWorkspace(
      "!Workspace\n!Version 600\n!Charset WindowsLatin1\nLayout\nSet Map\n  Redraw Off Zoom 5 Units \"km\"\n");
  EXPECT_EQ(workspace.passedOver, (std::vector<PassedOverPart>{{{4, 1}, "layout"}, {{6, 3}, "set map ... redraw"}}));
}

TEST(ConformanceTest, refusesWhatIsTooMuch) {
  using testing_statements::rejected;
  const std::string deep = "Set Map Layer 1 Label With " + std::string(100'000, '(') + "a" + std::string(100'000, ')');
  EXPECT_NE(rejected(deep).find("demasiados niveles de anidamiento"), std::string::npos);
  std::string calls;
  for (int i = 0; i < 100'000; ++i) calls += "Chr$(";
  EXPECT_NE(rejected("Set Map Layer 1 Label With " + calls).find("demasiados niveles"), std::string::npos);
  std::string sum = "a";
  for (int i = 0; i < 100'000; ++i) sum += "+a";
  EXPECT_NE(rejected("Set Map Layer 1 Label With " + sum).find("demasiado larga"), std::string::npos);
  std::string layers = "Map From a";
  layers.reserve(20'000'016);
  for (int i = 1; i < 10'000'000; ++i) layers += ",a";
  EXPECT_NE(rejected(layers).find("demasiadas palabras"), std::string::npos);
}

}  // namespace
}  // namespace motor
