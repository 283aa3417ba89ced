#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "study/coverage.h"
#include "study/study.h"

namespace study {

enum class Settled { city, town, country };

// A fictional region: eight provinces of 120 basic health zones, some 400 km across, on the plane of UTM zone 30 north.
struct SampleRegion {
  std::vector<std::string> provinces;
  std::vector<Zone> zones;  // by province name, then by name
  std::vector<Settled> settled;
  std::vector<Point> sites;  // a point in or near each zone
  Coverage coverage;         // cell z is zones[z]
};

[[nodiscard]] SampleRegion makeRegion(std::uint64_t seed);

}  // namespace study
