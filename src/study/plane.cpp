#include "study/plane.h"

#include <algorithm>

namespace study {

double area(const Ring& ring) {
  double twice = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    // Relative to the first point, so that large coordinates cost no digits.
    const Point a{ring[i].x - ring[0].x, ring[i].y - ring[0].y};
    const Point& next = ring[(i + 1) % ring.size()];
    const Point b{next.x - ring[0].x, next.y - ring[0].y};
    twice += a.x * b.y - b.x * a.y;
  }
  return twice / 2;
}

double area(const std::vector<Ring>& rings) {
  double sum = 0;
  for (const Ring& ring : rings) sum += area(ring);
  return sum;
}

Extent extent(const std::vector<Ring>& rings) {
  const Point first = rings.front().front();
  Extent box{first.x, first.y, first.x, first.y};
  for (const Ring& ring : rings) {
    for (const Point& p : ring) {
      box.minX = std::min(box.minX, p.x);
      box.minY = std::min(box.minY, p.y);
      box.maxX = std::max(box.maxX, p.x);
      box.maxY = std::max(box.maxY, p.y);
    }
  }
  return box;
}

}  // namespace study
