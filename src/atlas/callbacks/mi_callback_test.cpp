#include "atlas/callbacks/mi_callback.h"

#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;
using testing::Row;
using testing::Rows;

const std::string kClickElsewhere =
    "msgbox 0 [Mortalidad en Veldoria 1999-2002] Pinche sobre un objeto del mapa por favor.";
const Lines kNoticeShown{"set txtEspere.Visible True", "set txtespere1.Visible True"};
const Lines kNoticeHidden{"set txtEspere.Visible False", "set txtespere1.Visible False"};
const Lines kNoQueryLayer{"eval frontwindow() = 77", "eval LayerInfo(77,1,1) = Provincias1999"};

Lines joined(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

class Callback : public testing::Program {
 protected:
  void SetUp() override {
    startOnTab(2);
    pick(main().CmbBuscar, "Provincias");
    main().TreeView1.add(nullptr, "antes");
    world.lines.clear();
  }
  void click(const std::string& method, const std::string& message = "MI:10.5,20.5") {
    EXPECT_TRUE(world.callback->invoke(method, message));
  }
  Lines tree() { return testing::describe(main().TreeView1); }
};

TEST_F(Callback, MethodsAreFoundWithoutRegardToCase) {
  EXPECT_EQ(world.callback->className(), "MICallback");
  EXPECT_EQ(world.callback->methods(), (Lines{"infoEstadisticas", "info", "InfoDatos", "borraseleccion"}));
  for (const char* method : {"Info", "info", "INFODATOS", "InfoEstadisticas", "BorraSeleccion"}) {
    EXPECT_TRUE(world.callback->invoke(method, "x")) << method;
  }
  EXPECT_FALSE(world.callback->invoke("Infos", "MI:1,2"));
}

TEST_F(Callback, AMessageOfAnotherKindIsShown) {
  const Lines box{"msgbox 0 [Mortalidad en Veldoria 1999-2002] Callback incorrecto XX:1,2"};
  for (const char* tool : {"Info", "InfoDatos", "InfoEstadisticas"}) {
    click(tool, "XX:1,2");
    EXPECT_EQ(world.take(), joined({kNoticeShown, kNoQueryLayer, box})) << tool;
  }
  click("borraseleccion", "XX:1,2");
  EXPECT_EQ(world.take(), box);
  EXPECT_EQ(tree(), (Lines{"antes"}));
}

TEST_F(Callback, NineFieldsEndInSilence) {
  click("Info", "MI:11,22,33,44,55,66,77,88,99");
  EXPECT_EQ(world.take(), joined({kNoticeShown, kNoQueryLayer}));
}

TEST_F(Callback, AQueryLayerIsRemovedFirstEachToolInItsOwnWords) {
  const std::vector<std::pair<const char*, std::string>> statements{
      {"Info", "do set map layer 1 label default"},
      {"InfoDatos", "do set map layer 1 label default"},
      {"borraseleccion", "do set map layer 1 label default"},
      {"InfoEstadisticas", "do Set map layer 1 label default"}};
  world.topLayer = "Query3";
  for (const auto& [tool, statement] : statements) {
    click(tool, "MI:10,20");
    const Lines lines = world.take({"do"});
    const auto first = std::ranges::find(lines, statement);
    ASSERT_LE(first + 3, lines.end()) << tool;
    EXPECT_EQ(Lines(first, first + 3),
              (Lines{statement, "do Remove map layer 1 Interactive", "do Set map zoom entire"}))
        << tool;
  }
}

TEST_F(Callback, BorraseleccionClearsSelectionAndTreeTwice) {
  click("borraseleccion");
  EXPECT_EQ(world.take(), joined({{"do run menu command 304", "clear TreeView1"}, kNoQueryLayer, {"clear TreeView1"}}));
}

class Info : public Callback {
 protected:
  void twoHits() {
    world.answers = {{"searchpoint(windowid(1),10.5,20.5)", "2"},
                     {"searchinfo(1,1)", "Zonas"},
                     {"searchinfo(1,2)", "12"},
                     {"searchinfo(2,1)", "Prov"},
                     {"searchinfo(2,2)", "3"},
                     {"zonas.col1", "Alameda"},
                     {"zonas.col2", "Tasa estandarizada (x100.000) de Tumores"},
                     {"zonas.col3", "Hombres"},
                     {"formatnumber$(round(zonas.col5,0.01))", "12,35"},
                     {"prov.col1", "Norte"},
                     {"prov.col2", "Población"},
                     {"prov.col3", "Mujeres"},
                     {"formatnumber$(round(prov.col5,0.01))", "1.000"}};
  }
};

TEST_F(Info, ListsEveryHitAndShowsTheFirst) {
  twoHits();
  click("Info");
  EXPECT_EQ(tree(), (Lines{"Alameda * 8388608 +", "  Hombres", "  Tumores: 12,35", "Norte * 8388608 +", "  Mujeres",
                           "  Población: 1.000"}));
  EXPECT_EQ(world.take({"do", "set txt"}),
            joined({kNoticeShown,
                    {"do Fetch Rec 12 From Zonas", "do Set map zoom 200 units \"km\" center(10.5, 20.5)",
                     "do Select obj from Zonas where rowid=12", "do Fetch Rec 3 From Prov"},
                    kNoticeHidden}));
  EXPECT_EQ(atlas.nombreinfo, "Norte");
}

TEST_F(Info, EvaluatesInOrder) {
  twoHits();
  world.answers["searchpoint(windowid(1),10.5,20.5)"] = "1";
  click("info");
  EXPECT_EQ(world.take({"eval"}),
            joined({kNoQueryLayer,
                    {"eval SearchPoint(WindowID(1),10.5,20.5) = 1", "eval SearchInfo(1,1) = Zonas",
                     "eval SearchInfo(1,2) = 12", "eval Zonas.col1 = Alameda", "eval Zonas.col3 = Hombres",
                     "eval Zonas.col2 = Tasa estandarizada (x100.000) de Tumores",
                     "eval Formatnumber$(round(Zonas.col5,0.01)) = 12,35", "eval Zonas.col1 = Alameda"}}));
}

TEST_F(Info, WithoutAHitNothingIsZoomedOrSelected) {
  world.answers = {{"searchpoint(windowid(1),10.5,20.5)", "0"}};
  atlas.nombreinfo = "Norte";
  click("Info");
  EXPECT_EQ(tree(), Lines{});
  EXPECT_EQ(world.take({"do", "msgbox", "set txt"}), kNoticeShown) << "the notices stay";
  EXPECT_EQ(atlas.nombreinfo, "Norte");
}

class InfoEstadisticas : public Callback {
 protected:
  void SetUp() override {
    Callback::SetUp();
    world.answers = {{"layerinfo(frontwindow(),1,1)", "Stat"}, {"tableinfo(stat,4)", "5"}};
  }
  static Row row(const std::string& group, const std::string& label, const std::string& value) {
    return {{"col1", "Veldoria"}, {"col2", group}, {"col3", label}, {"col4", value}};
  }
};

TEST_F(InfoEstadisticas, GroupsByTheSecondColumnInRowOrder) {
  world.tables = {
      {"from Stat ", {row("A", "uno", "1"), row("A", "dos", "2"), row("B", "tres", "3"), row("A", "cuatro", "4")}}};
  click("InfoEstadisticas");
  EXPECT_EQ(tree(), (Lines{"Veldoria * 8388608 +", "  A", "    uno: 1", "    dos: 2", "  B", "    tres: 3", "  A",
                           "    cuatro: 4"}));
  EXPECT_EQ(world.take({"do", "set txt", "expand"}),
            joined({kNoticeShown,
                    {"do Select * from Stat  where obj contains createpoint(10.5,20.5) order by tipo,indicador",
                     "do fetch first from selection", "expand 1", "do fetch next from selection", "expand 1",
                     "do fetch next from selection", "expand 1", "do fetch next from selection", "expand 1",
                     "do fetch next from selection", "do Select * from Stat  where obj contains createpoint(10.5,20.5)",
                     "do Select obj from selection where rowid=1"},
                    kNoticeHidden}));
}

TEST_F(InfoEstadisticas, NarrowTablesGiveFewerNodes) {
  world.tables = {{"from Stat ", {row("A", "uno", "1"), row("B", "dos", "2")}}};
  world.answers["tableinfo(stat,4)"] = "1";
  click("InfoEstadisticas");
  EXPECT_EQ(tree(), (Lines{"Veldoria * 8388608 +"}));
  world.answers["tableinfo(stat,4)"] = "2";
  click("InfoEstadisticas");
  EXPECT_EQ(tree(), (Lines{"Veldoria * 8388608 +", "  A", "  B"}));
}

TEST_F(InfoEstadisticas, AFirstGroupWithoutTextEndsInSilence) {
  world.tables = {{"from Stat ", {row("", "uno", "1")}}};
  click("InfoEstadisticas");
  EXPECT_EQ(tree(), (Lines{"Veldoria * 8388608"}));
  EXPECT_EQ(world.take({"msgbox", "set txtEspere.Visible False"}), Lines{});
}

TEST_F(InfoEstadisticas, AClickOutsideIsSaidAndLeavesTheTreeEmpty) {
  click("InfoEstadisticas");
  const Lines lines = world.take();
  EXPECT_EQ(Lines(lines.end() - 4, lines.end()),
            (Lines{"eval Selectioninfo(3) = 0", kClickElsewhere, "set txtEspere.Visible False",
                   "set txtespere1.Visible False"}));
  EXPECT_EQ(tree(), Lines{});
}

TEST_F(InfoEstadisticas, MoreRowsThanACounterHoldsEndsInSilence) {
  world.tables = {{"from Stat ", {row("A", "uno", "1")}}};
  world.answers["tableinfo(\"selection\",8)"] = "40000";
  click("InfoEstadisticas");
  EXPECT_EQ(tree(), Lines{});
  EXPECT_EQ(world.take({"msgbox", "set txtEspere.Visible False"}), Lines{});
}

TEST_F(InfoEstadisticas, MoreColumnsThanACounterHoldsEndsInSilence) {
  world.tables = {{"from Stat ", {row("A", "uno", "1")}}};
  world.answers["tableinfo(stat,4)"] = "32768";
  click("InfoEstadisticas");
  EXPECT_EQ(tree(), (Lines{"Veldoria * 8388608"}));
  EXPECT_EQ(world.take({"msgbox", "expand", "set txtEspere.Visible False"}), Lines{});
}

class InfoDatos : public Callback {
 protected:
  void SetUp() override {
    Callback::SetUp();
    world.answers = {{"mapperinfo(frontwindow(),9) ", "2"},
                     {"layerinfo(frontwindow(),1,9)", "1"},
                     {"layerinfo(frontwindow(),2,9)", "1"},
                     {"layerinfo(frontwindow(),1,1)", "ZonasBasicas1999"},
                     {"layerinfo(frontwindow(),2,1)", "Provincias1999"}};
    world.tables = {{"from ZonasBasicas1999", {unit("Alameda")}}, {"from Provincias1999", {unit("Norte")}}};
  }
  static Row unit(const std::string& name) {
    return {{"nombre", name},
            {"sexo", "Hombres"},
            {"tipo", "Lista reducida"},
            {"indicador", "Tasa estandarizada (x100.000) de Tumores"},
            {"valor", "7,5"}};
  }
};

TEST_F(InfoDatos, ListsTheUnitsOfEachLayerAndHighlightsTheZone) {
  atlas.MarcaConsulta = false;
  click("InfoDatos");
  EXPECT_EQ(tree(), (Lines{"1999 * 8388608", "Alameda * 8388608 +", "  Hombres 192",
                           "    Lista reducida (Tasas estandarizadas x100.000) 8388608", "      Tumores: 7,5",
                           "Norte * 8388608 +", "  Hombres 192",
                           "    Lista reducida (Tasas estandarizadas x100.000) 8388608", "      Tumores: 7,5"}));
  EXPECT_EQ(world.take({"do"}),
            (Lines{"do set map order 2,1,3",
                   "do Select * from ZonasBasicas1999  where obj contains createpoint(10.5,20.5) order by sexo,tipo",
                   "do fetch first from selection", "do Fetch next from selection",
                   "do Select * from Provincias1999  where obj contains createpoint(10.5,20.5) order by sexo,tipo",
                   "do fetch first from selection", "do Fetch next from selection", "do set map order 2,1,3",
                   ("do Select * from ZonasBasicas1999  where obj contains createpoint(10.5,20.5) order by "
                    "indicador,sexo"),
                   "do Add map layer Selection",
                   ("do Set map center(10.5, 20.5) zoom 300 units \"Km\" layer 1 display global global brush "
                    "(2,255,255) Pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215)")}));
  EXPECT_EQ(atlas.unit.Tabla, "ZonasBasicas");
  EXPECT_EQ(atlas.unit.Nombre, "Alameda");
  EXPECT_TRUE(atlas.MarcaConsulta);
}

TEST_F(InfoDatos, SkipsLayersThatAreOffAndHighlightsTheProvince) {
  world.answers["layerinfo(frontwindow(),2,9)"] = "0";
  world.answers["layerinfo(frontwindow(),1,1)"] = "Provincias1999";
  click("InfoDatos");
  EXPECT_EQ(tree().size(), 5U);
  EXPECT_EQ(atlas.unit.Tabla, "Provincias");
  EXPECT_EQ(atlas.unit.Nombre, "Norte");
}

TEST_F(InfoDatos, ALayerWithoutObjectEndsWithAnEmptyTree) {
  world.tables.pop_back();
  atlas.unit = {"Provincias", "Sur"};
  click("InfoDatos");
  const Lines lines = world.take();
  EXPECT_EQ(Lines(lines.end() - 6, lines.end()),
            (Lines{"eval Selectioninfo(3) = 0", "do set map order 2,1,3", kClickElsewhere,
                   "set txtEspere.Visible False", "set txtespere1.Visible False", "clear TreeView1"}));
  EXPECT_EQ(tree(), Lines{});
  EXPECT_EQ(atlas.unit.Nombre, "Sur");
}

TEST_F(InfoDatos, WithNothingToHighlightTheCurrentUnitStays) {
  world.answers["mapperinfo(frontwindow(),9) "] = "0";
  world.tables.clear();
  atlas.unit = {"Provincias", "Sur"};
  atlas.MarcaConsulta = false;
  click("InfoDatos");
  EXPECT_EQ(world.take({"do Add", "msgbox", "set txtEspere.Visible False"}), (Lines{"set txtEspere.Visible False"}));
  EXPECT_EQ(atlas.unit.Nombre, "Sur");
  EXPECT_FALSE(atlas.MarcaConsulta);
}

TEST_F(InfoDatos, AFailureOfTheNameLeavesTheTableOfTheUnitSet) {
  world.answers["mapperinfo(frontwindow(),9) "] = "0";
  world.failAt("eval Selection.nombre", failures::kEngineRejected);
  atlas.unit = {"Provincias", "Sur"};
  atlas.MarcaConsulta = false;
  click("InfoDatos");
  EXPECT_EQ(atlas.unit.Tabla, "ZonasBasicas");
  EXPECT_EQ(atlas.unit.Nombre, "Sur");
  EXPECT_FALSE(atlas.MarcaConsulta);
}

TEST_F(InfoDatos, TheHighlightDoesNotDependOnTheLayersListed) {
  world.answers["mapperinfo(frontwindow(),9) "] = "1";
  world.answers["layerinfo(frontwindow(),1,1)"] = "Provincias1999";
  click("InfoDatos");
  EXPECT_EQ(tree().at(1), "Norte * 8388608 +");
  EXPECT_EQ(main().TreeView1.roots().size(), 2U);
  EXPECT_EQ(atlas.unit.Tabla, "ZonasBasicas");
  EXPECT_EQ(atlas.unit.Nombre, "Alameda");
  world.answers["layerinfo(frontwindow(),1,1)"] = "ZonasBasicas1999";
  world.answers["layerinfo(frontwindow(),2,9)"] = "0";
  click("InfoDatos");
  EXPECT_EQ(tree().at(1), "Alameda * 8388608 +");
  EXPECT_EQ(atlas.unit.Tabla, "Provincias");
  EXPECT_EQ(atlas.unit.Nombre, "Norte");
}

TEST_F(InfoDatos, AFailureLeavesTheNoticeInSilence) {
  world.failAt("do Add map layer", failures::kEngineRejected);
  click("InfoDatos");
  EXPECT_EQ(world.take({"msgbox", "set txtEspere"}), (Lines{"set txtEspere.Visible True"}));
  EXPECT_EQ(atlas.unit.Nombre, "");
}

}  // namespace
}  // namespace atlas
