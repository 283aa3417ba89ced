#include "motor/session/toolbox.h"

#include <array>

#include "motor/language/error.h"
#include "text/utf8.h"

namespace motor {
namespace {

constexpr int kMapShortcutMenu = 17;
// By their numbers, from 1.
constexpr std::array<const char*, 4> kStandardPads{"main", "drawing", "tools", "standard"};

}  // namespace

Toolbox::Toolbox() {
  for (const char* title : kStandardPads) pads_[title];
}

void Toolbox::createMenu(std::string_view name, int id, std::vector<MenuEntry> entries) {
  if (id == kMapShortcutMenu || text::equalsIgnoringCase(name, "MapperShortcut")) shortcutMenu_ = std::move(entries);
}

void Toolbox::createPad(std::string_view title, std::vector<ToolButton> buttons) {
  pads_[text::lower(title)] = std::move(buttons);
}

std::vector<ToolButton>& Toolbox::pad(std::string_view title) {
  const auto found = pads_.find(text::lower(title));
  if (found == pads_.end()) throw EngineError("no hay ninguna barra de botones «" + std::string(title) + "»");
  return found->second;
}

std::vector<ToolButton>& Toolbox::pad(int number) {
  if (number < 1 || number > static_cast<int>(kStandardPads.size()))
    throw EngineError("no hay ninguna barra de botones con el número " + std::to_string(number));
  return pad(kStandardPads[static_cast<std::size_t>(number - 1)]);
}

void Toolbox::destroyPad(std::string_view title) { pads_.erase(text::lower(title)); }

const ToolButton& Toolbox::button(int id) const {
  for (const auto& [title, buttons] : pads_) {
    for (const ToolButton& button : buttons) {
      if (button.id == id) return button;
    }
  }
  throw EngineError("no hay ningún botón con el identificador " + std::to_string(id));
}

}  // namespace motor
