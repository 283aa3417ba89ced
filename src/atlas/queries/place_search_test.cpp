#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;
using testing::Row;

class PlaceSearch : public testing::Program {
 protected:
  static Row row(const std::string& name) {
    return {{"año", "1999"}, {"nombre", name}, {"sexo", "Hombres"}, {"tipo", "General"}, {"indicador", "Población"},
            {"valor", "10"}, {"col1", "Norte"}};
  }
  void SetUp() override { startOnTab(2); }
};

TEST_F(PlaceSearch, TheKindOfPlaceNamesTheTableAndItsOwnSearchIsDiscarded) {
  pick(main().CmbBuscar, "Zonas básicas");
  EXPECT_EQ(atlas.tablabusqueda, "ZonasBasicas");
  EXPECT_EQ(
      world.take(),
      (Lines{"set txtBuscar.Text \"Escriba el lugar que desea buscar\"", "clear ListaResultado",
             ("do Select nombre from ZonasBasicas1999 where nombre like \"Escriba el lugar que desea buscar%\" "
              "group by nombre"),
             "eval SelectionInfo(3) = 0", "add ListaResultado No se encuentran registros.", "clear ListaResultado"}));
  pick(main().CmbBuscar, "Provincias");
  EXPECT_EQ(atlas.tablabusqueda, "Provincias");
}

TEST_F(PlaceSearch, WhereThePromptStandsAlreadyNothingIsSearched) {
  pick(main().CmbBuscar, "Zonas básicas");
  world.lines.clear();
  pick(main().CmbBuscar, "Provincias");
  EXPECT_EQ(world.take(), (Lines{"set txtBuscar.Text \"Escriba el lugar que desea buscar\"", "clear ListaResultado"}));
}

TEST_F(PlaceSearch, EnteringTheBoxEmptiesIt) {
  pick(main().CmbBuscar, "Provincias");
  world.lines.clear();
  main().txtBuscar.userFocus();
  EXPECT_EQ(world.take(), (Lines{"set txtBuscar.Text \"\"", "clear ListaResultado"}));
}

TEST_F(PlaceSearch, SearchesFromTheThirdCharacterOn) {
  pick(main().CmbBuscar, "Provincias");
  world.tables = {{"like \"ñáN", {row("Norte"), row("Noroeste")}}};
  world.lines.clear();
  main().txtBuscar.userEdit("ñá");
  EXPECT_EQ(world.take(), (Lines{"clear ListaResultado"}));
  main().txtBuscar.userEdit("ñáN");
  EXPECT_EQ(
      world.take(),
      (Lines{"clear ListaResultado", "do Select nombre from Provincias1999 where nombre like \"ñáN%\" group by nombre",
             "eval SelectionInfo(3) = 2", "do fetch first from selection", "eval EOT(Selection) = F",
             "eval Selection.nombre = Norte", "add ListaResultado Norte", "do fetch next from selection",
             "eval EOT(Selection) = F", "eval Selection.nombre = Noroeste", "add ListaResultado Noroeste",
             "do fetch next from selection", "eval EOT(Selection) = T"}));
  main().txtBuscar.userEdit("ñá");
  EXPECT_EQ(main().ListaResultado.items(), Lines{});
}

TEST_F(PlaceSearch, BeforeAKindIsChosenTheTableIsJustTheYear) {
  world.failAt("do Select nombre from 1999 where", failures::kEngineRejected, "no existe 1999");
  main().txtBuscar.userEdit("Nor");
  EXPECT_EQ(world.take({"msgbox"}), (Lines{"msgbox 0 [Mortalidad en Veldoria 1999-2002] no existe 1999"}));
}

TEST_F(PlaceSearch, NothingFoundIsAnItemThatDoesNothing) {
  pick(main().CmbBuscar, "Provincias");
  main().txtBuscar.userEdit("Xyz");
  EXPECT_EQ(main().ListaResultado.items(), (Lines{"No se encuentran registros."}));
  world.lines.clear();
  main().ListaResultado.userPick(0);
  EXPECT_EQ(world.take(), (Lines{"set txtespere1.Visible True", "set txtEspere.Visible True",
                                 "set txtEspere.Visible False", "set txtespere1.Visible False"}));
}

TEST_F(PlaceSearch, AZoneFoundIsShownWithTheUnitsAboveIt) {
  pick(main().CmbBuscar, "Zonas básicas");
  world.tables = {{"from ZonasBasicas1999", {row("Alameda")}},
                  {"from Provincias1999", {row("Norte")}},
                  {"from Veldoria1999", {row("Veldoria")}}};
  main().txtBuscar.userEdit("Ala");
  world.lines.clear();
  pick(main().ListaResultado, "Alameda");
  const Lines lines = world.take({"do", "set", "clear", "eval front"});
  EXPECT_EQ(
      Lines(lines.begin(), lines.begin() + 10),
      (Lines{"set txtespere1.Visible True", "set txtEspere.Visible True", "eval frontwindow() = 77",
             "do set map layer 1 selectable off display graphic layer 2 display global", "set OptZbs.Value True",
             "do Select * from ZonasBasicas1999 where nombre=\"Alameda\" order by sexo,tipo",
             "do Add map layer Selection",
             ("do Set map zoom 200 units \"Km\" center (centroidX(selection.obj),centroidY(selection.obj)) layer 1 "
              "display global global brush (2,255,255) pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215)"),
             "clear TreeView1", "do Fetch first from selection"}));
  EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
            (Lines{"set txtEspere.Visible False", "set txtespere1.Visible False"}));
  Lines roots;
  for (const auto& root : main().TreeView1.roots()) roots.push_back(root->text());
  EXPECT_EQ(roots, (Lines{"1999", "Alameda", "Norte", "Veldoria"}));
  EXPECT_EQ(atlas.unit.Tabla, "ZonasBasicas");
  EXPECT_EQ(atlas.unit.Nombre, "Alameda");
  EXPECT_FALSE(atlas.MarcaConsulta);
}

TEST_F(PlaceSearch, AProvinceFoundTurnsToTheProvinceView) {
  pick(main().CmbBuscar, "Provincias");
  world.tables = {{"from Provincias1999", {row("Norte")}}, {"from Veldoria1999", {row("Veldoria")}}};
  main().txtBuscar.userEdit("Nor");
  world.lines.clear();
  pick(main().ListaResultado, "Norte");
  EXPECT_EQ(world.take({"do Set Map layer", "set Opt"}),
            (Lines{"do Set Map layer 1 selectable on display global zoom (0,100000) Off layer 2 display off",
                   "set OptZbs.Value False", "set OptProvincias.Value True"}));
  EXPECT_EQ(main().TreeView1.roots().size(), 3U);
}

TEST_F(PlaceSearch, AFailureIsReportedAndTheNoticesStay) {
  pick(main().CmbBuscar, "Provincias");
  main().ListaResultado.addItem("Norte");
  world.lines.clear();
  main().ListaResultado.userPick(0);
  EXPECT_EQ(world.take({"msgbox", "set txtEspere"}),
            (Lines{"set txtEspere.Visible True", "msgbox 0 [Mortalidad en Veldoria 1999-2002] expresión rechazada"}));
}

}  // namespace
}  // namespace atlas
