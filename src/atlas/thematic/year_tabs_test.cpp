#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;
using testing::Row;

class YearTabs : public testing::Program {
 protected:
  YearTabs() { world.answers["mapperinfo(frontwindow(),9)"] = "3"; }
  // What the user's change of year does, without the steps of opening a workspace.
  Lines changeYear(int index) {
    main().FichaAños.userPick(index);
    return world.take({"do set map layer", "do Select", "do Add", "do set map center", "do Set map zoom", "dir",
                       "msgbox", "set Panel", "eval mapper", "eval Tableinfo"});
  }
  static Row row(const std::string& name) {
    return {{"año", "2001"}, {"nombre", name}, {"sexo", "Hombres"}, {"tipo", "General"}, {"indicador", "Población"},
            {"valor", "10"}, {"col1", "Norte"}};
  }
};

const std::string kYearMap2001 = "dir C:\\Estudio\\Tablas\\2001\\Año2001.wor";

TEST_F(YearTabs, OnTablesAndStatisticsOnlyThePanelIsShownAndHidden) {
  startOnTab(0);
  EXPECT_EQ(changeYear(1), (Lines{"set Panel.Visible True", "set Panel.Visible False"}));
  main().Ficha.userPick(3);
  world.lines.clear();
  EXPECT_EQ(changeYear(2), (Lines{"set Panel.Visible True", "set Panel.Visible False"}));
}

TEST_F(YearTabs, DataTabClearsLabelsByTheNumberOfLayers) {
  startOnTab(2);
  EXPECT_EQ(changeYear(2),
            (Lines{"set Panel.Visible True", "eval mapperinfo(frontwindow(),9) = 3",
                   "do set map layer 1 label default layer 2 label default", kYearMap2001, "set Panel.Visible False"}));
  world.answers["mapperinfo(frontwindow(),9)"] = "4";
  EXPECT_EQ(changeYear(2).at(2), "do set map layer 1 label default layer 2 label default layer 4 label default");
}

TEST_F(YearTabs, DataTabKeepsTheProvinceView) {
  startOnTab(2);
  main().OptProvincias.userRelease();
  world.lines.clear();
  EXPECT_EQ(changeYear(2).at(4), "do set map layer 1 label default display global layer 2 label default display off");
}

TEST_F(YearTabs, HalfACurrentUnitSendsNothingMore) {
  startOnTab(2);
  main().OptProvincias.userRelease();
  for (const CurrentUnit& half : {CurrentUnit{"Provincias", ""}, CurrentUnit{"", "Norte"}}) {
    atlas.unit = half;
    world.lines.clear();
    EXPECT_EQ(changeYear(2), (Lines{"set Panel.Visible True", "eval mapperinfo(frontwindow(),9) = 3",
                                    "do set map layer 1 label default layer 2 label default", kYearMap2001,
                                    "set Panel.Visible False"}))
        << half.Tabla << half.Nombre;
  }
}

TEST_F(YearTabs, AProvinceIsShownAgainInTheNewYear) {
  world.tables = {{"from Provincias2001", {row("Norte")}}, {"from Veldoria2001", {row("Veldoria")}}};
  startOnTab(2);
  atlas.unit = {"Provincias", "Norte"};
  const Lines lines = changeYear(2);
  EXPECT_EQ(
      Lines(lines.begin() + 4, lines.end()),
      (Lines{"do set map layer 1 label default layer 2 label default",
             ("do Select Año,Nombre,Sexo,Tipo,indicador,valor from Provincias2001 where nombre=\"Norte\" order by "
              "sexo,tipo"),
             "do Add map layer Selection",
             ("do set map center (CentroidX(selection.obj),CentroidY(selection.obj)) zoom 300 units \"km\" layer 1 "
              "display global global brush (2,255,255) Pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215) layer "
              "2 selectable on display global layer 3 display off"),
             "do Select Año,Nombre,Sexo,Tipo,indicador,valor from Veldoria2001 order by sexo,tipo",
             "set Panel.Visible False"}));
  EXPECT_EQ(testing::describe(main().TreeView1),
            (Lines{"2001 * 8388608", "Norte * 8388608 +", "  Hombres 192", "    General 8388608", "      Población: 10",
                   "Veldoria * 8388608 +", "  Hombres 192", "    General 8388608", "      Población: 10"}));
}

