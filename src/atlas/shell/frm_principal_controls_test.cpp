#include "atlas/test_world.h"

namespace atlas {
namespace {

class Controls : public testing::Program {};

TEST_F(Controls, CaptionsAreTheStoredOnes) {
  const std::vector<std::pair<const forms::Captioned*, std::string>> captions{
      {&main().LblPresentación, "Presentación"},
      {&main().LblMetodologia, "Metodología "},
      {&main().LblUso, "Uso de la aplicación"},
      {&main().Label1, "Créditos"},
      {&main().LblInformacion, "Información"},
      {&main().LblEstadisticas, "Estadísticas de mortalidad"},
      {&main().LblSalir, "Salir"},
      {&main().PDF1999, "Año 1999"},
      {&main().PDF2000, "Año 2000"},
      {&main().PDF2001, "Año 2001"},
      {&main().lblinfo, "<- Seleccione mapa"},
      {&main().lblVeldoria, "Haga clic en el fondo del mapa para ver la información de Veldoria."},
      {&main().LblProvincias, "Provincias"},
      {&main().Lblzonas, "Zonas básicas"},
      {&main().OptProvincias, "Provincias"},
      {&main().OptZbs, "Zonas básicas"},
      {&main().Submenu, ""},
      {&main().Frame1, ""},
  };
  for (const auto& [control, caption] : captions) EXPECT_EQ(control->caption(), caption) << control->name();
  EXPECT_EQ(main().caption(), "Mortalidad en Veldoria 1999-2002");
  EXPECT_EQ(main().txtEspere.text(), "Espere por favor...");
  EXPECT_EQ(main().txtespere1.text(), "Espere por favor...");
  EXPECT_EQ(main().txtBuscar.text(), "Escriba el lugar que desea buscar");
  EXPECT_EQ(main().ImgExportar.toolTipText, "Exportar Tabla");
  EXPECT_EQ(main().imgBuscaTabla.toolTipText, "Ver la Tabla");
}

TEST_F(Controls, CaptionsHaveRoom) {
  constexpr double kTwipsPerCharacter = 105;
  for (const forms::Control* control : main().controls()) {
    const auto* captioned = dynamic_cast<const forms::Captioned*>(control);
    if (captioned == nullptr) continue;
    const double lines = control == &main().lblVeldoria ? 2 : 1;
    const double needed = static_cast<double>(text::length(captioned->caption())) * kTwipsPerCharacter;
    EXPECT_GE(control->width() * lines, needed) << control->name();
  }
}

TEST_F(Controls, EachTabHoldsItsOwnPage) {
  const std::vector<std::pair<const forms::Control*, int>> pages{
      {&main().ComboTabla, 0},   {&main().ComboAño, 0},      {&main().imgBuscaTabla, 0}, {&main().ImgExportar, 0},
      {&main().Image2.at(0), 1}, {&main().Image2.at(12), 1}, {&main().lblinfo, 1},       {&main().Image4.at(10), 2},
      {&main().Image3.at(0), 3}, {&main().lblVeldoria, 3},
  };
  for (const auto& [control, page] : pages) {
    EXPECT_EQ(control->container(), &main().Ficha) << control->name();
    EXPECT_EQ(control->page(), page) << control->name();
  }
  EXPECT_EQ(main().CmbZonas.page(), 0);
  EXPECT_EQ(main().txtBuscar.page(), 1);
  EXPECT_EQ(main().txtBuscar.container(), &main().FichaConsultasDatos);
  EXPECT_EQ(main().OptZbs.container(), &main().Frame1);
  EXPECT_EQ(main().PDF2001.container(), &main().Submenu);
  EXPECT_EQ(main().Label1.container(), &main().SubMenu2);
}

TEST_F(Controls, ControlsOfAPageStayInsideItAtTheSmallestSize) {
  constexpr double kFichaOnTheTables = 15000 - 150 - 300;
  constexpr double kFichaOnMapTabs = 15000 * 0.64;
  for (const forms::Control* control : main().controls()) {
    if (control->container() != &main().Ficha) continue;
    const double room = control->page() == 0 ? kFichaOnTheTables : kFichaOnMapTabs;
    EXPECT_LE(control->left() + control->width(), room) << control->name();
    EXPECT_LE(control->top() + control->height(), 775) << control->name();
  }
}

TEST_F(Controls, StandInOrderFromBackToFront) {
  const auto& order = main().controls();
  const auto position = [&](const forms::Control& control) {
    return std::ranges::find(order, &control) - order.begin();
  };
  EXPECT_LT(position(main().ShpDerecha), position(main().TreeView1));
  EXPECT_LT(position(main().TreeView1), position(main().txtEspere));
  EXPECT_LT(position(main().txtEspere), position(main().txtespere1));
  EXPECT_LT(position(main().FichaConsultasDatos), position(main().Ficha));
  EXPECT_LT(position(main().Ficha), position(main().Internet));
  EXPECT_LT(position(main().PictureMapa), position(main().Panel));
  EXPECT_LT(position(main().Panel), position(main().ProgressBar1));
  EXPECT_LT(position(main().FichaAños), position(main().Submenu));
}

TEST_F(Controls, WhatIsShownByCodeIsStoredHidden) {
  const std::set<const forms::Control*> hidden{
      &main().Submenu,      &main().SubMenu2,    &main().txtEspere,      &main().txtespere1,
      &main().ProgressBar1, &main().Panel,       &main().FichaAños,      &main().FichaConsultasDatos,
      &main().Image1,       &main().PictureMapa, &main().ComboProvincia, &main().lblVeldoria};
  for (const forms::Control* control : main().controls()) {
    EXPECT_EQ(control->visible(), !hidden.contains(control)) << control->name();
  }
  EXPECT_EQ(main().Ficha.tab(), 0);
}

TEST_F(Controls, TableSelectorsReadTheirPlaceholders) {
  EXPECT_EQ(main().ComboTabla.text(), "");
  EXPECT_EQ(main().ComboTipo.text(), "Tipo");
  EXPECT_EQ(main().ComboProvincia.text(), "Provincia");
  EXPECT_EQ(main().ComboSexo.text(), "Sexo");
  EXPECT_EQ(main().ComboAño.text(), "Año");
  EXPECT_EQ(main().ComboTabla.items().at(0), "Años de vida potencialmente perdidos  y Tasas de AVPP por provincias");
  EXPECT_EQ(main().ComboSexo.items(), (testing::Lines{"Ambos sexos", "Mujeres", "Hombres"}));
  EXPECT_EQ(main().ComboAño.items(), (testing::Lines{"1999", "2000", "2001", "2002"}));
}

}  // namespace
}  // namespace atlas
