#pragma once

#include <vector>

#include "motor/tables/select_scope.h"

namespace motor {

// The rows of all tables of a Select that belong together and pass its Where: by table, entries of equal index are one
// tuple, in the order of the first table's rows, then the second's. Throws EngineError when several tables are not
// linked by a condition, or the tuples are too many.
[[nodiscard]] std::vector<std::vector<RowId>> joinRows(SelectScope& scope, const Expression* where, Position position);

}  // namespace motor
