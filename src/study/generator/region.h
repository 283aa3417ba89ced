#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "study/generator/plane.h"
#include "study/generator/settings.h"

namespace study::generator {

enum class Settled { city, town, country };

struct RegionZone {
  std::string name;
  std::size_t province = 0;
  Settled settled = Settled::country;
  Point site;  // a point in or near the zone
  Area area;   // one outer ring, then holes
};

// A fictional region of provinces and their basic health zones on the plane of UTM zone 30 north: some 400 km across if
// it has 120 zones, wider with more. Coordinates are on centimetres; neighbours share their borders point for point.
struct Region {
  std::vector<std::string> provinces;  // in the order of their names
  std::vector<RegionZone> zones;       // by province, then by name
  double radius = 0;                   // metres, about
};

// Throws StudyError for settings out of range.
[[nodiscard]] Region makeRegion(const GeneratorSettings& settings);

}  // namespace study::generator
