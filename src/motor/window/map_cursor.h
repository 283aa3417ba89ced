#pragma once

#include <QCursor>

#include "motor/session/map_window.h"

namespace motor {

// The pointer's shape for a tool: a standard tool's own, or the cursor number that a button of the program's own has.
[[nodiscard]] QCursor cursorFor(const Tool& tool);

}  // namespace motor
