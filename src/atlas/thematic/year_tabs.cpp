#include <algorithm>
#include <array>

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/catalogue.h"
#include "atlas/trap.h"

// The year tabs: another year of the map shown.
namespace atlas {
namespace {

constexpr std::array kStudyYears = std::to_array<const char*>({"1999", "2000", "2001", "2002"});

}  // namespace

void FrmPrincipal::FichaAños_Click() {
  silently([&] {
    Panel.setVisible(true);
    const std::string selectedYear = year();
    if (Ficha.tab() == 2) changeYearOfData(selectedYear);
    if (Ficha.tab() == 1) changeYearOfThematicMap(selectedYear);
    Panel.setVisible(false);
  });
}

void FrmPrincipal::changeYearOfData(const std::string& newYear) {
  if (atlas_.Eval("mapperinfo(frontwindow(),9)").number() > 3) {
    atlas_.Do("set map layer 1 label default layer 2 label default layer 4 label default");
  } else {
    atlas_.Do("set map layer 1 label default layer 2 label default");
  }
  atlas_.AbrirMapa(atlas_.ports.applicationFolder + "\\Tablas\\" + newYear + "\\Año" + newYear + ".wor");
  const CurrentUnit& unit = atlas_.unit;
  if (unit.Tabla.empty() && unit.Nombre.empty() && OptProvincias.value()) {
    atlas_.Do("set map layer 1 label default display global layer 2 label default display off");
  }
  if (!unit.Tabla.empty() && !unit.Nombre.empty()) {
    atlas_.Do("set map layer 1 label default layer 2 label default");
    ActualizarConsultaAño();
  }
}

void FrmPrincipal::changeYearOfThematicMap(const std::string& newYear) {
  atlas_.Do("set map layer 1 label default layer 2 label default");
  if (std::ranges::find(kStudyYears, newYear) != kStudyYears.end()) {
    const std::string path = atlas_.RutaTematica.empty() ? defaultPathInYear() : atlas_.RutaTematica;
    atlas_.AbrirMapa(yearFolder(atlas_.ports.applicationFolder, newYear) + path);
  }
  if (!atlas_.nombreinfo.empty()) ActualizarObjetoTematico();
}

void FrmPrincipal::FichaAños_MouseMove() {
  silently([&] {
    hideSubmenuIfVisible();
    hideSubMenu2IfVisible();
  });
}

}  // namespace atlas
