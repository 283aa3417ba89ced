#include "atlas/queries/indicator_tree.h"

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "text/failure.h"
#include "text/utf8.h"

namespace atlas {
namespace {

constexpr forms::NodeStyle kUnitStyle{.bold = true, .color = kNavyNode};
constexpr forms::NodeStyle kSexStyle{.bold = false, .color = kSexNode};
constexpr forms::NodeStyle kTypeStyle{.bold = false, .color = kNavyNode};

// Where a walk over rows stands. A type seen last stays so when a new sex begins: when the new sex begins with the same
// type, its first indicators go under the node of the sex before.
struct Walk {
  forms::Node* sexNode = nullptr;
  forms::Node* typeNode = nullptr;
  std::string lastSex;
  std::string lastType;
};

forms::Node& addUnder(forms::TreeView& tree, forms::Node* parent, const std::string& text,
                      forms::NodeStyle style = {}) {
  if (parent == nullptr) throw failures::noObject();
  return tree.add(parent, text, style);
}

bool isCauseList(const std::string& type) { return type == "Lista reducida" || type == "Grandes grupos"; }

// A field that changed is read from the engine a second time, and so is the indicator of a cause list.
void addRow(Atlas& atlas, forms::Node& unitNode, Walk& walk) {
  forms::TreeView& tree = atlas.frmPrincipal().TreeView1;
  if (atlas.Eval("Selection.sexo").text() != walk.lastSex) {
    walk.lastSex = atlas.Eval("Selection.sexo").text();
    walk.sexNode = &tree.add(&unitNode, walk.lastSex, kSexStyle);
  }
  const std::string type = atlas.Eval("Selection.tipo").text();
  if (type != walk.lastType) {
    walk.lastType = atlas.Eval("Selection.tipo").text();
    const std::string rates = isCauseList(walk.lastType) ? " (Tasas estandarizadas x100.000)" : "";
    walk.typeNode = &addUnder(tree, walk.sexNode, walk.lastType + rates, kTypeStyle);
  }
  std::string indicator = atlas.Eval("selection.indicador").text();
  if (isCauseList(type)) {
    indicator = text::mid(atlas.Eval("selection.indicador").text(), kCausePrefixLength + 1);
  }
  const std::string value = atlas.Eval("Formatnumber$(round(Selection.valor,0.01))").text();
  addUnder(tree, walk.typeNode, indicator + ": " + value);
}

void addUnit(Atlas& atlas, Walk& walk) {
  forms::Node& unitNode =
      atlas.frmPrincipal().TreeView1.add(nullptr, atlas.Eval("Selection.nombre").text(), kUnitStyle);
  while (atlas.Eval("EOT(\"Selection\")").text() == "F") {
    addRow(atlas, unitNode, walk);
    atlas.Do("Fetch next from selection");
  }
  unitNode.setExpanded(true);
}

}  // namespace

std::string withoutCausePrefix(const std::string& indicator) {
  if (text::left(indicator, kCausePrefixLength) != kCausePrefix) return indicator;
  return text::mid(indicator, kCausePrefixLength + 1);
}

void SeleccionarFilas(Atlas& atlas, const std::string& select) { atlas.Do(select); }

void ResaltarSeleccion(Atlas& atlas, const std::string& statement) {
  atlas.Do("Add map layer Selection");
  atlas.Do(statement);
}

void AgregarUnidadArbol(Atlas& atlas, YearNode yearNode) {
  if (yearNode == YearNode::wanted) {
    atlas.frmPrincipal().TreeView1.add(nullptr, atlas.Eval("Selection.año").text(), kUnitStyle);
  }
  Walk walk;
  addUnit(atlas, walk);
}

void AgregarUnidadesSuperiores(Atlas& atlas) {
  // The region's walk goes on where the province's ended: what the province saw last counts as seen.
  Walk walk;
  if (atlas.unit.Tabla == "ZonasBasicas") {
    SeleccionarFilas(
        atlas, "Select provincia from ZonasBasicas" + atlas.year() + " where nombre=\"" + atlas.unit.Nombre + "\"");
    const std::string province = atlas.Eval("Selection.COL1").text();
    SeleccionarFilas(atlas, "Select Año,Nombre,Sexo,Tipo,indicador,valor from Provincias" + atlas.year() +
                                " where nombre=\"" + province + "\" order by sexo,tipo");
    atlas.Do("Fetch first from selection");
    addUnit(atlas, walk);
  }
  SeleccionarFilas(atlas,
                   "Select Año,Nombre,Sexo,Tipo,indicador,valor from Veldoria" + atlas.year() + " order by sexo,tipo");
  atlas.Do("Fetch first from selection");
  addUnit(atlas, walk);
}

}  // namespace atlas
