#include "motor/session/special_windows.h"

#include <algorithm>

#include "motor/session/session_state.h"

namespace motor {

std::optional<int> specialWindowOf(const WindowReference& reference, const SessionState& session) {
  if (reference.name.empty()) {
    const int id = session.integer(reference.id);
    return isSpecialWindow(id) ? std::optional(id) : std::nullopt;
  }
  const auto found = std::find_if(kSpecialWindows.begin(), kSpecialWindows.end(),
                                  [&](const SpecialWindow& w) { return w.name == reference.name; });
  if (found == kSpecialWindows.end()) throw EngineError("no hay ninguna ventana «" + reference.name + "»");
  return found->code;
}

bool isSpecialWindow(int code) {
  return code != 0 && std::any_of(kSpecialWindows.begin(), kSpecialWindows.end(),
                                  [code](const SpecialWindow& w) { return w.code == code; });
}

bool isSpecialWindowOpen(const SessionState& session, int code) {
  return (code == kLegendWindow && session.legend.open) || (code == kRulerWindow && session.rulerOpen);
}

}  // namespace motor
