#include "motor/tables/select_relation.h"

#include <algorithm>

namespace motor {

namespace {

// Twice the signed area of a triangle: on which side of the line a-b the point c lies.
double side(Point a, Point b, Point c) { return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x); }

bool isBetween(Point a, Point b, Point p) {
  return p.x >= std::min(a.x, b.x) && p.x <= std::max(a.x, b.x) && p.y >= std::min(a.y, b.y) &&
         p.y <= std::max(a.y, b.y);
}

bool segmentsCross(Point a, Point b, Point c, Point d) {
  const double abc = side(a, b, c);
  const double abd = side(a, b, d);
  const double cda = side(c, d, a);
  const double cdb = side(c, d, b);
  return ((abc > 0) != (abd > 0)) && ((cda > 0) != (cdb > 0)) && abc != 0 && abd != 0 && cda != 0 && cdb != 0;
}

bool segmentsMeet(Point a, Point b, Point c, Point d) {
  if (segmentsCross(a, b, c, d)) return true;
  return (side(a, b, c) == 0 && isBetween(a, b, c)) || (side(a, b, d) == 0 && isBetween(a, b, d)) ||
         (side(c, d, a) == 0 && isBetween(c, d, a)) || (side(c, d, b) == 0 && isBetween(c, d, b));
}

// Calls `test` with the ends of each segment until it is true; a single point is a segment without length.
template <typename Test>
bool anySegment(const MapObject& object, const Test& test) {
  for (std::size_t part = 0; part < object.partCount(); ++part) {
    const std::size_t begin = object.parts[part];
    const std::size_t end = object.partEnd(part);
    if (end - begin == 1 && test(object.points[begin], object.points[begin])) return true;
    for (std::size_t i = begin; i + 1 < end; ++i) {
      if (test(object.points[i], object.points[i + 1])) return true;
    }
  }
  return false;
}

template <typename Pair>
bool anyPairOfSegments(const MapObject& a, const MapObject& b, const Pair& pair) {
  return anySegment(a, [&](Point p, Point q) {
    Box box;
    box.add(p);
    box.add(q);
    if (!box.intersects(b.bounds)) return false;
    return anySegment(b, [&](Point r, Point s) { return pair(p, q, r, s); });
  });
}

bool holdsAnyPoint(const MapObject& region, const MapObject& object) {
  return std::any_of(object.points.begin(), object.points.end(), [&](Point p) { return contains(region, p); });
}

bool share(const MapObject& a, const MapObject& b) {
  if (!a.bounds.intersects(b.bounds)) return false;
  return anyPairOfSegments(a, b, segmentsMeet) || holdsAnyPoint(a, b) || holdsAnyPoint(b, a);
}

bool holdsAll(const MapObject& region, const MapObject& object) {
  if (!region.bounds.intersects(object.bounds) || object.points.empty()) return false;
  const bool inside =
      std::all_of(object.points.begin(), object.points.end(), [&](Point p) { return contains(region, p); });
  return inside && !anyPairOfSegments(object, region, segmentsCross);
}

bool holdsCentroid(const MapObject& region, const MapObject& object) {
  return region.bounds.intersects(object.bounds) && contains(region, centroid(object));
}

}  // namespace

bool related(SpatialRelation relation, const MapObject& left, const MapObject& right) {
  switch (relation) {
    case SpatialRelation::contains:
      return holdsCentroid(left, right);
    case SpatialRelation::within:
      return holdsCentroid(right, left);
    case SpatialRelation::containsEntire:
      return holdsAll(left, right);
    case SpatialRelation::entirelyWithin:
      return holdsAll(right, left);
    default:
      return share(left, right);
  }
}

SpatialRelation mirrored(SpatialRelation relation) {
  switch (relation) {
    case SpatialRelation::contains:
      return SpatialRelation::within;
    case SpatialRelation::within:
      return SpatialRelation::contains;
    case SpatialRelation::containsEntire:
      return SpatialRelation::entirelyWithin;
    case SpatialRelation::entirelyWithin:
      return SpatialRelation::containsEntire;
    default:
      return SpatialRelation::intersects;
  }
}

}  // namespace motor
