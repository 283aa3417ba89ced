#include "atlas/shell/frm_principal.h"

#include "atlas/atlas.h"
#include "atlas/shell/app_paths.h"
#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/statistics_workspace.h"
#include "atlas/thematic/frm_tematicos.h"
#include "atlas/trap.h"

namespace atlas {

FrmPrincipal::FrmPrincipal(Atlas& atlas, forms::Listener& listener) : Form(listener, "frmPrincipal"), atlas_(atlas) {
  defineControls();
  endDefinition();
  bindWindow();
  bindSideMenu();
  bindDocuments();
  bindTabsAndToolbars();
  bindQueries();
  bindTables();
}

void FrmPrincipal::bindWindow() {
  Load.add([this] { Form_Load(); });
  Resize.add([this] { Form_Resize(); });
  Unload.add([this] { Form_Unload(); });
  MouseMove.add([this] { Form_MouseMove(); });
}

void FrmPrincipal::bindSideMenu() {
  LblEstadisticas.MouseMove.add([this] { LblEstadisticas_MouseMove(); });
  LblInformacion.MouseMove.add([this] { LblInformacion_MouseMove(); });
  LblPresentación.MouseMove.add([this] { LblPresentación_MouseMove(); });
  LblSalir.MouseMove.add([this] { LblSalir_MouseMove(); });
  LblSalir.Click.add([this] { LblSalir_Click(); });
}

void FrmPrincipal::bindTabsAndToolbars() {
  Ficha.Click.add([this](int tabLeft) { Ficha_Click(tabLeft); });
  Ficha.MouseMove.add([this] { Ficha_MouseMove(); });
  FichaAños.Click.add([this] { FichaAños_Click(); });
  FichaAños.MouseMove.add([this] { FichaAños_MouseMove(); });
  FichaConsultasDatos.Click.add([this](int) { FichaConsultasDatos_Click(); });
  Image2.Click.add([this](int index) { Image2_Click(index); });
  Image3.Click.add([this](int index) { Image3_Click(index); });
  Image4.Click.add([this](int index) { Image4_Click(index); });
  for (forms::ImageArray* toolbar : {&Image2, &Image3, &Image4}) {
    toolbar->MouseMove.add([this](int) { toolbar_MouseMove(); });
  }
}

void FrmPrincipal::bindQueries() {
  CmbProvincias.Click.add([this] { CmbProvincias_Click(); });
  CmbZonas.Click.add([this] { CmbZonas_Click(); });
  OptProvincias.MouseUp.add([this] { OptProvincias_MouseUp(); });
  OptZbs.MouseUp.add([this] { OptZbs_MouseUp(); });
  CmbBuscar.Click.add([this] { CmbBuscar_Click(); });
  txtBuscar.GotFocus.add([this] { txtBuscar_GotFocus(); });
  txtBuscar.Change.add([this] { txtBuscar_Change(); });
  ListaResultado.Click.add([this] { ListaResultado_Click(); });
}

void FrmPrincipal::bindTables() {
  ComboTabla.Click.add([this] { ComboTabla_Click(); });
  ComboTipo.Click.add([this] { ComboTipo_Click(); });
  ComboProvincia.Click.add([this] { ComboProvincia_Click(); });
  ComboSexo.Click.add([this] { ComboSexo_Click(); });
  ComboAño.Click.add([this] { ComboAño_Click(); });
  // Nothing can be typed into the selectors.
  for (forms::EditableCombo* combo : {&ComboTabla, &ComboTipo, &ComboProvincia, &ComboSexo, &ComboAño}) {
    combo->Change.add([combo] { silently([&] { combo->setText(""); }); });
  }
  imgBuscaTabla.Click.add([this] { imgBuscaTabla_Click(); });
  ImgExportar.Click.add([this] { ImgExportar_Click(); });
}

void FrmPrincipal::Form_Load() {
  silently([&] {
    ComprobarMapInfo(atlas_);
    if (Ficha.tab() != 3) {
      Ficha.setTab(3);
    } else {
      atlas_.AbrirMapa(atlas_.ports.applicationFolder + std::string(kStatisticsWorkspace));
    }
  });
}

void FrmPrincipal::Form_Resize() {
  silently([&] {
    if (isMinimized()) return;
    if (Ficha.tab() != 0) {
      DisponerMapa();
    } else {
      DisponerInicio();
    }
  });
}

void FrmPrincipal::Form_Unload() {
  silently([&] {
    switch (Ficha.tab()) {
      case 3:
        atlas_.Do("set map layer 1 label default");
        atlas_.Do("end mapinfo");
        atlas_.motormapa.reset();
        break;
      case 2:
        atlas_.Do("set map layer 1 label default layer 2 label default layer 3 label default");
        atlas_.Do("end mapinfo");
        atlas_.motormapa.reset();
        break;
      case 1:
        atlas_.Do("Close window legend");
        atlas_.Do("set map layer 2 label default");
        atlas_.Do("end mapinfo");
        atlas_.motormapa.reset();
        break;
      default:
        break;
    }
    atlas_.frmTematicos().unload();
    atlas_.frmInicio().unload();
    unload();
  });
}

void FrmPrincipal::LblSalir_Click() {
  silently([&] { unload(); });
}

void FrmPrincipal::Form_MouseMove() {
  silently([&] {
    hideSubmenuIfVisible();
    hideSubMenu2IfVisible();
  });
}

void FrmPrincipal::LblSalir_MouseMove() {
  silently([&] {
    hideSubmenuIfVisible();
    hideSubMenu2IfVisible();
  });
}

void FrmPrincipal::LblEstadisticas_MouseMove() {
  silently([&] { Submenu.setVisible(true); });
}

void FrmPrincipal::LblInformacion_MouseMove() {
  silently([&] { SubMenu2.setVisible(true); });
}

void FrmPrincipal::LblPresentación_MouseMove() {
  silently([&] {
    Submenu.setVisible(false);
    SubMenu2.setVisible(false);
  });
}

void FrmPrincipal::toolbar_MouseMove() {
  silently([&] {
    Submenu.setVisible(false);
    SubMenu2.setVisible(false);
  });
}

void FrmPrincipal::hideSubmenuIfVisible() {
  if (Submenu.visible()) Submenu.setVisible(false);
}

void FrmPrincipal::hideSubMenu2IfVisible() {
  if (SubMenu2.visible()) SubMenu2.setVisible(false);
}

}  // namespace atlas
