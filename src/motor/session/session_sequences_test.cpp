#include "motor/session/session_fixture.h"

// The sequences of statements and expressions with which a program consults a map.
namespace motor {
namespace {

class SequenceTest : public SessionTest {
 protected:
  // Takes a query's layer off the map, if it is on top.
  void removeQueryLayer() {
    const std::string window = eval("frontwindow()");
    if (eval("LayerInfo(" + window + ",1,1)").substr(0, 5) != "Query") return;
    run("set map layer 1 label default ");
    run("Remove map layer 1 Interactive");
    run("Set map zoom entire");
  }

  // The Selection's rows as a program lists them.
  std::vector<std::string> walk() {
    std::vector<std::string> lines;
    run("Fetch first from selection");
    while (eval("EOT(\"Selection\")") == "F") {
      lines.push_back(eval("Selection.sexo") + "/" + eval("Selection.tipo") + "/" + eval("selection.indicador") + "/" +
                      eval("Formatnumber$(round(Selection.valor,0.01))"));
      run("Fetch next from selection");
    }
    return lines;
  }

  static std::vector<std::string> rows(const std::vector<std::string>& values) {
    std::vector<std::string> lines;
    for (const char* sex : {"Ambos sexos", "Hombres", "Mujeres"}) {
      lines.push_back(std::string(sex) + "/General/Fallecidos/" + values[0]);
      lines.push_back(std::string(sex) + "/General/Población/" + values[1]);
      lines.push_back(std::string(sex) + "/Grandes grupos/Tasa estandarizada (x100.000) de Tumores/" + values[2]);
      lines.push_back(std::string(sex) + "/Lista reducida/Tasa estandarizada (x100.000) de Diabetes mellitus/" +
                      values[3]);
    }
    return lines;
  }

  const std::string highlight_ =
      "layer 1 display global global brush (2,255,255) Pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215)";
};

TEST_F(SequenceTest, listsAreInAlphabeticalOrder) {
  openYear();
  run("Select nombre from provincias2001 group by nombre");
  EXPECT_EQ(column("Selection.nombre"), (std::vector<std::string>{"Ávalos", "Brisa", "Ñorga"}));
  run("Select Nombre from ZonasBasicas2001 where Provincia=\"Ávalos\" group by nombre");
  EXPECT_EQ(column("Selection.Nombre"), (std::vector<std::string>{"Encina", "Fresno"}));
}

TEST_F(SequenceTest, aProvinceIsConsultedAndTakenOffAgain) {
  openYear();
  run("Set Map layer 1 selectable on display global zoom (0,100000) Off layer 2 display off");
  run("Select Año,Nombre,Sexo,Tipo,indicador,valor from provincias2001 where nombre=\"Ávalos\" order by sexo,tipo");
  run("Add map layer Selection");
  run("Set map center (centroidX(selection.obj),centroidy(selection.obj))zoom 300 units \"Km\" " + highlight_);
  run("Select año,nombre,sexo,tipo,indicador,valor from provincias2001 where nombre=\"Ávalos\" order by sexo,tipo");
  run("Fetch first from selection");
  EXPECT_EQ(eval("Selection.año") + eval("Selection.nombre"), "2001Ávalos");
  EXPECT_EQ(walk(), rows({"1.234", "567.890", "0,1", "12,35"}));
  EXPECT_EQ(eval("mapperinfo(frontwindow(),9)"), "4");

  removeQueryLayer();
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "Provincias2001");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),3)"), "-3");
  const std::string zoom = eval("mapperinfo(frontwindow(),1)");
  removeQueryLayer();
  EXPECT_EQ(eval("mapperinfo(frontwindow(),1)"), zoom);
}

