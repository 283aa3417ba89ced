#pragma once

#include <cmath>

namespace motor {

// An angle as the toolkit may be given it: degrees between -180 and 180; 0 for what is no number.
[[nodiscard]] inline double turnOf(double degrees) {
  return std::isfinite(degrees) ? std::remainder(degrees, 360.0) : 0;
}

}  // namespace motor
