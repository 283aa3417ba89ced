#include "motor/tables/geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "motor/tables/edge.h"

namespace motor {
namespace {

using Part = std::pair<std::size_t, std::size_t>;  // [first point, end)

std::vector<Part> partsOf(const MapObject& object) {
  std::vector<Part> parts;
  for (std::size_t i = 0; i < object.partCount(); ++i) parts.emplace_back(object.parts[i], object.partEnd(i));
  return parts;
}

PointSide sideOf(const MapObject& object, const std::vector<Part>& rings, Point p) {
  PointSide side(p);
  for (const auto& [begin, end] : rings) {
    for (std::size_t i = begin; i + 1 < end; ++i) side.pass({object.points[i], object.points[i + 1]});
  }
  return side;
}

// Whether ring `inner` lies in ring `outer`, told by the first of its points that is not on the outer's border.
bool liesIn(const MapObject& object, Part inner, Part outer) {
  for (std::size_t i = inner.first; i < inner.second; ++i) {
    const PointSide side = sideOf(object, {outer}, object.points[i]);
    if (!side.isOnBorder()) return side.isCovered();
  }
  return false;
}

// The ring with the greatest area, then the rings that are holes directly in it.
std::vector<Part> largestPolygon(const MapObject& object) {
  const std::vector<Part> rings = partsOf(object);
  const auto size = [&](Part ring) {
    return std::abs(ringArea(object.points.data() + ring.first, ring.second - ring.first));
  };
  const Part outer =
      *std::max_element(rings.begin(), rings.end(), [&](const Part& a, const Part& b) { return size(a) < size(b); });
  std::vector<Part> inner;
  std::copy_if(rings.begin(), rings.end(), std::back_inserter(inner),
               [&](const Part& ring) { return ring != outer && liesIn(object, ring, outer); });
  std::vector<Part> polygon{outer};
  std::copy_if(inner.begin(), inner.end(), std::back_inserter(polygon), [&](const Part& ring) {
    return std::none_of(inner.begin(), inner.end(),
                        [&](const Part& other) { return other != ring && liesIn(object, ring, other); });
  });
  return polygon;
}

// The area centroid of an outer ring less its holes; NaN when it has no area. Coordinates are taken relative to the
// first point, so that large false eastings cost no digits.
Point areaCentroid(const MapObject& object, const std::vector<Part>& polygon) {
  const Point origin = object.points[polygon.front().first];
  double area = 0;
  double x = 0;
  double y = 0;
  for (std::size_t ring = 0; ring < polygon.size(); ++ring) {
    double ringSum = 0;
    double ringX = 0;
    double ringY = 0;
    for (std::size_t i = polygon[ring].first; i + 1 < polygon[ring].second; ++i) {
      const Point a{object.points[i].x - origin.x, object.points[i].y - origin.y};
      const Point b{object.points[i + 1].x - origin.x, object.points[i + 1].y - origin.y};
      const double cross = a.x * b.y - b.x * a.y;
      ringSum += cross;
      ringX += (a.x + b.x) * cross;
      ringY += (a.y + b.y) * cross;
    }
    const double sign = (ringSum < 0 ? -1.0 : 1.0) * (ring == 0 ? 1.0 : -1.0);
    area += sign * ringSum;
    x += sign * ringX;
    y += sign * ringY;
  }
  return {origin.x + x / (3 * area), origin.y + y / (3 * area)};
}

Point middleOfWidestSpan(const MapObject& object, double y, Point otherwise) {
  std::vector<double> crossings;
  forEachEdge(object, [&](const Edge& edge) {
    if (edge.crosses(y)) crossings.push_back(edge.crossingX(y));
  });
  std::sort(crossings.begin(), crossings.end());
  Point best = otherwise;
  double width = 0;
  for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
    if (crossings[i + 1] - crossings[i] <= width) continue;
    width = crossings[i + 1] - crossings[i];
    best = {crossings[i] + width / 2, y};
  }
  return best;
}

Point regionCentroid(const MapObject& object) {
  const std::vector<Part> polygon = largestPolygon(object);
  const Point candidate = areaCentroid(object, polygon);
  if (!std::isfinite(candidate.x) || !std::isfinite(candidate.y)) return object.points.front();
  if (sideOf(object, polygon, candidate).isCovered()) return candidate;
  return middleOfWidestSpan(object, candidate.y, object.points.front());
}

Point lineCentroid(const MapObject& object) {
  const auto walk = [&](auto&& visit) {
    for (const auto& [begin, end] : partsOf(object)) {
      for (std::size_t i = begin; i + 1 < end; ++i) {
        const Point a = object.points[i];
        const Point b = object.points[i + 1];
        if (!visit(a, b, std::hypot(b.x - a.x, b.y - a.y))) return;
      }
    }
  };
  double total = 0;
  walk([&](Point, Point, double length) {
    total += length;
    return true;
  });
  double left = total / 2;
  Point middle = object.points.front();
  walk([&](Point a, Point b, double length) {
    if (length > 0 && left <= length) {
      const double part = left / length;
      middle = {a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)};
      return false;
    }
    left -= length;
    return true;
  });
  return middle;
}

}  // namespace

void Box::add(Point p) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
  if (isEmpty()) {
    *this = {p.x, p.y, p.x, p.y};
    return;
  }
  minX = std::min(minX, p.x);
  minY = std::min(minY, p.y);
  maxX = std::max(maxX, p.x);
  maxY = std::max(maxY, p.y);
}

void Box::add(const Box& other) {
  if (other.isEmpty()) return;
  add(Point{other.minX, other.minY});
  add(Point{other.maxX, other.maxY});
}

bool contains(const MapObject& object, Point p) {
  if (object.kind != MapObject::Kind::region || !object.bounds.contains(p)) return false;
  PointSide side(p);
  forEachEdge(object, [&side](const Edge& edge) { side.pass(edge); });
  return side.isCovered();
}

Point centroid(const MapObject& object) {
  if (object.points.empty()) {
    return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
  }
  switch (object.kind) {
    case MapObject::Kind::region:
      return regionCentroid(object);
    case MapObject::Kind::polyline:
      return lineCentroid(object);
    case MapObject::Kind::point:
    case MapObject::Kind::text:
      break;
  }
  return object.points.front();
}

double ringArea(const Point* points, std::size_t count) {
  double sum = 0;
  for (std::size_t i = 0; i + 1 < count; ++i) {
    const double ax = points[i].x - points[0].x;
    const double ay = points[i].y - points[0].y;
    const double bx = points[i + 1].x - points[0].x;
    const double by = points[i + 1].y - points[0].y;
    sum += ax * by - bx * ay;
  }
  return sum / 2;
}

}  // namespace motor
