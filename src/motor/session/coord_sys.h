#pragma once

#include "motor/language/statements/parts.h"
#include "motor/tables/coordinate_system.h"

namespace motor {

class SessionState;

// The system that a `CoordSys ...` clause names. Throws EngineError when it is not understood or names a table or
// window that is not open.
[[nodiscard]] CoordinateSystem coordinateSystemOf(const CoordSysClause& clause, const SessionState& session);

}  // namespace motor
