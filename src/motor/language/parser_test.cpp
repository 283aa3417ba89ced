#include "motor/language/testing_statements.h"

namespace motor {
namespace {

using testing_statements::parsed;
using testing_statements::rejected;

TEST(InertStatementsTest, passOverAndRefuse) {
  struct Case {
    const char* source;
    const char* name;
  };
  const Case passedOver[] = {
      {"Browse * From alt_dsc Position (0.1,5.4) Units \"in\" Width 7.9 Units \"in\"", "Browse"},
      {"Layout Position (1,2) Units \"in\" Width 8 Units \"in\"", "Layout"},
      {"Set Layout Ruler On Pagebreaks On Zoom 45.2381/x Center (8.5*x,5.5*y) Extents To Fit", "Set Layout"},
      {"Create Frame (1,2) (3,4) Pen (1,2,0) Title \"Main Map\" FillFrame On", "Create Frame"},
      {"Graph a, b From t", "Graph"},
      {"Graph a, b From t Position (1,2) Using \"x\" Restore Series In Columns", "Graph"},
      {"Browse link, update \"al día\", print From t Min", "Browse"},
      {"Browse * From link Row 5 Column 2 Grid Off Max", "Browse"},
      {"Create Frame Into Window 5 (1,2) (3,4) Title t From Window FrontWindow()", "Create Frame"},
      {"Set Browse Window 5 Grid Off Row 3", "Set Browse"},
      {"Set Graph Window 5 Type Bar Stacked Off Title \"x\" Font (\"Arial\",1,9,0)", "Set Graph"},
      {"Set Layout Frame Contents Active Zoom To Fit Extents 2, 3", "Set Layout"},
      {"Set PrinterSettings Name \"x\" Orientation Portrait Copies 2", "Set PrinterSettings"},
      {"Set Style Pen MakePen(1,2,RED)", "Set Style"},
      {"Set Style Brush (1,2,3)", "Set Style"},
      {"Set Resolution 100", "Set Resolution"},
      {"Set ProgressBars Off", "Set ProgressBars"},
      {"Set Cartographic Legend Window 5 Portrait Columns 2 Frame Order 1, 2", "Set Cartographic"},
      {"Set Digitizer (1,2) (3,4) Label \"a\", (5,6) (7,8) CoordSys Earth Units \"mm\" Button 1, 2 Mode On",
       "Set Digitizer"},
      {"Set Digitizer Off", "Set Digitizer"},
      {"Reload Symbols Using Vector \"x\"", "Reload Symbols"},
      {"Print \"hola\", 1+2; t.update", "Print"},
  };
  for (const Case& c : passedOver) EXPECT_EQ(parsed<PassedOver>(c.source).name, c.name);
  const Case refused[] = {
      {"Save Table t", "Save"},
      {"Commit Table t As \"x.tab\"", "Commit"},
      {"Insert Into t (a) Values (1)", "Insert"},
      {"Update t Set a = 1 Where b = 2", "Update"},
      {"Delete From t Where a = 1", "Delete"},
      {"Drop Table t", "Drop"},
      {"Create Table t (a Char(10)) File \"x\"", "Create Table"},
      {"Run Program \"format c:\"", "Run Program"},
      {"Export t Into \"x.mif\" Type \"MIF\"", "Export"},
      {"Declare Sub X Lib \"evil.dll\" (a As Integer)", "Declare"},
      {"Open File \"x\" For Output As #1", "Open File"},
      {"Kill \"x\"", "Kill"},
  };
  for (const Case& c : refused) EXPECT_EQ(parsed<Refused>(c.source).name, c.name) << c.source;
}

TEST(ParseProgramTest, findsWhereStatementsEnd) {
  const auto two = parseProgram(
      "Add map layer Selection Set map center (1,2) zoom 300 units \"km\" layer 1 display global global brush "
      "(2,255,255)");
  ASSERT_EQ(two.size(), 2U);
  EXPECT_TRUE(std::holds_alternative<AddMapLayer>(two[0]));
  EXPECT_EQ(std::get<SetMap>(two[1]).position, (Position{1, 25}));
  const auto skipped = parseProgram(
      "Layout Width 5 Units \"in\"\nSet CoordSys Layout Units \"in\"\nBrowse * From t\nx = 5\nDim y As Float");
  ASSERT_EQ(skipped.size(), 5U);
  EXPECT_TRUE(std::holds_alternative<PassedOver>(skipped[0]));
  EXPECT_TRUE(std::holds_alternative<SetCoordSys>(skipped[1]));
  EXPECT_TRUE(std::holds_alternative<Assignment>(skipped[3]));
  EXPECT_TRUE(parseProgram("  ' nothing\n").empty());
}

TEST(ParseProgramTest, saysWhatWasNotUnderstood) {
  struct Case {
    const char* source;
    const char* message;
  };
  const Case cases[] = {
      {"fooo", "línea 1, columna 1: «fooo»: se esperaba el principio de una instrucción"},
      {"Set Map", "línea 1, columna 8: fin del texto: se esperaba una cláusula de Set Map"},
      {"Set Map Zoom 3 fooo", "línea 1, columna 16: «fooo»: se esperaba el principio de una instrucción"},
      {"Set Map Layer 1\n Display Fooo", "línea 2, columna 10: «Fooo»: se esperaba Off, Graphic, Global o Value"},
      {"Select nombre fron t", "línea 1, columna 15: «fron»: se esperaba From"},
      {"Select * from", "línea 1, columna 14: fin del texto: se esperaba el nombre de una tabla"},
      {"Select * from t where nombre=\"a\"b\"", "línea 1, columna 34: «\"»: falta la comilla de cierre"},
      {"Select * from t where nombre=\"a\" b", "línea 1, columna 34: «b»: se esperaba el principio de una instrucción"},
      {"Select * from t order by a+1", "línea 1, columna 27: «+»: se esperaba el principio de una instrucción"},
      {"Select * from t order by f(1)",
       "línea 1, columna 30: fin del texto: sólo se puede ordenar o agrupar por columnas"},
      {"Fetch Fooo From t", "línea 1, columna 7: «Fooo»: se esperaba First, Last, Next, Prev o Rec"},
      {"Add Map Layer", "línea 1, columna 14: fin del texto: se esperaba el nombre de una tabla"},
      {"Set Window 5", "línea 1, columna 13: fin del texto: se esperaba una cláusula de Set Window"},
      {"Set Map Zoom 3 Units km", "línea 1, columna 22: «km»: se esperaba una unidad entre comillas"},
      {"Set Map Center 1,2", "línea 1, columna 16: «1»: se esperaba «(»"},
      {"Shade 1 With a Fooo", "línea 1, columna 16: «Fooo»: se esperaba Ranges, Values, Pie, Bar, Graduated o Density"},
      {"Shade 1 With a Values 1 Pen (1,2,3) # color", "línea 1, columna 44: fin del texto: se esperaba «#»"},
      {"Set CoordSys Luna", "línea 1, columna 14: «Luna»: se esperaba Earth, NonEarth, Layout, Table o Window"},
      {"Create Region 2.5", "línea 1, columna 15: «2.5»: se esperaba un número de puntos"},
      {"Create Region 1 9999999999 (1,2)", "línea 1, columna 17: «9999999999»: se esperaba un número de puntos"},
      {"Fetch first from t\nfooo", "línea 2, columna 1: «fooo»: se esperaba el principio de una instrucción"},
  };
  for (const Case& c : cases) EXPECT_EQ(rejected(c.source), c.message) << c.source;
}

TEST(InertStatementsTest, passOverNothingUnknown) {
  struct Case {
    const char* source;
    const char* message;
  };
  const Case cases[] = {
      {"Browse * From t\nFooo bar baz\nMap From t",
       "línea 2, columna 1: «Fooo»: se esperaba el principio de una instrucción"},
      {"print \"hola\" fooo", "línea 1, columna 14: «fooo»: se esperaba el principio de una instrucción"},
      {"Browse fooo bar From t", "línea 1, columna 13: «bar»: se esperaba From"},
      {"Layout Fooo 5", "línea 1, columna 8: «Fooo»: se esperaba el principio de una instrucción"},
      {"Layout Width 5 Units in", "línea 1, columna 22: «in»: se esperaba una unidad entre comillas"},
      {"Set Layout Fooo On", "línea 1, columna 12: «Fooo»: se esperaba una cláusula de Set Layout"},
      {"Set Layout Ruler Fooo", "línea 1, columna 18: «Fooo»: se esperaba el principio de una instrucción"},
      {"Create Frame (1,2) Title \"x\"", "línea 1, columna 20: «Title»: se esperaba «(»"},
      {"Graph a From t Fooo", "línea 1, columna 16: «Fooo»: se esperaba el principio de una instrucción"},
      {"Set Style Fooo", "línea 1, columna 11: «Fooo»: se esperaba Pen, Brush, Symbol, Font, BorderPen o LinePen"},
      {"Set ProgressBars", "línea 1, columna 17: fin del texto: se esperaba On u Off"},
      {"Set Cartographic Fooo", "línea 1, columna 18: «Fooo»: se esperaba Legend"},
      {"Reload Symbols Using Fooo", "línea 1, columna 22: «Fooo»: se esperaba Bitmap o Vector"},
  };
  for (const Case& c : cases) EXPECT_EQ(rejected(c.source), c.message) << c.source;
}

TEST(ParseProgramTest, countsFromAGivenPosition) {
  try {
    static_cast<void>(parseProgram("fooo", {4, 3}));
    ADD_FAILURE();
  } catch (const LanguageError& error) {
    EXPECT_EQ(error.position(), (Position{4, 3}));
  }
}

}  // namespace
}  // namespace motor
