#include "atlas/test_world.h"

namespace atlas {
namespace {

using testing::Lines;

const std::string kMaps = "dir C:\\Estudio\\Tablas\\Tematicos\\";

class Selector : public testing::Program {
 protected:
  Selector() { world.folderNames[inFolder("\\Tablas\\Tematicos\\1999\\Ambos sexos")] = {"Sur", "Norte"}; }
  void SetUp() override { startOnTab(1); }
  void selectYear(int index) {
    main().FichaAños.userPick(index);
    world.lines.clear();
  }
};

TEST_F(Selector, ItemsAreTheCataloguesOwn) {
  EXPECT_EQ(selector().caption(), "Seleccionar mapa temático");
  EXPECT_EQ(selector().CmbMarco.items(), (Lines{"Veldoria", "Norte", "Sur"}));
  EXPECT_EQ(main().ComboProvincia.items(), selector().CmbMarco.items());
  EXPECT_EQ(selector().CmbUnidad.items(), (Lines{"Provincias", "Zonas básicas"}));
  EXPECT_EQ(selector().CmbSexo.items(), (Lines{"Ambos sexos", "Hombres", "Mujeres"}));
  EXPECT_EQ(selector().CmbIndicador.items().size(), 20U);
  EXPECT_EQ(selector().CmbIndicador.items().at(0), "Fallecidos");
  EXPECT_EQ(selector().CmbIndicador.items().at(7),
            "Tasa estandarizada (x100.000) de Enfermedades crónicas de las vías respiratorias inferiores excepto asma");
  EXPECT_EQ(selector().CmbIndicador.items().at(19), "Tasa estandarizada (x100.000) de Tumores");
  EXPECT_EQ(selector().LblTitulo1.caption(), "Marco");
  EXPECT_EQ(selector().LblTitulo2.caption(), "Unidad Regional");
  EXPECT_EQ(selector().LblTitulo3.caption(), "Sexo");
  EXPECT_EQ(selector().LblTitulo4.caption(), "Indicador");
  EXPECT_EQ(selector().BtnTematico.caption(), "Ver mapa");
}

TEST_F(Selector, LoadStandsAtTheMainWindowsFootAndRestoresTheChoiceOpeningNothing) {
  selector().unload();
  main().setTop(300);
  main().setLeft(150);
  world.lines.clear();
  selector().load();
  EXPECT_EQ(world.take(), (Lines{"load frmTematicos", "set frmTematicos.Top 10380", "set frmTematicos.Left 850",
                                 "set CmbMarco.Text \"Veldoria\"", "set CmbUnidad.Text \"Zonas básicas\"",
                                 "set CmbSexo.Text \"Ambos sexos\"", "set CmbIndicador.Text \"Población\"",
                                 "set CmbUnidad.Enabled True"}));
}

TEST_F(Selector, WithoutARememberedChoiceTheBoxesStayAsStored) {
  selector().unload();
  atlas.SeleccionTematica = {};
  world.lines.clear();
  selector().load();
  EXPECT_EQ(selector().CmbMarco.listIndex(), -1);
  EXPECT_TRUE(selector().CmbUnidad.enabled());
}

TEST_F(Selector, ARememberedProvinceDisablesTheUnit) {
  selector().unload();
  atlas.SeleccionTematica = {"Fallecidos", "Norte", "Zonas básicas", "Mujeres"};
  selector().load();
  EXPECT_FALSE(selector().CmbUnidad.enabled());
  EXPECT_EQ(selector().CmbSexo.text(), "Mujeres");
}

TEST_F(Selector, ARememberedChoiceThatIsNoItemEndsTheLoadAndTheBoxesAnswerNothing) {
  selector().unload();
  atlas.SeleccionTematica = {"Fallecidos", "Veldoria", "Comarcas", "Mujeres"};
  world.lines.clear();
  selector().load();
  EXPECT_EQ(world.take({"set Cmb", "msgbox"}), (Lines{"set CmbMarco.Text \"Veldoria\""}));
  selector().CmbSexo.userPick(1);
  selector().BtnTematico.userClick();
  EXPECT_EQ(world.take(), Lines{});
}

TEST_F(Selector, TheButtonWithNoFrameChosenAsksForAProvincesMap) {
  atlas.SeleccionTematica = {};
  selector().unload();
  selector().load();
  selector().CmbUnidad.userPick(0);
  selector().CmbSexo.userPick(1);
  selector().CmbIndicador.userPick(0);
  world.lines.clear();
  selector().BtnTematico.userClick();
  EXPECT_EQ(world.take({"dir"}), (Lines{kMaps + "1999\\Hombres\\\\Fallecidos.wor"}));
  EXPECT_EQ(atlas.RutaTematica, "Hombres\\\\Fallecidos.wor");
}

TEST_F(Selector, AChoiceOpensItsMapStepByStep) {
  selectYear(2);
  main().TreeView1.add(nullptr, "antes");
  atlas.nombreinfo = "Norte";
  world.lines.clear();
  pick(selector().CmbSexo, "Hombres");
  const Lines lines = world.take();
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 3),
            (Lines{"clear TreeView1", "do Close Window Legend",
                   kMaps + "2001\\Hombres\\Veldoria\\Zonas Básicas\\Población.wor"}));
  EXPECT_EQ(lines.back(), "zorder 300 topmost 19");
  EXPECT_EQ(atlas.RutaTematica, "Hombres\\Veldoria\\Zonas Básicas\\Población.wor");
  EXPECT_EQ(atlas.SeleccionTematica, (std::array<std::string, 4>{"Población", "Veldoria", "Zonas Básicas", "Hombres"}));
  EXPECT_EQ(atlas.nombreinfo, "");
}

