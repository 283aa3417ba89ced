#include "atlas/mapengine/query_layer.h"

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/trap.h"
#include "text/utf8.h"

namespace atlas {

bool removeQueryLayer(Atlas& atlas, const std::string& labelStatement) {
  const std::string window = atlas.Eval("frontwindow()").text();
  const std::string name = atlas.Eval("LayerInfo(" + window + ",1,1)").text();
  if (text::left(name, 5) != "Query") return false;
  atlas.Do(labelStatement);
  atlas.Do("Remove map layer 1 Interactive");
  atlas.Do("Set map zoom entire");
  return true;
}

void FrmPrincipal::LimpiarConsulta() {
  silently([&] {
    if (removeQueryLayer(atlas_, "set map layer 1 label default ")) atlas_.unit = {};
  });
}

}  // namespace atlas
