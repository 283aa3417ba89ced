#pragma once

#include "motor/language/special_windows.h"
#include "motor/language/statements/parts.h"

namespace motor {

class SessionState;

// The code of the special window that a clause speaks of, 0 for one without a code (see special_windows.h); none for a
// document.
[[nodiscard]] std::optional<int> specialWindowOf(const WindowReference& reference, const SessionState& session);
[[nodiscard]] bool isSpecialWindow(int code);

// Whether a special window is open. Only the legend and the ruler ever are.
[[nodiscard]] bool isSpecialWindowOpen(const SessionState& session, int code);

}  // namespace motor
