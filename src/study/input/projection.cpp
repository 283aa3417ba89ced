#include "study/input/projection.h"

#include <ogr_geometry.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace study {

namespace {

// Eastings and longitudes come first in the files, whatever order a system's definition has.
OGRSpatialReference eastFirst(OGRSpatialReference system) {
  system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  return system;
}

OGRSpatialReference wgs84() {
  OGRSpatialReference system;
  system.SetWellKnownGeogCS("WGS84");
  return eastFirst(system);
}

OGRSpatialReference utm(int zone) {
  OGRSpatialReference system = wgs84();
  system.SetUTM(std::abs(zone), zone > 0);
  return system;
}

}  // namespace

void Projection::Destroyer::operator()(OGRCoordinateTransformation* transformation) const {
  OGRCoordinateTransformation::DestroyCT(transformation);
}

Projection::Projection(const OGRSpatialReference& from, int utmZone) {
  const OGRSpatialReference source = eastFirst(from);
  const OGRSpatialReference target = utm(utmZone);
  transformation_.reset(OGRCreateCoordinateTransformation(&source, &target));
}

bool Projection::project(OGRGeometry& geometry) const {
  if (geometry.transform(transformation_.get()) != OGRERR_NONE) return false;
  OGREnvelope box;
  geometry.getEnvelope(&box);
  return std::isfinite(box.MinX) && std::isfinite(box.MaxX) && std::isfinite(box.MinY) && std::isfinite(box.MaxY);
}

std::optional<int> utmZoneOf(const OGRSpatialReference& system, Point p) {
  const OGRSpatialReference source = eastFirst(system);
  const OGRSpatialReference target = wgs84();
  const std::unique_ptr<OGRCoordinateTransformation, void (*)(OGRCoordinateTransformation*)> transformation(
      OGRCreateCoordinateTransformation(&source, &target), OGRCoordinateTransformation::DestroyCT);
  if (!transformation || transformation->Transform(1, &p.x, &p.y) == FALSE || !std::isfinite(p.x) ||
      !std::isfinite(p.y)) {
    return std::nullopt;
  }
  const int zone = std::clamp(static_cast<int>(std::floor((p.x + 180) / 6)) + 1, 1, 60);
  return p.y < 0 ? -zone : zone;
}

}  // namespace study
