#include "hosts/screen/looks.h"

#include <array>
#include <string_view>

#include "forms/form.h"

namespace screen {
namespace {

template <class Look>
struct Named {
  std::string_view name;
  Look look;
};

constexpr std::array kShapes{
    Named<ShapeLook>{"ShpFondo", ShapeLook::stage},
    Named<ShapeLook>{"ShpCabecera", ShapeLook::header},
    Named<ShapeLook>{"LineMenu", ShapeLook::line},
};

constexpr std::array kForms{
    Named<FormLook>{"frmInicio", FormLook::splash},
    Named<FormLook>{"frmTematicos", FormLook::palette},
};

template <class Look, std::size_t count>
Look find(const std::array<Named<Look>, count>& table, const std::string& name, Look otherwise) {
  for (const auto& row : table) {
    if (row.name == name) return row.look;
  }
  return otherwise;
}

struct Command {
  std::string_view label;
  std::string_view picture;
};

constexpr std::string_view kCurrentCommand = "Comando actual: ";

constexpr std::array kCommands{
    Command{"Zoom+", "zoom-mas"},          Command{"Zoom +", "zoom-mas"},
    Command{"Zoom-", "zoom-menos"},        Command{"Desplazamiento", "desplazamiento"},
    Command{"Información", "informacion"}, Command{"Etiquetado", "etiquetado"},
    Command{"Medir Distancias", "medir"},  Command{"Arrastrar ventana", "arrastrar"},
};

}  // namespace

ShapeLook lookOf(const forms::Shape& shape) { return find(kShapes, shape.name(), ShapeLook::card); }

FormLook lookOf(const forms::Form& form) { return find(kForms, form.name(), FormLook::window); }

LabelLook lookOf(const forms::Label& label) {
  if (label.container() != nullptr && label.Click.hasHandlers()) return LabelLook::menuEntry;
  if (label.MouseMove.hasHandlers()) return LabelLook::menu;
  return label.Click.hasHandlers() ? LabelLook::link : LabelLook::text;
}

std::string pictureOfCommand(const std::string& command) {
  for (const Command& row : kCommands) {
    if (command == std::string(kCurrentCommand).append(row.label)) return std::string(row.picture);
  }
  return "";
}

}  // namespace screen
