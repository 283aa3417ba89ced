#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;
using testing::Rows;

class MainTabs : public testing::Program {
 protected:
  Lines upTo(const std::string& beginning) {
    Lines lines = world.take();
    lines.erase(std::ranges::find_if(lines, [&](const std::string& line) { return line.starts_with(beginning); }),
                lines.end());
    return lines;
  }
};

const Lines kAfterThePage{"set lblComando.Caption \"\"", "set txtBuscar.Text \"\"", "clear ListaResultado"};

TEST_F(MainTabs, TablesTabShowsThePageAndPutsTheSelectorsBack) {
  start();
  main().Ficha.userPick(0);
  EXPECT_EQ(world.take(), (Lines{"do set map layer 1 label default",
                                 "release #1",
                                 "set FichaAños.Visible False",
                                 "set PictureMapa.Visible False",
                                 "set FichaConsultasDatos.Visible False",
                                 "set Image1.Visible False",
                                 "set Internet.Visible True",
                                 "set ComboTabla.ListIndex 0",
                                 "set ComboAño.ListIndex 0",
                                 "set ComboSexo.ListIndex 0",
                                 "set ComboTipo.ListIndex 0",
                                 "navigate C:\\Estudio\\Tablas\\HTML\\0\\Grandes grupos\\1999 - Ambos sexos.html",
                                 "set ComboProvincia.ListIndex 0",
                                 "set Ficha.Width 15060",
                                 "set Internet.Width 14510",
                                 "set ShpCabecera.Width 14510",
                                 "set lblVeldoria.Visible False",
                                 "find Seleccionar mapa temático none",
                                 "navigate C:\\Estudio\\Tablas\\HTML\\0\\Grandes Grupos\\1999 - Ambos Sexos.html",
                                 "set lblComando.Caption \"\"",
                                 "set txtBuscar.Text \"\"",
                                 "clear ListaResultado",
                                 "set FichaAños.Left 12410",
                                 "set OptZbs.Value True"}));
  EXPECT_EQ(atlas.archivotabla, inFolder("\\Tablas\\HTML\\0\\Grandes Grupos\\1999 - Ambos Sexos.html"));
  EXPECT_TRUE(main().TablasListas);
  EXPECT_EQ(atlas.motormapa, nullptr);
}

TEST_F(MainTabs, TablesTabEnteredAgainKeepsTheProvinceBoxShown) {
  startOnTab(0);
  main().ComboTabla.userPick(1);
  main().Ficha.userPick(3);
  main().Ficha.userPick(0);
  EXPECT_EQ(main().ComboTabla.listIndex(), 0);
  EXPECT_TRUE(main().ComboProvincia.visible());
}

TEST_F(MainTabs, ThematicTabOpensTheDefaultMap) {
  start();
  atlas.RutaTematica = "x";
  atlas.unit = {"Provincias", "Norte"};
  atlas.nombreinfo = "Norte";
  atlas.MarcaConsulta = false;
  main().Ficha.userPick(1);
  EXPECT_EQ(upTo("set txtEspere"),
            (Lines{"do set map layer 1 label default", "release #1", "set FichaConsultasDatos.Visible False",
                   "set Internet.Visible False", "set FichaAños.Visible True", "set PictureMapa.Visible True",
                   "set Image1.Visible True", "set Ficha.Width 9830.4", "set PictureMapa.Width 9280.4",
                   "set Panel.Width 9280.4", "set ProgressBar1.Top 10152", "set ProgressBar1.Width 9280.4",
                   "set ShpCabecera.Width 10137.6", "set lblVeldoria.Visible False", "set lblComando.Caption \"\"",
                   "set txtBuscar.Text \"\"", "clear ListaResultado", "set FichaAños.Left 7180.4",
                   "dir C:\\Estudio\\Tablas\\Tematicos\\1999\\Ambos Sexos\\Veldoria\\Zonas Básicas\\Población.wor"}));
  EXPECT_EQ(atlas.SeleccionTematica,
            (std::array<std::string, 4>{"Población", "Veldoria", "Zonas Básicas", "Ambos Sexos"}));
  EXPECT_EQ(atlas.RutaTematica, "");
  EXPECT_EQ(atlas.unit.Tabla + atlas.unit.Nombre + atlas.nombreinfo, "");
  EXPECT_TRUE(atlas.MarcaConsulta);
  EXPECT_TRUE(main().OptZbs.value());
}

TEST_F(MainTabs, DataTabOpensTheYearsMapAndFillsTheLists) {
  world.tables = {{"from provincias1999", {{{"nombre", "Norte"}}, {{"nombre", "Sur"}}}},
                  {"from ZonasBasicas1999", {{{"nombre", "Alameda"}}}}};
  start();
  main().Ficha.userPick(2);
  const Lines lines = world.take({"dir", "do Select", "do Fetch", "do fetch", "eval EOT", "eval Selection",
                                  "eval front", "add", "set FichaConsultasDatos", "set OptZbs"});
  EXPECT_EQ(lines, (Lines{"set FichaConsultasDatos.Visible False",
                          "dir C:\\Estudio\\Tablas\\1999\\Año1999.wor",
                          "eval frontwindow() = 77",
                          "do Select nombre from provincias1999 group by nombre",
                          "do Fetch first from Selection",
                          "eval EOT(Selection) = F",
                          "eval Selection.nombre = Norte",
                          "add CmbProvincias Norte",
                          "do fetch next from selection",
                          "eval EOT(Selection) = F",
                          "eval Selection.nombre = Sur",
                          "add CmbProvincias Sur",
                          "do fetch next from selection",
                          "eval EOT(Selection) = T",
                          "do Select nombre from ZonasBasicas1999 group by nombre",
                          "do Fetch first from Selection",
                          "eval EOT(Selection) = F",
                          "eval Selection.nombre = Alameda",
                          "add CmbZonas Alameda",
                          "do fetch next from selection",
                          "eval EOT(Selection) = T",
                          "set FichaConsultasDatos.Visible True",
                          "set OptZbs.Value True"}));
}

