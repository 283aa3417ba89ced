#include "motor/session/session_fixture.h"

namespace motor {
namespace {

struct Rejected {
  std::string text;
  std::string message;  // what the description contains
};

void PrintTo(const Rejected& r, std::ostream* out) { *out << r.text; }

class RejectedStatements : public SessionTest, public testing::WithParamInterface<Rejected> {};

TEST_P(RejectedStatements, areRejectedWithTheReason) {
  openYear();
  EXPECT_NE(rejectedRun(GetParam().text).find(GetParam().message), std::string::npos) << rejectedRun(GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Session, RejectedStatements,
    testing::Values(
        Rejected{"set map zzz", "línea 1, columna 9: «zzz»"},
        Rejected{"set map zoom entire\nset map\n  qqq", "línea 3, columna 3: «qqq»"},
        Rejected{"select * from 1999 where nombre=\"a\"", "línea 1, columna 15: «1999»"},
        Rejected{"select * from Provincias1999", "Provincias1999"},
        Rejected{"select * from Provincias2001 where nombre=\"a\"b\"", "línea 1, columna"},
        Rejected{"Fetch first from Nada", "Nada"},
        Rejected{"fetch first from selection", "«selection» no está abierta"},
        Rejected{"Add map layer Selection", "no hay nada seleccionado"},
        Rejected{"set map order 2,1,4", "no tiene la capa 4"}, Rejected{"set map order 0,1", "la capa 0"},
        Rejected{"set map order 2,2", "aparece dos veces"},
        Rejected{"set map order 2,1.4", "línea 1, columna 17: «1.4»: se esperaba un número entero"},
        Rejected{"set map layer 4 display off", "línea 1, columna 15: «4»"},
        Rejected{"Remove Map Layer \"Nada\"", "«Nada»"}, Rejected{"set map zoom 0 units \"km\"", "positiva"},
        Rejected{"set map zoom 5 units \"legua\"", "legua"}, Rejected{"run menu command ID 2005", "2005"},
        Rejected{"run menu command 9999", "9999"},
        Rejected{"Alter ButtonPad \"Nada\" add Toolbutton ID 1 Calling OLE \"x\"", "«Nada»"},
        Rejected{"set window 1 Max", "identificador 1"},
        Rejected{"Set Window frontwindow() width 5 units \"qq\"", "qq"},
        Rejected{"Save Table Provincias2001", "solo se leen"}, Rejected{"Run Program \"x.exe\"", "solo se leen"},
        Rejected{"run application \"C:\\nada.wor\"", "nada.wor"}, Rejected{"Open Table \"Nada\"", "no se encuentra"},
        Rejected{"Open Table \"..\\x\"", "no se encuentra"}, Rejected{"Open Table \"CON\"", "ruta no permitida"},
        Rejected{"Open Table \"aux.tab\"", "ruta no permitida"},
        Rejected{"Open Table \"/etc/passwd.tab\"", "no se encuentra"},
        Rejected{"Open Table \"\\\\servidor\\x\"", "ruta no permitida"},
        Rejected{"Shade 9 with Valor values 1 Brush (2,1,1)", "«9»"},
        Rejected{"Set Shade Prev with Valor values 1 Brush (2,1,1)", "Prev"}, Rejected{"a = 5", "«a»"},
        Rejected{"select * from Provincias2001 into Selection", "Selection"},
        Rejected{"select * from Provincias2001 into Veldoria2001", "«Veldoria2001»"}));

class RejectedExpressions : public SessionTest, public testing::WithParamInterface<Rejected> {};

TEST_P(RejectedExpressions, areRejectedWithTheReason) {
  openYear();
  EXPECT_NE(rejectedEval(GetParam().text).find(GetParam().message), std::string::npos) << rejectedEval(GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Session, RejectedExpressions,
    testing::Values(Rejected{"Selection.nombre", "línea 1, columna 1: «Selection.nombre»"},
                    Rejected{"1 + Provincias2001.nada", "columna 5: «Provincias2001.nada»"},
                    Rejected{"nada", "columna 1: «nada»"}, Rejected{"nada(1)", "columna 1: «nada»"},
                    Rejected{"layerinfo(frontwindow(),9,1)", "no tiene esa capa"},
                    Rejected{"layerinfo(frontwindow(),1,99)", "atributo 99"},
                    Rejected{"mapperinfo(5,9)", "identificador 5"}, Rejected{"windowid(2)", "número 2"},
                    Rejected{"tableinfo(9,1)", "número"}, Rejected{"tableinfo(\"Nada\",1)", "«Nada»"},
                    Rejected{"selectioninfo(4)", "atributo 4"}, Rejected{"searchinfo(1,1)", "tantos"},
                    Rejected{"EOT(Nada)", "Nada"}, Rejected{"commandinfo(9)", "atributo 9"},
                    Rejected{"centroidx(1)", "objeto"}, Rejected{"frontwindow(", "línea 1, columna"}));

TEST_F(SessionTest, allStatementsAreParsedBeforeTheFirstRuns) {
  openYear();
  EXPECT_NE(rejectedRun("Remove Map Layer 1 fooo"), "accepted");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),9)"), "3");
}

// However much of a statement is missing, it is accepted or rejected, and nothing else happens.
TEST_F(SessionTest, cutStatementsAreAcceptedOrRejected) {
  openYear();
  run("select * from Provincias2001");
  const std::vector<std::string> statements{
      "Set map center (centroidX(selection.obj),centroidy(selection.obj))zoom 300 units \"Km\" layer 1 display global "
      "global brush (2,255,255) Pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215)",
      "Select Año,Nombre,valor from Provincias2001 where nombre like \"Á%\" group by nombre order by sexo,tipo into Q",
      "Alter buttonpad \"Main\" add Toolbutton ID 2002 DrawMode 34 Cursor 138 Calling OLE \"InfoEstadisticas\"",
      "Create Menu \"MapperShortcut\" ID 17 as \"&Ver\" calling 807,\"&Quitar\" calling OLE \"borraseleccion\"",
      "Shade 1 with Valor ranges apply all 0: 20 Brush (2,1,1), 20: 40 Brush (2,2,2) default Pen (1,2,0)",
      "set window legend position (6,5) units \"in\" Add Map Layer Selection Set Map Order 2,1 Remove Map Layer 1",
      "Create Ellipse (-4,40) (-3,41) Pen (1,2,0) Add Column Veldoria2001 (A Float) Values 1,2,3"};
  for (const std::string& statement : statements) {
    for (std::size_t length = 0; length <= statement.size(); ++length) {
      const std::string outcome = rejectedRun(statement.substr(0, length));
      EXPECT_FALSE(outcome.empty());
    }
  }
  EXPECT_EQ(eval("numwindows()"), "1");
}

TEST_F(SessionTest, aRejectedSetMapChangesNothing) {
  openYear();
  run("Set Distance Units \"km\"");
  EXPECT_NE(rejectedRun("set map zoom 5 units \"km\" distance units \"m\" layer 1 display off layer 9 display off"),
            "accepted");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),1)"), "700");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),12)"), "km");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,9)"), "2");
}

TEST_F(SessionTest, aSelectionWithoutRowsCannotBeRead) {
  openYear();
  run("select * from Provincias2001 where nombre=\"Nadie\"");
  EXPECT_NE(rejectedEval("Selection.nombre").find("no tiene fila actual"), std::string::npos);
  run("select * from Provincias2001");
  EXPECT_EQ(eval("Selection.nombre"), "Ñorga");
  run("fetch last from selection");
  run("fetch next from selection");
  EXPECT_NE(rejectedEval("Selection.nombre").find("no tiene fila actual"), std::string::npos);
}

TEST_F(SessionTest, anUnknownWindowIsRejectedWithoutAMap) {
  EXPECT_NE(rejectedRun("set map zoom entire").find("no hay ninguna ventana de mapa abierta"), std::string::npos);
  EXPECT_EQ(eval("frontwindow()"), "0");
  EXPECT_EQ(eval("windowid(0)"), "0");
}

TEST_F(SessionTest, programsThatRunThemselvesEnd) {
  EXPECT_NE(rejectedRun("Dim s As String s = \"Run Command s\" Run Command s"), "accepted");
  EXPECT_EQ(eval("1"), "1");
}

}  // namespace
}  // namespace motor
