#include "atlas/atlas.h"
#include "atlas/callbacks/mi_callback.h"
#include "atlas/mapengine/query_layer.h"
#include "atlas/queries/indicator_tree.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/trap.h"

namespace atlas {

void MICallback::info(const std::string& message) {
  silently([&] {
    showWaitNotice();
    removeQueryLayer(atlas_, "set map layer 1 label default");
    const std::optional<Point> point = parseCallbackMessage(message);
    if (!point) return;
    atlas_.frmPrincipal().TreeView1.clear();
    const double hits = atlas_.Eval("SearchPoint(WindowID(1)," + point->x + "," + point->y + ")").number();
    std::string table;
    for (int hit = 1; hit <= hits; ++hit) addHit(hit, *point, table);
    // Without a hit there is no table: the engine rejects the expression and the wait notice stays.
    atlas_.nombreinfo = field(table, ".col1");
    hideWaitNotice();
  });
}

// Lists one object under the point. Columns are read by position: 1 the name, 2 the indicator, 3 a second line, 5 the
// value. `table` is left as the object's table.
void MICallback::addHit(int hit, const Point& point, std::string& table) {
  forms::TreeView& tree = atlas_.frmPrincipal().TreeView1;
  const std::string number = std::to_string(hit);
  table = atlas_.Eval("SearchInfo(" + number + ",1)").text();
  const std::string row = atlas_.Eval("SearchInfo(" + number + ",2)").text();
  atlas_.Do("Fetch Rec " + row + " From " + table);
  if (hit == 1) {
    atlas_.Do("Set map zoom 200 units \"km\" center(" + point.x + ", " + point.y + ")");
    atlas_.Do("Select obj from " + table + " where rowid=" + row);
  }
  forms::Node& root = tree.add(nullptr, field(table, ".col1"), {.bold = true, .color = kNavyNode});
  tree.add(&root, field(table, ".col3"));
  const std::string label = field(table, ".col2");
  const std::string value = atlas_.Eval("Formatnumber$(round(" + table + ".col5,0.01))").text();
  tree.add(&root, withoutCausePrefix(label) + ": " + value);
  root.setExpanded(true);
}

}  // namespace atlas