TEST_F(Selector, TheSameItemPickedAgainOpensItsMapAgain) {
  pick(selector().CmbSexo, "Ambos sexos");
  EXPECT_EQ(world.take({"dir"}), (Lines{kMaps + "1999\\Ambos sexos\\Veldoria\\Zonas Básicas\\Población.wor"}));
}

TEST_F(Selector, FromRegionByProvincesToAProvinceOpensTwoMaps) {
  pick(selector().CmbUnidad, "Provincias");
  world.lines.clear();
  pick(selector().CmbMarco, "Norte");
  EXPECT_EQ(world.take({"dir", "set Cmb"}),
            (Lines{"set CmbUnidad.ListIndex 1", kMaps + "1999\\Ambos Sexos\\Veldoria\\Zonas básicas\\Población.wor",
                   "set CmbUnidad.Enabled False", kMaps + "1999\\Ambos Sexos\\Norte\\Población.wor"}));
  EXPECT_EQ(atlas.RutaTematica, "Ambos Sexos\\Norte\\Población.wor");
}

TEST_F(Selector, FromRegionByZonesToAProvinceOpensOne) {
  pick(selector().CmbMarco, "Norte");
  EXPECT_EQ(world.take({"dir"}), (Lines{kMaps + "1999\\Ambos Sexos\\Norte\\Población.wor"}));
}

TEST_F(Selector, BackToTheRegionKeepsTheUnit) {
  pick(selector().CmbMarco, "Norte");
  world.lines.clear();
  pick(selector().CmbMarco, "Veldoria");
  EXPECT_EQ(world.take({"dir", "set Cmb"}),
            (Lines{"set CmbUnidad.Enabled True", kMaps + "1999\\Ambos Sexos\\Veldoria\\Zonas Básicas\\Población.wor"}));
  EXPECT_EQ(selector().CmbUnidad.text(), "Zonas básicas");
}

TEST_F(Selector, TheButtonReadsTheBoxesNotWhatIsRemembered) {
  atlas.SeleccionTematica = {"x", "y", "z", "w"};
  selector().BtnTematico.userClick();
  const Lines lines = world.take({"do", "dir"});
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 3),
            (Lines{"do set map layer 2 label default", "do Close Window Legend",
                   kMaps + "1999\\Ambos sexos\\Veldoria\\Zonas básicas\\Población.wor"}));
  EXPECT_EQ(atlas.SeleccionTematica, (std::array<std::string, 4>{"x", "y", "z", "w"}));
}

TEST_F(Selector, AnUnloadedSelectorAnswersNothing) {
  selector().unload();
  world.lines.clear();
  selector().CmbMarco.userPick(1);
  selector().CmbUnidad.userPick(0);
  selector().CmbSexo.userPick(1);
  selector().CmbIndicador.userPick(3);
  selector().BtnTematico.userClick();
  EXPECT_EQ(world.take(), Lines{});
}

TEST_F(Selector, AFailureEndsSilently) {
  world.failAt("do Close Window Legend", failures::kEngineRejected);
  pick(selector().CmbIndicador, "Fallecidos");
  EXPECT_EQ(world.take({"dir", "msgbox", "zorder"}), Lines{});
  EXPECT_EQ(atlas.RutaTematica, "Ambos Sexos\\Veldoria\\Zonas Básicas\\Fallecidos.wor");
}

TEST_F(Selector, TheChosenMapFollowsFromYearToYear) {
  selectYear(1);
  pick(selector().CmbIndicador, "Fallecidos");
  world.lines.clear();
  main().FichaAños.userPick(3);
  EXPECT_EQ(world.take({"dir"}), (Lines{kMaps + "2002\\Ambos Sexos\\Veldoria\\Zonas Básicas\\Fallecidos.wor"}));
}

}  // namespace
}  // namespace atlas
