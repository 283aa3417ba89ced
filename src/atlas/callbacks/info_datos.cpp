#include "atlas/atlas.h"
#include "atlas/callbacks/mi_callback.h"
#include "atlas/mapengine/query_layer.h"
#include "atlas/queries/indicator_tree.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/titles.h"
#include "atlas/trap.h"

namespace atlas {

void MICallback::InfoDatos(const std::string& message) {
  silently([&] {
    FrmPrincipal& main = atlas_.frmPrincipal();
    showWaitNotice();
    removeQueryLayer(atlas_, "set map layer 1 label default");
    const std::optional<Point> point = parseCallbackMessage(message);
    if (!point) return;
    main.TreeView1.clear();
    main.TreeView1.add(nullptr, main.year(), {.bold = true, .color = kNavyNode});
    if (!listUnitsUnder(*point)) {
      atlas_.Do("set map order 2,1,3");
      atlas_.ports.messages.show("Pinche sobre un objeto del mapa por favor.", platform::kOkOnly, kProgramTitle);
      hideWaitNotice();
      main.TreeView1.clear();
      return;
    }
    // A Select may have changed the order of the layers.
    atlas_.Do("set map order 2,1,3");
    highlightUnit(*point);
    hideWaitNotice();
  });
}

// Adds the tree of the unit under the point in each layer of the front map. False as soon as a layer has none there.
bool MICallback::listUnitsUnder(const Point& point) {
  const double layers = atlas_.Eval("mapperinfo(frontwindow(),9) ").number();
  atlas_.Do("set map order 2,1,3");
  for (int layer = 1; layer <= layers; ++layer) {
    const std::string number = std::to_string(layer);
    if (atlas_.Eval("Layerinfo(frontwindow()," + number + ",9)").number() == 0) continue;
    const std::string name = atlas_.Eval("layerinfo(frontwindow()," + number + ",1)").text();
    SeleccionarFilas(atlas_, "Select * from " + name + "  where obj contains createpoint(" + point.x + "," + point.y +
                                 ") order by sexo,tipo");
    if (atlas_.Eval("Selectioninfo(3)").number() == 0) return false;
    atlas_.Do("fetch first from selection");
    AgregarUnidadArbol(atlas_, YearNode::none);
  }
  return true;
}

// Fills the unit under the point in blue, zooms to it and makes it the current unit: the zone where layer 2 is shown,
// else the province.
void MICallback::highlightUnit(const Point& point) {
  const bool isZone = atlas_.Eval("Layerinfo(frontwindow(),2,9)").number() != 0;
  const std::string table = isZone ? "ZonasBasicas" : "Provincias";
  SeleccionarFilas(atlas_, "Select * from " + table + atlas_.year() + "  where obj contains createpoint(" + point.x +
                               "," + point.y + ") order by indicador,sexo");
  if (atlas_.Eval("Selectioninfo(3)").number() == 0) return;
  ResaltarSeleccion(atlas_, "Set map center(" + point.x + ", " + point.y +
                                ") zoom 300 units \"Km\" layer 1 display global global brush (2,255,255) "
                                "Pen (1,2,44031) Label Font (\"Tahoma\",1,8,16777215)");
  // The table first: when the name cannot be read it stays.
  atlas_.unit.Tabla = table;
  atlas_.unit.Nombre = atlas_.Eval("Selection.nombre").text();
  atlas_.MarcaConsulta = true;
}

}  // namespace atlas
