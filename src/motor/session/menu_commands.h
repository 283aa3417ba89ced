#pragma once

namespace motor {

class MapWindow;
class SessionState;

// Whether a code is among the standard commands and tools that the engine has.
[[nodiscard]] bool knowsMenuCommand(int code);

// Runs a standard command on a map window, or makes a standard tool current. Throws EngineError for an unknown code.
void runMenuCommand(SessionState& session, MapWindow& window, int code);

// The same on the front window; the commands that need a window throw EngineError when there is none.
void runMenuCommand(SessionState& session, int code);

}  // namespace motor
