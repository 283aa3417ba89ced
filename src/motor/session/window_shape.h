#pragma once

#include <optional>

#include "motor/language/statements/parts.h"
#include "motor/tables/geometry.h"

namespace motor {

class MapWindow;
class SessionState;

// A window's place and size with all expressions evaluated; what was left out stays.
struct EvaluatedShape {
  std::optional<Point> paper;  // position, inches
  std::optional<int> width;    // pixels
  std::optional<int> height;
  std::optional<WindowState> state;
};

// Lengths without a unit are in the session's paper unit. Throws LanguageError or EngineError for lengths and units
// that are none.
[[nodiscard]] EvaluatedShape evaluate(const WindowShape& shape, const SessionState& session);

// Places, sizes, maximises or restores a map window.
void setShape(SessionState& session, MapWindow& window, const EvaluatedShape& shape);

}  // namespace motor
