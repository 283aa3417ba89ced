#include "atlas/thematic/selector_window.h"

#include "atlas/atlas.h"
#include "atlas/thematic/frm_tematicos.h"
#include "atlas/titles.h"

namespace atlas {

bool isSelectorOpen(Atlas& atlas) { return atlas.ports.windows.find(kSelectorTitle) != 0; }

void showSelectorOnTop(Atlas& atlas) {
  atlas.frmTematicos().load();
  atlas.frmTematicos().show();
  keepSelectorOnTop(atlas);
}

void keepSelectorOnTop(Atlas& atlas) {
  atlas.ports.windows.setZOrder(atlas.frmTematicos().hWnd(), platform::ZOrder::topmost,
                                platform::kNoSize | platform::kNoMove | platform::kNoActivate);
}

void closeSelector(Atlas& atlas) {
  atlas.frmTematicos().hide();
  atlas.frmTematicos().unload();
}

void closeSelectorIfOpen(Atlas& atlas) {
  if (isSelectorOpen(atlas)) closeSelector(atlas);
}

}  // namespace atlas