TEST_F(MainTabs, TheListsAreNeverEmptied) {
  world.tables = {{"from provincias1999", {{{"nombre", "Norte"}}}},
                  {"from ZonasBasicas1999", {{{"nombre", "Alameda"}}}}};
  startOnTab(2);
  main().Ficha.userPick(3);
  main().Ficha.userPick(2);
  EXPECT_EQ(main().CmbProvincias.items(), (Lines{"Norte", "Norte"}));
  EXPECT_EQ(main().CmbZonas.items(), (Lines{"Alameda", "Alameda"}));
}

TEST_F(MainTabs, AFailureWhileFillingTheListsEndsOnlyThat) {
  world.tables = {{"from provincias1999", {{{"nombre", "Norte"}}}}};
  start();
  world.failAt("do Select nombre from ZonasBasicas", failures::kEngineRejected);
  main().Ficha.userPick(2);
  EXPECT_EQ(main().CmbProvincias.items(), (Lines{"Norte"}));
  EXPECT_EQ(world.take({"msgbox", "set FichaConsultasDatos.Visible True", "set OptZbs"}),
            (Lines{"set FichaConsultasDatos.Visible True", "set OptZbs.Value True"}));
}

TEST_F(MainTabs, StatisticsTabShowsItsHintAndNoYears) {
  startOnTab(0);
  main().Ficha.userPick(3);
  EXPECT_EQ(world.take({"set FichaC", "set FichaAños.V", "set Internet", "set Pic", "set Image1", "set lblV", "dir"}),
            (Lines{"set FichaConsultasDatos.Visible False", "set FichaAños.Visible False", "set Internet.Visible False",
                   "set PictureMapa.Visible True", "set Image1.Visible True", "set PictureMapa.Width 9280.4",
                   "set lblVeldoria.Visible True", "dir C:\\Estudio\\Tablas\\Estadisticas\\Estadisticas.wor"}));
}

TEST_F(MainTabs, EachTabLeftClearsItsOwnLabels) {
  const std::vector<std::pair<int, std::string>> statements{
      {1, "do set map layer 2 label default"},
      {2, "do set map layer 1 label default layer 2 label default layer 3 label default"},
      {3, "do set map layer 1 label default"},
  };
  start();
  for (const auto& [tab, statement] : statements) {
    main().Ficha.userPick(tab);
    world.lines.clear();
    main().Ficha.userPick(0);
    EXPECT_EQ(world.take({"do"}), (Lines{statement}));
  }
  main().Ficha.userPick(3);
  EXPECT_EQ(world.take().front(), "set FichaConsultasDatos.Visible False");
}

TEST_F(MainTabs, TablesTabClosesTheSelector) {
  startOnTab(1);
  main().Ficha.userPick(0);
  EXPECT_EQ(world.take({"find", "hide", "unload"}),
            (Lines{"find Seleccionar mapa temático found", "hide frmTematicos", "unload frmTematicos"}));
}

TEST_F(MainTabs, AfterALostEngineTheMapTabsStaySilentUntilTheTablesTabIsLeft) {
  start();
  atlas.motormapa.reset();
  world.lines.clear();
  main().Ficha.userPick(1);
  EXPECT_EQ(world.take(), Lines{});
  main().Ficha.userPick(0);
  EXPECT_EQ(world.take(), Lines{});
  main().Ficha.userPick(2);
  EXPECT_EQ(world.take({"create", "dir"}),
            (Lines{"dir C:\\Estudio\\Tablas\\1999\\Año1999.wor", "create MapInfo.runtime"}));
}

TEST_F(MainTabs, AMissingWorkspaceIsFollowedByAFailedEvaluation) {
  start();
  world.missingFiles.insert(inFolder("\\Tablas\\1999\\Año1999.wor"));
  atlas.MarcaConsulta = false;
  main().Ficha.userPick(2);
  EXPECT_EQ(world.take({"msgbox", "eval", "set OptZbs"}),
            (Lines{"msgbox 64 [Mortalidad en Veldoria] No existe ningún mapa para los parámetros seleccionados"}));
  EXPECT_FALSE(atlas.MarcaConsulta);
}

TEST_F(MainTabs, ConsultationTabsEmptyTheSearch) {
  startOnTab(2);
  main().txtBuscar.userEdit("ab");
  world.lines.clear();
  main().FichaConsultasDatos.userPick(1);
  EXPECT_EQ(world.take(), (Lines{"set txtBuscar.Text \"\"", "clear ListaResultado", "clear ListaResultado"}));
}

}  // namespace
}  // namespace atlas