TEST_F(SequenceTest, aZoneIsFollowedByTheUnitsAboveIt) {
  openYear();
  run("Select provincia from ZonasBasicas2001 where nombre=\"Pino\"");
  EXPECT_EQ(eval("Selection.COL1"), "Brisa");
  run("Select Año,Nombre,Sexo,Tipo,indicador,valor from Provincias2001 where nombre=\"Brisa\" order by sexo,tipo");
  EXPECT_EQ(walk(), rows({"1.234", "567.890", "0,1", "12,35"}));
  run("Select Año,Nombre,Sexo,Tipo,indicador,valor from Veldoria2001 order by sexo,tipo");
  EXPECT_EQ(walk(), rows({"3.702", "1.703.670", "0,3", "37,04"}));
}

TEST_F(SequenceTest, theUnitIsConsultedAgainInAnotherYear) {
  openWorkspace("2002\\Año2002.wor");
  run("set map layer 1 label default layer 2 label default");
  run("Select Año,Nombre,Sexo,Tipo,indicador,valor from ZonasBasicas2002 where nombre=\"Encina\" order by sexo,tipo");
  run("Add map layer Selection");
  run("set map center (CentroidX(selection.obj),CentroidY(selection.obj)) zoom 300 units \"km\" " + highlight_ +
      " layer 2 display graphic layer 3 display global");
  EXPECT_EQ(eval("layerinfo(frontwindow(),2,9)") + eval("layerinfo(frontwindow(),3,9)"), "12");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),3)") + " " + eval("mapperinfo(frontwindow(),4)"), "-5 40.5");
  EXPECT_EQ(walk(), rows({"617", "283.945", "0,05", "6,17"}));
}

TEST_F(SequenceTest, placesAreFoundByTheirBeginning) {
  openYear();
  run("Select nombre from ZonasBasicas2001 where nombre like \"ala%\" group by nombre");
  EXPECT_NE(eval("SelectionInfo(3)"), "0");
  EXPECT_EQ(column("Selection.nombre"), std::vector<std::string>{"Álamo"});
  run("Select nombre from ZonasBasicas2001 where nombre like \"xyz%\" group by nombre");
  EXPECT_EQ(eval("SelectionInfo(3)"), "0");
}

TEST_F(SequenceTest, theInfoToolListsWhatIsUnderThePoint) {
  openWorkspace("Tematicos\\Tumores.wor");
  const std::string x = "-5.25";
  const std::string y = "41";
  removeQueryLayer();
  ASSERT_EQ(eval("SearchPoint(WindowID(1)," + x + "," + y + ")"), "1");
  const std::string table = eval("SearchInfo(1,1)");
  const std::string row = eval("SearchInfo(1,2)");
  run("Fetch Rec " + row + " From " + table);
  run("Set map zoom 200 units \"km\" center(" + x + ", " + y + ")");
  run("Select obj from " + table + " where rowid=" + row);
  EXPECT_EQ(eval(table + ".col1"), "Ávalos");
  EXPECT_EQ(eval(table + ".col3"), "Ambos sexos");
  EXPECT_EQ(eval(table + ".col2"), "Tasa estandarizada (x100.000) de Tumores");
  EXPECT_EQ(eval("Formatnumber$(round(" + table + ".col5,0.01))"), "30,5");
  EXPECT_EQ(map().selectedRows().rows, std::vector<RowId>{2});
}

TEST_F(SequenceTest, theThematicObjectIsFoundAgain) {
  openWorkspace("Tematicos\\Tumores.wor");
  const std::string table = eval("Tableinfo(1,1)");
  run("Select CentroidX(obj), CentroidY(obj) from " + table + " where nombre=\"Ávalos\"");
  run("Set map zoom 200 units \"km\"  center(" + eval("Selection.COL1") + ", " + eval("Selection.COL2") + ")");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),3)") + " " + eval("mapperinfo(frontwindow(),4)"), "-5 41.5");
  run("Select * from " + table + " where nombre=\"Ávalos\"");
  EXPECT_EQ(eval(table + ".Nombre") + "/" + eval(table + ".Sexo"), "Ávalos/Ambos sexos");
  EXPECT_EQ(eval("Formatnumber$(round(" + table + ".Valor,0.01))"), "30,5");
}

