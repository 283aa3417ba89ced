#pragma once

#include <memory>

#include "motor/tables/object_set.h"

namespace motor {

// A table's distinct objects in the map's coordinate system, with the rows that share each. Each table is transformed
// once per system and shared by all maps; the transformed ones go with the table; a table that is in the map's system
// already is not copied. Points without an image are left out, and an object that has none left is empty.
[[nodiscard]] std::shared_ptr<const ObjectSet> projectedObjects(const TablePtr& table, const CoordinateSystem& system);

}  // namespace motor
