#include "study/geometry/polygon.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "study/geometry/geos.h"

namespace study {

namespace {

Ring turned(Ring ring, bool counterClockwise) {
  if ((squareMetres(ring) > 0) != counterClockwise) std::reverse(ring.begin(), ring.end());
  return ring;
}

// Empty for a ring that encloses nothing for want of points.
Ring onGrid(const Ring& drawn) {
  Ring ring;
  for (const Point& p : drawn) {
    const Point snapped = onGrid(p);
    if (ring.empty() || ring.back() != snapped) ring.push_back(snapped);
  }
  while (ring.size() > 1 && ring.back() == ring.front()) ring.pop_back();
  return ring.size() < 3 ? Ring{} : ring;
}

Polygons onGrid(const Polygons& drawn) {
  Polygons polygons;
  for (const Polygon& piece : drawn) {
    Polygon snapped{onGrid(piece.outer), {}};
    if (snapped.outer.empty()) continue;
    for (const Ring& hole : piece.holes) {
      if (Ring ring = onGrid(hole); !ring.empty()) snapped.holes.push_back(std::move(ring));
    }
    polygons.push_back(std::move(snapped));
  }
  return polygons;
}

bool hasNumbersOnly(const Ring& ring) {
  return std::all_of(ring.begin(), ring.end(), [](Point p) { return std::isfinite(p.x) && std::isfinite(p.y); });
}

bool hasNumbersOnly(const Polygons& polygons) {
  return std::all_of(polygons.begin(), polygons.end(), [](const Polygon& piece) {
    return hasNumbersOnly(piece.outer) &&
           std::all_of(piece.holes.begin(), piece.holes.end(), [](const Ring& hole) { return hasNumbersOnly(hole); });
  });
}

}  // namespace

Area areaOf(const Polygons& polygons) {
  Area area;
  for (const Polygon& piece : polygons) {
    area.push_back(turned(piece.outer, true));
    for (const Ring& hole : piece.holes) area.push_back(turned(hole, false));
  }
  return area;
}

Point onGrid(Point p) {
  const double steps = 1 / kGrid;
  return {std::round(p.x * steps) / steps, std::round(p.y * steps) / steps};
}

Polygons mended(const Polygons& drawn) {
  if (!hasNumbersOnly(drawn)) return {};
  Polygons polygons = onGrid(drawn);
  if (polygons.empty()) return {};
  const Geos geos;
  const Geos::Geometry geometry = geos.geometry(polygons);
  if (geos.isValid(*geometry)) return polygons;
  return geos.polygons(*geos.onGrid(*geos.madeValid(*geometry), kGrid));
}

}  // namespace study
