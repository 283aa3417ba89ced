#include "motor/session/toolbox.h"

#include <algorithm>
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
  for (const char* title : kStandardPads) pads_.push_back({title, {}});
}

void Toolbox::createMenu(std::string_view name, int id, std::vector<MenuEntry> entries) {
  if (id == kMapShortcutMenu || text::equalsIgnoringCase(name, "MapperShortcut")) shortcutMenu_ = std::move(entries);
}

void Toolbox::createPad(std::string_view title, std::vector<ToolButton> buttons) {
  destroyPad(title);
  pads_.push_back({text::lower(title), std::move(buttons)});
}

std::vector<ToolButton>& Toolbox::pad(std::string_view title) {
  const auto found = std::find_if(pads_.begin(), pads_.end(),
                                  [wanted = text::lower(title)](const Pad& pad) { return pad.title == wanted; });
  if (found == pads_.end()) throw EngineError("no hay ninguna barra de botones «" + std::string(title) + "»");
  return found->buttons;
}

std::vector<ToolButton>& Toolbox::pad(int number) {
  if (number < 1 || number > static_cast<int>(kStandardPads.size()))
    throw EngineError("no hay ninguna barra de botones con el número " + std::to_string(number));
  return pad(kStandardPads[static_cast<std::size_t>(number - 1)]);
}

void Toolbox::destroyPad(std::string_view title) {
  std::erase_if(pads_, [wanted = text::lower(title)](const Pad& pad) { return pad.title == wanted; });
}

const ToolButton* Toolbox::findButton(int id) const {
  for (auto pad = pads_.rbegin(); pad != pads_.rend(); ++pad) {
    const auto found = std::find_if(pad->buttons.rbegin(), pad->buttons.rend(),
                                    [id](const ToolButton& button) { return button.id == id; });
    if (found != pad->buttons.rend()) return &*found;
  }
  return nullptr;
}

const ToolButton& Toolbox::button(int id) const {
  if (const ToolButton* found = findButton(id)) return *found;
  throw EngineError("no hay ningún botón con el identificador " + std::to_string(id));
}

}  // namespace motor
