#include "motor/session/menu_commands.h"

#include <algorithm>
#include <array>

#include "motor/session/map_view.h"
#include "motor/session/session_state.h"

namespace motor {
namespace {

void chooseTool(SessionState& session, MapWindow* /*window*/, int code) { session.chooseTool({.command = code}); }

void unselectAll(SessionState& session, MapWindow* /*window*/, int /*code*/) {
  session.tables.deselect();
  session.allMapsChangedAbove();
}

// Commands with a dialog; without a screen there is nothing to do.
void askPort(SessionState& session, MapWindow* window, int code) {
  [[maybe_unused]] const bool shown = session.port.command(*window, code);
}

void viewEntireLayer(SessionState& session, MapWindow* window, int code) {
  if (session.port.command(*window, code)) return;
  showEntire(window->map());
  window->changed();
}

void clearCustomLabels(SessionState& /*session*/, MapWindow* window, int /*code*/) {
  for (Layer& layer : window->map().layers) layer.label.edited.clear();
  window->changed();
}

struct MenuCommand {
  int code;
  void (*run)(SessionState& session, MapWindow* window, int code);
  bool needsWindow;
};

// The standard commands and tools.
constexpr std::array kCommands{
    MenuCommand{112, askPort, true},            // print
    MenuCommand{304, unselectAll, false},       // unselect all
    MenuCommand{801, askPort, true},            // layer control
    MenuCommand{807, viewEntireLayer, true},    // view entire layer
    MenuCommand{814, clearCustomLabels, true},  // clear custom labels
    MenuCommand{1701, chooseTool, false},       // select
    MenuCommand{1702, chooseTool, false},       // grabber
    MenuCommand{1703, chooseTool, false},       // radius select
    MenuCommand{1704, chooseTool, false},       // boundary select
    MenuCommand{1705, chooseTool, false},       // zoom in
    MenuCommand{1706, chooseTool, false},       // zoom out
    MenuCommand{1707, chooseTool, false},       // info
    MenuCommand{1708, chooseTool, false},       // label
    MenuCommand{1709, chooseTool, false},       // text
    MenuCommand{1710, chooseTool, false},       // ruler
    MenuCommand{1711, chooseTool, false},       // symbol
    MenuCommand{1722, chooseTool, false},       // marquee select
    MenuCommand{1733, chooseTool, false},       // polygon select
    MenuCommand{1734, chooseTool, false},       // drag map window
    MenuCommand{1736, chooseTool, false},       // hot link
};

const MenuCommand* findCommand(int code) {
  const auto found =
      std::find_if(kCommands.begin(), kCommands.end(), [code](const MenuCommand& c) { return c.code == code; });
  return found == kCommands.end() ? nullptr : &*found;
}

void run(SessionState& session, MapWindow* window, int code) {
  const MenuCommand* command = findCommand(code);
  if (command == nullptr) throw EngineError("no hay ninguna orden de menú con el código " + std::to_string(code));
  if (command->needsWindow && window == nullptr) throw EngineError("no hay ninguna ventana de mapa abierta");
  command->run(session, window, code);
}

}  // namespace

bool knowsMenuCommand(int code) { return findCommand(code) != nullptr; }

void runMenuCommand(SessionState& session, MapWindow& window, int code) { run(session, &window, code); }

void runMenuCommand(SessionState& session, int code) { run(session, session.frontWindow(), code); }

}  // namespace motor
