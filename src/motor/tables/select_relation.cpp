#include "motor/tables/select_relation.h"

#include <algorithm>

#include "motor/tables/edge.h"

namespace motor {

namespace {

bool edgesCross(const Edge& e, const Edge& f) {
  const double fa = e.sideOf(f.a);
  const double fb = e.sideOf(f.b);
  const double ea = f.sideOf(e.a);
  const double eb = f.sideOf(e.b);
  return ((fa > 0) != (fb > 0)) && ((ea > 0) != (eb > 0)) && fa != 0 && fb != 0 && ea != 0 && eb != 0;
}

bool edgesMeet(const Edge& e, const Edge& f) {
  return edgesCross(e, f) || e.holds(f.a) || e.holds(f.b) || f.holds(e.a) || f.holds(e.b);
}

// Calls `test` with each edge until it is true; a single point is an edge without length.
template <typename Test>
bool anyEdge(const MapObject& object, const Test& test) {
  for (std::size_t part = 0; part < object.partCount(); ++part) {
    const std::size_t begin = object.parts[part];
    const std::size_t end = object.partEnd(part);
    if (end - begin == 1 && test(Edge{object.points[begin], object.points[begin]})) return true;
    for (std::size_t i = begin; i + 1 < end; ++i) {
      if (test(Edge{object.points[i], object.points[i + 1]})) return true;
    }
  }
  return false;
}

template <typename Pair>
bool anyPairOfEdges(const MapObject& a, const MapObject& b, const Pair& pair) {
  return anyEdge(a, [&](const Edge& e) {
    Box box;
    box.add(e.a);
    box.add(e.b);
    return box.intersects(b.bounds) && anyEdge(b, [&](const Edge& f) { return pair(e, f); });
  });
}

bool holdsAnyPoint(const MapObject& region, const MapObject& object) {
  return std::any_of(object.points.begin(), object.points.end(), [&](Point p) { return contains(region, p); });
}

bool share(const MapObject& a, const MapObject& b) {
  if (!a.bounds.intersects(b.bounds)) return false;
  return anyPairOfEdges(a, b, edgesMeet) || holdsAnyPoint(a, b) || holdsAnyPoint(b, a);
}

bool holdsAll(const MapObject& region, const MapObject& object) {
  if (!region.bounds.intersects(object.bounds) || object.points.empty()) return false;
  const bool inside =
      std::all_of(object.points.begin(), object.points.end(), [&](Point p) { return contains(region, p); });
  return inside && !anyPairOfEdges(object, region, edgesCross);
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
