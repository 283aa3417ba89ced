#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;
using testing::Row;

Row row(const std::string& name) {
  return {{"año", "1999"}, {"nombre", name},  {"sexo", "Hombres"},   {"tipo", "General"}, {"indicador", "Población"},
          {"valor", "10"}, {"col1", "Norte"}, {"provincia", "Norte"}};
}

const Lines kProvinceTree{"1999 * 8388608",      "Norte * 8388608 +",   "  Hombres 192",
                          "    General 8388608", "      Población: 10", "Veldoria * 8388608 +",
                          "  Hombres 192",       "    General 8388608", "      Población: 10"};

class Consultations : public testing::Program {
 protected:
  Consultations() {
    world.tables = {{"from ZonasBasicas1999 where Provincia", {row("Alameda"), row("Burgo")}},
                    {"from ZonasBasicas1999 where", {row("Alameda")}},
                    {"from ZonasBasicas1999", {row("Alameda"), row("Burgo"), row("Zarza")}},
                    {"from Provincias1999 where", {row("Norte")}},
                    {"from Provincias1999", {row("Norte"), row("Sur")}},
                    {"from Veldoria1999", {row("Veldoria")}}};
  }
  void SetUp() override { startOnTab(2); }
};

TEST_F(Consultations, AProvinceStepByStep) {
  pick(main().CmbProvincias, "Norte");
  Lines lines = world.take({"do", "set", "add", "clear", "eval front", "eval Layer", "msgbox"});
  std::erase_if(lines, [](const std::string& line) { return line == "do Fetch next from selection"; });
  EXPECT_EQ(
      lines,
      (Lines{"set txtEspere.Visible True",
             "set txtespere1.Visible True",
             "eval frontwindow() = 77",
             "eval LayerInfo(77,1,1) = Provincias1999",
             "set ProgressBar1.Visible True",
             "set ProgressBar1.Value 20",
             "do Set Map layer 1 selectable on display global zoom (0,100000) Off layer 2 display off",
             "set OptZbs.Value False",
             "set OptProvincias.Value True",
             "set Lblzonas.Caption \"Zonas Basicas de Norte\"",
             ("do Select Año,Nombre,Sexo,Tipo,indicador,valor from provincias1999 where nombre=\"Norte\" order by "
              "sexo,tipo"),
             "set ProgressBar1.Value 40",
             "do Add map layer Selection",
             ("do Set map center (centroidX(selection.obj),centroidy(selection.obj))zoom 300 units \"Km\" layer 1 "
              "display global global brush (2,255,255) Pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215)"),
             "clear TreeView1",
             ("do Select año,nombre,sexo,tipo,indicador,valor from provincias1999 where nombre=\"Norte\" order by "
              "sexo,tipo"),
             "do Fetch first from selection",
             "do Select Año,Nombre,Sexo,Tipo,indicador,valor from Veldoria1999 order by sexo,tipo",
             "do Fetch first from selection",
             "clear CmbZonas",
             "do Select Nombre from ZonasBasicas1999 where Provincia=\"Norte\" group by nombre",
             "do Fetch first from Selection",
             "add CmbZonas Alameda",
             "do fetch next from selection",
             "add CmbZonas Burgo",
             "do fetch next from selection",
             "set txtEspere.Visible False",
             "set txtespere1.Visible False",
             "set ProgressBar1.Value 100",
             "set ProgressBar1.Visible False"}));
  EXPECT_EQ(testing::describe(main().TreeView1), kProvinceTree);
  EXPECT_EQ(atlas.unit.Tabla, "Provincias");
  EXPECT_EQ(atlas.unit.Nombre, "Norte");
  EXPECT_FALSE(atlas.MarcaConsulta);
}

TEST_F(Consultations, AZoneStepByStep) {
  pick(main().CmbZonas, "Alameda");
  Lines lines = world.take({"do", "set", "add", "clear", "eval Selection.provincia", "msgbox"});
  std::erase_if(lines, [](const std::string& line) { return line == "do Fetch next from selection"; });
  EXPECT_EQ(
      lines,
      (Lines{"set txtEspere.Visible True",
             "set txtespere1.Visible True",
             "set ProgressBar1.Visible True",
             "set ProgressBar1.Value 20",
             "do set map layer 1 selectable off display graphic layer 2 display global",
             "do Set map zoom entire",
             "set OptZbs.Value True",
             ("do Select año,nombre,provincia,sexo,tipo,indicador,valor from ZonasBasicas1999 where "
              "nombre=\"Alameda\" order by sexo,tipo"),
             "set ProgressBar1.Value 40",
             ("do Add map layer Selection Set map center (centroidx(selection.obj),centroidy(selection.obj)) zoom "
              "300 units \"km\" layer 1 display global global brush (2,255,255) Pen (1,2,44031) Label Font "
              "(\"Tahoma\",1,8,16777215)"),
             "set ProgressBar1.Value 60",
             "clear TreeView1",
             "do Fetch first from selection",
             "eval Selection.provincia = Norte",
             "do Select provincia from ZonasBasicas1999 where nombre=\"Alameda\"",
             ("do Select Año,Nombre,Sexo,Tipo,indicador,valor from Provincias1999 where nombre=\"Norte\" order by "
              "sexo,tipo"),
             "do Fetch first from selection",
             "do Select Año,Nombre,Sexo,Tipo,indicador,valor from Veldoria1999 order by sexo,tipo",
             "do Fetch first from selection",
             "set ProgressBar1.Value 100",
             "set ProgressBar1.Visible False",
             "set txtEspere.Visible False",
             "set txtespere1.Visible False"}));
  const auto& roots = main().TreeView1.roots();
  ASSERT_EQ(roots.size(), 4U);
  const std::vector<std::pair<std::string, bool>> expected{
      {"1999", false}, {"Alameda", true}, {"Norte", true}, {"Veldoria", true}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(roots[i]->text(), expected[i].first);
    EXPECT_EQ(roots[i]->expanded(), expected[i].second);
  }
  EXPECT_EQ(atlas.unit.Tabla, "ZonasBasicas");
  EXPECT_EQ(atlas.unit.Nombre, "Alameda");
}

