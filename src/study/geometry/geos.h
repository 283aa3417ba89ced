#pragma once

#include <geos_c.h>

#include <memory>
#include <string>
#include <vector>

#include "study/geometry/polygon.h"

// The geometry library's C interface with owners for its handles. Every failure of the library becomes a StudyError
// with its words.
namespace study {

class Geos {
 public:
  struct Destroyer {
    GEOSContextHandle_t context;
    void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(context, geometry); }
  };
  using Geometry = std::unique_ptr<GEOSGeometry, Destroyer>;

  Geos();

  // For calls that are not named here.
  [[nodiscard]] GEOSContextHandle_t context() const { return context_.get(); }

  // Takes what a call returned; fails for a null.
  [[nodiscard]] Geometry owned(GEOSGeometry* geometry) const;

  // A multipolygon; a closed line; a collection of the given type, which takes its members.
  [[nodiscard]] Geometry geometry(const Polygons& polygons) const;
  [[nodiscard]] Geometry line(const Ring& ring) const;
  [[nodiscard]] Geometry collection(int type, std::vector<Geometry> members) const;

  // The polygons among a geometry's parts; lines and points are left out.
  [[nodiscard]] Polygons polygons(const GEOSGeometry& geometry) const;

  [[nodiscard]] bool isValid(const GEOSGeometry& geometry) const;
  [[nodiscard]] Geometry madeValid(const GEOSGeometry& geometry) const;
  [[nodiscard]] Geometry onGrid(const GEOSGeometry& geometry, double grid) const;

  [[nodiscard]] double area(const GEOSGeometry& geometry) const;
  [[nodiscard]] double length(const GEOSGeometry& geometry) const;
  // A point well inside.
  [[nodiscard]] Geometry pointOn(const GEOSGeometry& geometry) const;
  [[nodiscard]] Point point(const GEOSGeometry& geometry) const;

 private:
  struct ContextDestroyer {
    void operator()(GEOSContextHandle_t context) const { GEOS_finish_r(context); }
  };

  // Fails unless `succeeded`.
  void require(bool succeeded) const;
  [[nodiscard]] GEOSCoordSequence* sequence(const Ring& ring) const;
  [[nodiscard]] Geometry ring(const Ring& ring) const;
  [[nodiscard]] Geometry polygon(const Polygon& polygon) const;
  [[nodiscard]] Ring points(const GEOSGeometry& ring) const;
  void addPolygons(const GEOSGeometry& geometry, Polygons& polygons) const;

  std::unique_ptr<std::string> message_;  // at a fixed place, for the library writes to it
  std::unique_ptr<GEOSContextHandle_HS, ContextDestroyer> context_;
};

}  // namespace study
