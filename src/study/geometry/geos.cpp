#include "study/geometry/geos.h"

#include <utility>

#include "study/model/study_error.h"

namespace study {

namespace {

void keep(const char* message, void* kept) { *static_cast<std::string*>(kept) = message; }

// As the library lists coordinates: the first point again at the end.
std::vector<double> closed(const Ring& ring) {
  std::vector<double> coordinates;
  coordinates.reserve(2 * ring.size() + 2);
  for (const Point& p : ring) coordinates.insert(coordinates.end(), {p.x, p.y});
  if (!ring.empty()) coordinates.insert(coordinates.end(), {ring.front().x, ring.front().y});
  return coordinates;
}

}  // namespace

Geos::Geos() : message_(std::make_unique<std::string>()), context_(GEOS_init_r()) {
  GEOSContext_setErrorMessageHandler_r(context(), keep, message_.get());
}

void Geos::require(bool succeeded) const {
  if (!succeeded) throw StudyError("the geometry of the zones cannot be computed: " + *message_);
}

Geos::Geometry Geos::owned(GEOSGeometry* geometry) const {
  require(geometry != nullptr);
  return {geometry, Destroyer{context()}};
}

GEOSCoordSequence* Geos::sequence(const Ring& ring) const {
  const std::vector<double> coordinates = closed(ring);
  GEOSCoordSequence* sequence = GEOSCoordSeq_copyFromBuffer_r(
      context(), coordinates.data(), static_cast<unsigned>(coordinates.size() / 2), false, false);
  require(sequence != nullptr);
  return sequence;
}

Geos::Geometry Geos::ring(const Ring& ring) const {
  return owned(GEOSGeom_createLinearRing_r(context(), sequence(ring)));
}

Geos::Geometry Geos::line(const Ring& ring) const {
  return owned(GEOSGeom_createLineString_r(context(), sequence(ring)));
}

Geos::Geometry Geos::polygon(const Polygon& polygon) const {
  Geometry outer = ring(polygon.outer);
  std::vector<Geometry> holes;
  for (const Ring& hole : polygon.holes) holes.push_back(ring(hole));
  std::vector<GEOSGeometry*> given;
  for (Geometry& hole : holes) given.push_back(hole.release());
  return owned(GEOSGeom_createPolygon_r(context(), outer.release(), given.data(), static_cast<unsigned>(given.size())));
}

Geos::Geometry Geos::collection(int type, std::vector<Geometry> members) const {
  std::vector<GEOSGeometry*> given;
  given.reserve(members.size());
  for (Geometry& member : members) given.push_back(member.release());
  return owned(GEOSGeom_createCollection_r(context(), type, given.data(), static_cast<unsigned>(given.size())));
}

Geos::Geometry Geos::geometry(const Polygons& polygons) const {
  std::vector<Geometry> members;
  for (const Polygon& piece : polygons) members.push_back(polygon(piece));
  return collection(GEOS_MULTIPOLYGON, std::move(members));
}

Ring Geos::points(const GEOSGeometry& ring) const {
  const GEOSCoordSequence* sequence = GEOSGeom_getCoordSeq_r(context(), &ring);
  require(sequence != nullptr);
  unsigned count = 0;
  require(GEOSCoordSeq_getSize_r(context(), sequence, &count) != 0);
  std::vector<double> coordinates(2 * std::size_t{count});
  require(GEOSCoordSeq_copyToBuffer_r(context(), sequence, coordinates.data(), false, false) != 0);
  Ring points;
  points.reserve(count);
  for (std::size_t i = 0; i + 1 < count; ++i) points.push_back({coordinates[2 * i], coordinates[2 * i + 1]});
  return points;
}

void Geos::addPolygons(const GEOSGeometry& geometry, Polygons& polygons) const {
  const int type = GEOSGeomTypeId_r(context(), &geometry);
  if (type == GEOS_POLYGON) {
    if (GEOSisEmpty_r(context(), &geometry) == 1) return;
    Polygon polygon{points(*GEOSGetExteriorRing_r(context(), &geometry)), {}};
    const int holes = GEOSGetNumInteriorRings_r(context(), &geometry);
    for (int i = 0; i < holes; ++i) {
      polygon.holes.push_back(points(*GEOSGetInteriorRingN_r(context(), &geometry, i)));
    }
    polygons.push_back(std::move(polygon));
  } else if (type == GEOS_MULTIPOLYGON || type == GEOS_GEOMETRYCOLLECTION) {
    const int parts = GEOSGetNumGeometries_r(context(), &geometry);
    for (int i = 0; i < parts; ++i) addPolygons(*GEOSGetGeometryN_r(context(), &geometry, i), polygons);
  }
}

Polygons Geos::polygons(const GEOSGeometry& geometry) const {
  Polygons polygons;
  addPolygons(geometry, polygons);
  return polygons;
}

bool Geos::isValid(const GEOSGeometry& geometry) const {
  const char valid = GEOSisValid_r(context(), &geometry);
  require(valid != 2);
  return valid == 1;
}

Geos::Geometry Geos::madeValid(const GEOSGeometry& geometry) const {
  const std::unique_ptr<GEOSMakeValidParams, void (*)(GEOSMakeValidParams*)> params(
      GEOSMakeValidParams_create_r(context()), [](GEOSMakeValidParams* p) { GEOSMakeValidParams_destroy(p); });
  GEOSMakeValidParams_setMethod_r(context(), params.get(), GEOS_MAKE_VALID_STRUCTURE);
  GEOSMakeValidParams_setKeepCollapsed_r(context(), params.get(), 0);
  return owned(GEOSMakeValidWithParams_r(context(), &geometry, params.get()));
}

Geos::Geometry Geos::onGrid(const GEOSGeometry& geometry, double grid) const {
  return owned(GEOSGeom_setPrecision_r(context(), &geometry, grid, 0));
}

double Geos::area(const GEOSGeometry& geometry) const {
  double squareMetres = 0;
  require(GEOSArea_r(context(), &geometry, &squareMetres) == 1);
  return squareMetres;
}

double Geos::length(const GEOSGeometry& geometry) const {
  double metres = 0;
  require(GEOSLength_r(context(), &geometry, &metres) == 1);
  return metres;
}

Geos::Geometry Geos::pointOn(const GEOSGeometry& geometry) const {
  return owned(GEOSPointOnSurface_r(context(), &geometry));
}

Point Geos::point(const GEOSGeometry& geometry) const {
  Point p;
  require(GEOSGeomGetX_r(context(), &geometry, &p.x) == 1 && GEOSGeomGetY_r(context(), &geometry, &p.y) == 1);
  return p;
}

}  // namespace study
