#include "atlas/mapengine/toolbars.h"

#include "atlas/atlas.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/selector_window.h"
#include "atlas/trap.h"

namespace atlas {
namespace {

using enum ToolbarAction;

// The numbers after "run menu command" are the engine's own command codes.
constexpr std::array kThematic = std::to_array<ToolbarButton>({
    {"Zoom+", "zoom-mas", statement, "run menu command 1705", "Zoom+"},
    {"Zoom-", "zoom-menos", statement, "run menu command 1706", "Zoom-"},
    {"Desplazamiento", "desplazamiento", statement, "run menu command 1702", "Desplazamiento"},
    {"Información", "informacion", statement, "run menu command ID 2001", "Información"},
    {},
    {"Etiquetado", "etiquetado", statement, "run menu command 1708", "Etiquetado"},
    {"Medir Distancias", "medir", statement, "run menu command 1710", "Medir Distancias"},
    {"Arrastrar Mapa a otra aplicación", "arrastrar", statement, "run menu command 1734", "Arrastrar ventana"},
    {"Imprimir Mapa", "imprimir", statement, "run menu command 112", ""},
    {"Ayuda", "ayuda", help, "", ""},
    {"Mostrar/Ocultar selector de mapa", "selector", toggleSelector, "", ""},
    {"Mostrar/Ocultar Leyenda", "leyenda", toggleLegend, "", ""},
    {"Ver Mapa Completo", "mapa-completo", statement, "set map zoom entire", ""},
});

constexpr std::array kStatistics = std::to_array<ToolbarButton>({
    {"Zoom+", "zoom-mas", statement, "run menu command 1705", "Zoom +"},
    {"Zoom-", "zoom-menos", statement, "run menu command 1706", "Zoom-"},
    {"Desplazamiento", "desplazamiento", statement, "run menu command 1702", "Desplazamiento"},
    {"Información", "informacion", statement, "run menu command ID 2002", "Información"},
    {},
    {"Medir distancias", "medir", statement, "run menu command 1710", "Medir Distancias"},
    {"Arrastrar Mapa a otra aplicación", "arrastrar", statement, "run menu command 1734", "Arrastrar ventana"},
    {"Etiquetado", "etiquetado", statement, "run menu command 1708", "Etiquetado"},
    {"Imprimir Mapa", "imprimir", statement, "run menu command 112", ""},
    {"Ayuda", "ayuda", help, "", ""},
    {"Ver Mapa Completo", "mapa-completo", statement, "Set map zoom entire", ""},
});

constexpr std::array kData = std::to_array<ToolbarButton>({
    {"Zoom+", "zoom-mas", statement, "run menu command 1705", "Zoom+"},
    {"Zoom-", "zoom-menos", statement, "run menu command 1706", "Zoom-"},
    {"Desplazamiento", "desplazamiento", statement, "run menu command 1702", "Desplazamiento"},
    {"Información", "informacion", statement, "run menu command ID 2003", "Información"},
    {},
    {"Medir Distancias", "medir", statement, "run menu command 1710", "Medir Distancias"},
    {"Arrastrar Mapa a otra aplicación", "arrastrar", statement, "run menu command 1734", "Arrastrar ventana"},
    {"Imprimir Mapa", "imprimir", statement, "run menu command 112", ""},
    {"Ayuda", "ayuda", help, "", ""},
    {"Etiquetado", "etiquetado", statement, "run menu command 1708", "Etiquetado"},
    {"Ver Mapa Completo", "mapa-completo", statement, "set map zoom entire", ""},
});

}  // namespace

Toolbar thematicToolbar() { return kThematic; }
Toolbar statisticsToolbar() { return kStatistics; }
Toolbar dataToolbar() { return kData; }

std::vector<int> toolbarIndices(Toolbar toolbar) {
  std::vector<int> indices;
  for (int index = 0; const ToolbarButton& button : toolbar) {
    if (!button.picture.empty()) indices.push_back(index);
    ++index;
  }
  return indices;
}

void FrmPrincipal::Image2_Click(int index) {
  silently([&] { runToolbarButton(thematicToolbar(), index); });
}

void FrmPrincipal::Image3_Click(int index) {
  silently([&] { runToolbarButton(statisticsToolbar(), index); });
}

void FrmPrincipal::Image4_Click(int index) {
  silently([&] { runToolbarButton(dataToolbar(), index); });
}

void FrmPrincipal::runToolbarButton(Toolbar toolbar, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= toolbar.size()) return;
  const ToolbarButton& button = toolbar[static_cast<std::size_t>(index)];
  switch (button.action) {
    case none:
      break;
    case statement:
      atlas_.Do(std::string(button.statement));
      break;
    case help:
      MostrarAyuda();
      break;
    case ToolbarAction::toggleSelector:
      toggleSelector();
      break;
    case ToolbarAction::toggleLegend:
      toggleLegend();
      break;
  }
  if (!button.label.empty()) atlas_.MostrarComando(std::string(button.label));
}

void FrmPrincipal::toggleSelector() {
  if (isSelectorOpen(atlas_)) {
    closeSelector(atlas_);
  } else {
    showSelectorOnTop(atlas_);
  }
}

void FrmPrincipal::toggleLegend() {
  if (atlas_.Eval("Windowinfo(1009,11)").text() == "T") {
    atlas_.Do("close window legend");
  } else {
    atlas_.Do("open window legend");
  }
}

}  // namespace atlas