TEST_F(SequenceTest, theStatisticsToolReadsTheBaseTableAlongTheSelection) {
  openWorkspace("Estadisticas\\Estadisticas.wor");
  removeQueryLayer();
  const std::string layer = eval("layerinfo(frontwindow(),1,1)");
  run("Select * from " + layer + "  where obj contains createpoint(-1,42) order by tipo,indicador");
  ASSERT_EQ(eval("Selectioninfo(3)"), "4");
  run("fetch first from selection");
  ASSERT_EQ(eval("tableinfo(\"Selection\",8)"), "4");
  EXPECT_EQ(eval("TableInfo(" + layer + ",4)"), "4");
  std::vector<std::string> lines;
  for (int row = 1; row <= 4; ++row) {
    lines.push_back(eval(layer + ".col1") + "/" + eval(layer + ".col2") + "/" + eval(layer + ".col3") + "/" +
                    eval("Formatnumber$(round(" + layer + ".col4,0.01))"));
    run("fetch next from selection");
  }
  EXPECT_EQ(lines, (std::vector<std::string>{
                       "Brisa/General/Fallecidos/1.234", "Brisa/General/Población/567.890",
                       "Brisa/Grandes grupos/Tasa estandarizada (x100.000) de Tumores/0,1",
                       "Brisa/Lista reducida/Tasa estandarizada (x100.000) de Diabetes mellitus/12,35"}));
  run("Select * from " + layer + "  where obj contains createpoint(-1,42)");
  run("Select obj from selection where rowid=1");
  EXPECT_EQ(eval("SelectionInfo(1)"), "Estadisticas");
  EXPECT_EQ(map().selectedRows().rows, std::vector<RowId>{9});
}

TEST_F(SequenceTest, theDataToolListsEveryLayerUnderThePoint) {
  openYear();
  removeQueryLayer();
  const int layers = session.eval("mapperinfo(frontwindow(),9) ").int16();
  run("set map order 2,1,3");
  std::vector<std::string> units;
  for (int i = 1; i <= layers; ++i) {
    const std::string number = std::to_string(i);
    if (eval("Layerinfo(frontwindow()," + number + ",9)") == "0") continue;
    run("Select * from " + eval("layerinfo(frontwindow()," + number + ",1)") +
        "  where obj contains createpoint(-3.5,42) order by sexo,tipo");
    ASSERT_EQ(eval("Selectioninfo(3)"), "12");
    run("fetch first from selection");
    units.push_back(eval("Selection.nombre"));
    EXPECT_EQ(walk().size(), 12U);
  }
  run("set map order 2,1,3");
  EXPECT_EQ(units, (std::vector<std::string>{"Álamo", "Ñorga"}));
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "Provincias2001");
  ASSERT_NE(eval("Layerinfo(frontwindow(),2,9)"), "0");
  run("Select * from ZonasBasicas2001  where obj contains createpoint(-3.5,42) order by indicador,sexo");
  run("Add map layer Selection");
  run("Set map center (-3.5, 42) zoom 300 units \"Km\" " + highlight_);
  EXPECT_EQ(eval("Selection.nombre"), "Álamo");
  EXPECT_EQ(eval("layerinfo(frontwindow(),1,1)"), "Query1");
  EXPECT_EQ(eval("mapperinfo(frontwindow(),3)") + " " + eval("mapperinfo(frontwindow(),4)"), "-3.5 42");
}

TEST_F(SequenceTest, anOpenedMapIsSetUpForItsHost) {
  run("Set application Window 65938");
  openYear();
  run("Set Window Ruler Parent 65939");
  run("Set Window Legend Parent 65939");
  const std::string id = std::to_string(session.eval("WindowID(1)").int32());
  EXPECT_EQ(session.eval("WindowInfo(" + id + ", 12)").number(), 900001);
  run("set window " + id + "Max");
  run("open window legend");
  run("set window legend position (6,5) units \"in\" ");
  EXPECT_EQ(map().rulerParent(), 65939);
  EXPECT_EQ(windows.notes.back(), "legend in 65939 at 576,480");
}

}  // namespace
}  // namespace motor
