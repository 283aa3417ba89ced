#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/titles.h"
#include "atlas/trap.h"
#include "text/utf8.h"

namespace atlas {

// A cancelled dialog leaves the preset name: the question below still comes, and can be answered with No.
void FrmPrincipal::ImgExportar_Click() {
  silently([&] {
    DlgExportar.setDialogTitle("Guardar como...");
    DlgExportar.setFilter("*.html|HTML");
    DlgExportar.setFileName(Internet.locationName());
    DlgExportar.setFileName(
        atlas_.ports.dialogs.save(DlgExportar.dialogTitle(), DlgExportar.filter(), DlgExportar.fileName()));
    std::string name = DlgExportar.fileName();
    if (text::find(name, ".html") == 0) name += ".html";
    if (!atlas_.ports.files.lookUp(name).empty()) {
      atlas_.ports.messages.show("Ya existe en el destino un archivo con el mismo nombre.",
                                 platform::kOkOnly | platform::kInformation, "El archivo ya existe.");
      return;
    }
    const platform::Button answer =
        atlas_.ports.messages.show("Va a guardar el archivo en " + name + ". ¿Desea continuar?",
                                   platform::kYesNo | platform::kQuestion, kBoxTitle);
    if (answer == platform::Button::yes) atlas_.ports.files.copy(atlas_.archivotabla, name);
  });
}

}  // namespace atlas
