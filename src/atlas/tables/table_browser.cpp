#include <algorithm>
#include <array>

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/titles.h"
#include "atlas/trap.h"

// The prepared tables: the choices made in five boxes name a page.
namespace atlas {
namespace {

// What a box reads while nothing is chosen in it.
constexpr const char* kNoType = "Tipo";
constexpr const char* kNoProvince = "Provincia";
constexpr const char* kNoYear = "Año";
constexpr const char* kNoSex = "Sexo";

struct TableKind {
  const char* index;
  bool isByType;
  bool isByProvince;
  const char* messageWhenIncomplete;  // null: nothing is said
  int icon;
};

constexpr const char* kChoose = "Seleccione los parámetros requeridos por favor.";
constexpr const char* kChooseAll = "Seleccione todos los parámetros requeridos por favor.";

constexpr std::array kTableKinds = std::to_array<TableKind>({
    {"0", true, false, kChoose, platform::kInformation},
    {"1", true, true, kChooseAll, platform::kExclamation},
    {"2", false, false, nullptr, platform::kOkOnly},
    {"3", false, false, kChooseAll, platform::kExclamation},
    {"4", false, false, kChooseAll, platform::kExclamation},
});

}  // namespace

void FrmPrincipal::MostrarTabla(const std::string& indice) {
  silently([&] {
    const auto kind =
        std::ranges::find_if(kTableKinds, [&](const TableKind& candidate) { return candidate.index == indice; });
    if (kind == kTableKinds.end()) return;
    const bool isIncomplete = (kind->isByProvince && ComboProvincia.text() == kNoProvince) ||
                              (kind->isByType && ComboTipo.text() == kNoType) || ComboAño.text() == kNoYear ||
                              ComboSexo.text() == kNoSex;
    if (isIncomplete) {
      if (kind->messageWhenIncomplete == nullptr) return;
      atlas_.ports.messages.show(kind->messageWhenIncomplete, platform::kOkOnly | kind->icon, kBoxTitle);
      return;
    }
    const std::string type = kind->isByType ? ComboTipo.text() + "\\" : "";
    const std::string province = kind->isByProvince ? ComboProvincia.text() + " - " : "";
    const std::string path = atlas_.ports.applicationFolder + "\\Tablas\\HTML\\" + indice + "\\" + type +
                             ComboAño.text() + " - " + province + ComboSexo.text() + ".html";
    Internet.navigate(path);
    atlas_.archivotabla = path;
  });
}

void FrmPrincipal::ComboTabla_Click() {
  silently([&] {
    if (!TablasListas) return;
    ComboTipo.setVisible(ComboTabla.listIndex() == 0 || ComboTabla.listIndex() == 1);
    ComboProvincia.setVisible(ComboTabla.listIndex() == 1);
    MostrarTabla(std::to_string(ComboTabla.listIndex()));
  });
}

// Asks no flag: this box opens a table also while the main tabs put the boxes back.
void FrmPrincipal::ComboTipo_Click() {
  silently([&] { MostrarTabla(std::to_string(ComboTabla.listIndex())); });
}

void FrmPrincipal::ComboProvincia_Click() {
  silently([&] {
    if (TablasListas) MostrarTabla(std::to_string(ComboTabla.listIndex()));
  });
}

void FrmPrincipal::ComboSexo_Click() {
  silently([&] {
    if (TablasListas) MostrarTabla(std::to_string(ComboTabla.listIndex()));
  });
}

void FrmPrincipal::ComboAño_Click() {
  silently([&] {
    if (TablasListas) MostrarTabla(std::to_string(ComboTabla.listIndex()));
  });
}

void FrmPrincipal::imgBuscaTabla_Click() {
  silently([&] { MostrarTabla(std::to_string(ComboTabla.listIndex())); });
}

}  // namespace atlas
