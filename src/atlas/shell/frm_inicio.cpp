#include "atlas/shell/frm_inicio.h"

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/trap.h"

namespace atlas {

FrmInicio::FrmInicio(Atlas& atlas, forms::Listener& listener) : Form(listener, "frmInicio"), atlas_(atlas) {
  setCaption("Estudio de Mortalidad en Veldoria");
  place(0, 0, 7200, 4800);
  Image1.place(0, 0, 7200, 4800);
  Image1.picture = "portada";
  Timer1.interval = 2500;
  endDefinition();

  DblClick.add([this] { Form_DblClick(); });
  Image1.DblClick.add([this] { Form_DblClick(); });
  Timer1.Tick.add([this] { Timer1_Timer(); });
}

void FrmInicio::Timer1_Timer() {
  silently([&] {
    atlas_.frmPrincipal().load();
    atlas_.frmPrincipal().show();
    Timer1.setEnabled(false);
    unload();
  });
}

void FrmInicio::Form_DblClick() {
  silently([&] {
    atlas_.frmPrincipal().load();
    atlas_.frmPrincipal().show();
    unload();
  });
}

}  // namespace atlas
