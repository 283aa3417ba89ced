#include <algorithm>

#include "motor/session/executors.h"
#include "motor/session/map_layers.h"
#include "motor/session/session_state.h"
#include "text/utf8.h"

namespace motor {
namespace {

// Takes a closed table's layers off all maps; a map without layers closes.
void removeLayersOf(SessionState& session, const TablePtr& table) {
  std::vector<MapWindow*> emptied;
  for (const auto& window : session.windows()) {
    Map& map = window->map();
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < map.layers.size(); ++i) {
      if (map.layers[i].table == table) indexes.push_back(i);
    }
    if (indexes.empty()) continue;
    removeLayers(map, std::move(indexes));
    if (map.layers.empty()) emptied.push_back(window.get());
  }
  for (MapWindow* window : emptied) session.closeWindow(*window);
}

}  // namespace

void execute(SessionState& session, const OpenTable& statement) {
  std::optional<std::filesystem::path> folder;
  if (!session.workspaceFolders.empty()) folder = session.workspaceFolders.back();
  const std::filesystem::path file = session.files.table(session.text(statement.file), folder);
  session.tables.open(file, statement.as ? std::optional(statement.as->text) : std::nullopt,
                      [&session](const std::filesystem::path& part) { return session.files.mayRead(part); });
}

void execute(SessionState& session, const CloseTable& statement) {
  const auto isSelection = [](const Name& table) { return text::equalsIgnoringCase(table.text, "Selection"); };
  for (const Name& table : statement.tables) {
    if (!isSelection(table)) static_cast<void>(session.tables.at(table.text));
  }
  for (const Name& table : statement.tables) {
    // A result goes with the table that it was selected from.
    if (!isSelection(table) && !session.tables.find(table.text)) continue;
    for (const TableEntry& closed : session.tables.close(table.text)) removeLayersOf(session, closed.table);
  }
  session.allMapsChanged();
}

void execute(SessionState& session, const CloseAll& /*statement*/) {
  session.closeAllWindows();
  session.tables.deselect();
  while (!session.tables.entries().empty()) session.tables.close(session.tables.entries().back().name);
}

}  // namespace motor
