#pragma once

#include <string>
#include <vector>

#include "study/geometry/polygon.h"
#include "study/input/fault_log.h"
#include "study/input/zones_file.h"
#include "study/model/study.h"

namespace study {

// Zones in the order of a study: provinces in that of their names, zones in that of their provinces and their own.
struct OrderedZones {
  std::vector<std::string> provinces;
  std::vector<Zone> zones;
  std::vector<Polygons> polygons;  // by zone
};

// Orders zones and checks their names. A zone whose name another one has is left out.
[[nodiscard]] OrderedZones orderZones(ZonesFile file, FaultLog& log);

}  // namespace study
