#pragma once

#include <ogr_api.h>

#include "motor/tables/geometry.h"

namespace motor {

// Sets an object's kind and appends the points and parts of a geometry. Curves become lines; of a mixed collection the
// parts of the highest dimension are taken; rings are closed. An empty geometry appends nothing.
void appendFlattened(OGRGeometryH geometry, MapObject& object);

}  // namespace motor
