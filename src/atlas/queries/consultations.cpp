#include "atlas/atlas.h"
#include "atlas/queries/indicator_tree.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/trap.h"

// Consultations by province and basic health zone.
namespace atlas {

// The lists are not emptied: entering the data tab again adds the same names once more.
void FrmPrincipal::LlenarListasConsulta(const std::string& listYear) {
  silently([&] {
    SeleccionarFilas(atlas_, "Select nombre from provincias" + listYear + " group by nombre");
    atlas_.Do("Fetch first from Selection");
    addSelectedNames(CmbProvincias, "Selection.nombre");
    SeleccionarFilas(atlas_, "Select nombre from ZonasBasicas" + listYear + " group by nombre");
    atlas_.Do("Fetch first from Selection");
    addSelectedNames(CmbZonas, "Selection.nombre");
  });
}

void FrmPrincipal::addSelectedNames(forms::ItemList& list, const std::string& field) {
  while (atlas_.Eval("EOT(Selection)").text() == "F") {
    list.addItem(atlas_.Eval(field).text());
    atlas_.Do("fetch next from selection");
  }
}

void FrmPrincipal::CmbProvincias_Click() {
  reporting(atlas_.ports.messages, [&] {
    const std::string province = CmbProvincias.text();
    txtEspere.setVisible(true);
    txtespere1.setVisible(true);
    LimpiarConsulta();
    ProgressBar1.setVisible(true);
    ProgressBar1.setValue(20);
    atlas_.Do("Set Map layer 1 selectable on display global zoom (0,100000) Off layer 2 display off");
    OptProvincias.setValue(true);
    Lblzonas.setCaption("Zonas Basicas de " + province);
    SeleccionarFilas(atlas_, "Select Año,Nombre,Sexo,Tipo,indicador,valor from provincias" + year() +
                                 " where nombre=\"" + province + "\" order by sexo,tipo");
    ProgressBar1.setValue(40);
    ResaltarSeleccion(atlas_,
                      "Set map center (centroidX(selection.obj),centroidy(selection.obj))zoom 300 units \"Km\" "
                      "layer 1 display global global brush (2,255,255) Pen (1,2,44031) "
                      "Label Font (\"Tahoma\",1,8,16777215)");
    TreeView1.clear();
    SeleccionarFilas(atlas_, "Select año,nombre,sexo,tipo,indicador,valor from provincias" + year() +
                                 " where nombre=\"" + province + "\" order by sexo,tipo");
    atlas_.Do("Fetch first from selection");
    AgregarUnidadArbol(atlas_, YearNode::wanted);
    atlas_.unit = {"Provincias", province};
    atlas_.MarcaConsulta = false;
    AgregarUnidadesSuperiores(atlas_);
    listZonesOf(province);
    txtEspere.setVisible(false);
    txtespere1.setVisible(false);
    ProgressBar1.setValue(100);
    ProgressBar1.setVisible(false);
  });
}

void FrmPrincipal::listZonesOf(const std::string& province) {
  CmbZonas.clear();
  SeleccionarFilas(
      atlas_, "Select Nombre from ZonasBasicas" + year() + " where Provincia=\"" + province + "\" group by nombre");
  atlas_.Do("Fetch first from Selection");
  addSelectedNames(CmbZonas, "Selection.Nombre");
}

void FrmPrincipal::CmbZonas_Click() {
  reporting(atlas_.ports.messages, [&] {
    const std::string zone = CmbZonas.text();
    txtEspere.setVisible(true);
    txtespere1.setVisible(true);
    LimpiarConsulta();
    ProgressBar1.setVisible(true);
    ProgressBar1.setValue(20);
    atlas_.Do("set map layer 1 selectable off display graphic layer 2 display global");
    atlas_.Do("Set map zoom entire");
    OptZbs.setValue(true);
    SeleccionarFilas(atlas_, "Select año,nombre,provincia,sexo,tipo,indicador,valor from ZonasBasicas" + year() +
                                 " where nombre=\"" + zone + "\" order by sexo,tipo");
    ProgressBar1.setValue(40);
    atlas_.Do(
        "Add map layer Selection Set map center (centroidx(selection.obj),centroidy(selection.obj)) zoom 300 units "
        "\"km\" layer 1 display global global brush (2,255,255) Pen (1,2,44031) "
        "Label Font (\"Tahoma\",1,8,16777215)");
    ProgressBar1.setValue(60);
    TreeView1.clear();
    atlas_.Do("Fetch first from selection");
    static_cast<void>(atlas_.Eval("Selection.provincia"));
    AgregarUnidadArbol(atlas_, YearNode::wanted);
    atlas_.unit = {"ZonasBasicas", zone};
    atlas_.MarcaConsulta = false;
    AgregarUnidadesSuperiores(atlas_);
    ProgressBar1.setValue(100);
    ProgressBar1.setVisible(false);
    txtEspere.setVisible(false);
    txtespere1.setVisible(false);
  });
}

void FrmPrincipal::OptProvincias_MouseUp() {
  silently([&] {
    atlas_.Do(
        "set map layer 1 selectable on display global zoom (0,100000) units \"Km\" On  layer 2 Label Default "
        "display off ");
  });
}

void FrmPrincipal::OptZbs_MouseUp() {
  silently([&] {
    atlas_.Do(
        "set map layer 1 selectable off display graphic zoom (310,100000) units \"Km\" On label default layer 2 "
        "display global");
  });
}

}  // namespace atlas
