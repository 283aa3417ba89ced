#include "atlas/thematic/frm_tematicos.h"

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/catalogue.h"
#include "atlas/thematic/selector_window.h"
#include "atlas/trap.h"

namespace atlas {

FrmTematicos::FrmTematicos(Atlas& atlas, forms::Listener& listener) : Form(listener, "frmTematicos"), atlas_(atlas) {
  defineControls();
  defineItems();
  endDefinition();

  Load.add([this] { Form_Load(); });
  Unload.add([this] { Form_Unload(); });
  BtnTematico.Click.add([this] { BtnTematico_Click(); });
  CmbMarco.Click.add([this] { CmbMarco_Click(); });
  CmbUnidad.Click.add([this] { CmbUnidad_Click(); });
  CmbSexo.Click.add([this] { CmbSexo_Click(); });
  CmbIndicador.Click.add([this] { CmbIndicador_Click(); });
}

void FrmTematicos::Form_Load() {
  silently([&] {
    const FrmPrincipal& main = atlas_.frmPrincipal();
    setTop(main.top() + main.height() - 1440);
    setLeft(main.left() + 700);
    const auto& choice = atlas_.SeleccionTematica;
    if (!choice[kIndicator].empty() && !Cargado) {
      CmbMarco.setText(choice[kFrame]);
      CmbUnidad.setText(choice[kUnit]);
      CmbSexo.setText(choice[kSex]);
      CmbIndicador.setText(choice[kIndicator]);
      CmbUnidad.setEnabled(CmbMarco.text() == kWholeRegion);
    }
    Cargado = true;
  });
}

void FrmTematicos::Form_Unload() {
  silently([&] { Cargado = false; });
}

void FrmTematicos::BtnTematico_Click() {
  silently([&] {
    if (!Cargado) return;
    atlas_.Do("set map layer 2 label default");
    openInYear(pathInYear({.isWholeRegion = CmbMarco.listIndex() == 0,
                           .sex = CmbSexo.text(),
                           .frame = CmbMarco.text(),
                           .unit = CmbUnidad.text(),
                           .indicator = CmbIndicador.text()}));
  });
}

void FrmTematicos::CmbIndicador_Click() {
  silently([&] {
    if (!Cargado) return;
    atlas_.SeleccionTematica[kIndicator] = CmbIndicador.text();
    openRemembered();
  });
}

void FrmTematicos::CmbSexo_Click() {
  silently([&] {
    if (!Cargado) return;
    atlas_.SeleccionTematica[kSex] = CmbSexo.text();
    openRemembered();
  });
}

void FrmTematicos::CmbUnidad_Click() {
  silently([&] {
    if (!Cargado) return;
    atlas_.SeleccionTematica[kUnit] = CmbUnidad.text();
    openRemembered();
  });
}

void FrmTematicos::CmbMarco_Click() {
  silently([&] {
    if (!Cargado) return;
    if (CmbMarco.text() != kWholeRegion) {
      // Another unit than before is a choice of its own: it opens its map, still in the frame remembered so far.
      CmbUnidad.setListIndex(1);
      CmbUnidad.setEnabled(false);
    } else {
      CmbUnidad.setEnabled(true);
    }
    atlas_.SeleccionTematica[kFrame] = CmbMarco.text();
    openRemembered();
  });
}

void FrmTematicos::openRemembered() {
  const auto& choice = atlas_.SeleccionTematica;
  openInYear(pathInYear({.isWholeRegion = choice[kFrame] == kWholeRegion,
                         .sex = choice[kSex],
                         .frame = choice[kFrame],
                         .unit = choice[kUnit],
                         .indicator = choice[kIndicator]}));
}

void FrmTematicos::openInYear(const std::string& path) {
  const std::string ruta = yearFolder(atlas_.ports.applicationFolder, atlas_.year()) + path;
  atlas_.RutaTematica = path;
  atlas_.frmPrincipal().TreeView1.clear();
  atlas_.nombreinfo.clear();
  atlas_.Do("Close Window Legend");
  atlas_.AbrirMapa(ruta);
  keepSelectorOnTop(atlas_);
}

}  // namespace atlas
