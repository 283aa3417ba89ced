#include "study/sample/voronoi.h"

#include <geos_c.h>

#include <cmath>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>

namespace study {

namespace {

struct ContextDeleter {
  void operator()(GEOSContextHandle_HS* context) const { GEOS_finish_r(context); }
};
using Context = std::unique_ptr<GEOSContextHandle_HS, ContextDeleter>;

struct GeometryDeleter {
  GEOSContextHandle_t context;
  void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(context, geometry); }
};
using Geometry = std::unique_ptr<GEOSGeometry, GeometryDeleter>;

Geometry diagram(GEOSContextHandle_t context, const std::vector<Point>& sites) {
  std::vector<GEOSGeometry*> points;
  for (const Point& site : sites) points.push_back(GEOSGeom_createPointFromXY_r(context, site.x, site.y));
  const Geometry all(
      GEOSGeom_createCollection_r(context, GEOS_MULTIPOINT, points.data(), static_cast<unsigned>(points.size())),
      {context});
  Geometry cells(GEOSVoronoiDiagram_r(context, all.get(), nullptr, 0, 0), {context});
  if (!cells) throw std::runtime_error("the Voronoi diagram of the zones could not be made");
  return cells;
}

// The cell's corners on whole metres, counter-clockwise, each once.
Ring corners(GEOSContextHandle_t context, const GEOSGeometry* cell) {
  const GEOSGeometry* shell = GEOSGetExteriorRing_r(context, cell);
  const GEOSCoordSequence* coordinates = GEOSGeom_getCoordSeq_r(context, shell);
  unsigned size = 0;
  GEOSCoordSeq_getSize_r(context, coordinates, &size);
  Ring ring;
  for (unsigned i = 0; i + 1 < size; ++i) {
    Point p;
    GEOSCoordSeq_getXY_r(context, coordinates, i, &p.x, &p.y);
    p = {std::round(p.x), std::round(p.y)};
    if (ring.empty() || ring.back() != p) ring.push_back(p);
  }
  while (ring.size() > 1 && ring.front() == ring.back()) ring.pop_back();
  if (area(ring) < 0) return {ring.rbegin(), ring.rend()};
  return ring;
}

bool isInside(const Ring& convex, Point p) {
  for (std::size_t i = 0; i < convex.size(); ++i) {
    const Point& a = convex[i];
    const Point& b = convex[(i + 1) % convex.size()];
    if ((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x) < 0) return false;
  }
  return true;
}

int siteOf(const Ring& cell, const std::vector<Point>& sites) {
  for (std::size_t i = 0; i < sites.size(); ++i) {
    if (isInside(cell, sites[i])) return static_cast<int>(i);
  }
  throw std::runtime_error("a cell of the Voronoi diagram holds no site");
}

}  // namespace

std::vector<VoronoiEdge> voronoiEdges(const std::vector<Point>& sites) {
  const Context context(GEOS_init_r());
  const Geometry cells = diagram(context.get(), sites);

  using Ends = std::pair<std::pair<double, double>, std::pair<double, double>>;
  std::map<Ends, int> leftOf;  // by the edge's ends, the cell on its left
  const int count = GEOSGetNumGeometries_r(context.get(), cells.get());
  for (int c = 0; c < count; ++c) {
    const Ring ring = corners(context.get(), GEOSGetGeometryN_r(context.get(), cells.get(), c));
    if (ring.size() < 3) continue;
    const int site = siteOf(ring, sites);
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const Point& a = ring[i];
      const Point& b = ring[(i + 1) % ring.size()];
      leftOf[{{a.x, a.y}, {b.x, b.y}}] = site;
    }
  }

  std::vector<VoronoiEdge> edges;
  for (const auto& [ends, left] : leftOf) {
    if (ends.second < ends.first) continue;
    const auto twin = leftOf.find({ends.second, ends.first});
    if (twin == leftOf.end()) continue;  // the diagram's own frame
    edges.push_back(
        {{ends.first.first, ends.first.second}, {ends.second.first, ends.second.second}, left, twin->second});
  }
  return edges;
}

}  // namespace study