TEST_F(Consultations, AFailureIsReportedAndTheNoticesStay) {
  world.failAt("do Add map layer", failures::kEngineRejected, "no hay mapa");
  pick(main().CmbProvincias, "Norte");
  EXPECT_EQ(world.take({"msgbox", "set txtEspere", "set ProgressBar1"}),
            (Lines{"set txtEspere.Visible True", "set ProgressBar1.Visible True", "set ProgressBar1.Value 20",
                   "set ProgressBar1.Value 40", "msgbox 0 [Mortalidad en Veldoria 1999-2002] no hay mapa"}));
  world.failAt("do Add map layer", failures::kEngineRejected, "no hay mapa");
  pick(main().CmbZonas, "Alameda");
  EXPECT_EQ(world.take({"msgbox"}), (Lines{"msgbox 0 [Mortalidad en Veldoria 1999-2002] no hay mapa"}));
  EXPECT_EQ(atlas.unit.Nombre, "");
}

TEST_F(Consultations, AnEmptyValueEndsTheWalkWithItsFailure) {
  Row withoutValue = row("Norte");
  withoutValue["indicador"] = "Fallecidos";
  withoutValue.erase("valor");
  world.tables = {{"from Provincias1999 where", {row("Norte"), withoutValue, row("Norte")}}};
  pick(main().CmbProvincias, "Norte");
  EXPECT_EQ(world.take({"msgbox", "eval Formatnumber", "set txtEspere"}),
            (Lines{"set txtEspere.Visible True", "eval Formatnumber$(round(Selection.valor,0.01)) = 10",
                   "msgbox 0 [Mortalidad en Veldoria 1999-2002] no existe la columna"}));
  EXPECT_EQ(testing::describe(main().TreeView1), (Lines{"1999 * 8388608", "Norte * 8388608", "  Hombres 192",
                                                        "    General 8388608", "      Población: 10"}));
  EXPECT_EQ(atlas.unit.Nombre, "");
}

TEST_F(Consultations, ADoubleQuoteInANameIsSentAsItIs) {
  const std::string statement =
      "do Select año,nombre,provincia,sexo,tipo,indicador,valor from ZonasBasicas1999 where nombre=\"La \"Alta\"\" "
      "order by sexo,tipo";
  main().CmbZonas.addItem("La \"Alta\"");
  world.failAt(statement, failures::kEngineRejected, "sobra una palabra");
  pick(main().CmbZonas, "La \"Alta\"");
  EXPECT_EQ(world.take({"do Select", "msgbox"}),
            (Lines{statement, "msgbox 0 [Mortalidad en Veldoria 1999-2002] sobra una palabra"}));
}

TEST_F(Consultations, TheEarlierQueryLayerGoesFirst) {
  world.topLayer = "Query1";
  pick(main().CmbProvincias, "Norte");
  const Lines lines = world.take({"do", "eval Layer"});
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 4),
            (Lines{"eval LayerInfo(77,1,1) = Query1", "do set map layer 1 label default ",
                   "do Remove map layer 1 Interactive", "do Set map zoom entire"}));
}

TEST_F(Consultations, AFailureToCleanUpIsPassedOver) {
  world.failAt("eval LayerInfo", failures::kEngineRejected);
  pick(main().CmbProvincias, "Norte");
  EXPECT_EQ(testing::describe(main().TreeView1), kProvinceTree);
}

TEST_F(Consultations, LimpiarConsultaEmptiesTheCurrentUnitOnlyWithAQueryLayer) {
  atlas.unit = {"Provincias", "Sur"};
  world.failAt("do Set Map layer 1", failures::kEngineRejected);
  pick(main().CmbProvincias, "Norte");
  EXPECT_EQ(atlas.unit.Nombre, "Sur");
  world.topLayer = "Query12";
  world.failAt("do Set Map layer 1", failures::kEngineRejected);
  pick(main().CmbProvincias, "Norte");
  EXPECT_EQ(atlas.unit.Tabla + atlas.unit.Nombre, "");
}

TEST_F(Consultations, TheLayersNameMustBeginWithQueryInThisVeryCase) {
  atlas.unit = {"Provincias", "Sur"};
  world.topLayer = "query12";
  world.failAt("do Set Map layer 1", failures::kEngineRejected);
  pick(main().CmbProvincias, "Norte");
  EXPECT_EQ(atlas.unit.Nombre, "Sur");
}

TEST_F(Consultations, ViewButtonsSendTheirStatementOnRelease) {
  main().OptProvincias.userRelease();
  EXPECT_EQ(world.take({"do"}),
            (Lines{("do set map layer 1 selectable on display global zoom (0,100000) units \"Km\" On "
                    " layer 2 Label Default display off ")}));
  main().OptZbs.userRelease();
  EXPECT_EQ(world.take({"do"}), (Lines{("do set map layer 1 selectable off display graphic zoom (310,100000) units "
                                        "\"Km\" On label default layer 2 display global")}));
  world.failAt("do set map", failures::kEngineRejected);
  main().OptZbs.userRelease();
  EXPECT_EQ(world.take({"msgbox"}), Lines{});
}

}  // namespace
}  // namespace atlas
