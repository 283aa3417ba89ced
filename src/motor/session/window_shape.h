#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

class MapWindow;
class SessionState;

// Places, sizes, maximises or restores a map window as a statement says; what was left out stays. Lengths without a
// unit are in the session's paper unit.
void setShape(SessionState& session, MapWindow& window, const WindowShape& shape);

}  // namespace motor
