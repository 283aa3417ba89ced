#pragma once

#include "motor/language/expression.h"
#include "motor/tables/geometry.h"

namespace motor {

// How two objects of one coordinate system lie to each other; borders belong to their objects.
[[nodiscard]] bool related(SpatialRelation relation, const MapObject& left, const MapObject& right);

// The relation seen from the other side: a `relation` b is b `mirrored(relation)` a.
[[nodiscard]] SpatialRelation mirrored(SpatialRelation relation);

}  // namespace motor
