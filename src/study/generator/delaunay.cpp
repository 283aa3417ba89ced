#include "study/generator/delaunay.h"

#include <geos_c.h>

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>

namespace study::generator {

namespace {

struct EndContext {
  void operator()(GEOSContextHandle_HS* context) const { GEOS_finish_r(context); }
};
using ContextPointer = std::unique_ptr<GEOSContextHandle_HS, EndContext>;

struct DestroyGeometry {
  GEOSContextHandle_t context;
  void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(context, geometry); }
};
using GeometryPointer = std::unique_ptr<GEOSGeometry, DestroyGeometry>;

GeometryPointer triangulation(GEOSContextHandle_t context, const std::vector<Point>& sites) {
  std::vector<GEOSGeometry*> points;
  for (const Point& site : sites) points.push_back(GEOSGeom_createPointFromXY_r(context, site.x, site.y));
  const GeometryPointer all(
      GEOSGeom_createCollection_r(context, GEOS_MULTIPOINT, points.data(), static_cast<unsigned>(points.size())),
      {context});
  GeometryPointer triangles(GEOSDelaunayTriangulation_r(context, all.get(), 0, 0), {context});
  if (!triangles) throw std::runtime_error("the cells' sites could not be triangulated");
  return triangles;
}

std::array<Point, 3> corners(GEOSContextHandle_t context, const GEOSGeometry* triangle) {
  const GEOSCoordSequence* ring = GEOSGeom_getCoordSeq_r(context, GEOSGetExteriorRing_r(context, triangle));
  std::array<Point, 3> points;
  for (unsigned i = 0; i < 3; ++i) GEOSCoordSeq_getXY_r(context, ring, i, &points[i].x, &points[i].y);
  return points;
}

}  // namespace

std::vector<Triangle> delaunayTriangles(const std::vector<Point>& sites) {
  std::map<std::pair<double, double>, std::size_t> siteAt;
  for (std::size_t i = 0; i < sites.size(); ++i) siteAt[{sites[i].x, sites[i].y}] = i;

  const ContextPointer context(GEOS_init_r());
  const GeometryPointer found = triangulation(context.get(), sites);
  const int count = GEOSGetNumGeometries_r(context.get(), found.get());
  std::vector<Triangle> triangles;
  for (int i = 0; i < count; ++i) {
    const std::array<Point, 3> points = corners(context.get(), GEOSGetGeometryN_r(context.get(), found.get(), i));
    Triangle triangle{};
    for (std::size_t corner = 0; corner < 3; ++corner) {
      triangle[corner] = siteAt.at({points[corner].x, points[corner].y});
    }
    if (turn(points[0], points[1], points[2]) < 0) std::swap(triangle[1], triangle[2]);
    std::rotate(triangle.begin(), std::min_element(triangle.begin(), triangle.end()), triangle.end());
    triangles.push_back(triangle);
  }
  std::sort(triangles.begin(), triangles.end());
  return triangles;
}

}  // namespace study::generator
