#pragma once

#include "study/generator/places.h"
#include "study/generator/random.h"
#include "study/generator/region.h"

namespace study::generator {

// Makes the zones nearest to each capital its city, and the zone nearest to each town that town. The city's zones get
// the names of their province and of a quarter; each has one zone at least, and leaves as many to others.
void settle(Random& random, Region& region, const Places& places);

// Names the zones that have no name yet.
void nameZones(Random& random, Region& region);

}  // namespace study::generator