TEST_F(YearTabs, AZoneIsShownAgainWithTheZoneView) {
  world.tables = {{"from ZonasBasicas2001", {row("Alameda")}},
                  {"from Provincias2001", {row("Norte")}},
                  {"from Veldoria2001", {row("Veldoria")}}};
  startOnTab(2);
  atlas.unit = {"ZonasBasicas", "Alameda"};
  EXPECT_EQ(changeYear(2).at(7),
            ("do set map center (CentroidX(selection.obj),CentroidY(selection.obj)) zoom 300 units \"km\" layer 1 "
             "display global global brush (2,255,255) Pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215) layer 2 "
             "display graphic layer 3 display global"));
  EXPECT_EQ(main().TreeView1.roots().size(), 4U);
}

TEST_F(YearTabs, AFailureOfTheConsultationLeavesThePanelInSilence) {
  startOnTab(2);
  atlas.unit = {"Provincias", "Norte"};
  const Lines lines = changeYear(2);
  EXPECT_EQ(lines.back().substr(0, 21), "do set map center (Ce");
  EXPECT_TRUE(main().Panel.visible());
}

TEST_F(YearTabs, ThematicTabOpensTheDefaultOrTheChosenMap) {
  startOnTab(1);
  EXPECT_EQ(changeYear(3),
            (Lines{"set Panel.Visible True", "do set map layer 1 label default layer 2 label default",
                   "dir C:\\Estudio\\Tablas\\Tematicos\\2002\\Ambos Sexos\\Veldoria\\Zonas Básicas\\Población.wor",
                   "set Panel.Visible False"}));
  atlas.RutaTematica = "Hombres\\Norte\\Tasa bruta (x100.000).wor";
  EXPECT_EQ(changeYear(1).at(2), "dir C:\\Estudio\\Tablas\\Tematicos\\2000\\Hombres\\Norte\\Tasa bruta (x100.000).wor");
}

TEST_F(YearTabs, LeavingTheThematicTabDiscardsTheChoice) {
  startOnTab(1);
  atlas.RutaTematica = "Hombres\\Norte\\Tasa bruta (x100.000).wor";
  main().Ficha.userPick(2);
  main().Ficha.userPick(1);
  world.lines.clear();
  EXPECT_EQ(changeYear(1).at(2),
            "dir C:\\Estudio\\Tablas\\Tematicos\\2000\\Ambos Sexos\\Veldoria\\Zonas Básicas\\Población.wor");
}

TEST_F(YearTabs, ThePickedPlaceIsShownAgainOnTheThematicMap) {
  startOnTab(1);
  atlas.nombreinfo = "Norte";
  world.answers["tableinfo(1,1)"] = "Tema";
  world.tables = {{"centroidx(obj)", {{{"col1", "10.5"}, {"col2", "20.5"}}}},
                  {"select * from Tema",
                   {{{"nombre", "Norte"},
                     {"sexo", "Mujeres"},
                     {"indicador", "Tasa estandarizada (x100.000) de Tumores"},
                     {"valor", "3,2"}}}}};
  const Lines lines = changeYear(1);
  EXPECT_EQ(
      Lines(lines.begin() + 3, lines.end()),
      (Lines{"eval Tableinfo(1,1) = Tema", "do Select CentroidX(obj), CentroidY(obj) from Tema where nombre=\"Norte\"",
             "do Set map zoom 200 units \"km\"  center(10.5, 20.5)", "do Select * from Tema where nombre=\"Norte\"",
             "set Panel.Visible False"}));
  EXPECT_EQ(testing::describe(main().TreeView1), (Lines{"Norte * 8388608 +", "  Mujeres", "  Tumores: 3,2"}));
}

TEST_F(YearTabs, AFailureWithThePickedPlaceIsReportedAndThePanelGoes) {
  startOnTab(1);
  atlas.nombreinfo = "Norte";
  world.failAt("eval Tableinfo", failures::kEngineRejected, "no hay tablas");
  world.answers["tableinfo(1,1)"] = "Tema";
  const Lines lines = changeYear(1);
  EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
            (Lines{"msgbox 0 [Mortalidad en Veldoria 1999-2002] no hay tablas", "set Panel.Visible False"}));
}

}  // namespace
}  // namespace atlas
