#pragma once

#include <string>

#include "motor/tables/coordinate_system.h"

namespace motor {

// What a coordinate system is. Equal systems have equal keys.
struct CoordinateSystem::Definition {
  std::string wkt;
  std::string clause;
  std::string name;
  bool isLongLat = false;
  bool isEarth = true;  // false: a plain grid that lies nowhere on the earth
  double metresPerUnit = 1;

  [[nodiscard]] const std::string& key() const { return clause; }
};

}  // namespace motor
