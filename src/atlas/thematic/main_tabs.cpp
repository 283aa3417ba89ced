#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/shell/statistics_workspace.h"
#include "atlas/thematic/catalogue.h"
#include "atlas/thematic/selector_window.h"
#include "atlas/trap.h"

// The main tabs: each shows tables or one kind of map, and every change of tab ends the running engine.
namespace atlas {

void FrmPrincipal::Ficha_Click(int tabLeft) {
  silently([&] {
    atlas_.RutaTematica.clear();
    clearLabelsOfTab(tabLeft);
    atlas_.motormapa.reset();
    const std::string ruta = showTab();
    lblComando.setCaption("");
    txtBuscar.setText("");
    ListaResultado.clear();
    FichaAños.setLeft(Ficha.width() - FichaAños.width() + 150);
    if (Ficha.tab() != 0) {
      atlas_.AbrirMapa(ruta);
      static_cast<void>(atlas_.Eval("frontwindow()"));
      if (Ficha.tab() == 2) {
        LlenarListasConsulta(year());
        FichaConsultasDatos.setVisible(true);
      }
    }
    OptZbs.setValue(true);
    atlas_.unit = {};
    atlas_.nombreinfo.clear();
    atlas_.MarcaConsulta = true;
  });
}

void FrmPrincipal::clearLabelsOfTab(int tabLeft) {
  switch (tabLeft) {
    case 1:
      atlas_.Do("set map layer 2 label default");
      break;
    case 2:
      atlas_.Do("set map layer 1 label default layer 2 label default layer 3 label default");
      break;
    case 3:
      atlas_.Do("set map layer 1 label default");
      break;
    default:
      break;
  }
}

std::string FrmPrincipal::showTab() {
  const std::string& folder = atlas_.ports.applicationFolder;
  switch (Ficha.tab()) {
    case 0:
      showTables();
      return "";
    case 1:
      showYearTabsAndMap();
      atlas_.SeleccionTematica = {"Población", "Veldoria", "Zonas Básicas", "Ambos Sexos"};
      return yearFolder(folder, year()) + defaultPathInYear();
    case 2:
      showYearTabsAndMap();
      return folder + "\\Tablas\\" + year() + "\\Año" + year() + ".wor";
    default:
      showStatisticsMap();
      return folder + std::string(kStatisticsWorkspace);
  }
}

void FrmPrincipal::showTables() {
  FichaAños.setVisible(false);
  PictureMapa.setVisible(false);
  FichaConsultasDatos.setVisible(false);
  Image1.setVisible(false);
  Internet.setVisible(true);
  TablasListas = false;
  ComboTabla.setListIndex(0);
  ComboAño.setListIndex(0);
  ComboSexo.setListIndex(0);
  ComboTipo.setListIndex(0);
  ComboProvincia.setListIndex(0);
  TablasListas = true;
  Ficha.setWidth(width() - 300);
  Internet.setWidth(width() - 850);
  ShpCabecera.setWidth(Internet.width());
  lblVeldoria.setVisible(false);
  closeSelectorIfOpen(atlas_);
  atlas_.archivotabla = atlas_.ports.applicationFolder + "\\Tablas\\HTML\\0\\Grandes Grupos\\1999 - Ambos Sexos.html";
  Internet.navigate(atlas_.archivotabla);
}

void FrmPrincipal::showYearTabsAndMap() {
  FichaConsultasDatos.setVisible(false);
  Internet.setVisible(false);
  FichaAños.setVisible(true);
  PictureMapa.setVisible(true);
  Image1.setVisible(true);
  layOutMap();
  lblVeldoria.setVisible(false);
}

void FrmPrincipal::showStatisticsMap() {
  FichaConsultasDatos.setVisible(false);
  FichaAños.setVisible(false);
  Internet.setVisible(false);
  PictureMapa.setVisible(true);
  Image1.setVisible(true);
  layOutMap();
  lblVeldoria.setVisible(true);
}

void FrmPrincipal::Ficha_MouseMove() {
  silently([&] {
    hideSubmenuIfVisible();
    hideSubMenu2IfVisible();
  });
}

void FrmPrincipal::FichaConsultasDatos_Click() {
  silently([&] {
    txtBuscar.setText("");
    ListaResultado.clear();
  });
}

}  // namespace atlas
