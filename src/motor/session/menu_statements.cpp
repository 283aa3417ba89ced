#include <algorithm>

#include "motor/session/executors.h"
#include "motor/session/menu_commands.h"
#include "motor/session/session_state.h"

namespace motor {
namespace {

ToolButton buttonOf(const PadButton& button, const SessionState& session) {
  ToolButton result;
  if (button.id) result.id = session.integer(button.id);
  if (button.drawMode) result.drawMode = session.integer(button.drawMode);
  if (button.cursor) result.cursor = session.integer(button.cursor);
  result.method = button.calling.method;
  return result;
}

std::vector<ToolButton> buttonsOf(const std::vector<PadButton>& buttons, const SessionState& session) {
  std::vector<ToolButton> result;
  for (const PadButton& button : buttons) {
    if (button.kind != PadButton::Kind::separator) result.push_back(buttonOf(button, session));
  }
  return result;
}

}  // namespace

void execute(SessionState& session, const CreateMenu& statement) {
  std::vector<MenuEntry> entries;
  for (const MenuItem& item : statement.items) {
    MenuEntry entry;
    entry.text = session.text(item.text);
    if (item.calling.command) entry.command = session.integer(item.calling.command);
    entry.method = item.calling.method;
    entry.id = item.id ? session.integer(item.id) : static_cast<int>(entries.size()) + 1;
    entries.push_back(std::move(entry));
  }
  const int id = statement.id ? session.integer(statement.id) : 0;
  session.toolbox.createMenu(session.text(statement.name), id, std::move(entries));
}

void execute(SessionState& session, const CreateButtonPad& statement) {
  session.toolbox.createPad(session.text(statement.title), buttonsOf(statement.buttons, session));
}

void execute(SessionState& session, const AlterButtonPad& statement) {
  const std::string title = statement.title ? session.text(statement.title) : std::string();
  std::vector<ToolButton>& pad =
      statement.title ? session.toolbox.pad(title) : session.toolbox.pad(session.integer(statement.id));
  const std::vector<ToolButton> added = buttonsOf(statement.added, session);
  std::vector<int> removed;
  for (const ExpressionPtr& id : statement.removed) removed.push_back(session.integer(id));
  std::erase_if(pad, [&](const ToolButton& button) {
    return std::find(removed.begin(), removed.end(), button.id) != removed.end();
  });
  pad.insert(pad.end(), added.begin(), added.end());
  if (statement.destroyed && statement.title) session.toolbox.destroyPad(title);
}

void execute(SessionState& session, const RunMenuCommand& statement) {
  const int code = session.integer(statement.code);
  if (!statement.isOwnId) {
    runMenuCommand(session, code);
    return;
  }
  const ToolButton& button = session.toolbox.button(code);
  session.chooseTool({.command = 0, .buttonId = button.id, .drawMode = button.drawMode, .cursor = button.cursor});
}

}  // namespace motor
