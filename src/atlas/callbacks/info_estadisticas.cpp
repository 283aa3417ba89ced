#include "atlas/atlas.h"
#include "atlas/callbacks/mi_callback.h"
#include "atlas/mapengine/query_layer.h"
#include "atlas/queries/indicator_tree.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/titles.h"
#include "atlas/trap.h"
#include "text/failure.h"

namespace atlas {

void MICallback::infoEstadisticas(const std::string& message) {
  silently([&] {
    showWaitNotice();
    removeQueryLayer(atlas_, "Set map layer 1 label default");
    const std::optional<Point> point = parseCallbackMessage(message);
    if (!point) return;
    atlas_.frmPrincipal().TreeView1.clear();
    const std::string layer = atlas_.Eval("layerinfo(frontwindow(),1,1)").text();
    atlas_.Do("Select * from " + layer + "  where obj contains createpoint(" + point->x + "," + point->y +
              ") order by tipo,indicador");
    if (atlas_.Eval("Selectioninfo(3)").number() == 0) {
      atlas_.ports.messages.show("Pinche sobre un objeto del mapa por favor.", platform::kOkOnly, kProgramTitle);
      hideWaitNotice();
      return;
    }
    listStatistics(layer);
    atlas_.Do("Select * from " + layer + "  where obj contains createpoint(" + point->x + "," + point->y + ")");
    atlas_.Do("Select obj from selection where rowid=1");
    hideWaitNotice();
  });
}

// Lists the rows selected under one object node. The fields are read through the layer's own table: the engine keeps it
// on the selection's current row. Columns are read by position: 1 the object, 2 the group, 3 the label, 4 the value.
void MICallback::listStatistics(const std::string& layer) {
  forms::TreeView& tree = atlas_.frmPrincipal().TreeView1;
  atlas_.Do("fetch first from selection");
  const int rows = atlas_.Eval("tableinfo(\"Selection\",8)").int16();
  forms::Node* objectNode = nullptr;
  forms::Node* groupNode = nullptr;
  std::string lastGroup;
  for (int row = 1; row <= rows; ++row) {
    if (row == 1) objectNode = &tree.add(nullptr, field(layer, ".col1"), {.bold = true, .color = kNavyNode});
    const int columns = atlas_.Eval("TableInfo(" + layer + ",4)").int16();
    if (columns >= 2) {
      const std::string group = field(layer, ".col2");
      if (group != lastGroup) {
        groupNode = &tree.add(objectNode, group);
        lastGroup = group;
      }
    }
    if (columns >= 3) addStatistic(layer, groupNode);
    objectNode->setExpanded(true);
    atlas_.Do("fetch next from selection");
  }
}

std::string MICallback::field(const std::string& table, const std::string& column) {
  return atlas_.Eval(table + column).text();
}

void MICallback::addStatistic(const std::string& layer, forms::Node* groupNode) {
  const std::string label = field(layer, ".col3");
  const std::string value = atlas_.Eval("Formatnumber$(round(" + layer + ".col4,0.01))").text();
  // A first group without a text has no node.
  if (groupNode == nullptr) throw failures::noObject();
  atlas_.frmPrincipal().TreeView1.add(groupNode, label + ": " + value);
}

}  // namespace atlas
