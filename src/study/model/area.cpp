#include "study/model/area.h"

#include <algorithm>
#include <limits>

namespace study {

double squareMetres(const Ring& ring) {
  if (ring.empty()) return 0;
  // Measured from the ring's own first point: products of whole coordinates would lose the last digits.
  const Point origin = ring.front();
  double twice = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Point& a = ring[i];
    const Point& b = ring[(i + 1) % ring.size()];
    twice += (a.x - origin.x) * (b.y - origin.y) - (b.x - origin.x) * (a.y - origin.y);
  }
  return twice / 2;
}

double squareMetres(const Area& area) {
  double sum = 0;
  for (const Ring& ring : area) sum += squareMetres(ring);
  return sum;
}

Extent extent(const Area& area) {
  constexpr double kFar = std::numeric_limits<double>::infinity();
  Extent box{kFar, kFar, -kFar, -kFar};
  for (const Ring& ring : area) {
    for (const Point& point : ring) {
      box.minX = std::min(box.minX, point.x);
      box.minY = std::min(box.minY, point.y);
      box.maxX = std::max(box.maxX, point.x);
      box.maxY = std::max(box.maxY, point.y);
    }
  }
  return box;
}

}  // namespace study
