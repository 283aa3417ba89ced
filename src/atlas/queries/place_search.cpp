#include "atlas/atlas.h"
#include "atlas/queries/indicator_tree.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/trap.h"
#include "text/utf8.h"

// The search of a place by the beginning of its name.
namespace atlas {
namespace {

constexpr const char* kPrompt = "Escriba el lugar que desea buscar";
constexpr const char* kNothingFound = "No se encuentran registros.";
constexpr std::size_t kShortestSearch = 3;

}  // namespace

void FrmPrincipal::CmbBuscar_Click() {
  reporting(atlas_.ports.messages, [&] {
    if (CmbBuscar.text() == "Provincias") {
      atlas_.tablabusqueda = "Provincias";
    } else if (CmbBuscar.text() == "Zonas básicas") {
      atlas_.tablabusqueda = "ZonasBasicas";
    }
    // The new text is searched for like any other; what it finds is discarded.
    txtBuscar.setText(kPrompt);
    ListaResultado.clear();
  });
}

// Runs under no trap.
void FrmPrincipal::txtBuscar_GotFocus() { txtBuscar.setText(""); }

void FrmPrincipal::txtBuscar_Change() {
  reporting(atlas_.ports.messages, [&] {
    ListaResultado.clear();
    if (text::length(txtBuscar.text()) < kShortestSearch) return;
    SeleccionarFilas(atlas_, "Select nombre from " + atlas_.tablabusqueda + year() + " where nombre like \"" +
                                 txtBuscar.text() + "%\" group by nombre");
    if (atlas_.Eval("SelectionInfo(3)").number() != 0) {
      atlas_.Do("fetch first from selection");
      addSelectedNames(ListaResultado, "Selection.nombre");
    } else {
      ListaResultado.addItem(kNothingFound);
    }
  });
}

void FrmPrincipal::ListaResultado_Click() {
  reporting(atlas_.ports.messages, [&] {
    txtespere1.setVisible(true);
    txtEspere.setVisible(true);
    const std::string name = ListaResultado.text();
    if (name != kNothingFound) showPlaceFound(name);
    txtEspere.setVisible(false);
    txtespere1.setVisible(false);
  });
}

void FrmPrincipal::showPlaceFound(const std::string& name) {
  LimpiarConsulta();
  if (atlas_.tablabusqueda != "Provincias") {
    atlas_.Do("set map layer 1 selectable off display graphic layer 2 display global");
    OptZbs.setValue(true);
  } else {
    atlas_.Do("Set Map layer 1 selectable on display global zoom (0,100000) Off layer 2 display off");
    OptProvincias.setValue(true);
  }
  SeleccionarFilas(
      atlas_, "Select * from " + atlas_.tablabusqueda + year() + " where nombre=\"" + name + "\" order by sexo,tipo");
  ResaltarSeleccion(atlas_,
                    "Set map zoom 200 units \"Km\" center (centroidX(selection.obj),centroidY(selection.obj)) "
                    "layer 1 display global global brush (2,255,255) pen (1,2,44031) "
                    "Label Font (\"Tahoma\",1,8,16777215)");
  TreeView1.clear();
  atlas_.Do("Fetch first from selection");
  AgregarUnidadArbol(atlas_, YearNode::wanted);
  atlas_.unit = {atlas_.tablabusqueda, name};
  atlas_.MarcaConsulta = false;
  AgregarUnidadesSuperiores(atlas_);
}

}  // namespace atlas
