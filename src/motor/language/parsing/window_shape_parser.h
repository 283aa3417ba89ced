#pragma once

#include "motor/language/parsing/clauses.h"

namespace motor {

// Position, Width, Height, Min, Max and Restore, of the statements that make or change a window.
[[nodiscard]] std::span<const ClauseRule<WindowShape>> windowShapeRules();

}  // namespace motor
