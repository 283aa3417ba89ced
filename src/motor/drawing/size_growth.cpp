#include "motor/drawing/size_growth.h"

#include <cmath>

namespace motor {

double sizeGrowth(std::string_view by, double value) {
  const double amount = std::fabs(value);
  if (by == "log") return std::log1p(amount);
  return by == "const" ? amount : std::sqrt(amount);
}

}  // namespace motor
