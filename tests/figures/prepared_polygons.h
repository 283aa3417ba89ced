#pragma once

#include <geos_c.h>

#include <cstddef>
#include <memory>
#include <vector>

#include "motor/tables/geometry.h"

namespace figures {

// Regions as prepared geometries of GEOS in its packed tree of boxes: the rival of "which region holds this point".
class PreparedPolygons {
 public:
  explicit PreparedPolygons(const std::vector<motor::ObjectPtr>& regions);
  ~PreparedPolygons();
  PreparedPolygons(const PreparedPolygons&) = delete;
  PreparedPolygons& operator=(const PreparedPolygons&) = delete;

  struct Destroy {
    GEOSContextHandle_t context;
    void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(context, geometry); }
    void operator()(const GEOSPreparedGeometry* geometry) const { GEOSPreparedGeom_destroy_r(context, geometry); }
  };
  using Geometry = std::unique_ptr<GEOSGeometry, Destroy>;

  [[nodiscard]] Geometry point(motor::Point p) const;
  // How many regions cover the point.
  [[nodiscard]] std::size_t countAt(const GEOSGeometry& point) const;
  // Whether the region of that number covers the point.
  [[nodiscard]] bool covers(std::size_t region, const GEOSGeometry& point) const;

 private:
  struct Region {
    Geometry geometry;
    std::unique_ptr<const GEOSPreparedGeometry, Destroy> prepared;
  };
  [[nodiscard]] GEOSGeometry* ring(const std::vector<motor::Point>& points) const;

  GEOSContextHandle_t context_;
  std::vector<Region> regions_;
  GEOSSTRtree* tree_;
};

}  // namespace figures
