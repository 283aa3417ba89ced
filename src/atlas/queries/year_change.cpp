#include "atlas/atlas.h"
#include "atlas/queries/indicator_tree.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/trap.h"

// What was shown, shown again after another year's map has been opened.
namespace atlas {

// Runs under its caller's trap.
void FrmPrincipal::ActualizarConsultaAño() {
  txtEspere.setVisible(true);
  txtespere1.setVisible(true);
  SeleccionarFilas(atlas_, "Select Año,Nombre,Sexo,Tipo,indicador,valor from " + atlas_.unit.Tabla + year() +
                               " where nombre=\"" + atlas_.unit.Nombre + "\" order by sexo,tipo");
  // Below the selection's own layer, layer 2 is the provinces and layer 3 the zones.
  const std::string layersBelow = atlas_.unit.Tabla == "Provincias"
                                      ? "layer 2 selectable on display global layer 3 display off"
                                      : "layer 2 display graphic layer 3 display global";
  ResaltarSeleccion(atlas_,
                    "set map center (CentroidX(selection.obj),CentroidY(selection.obj)) zoom 300 units \"km\" "
                    "layer 1 display global global brush (2,255,255) Pen (1,2,44031) "
                    "Label Font (\"Tahoma\",1,8,16777215) " +
                        layersBelow);
  TreeView1.clear();
  atlas_.Do("Fetch first from selection");
  AgregarUnidadArbol(atlas_, YearNode::wanted);
  AgregarUnidadesSuperiores(atlas_);
  txtEspere.setVisible(false);
  txtespere1.setVisible(false);
}

void FrmPrincipal::ActualizarObjetoTematico() {
  reporting(atlas_.ports.messages, [&] {
    const std::string table = atlas_.Eval("Tableinfo(1,1)").text();
    TreeView1.clear();
    SeleccionarFilas(
        atlas_, "Select CentroidX(obj), CentroidY(obj) from " + table + " where nombre=\"" + atlas_.nombreinfo + "\"");
    const std::string x = atlas_.Eval("Selection.COL1").text();
    const std::string y = atlas_.Eval("Selection.COL2").text();
    atlas_.Do("Set map zoom 200 units \"km\"  center(" + x + ", " + y + ")");
    SeleccionarFilas(atlas_, "Select * from " + table + " where nombre=\"" + atlas_.nombreinfo + "\"");
    const std::string name = atlas_.Eval(table + ".Nombre").text();
    const std::string sex = atlas_.Eval(table + ".Sexo").text();
    const std::string indicator = atlas_.Eval(table + ".Indicador").text();
    forms::Node& root = TreeView1.add(nullptr, name, {.bold = true, .color = kNavyNode});
    TreeView1.add(&root, sex);
    const std::string value = atlas_.Eval("Formatnumber$(round(" + table + ".Valor,0.01))").text();
    TreeView1.add(&root, withoutCausePrefix(indicator) + ": " + value);
    root.setExpanded(true);
  });
}

}  // namespace atlas
