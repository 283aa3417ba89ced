#include "study/input/projection.h"

#include <ogr_geometry.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

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

std::optional<Point> degreesOf(const OGRSpatialReference& system, Point p) {
  const OGRSpatialReference source = eastFirst(system);
  const OGRSpatialReference target = wgs84();
  const std::unique_ptr<OGRCoordinateTransformation, void (*)(OGRCoordinateTransformation*)> transformation(
      OGRCreateCoordinateTransformation(&source, &target), OGRCoordinateTransformation::DestroyCT);
  if (!transformation || transformation->Transform(1, &p.x, &p.y) == FALSE || !std::isfinite(p.x) ||
      !std::isfinite(p.y)) {
    return std::nullopt;
  }
  return p;
}

int utmZoneOf(Point degrees) {
  const int zone = std::clamp(static_cast<int>(std::floor((degrees.x + 180) / 6)) + 1, 1, 60);
  return degrees.y < 0 ? -zone : zone;
}

double degreesFromMeridian(Point degrees, int utmZone) {
  const double meridian = std::abs(utmZone) * 6 - 183;
  return std::fabs(std::remainder(degrees.x - meridian, 360.0));
}

namespace {

struct AreaOfUse {
  double west = -180;
  double south = -90;
  double east = 180;
  double north = 90;
};

// Files name a system, but do not repeat where it is used.
std::optional<AreaOfUse> areaOfUse(const OGRSpatialReference& system) {
  AreaOfUse area;
  const auto isKnown = [&](const OGRSpatialReference& known) {
    return known.GetAreaOfUse(&area.west, &area.south, &area.east, &area.north, nullptr) && area.west >= -180 &&
           area.west <= area.east;
  };
  if (isKnown(system)) return area;
  const char* authority = system.GetAuthorityName(nullptr);
  const char* code = system.GetAuthorityCode(nullptr);
  if (authority == nullptr || code == nullptr) return std::nullopt;
  OGRSpatialReference named;
  if (named.SetFromUserInput((std::string(authority) + ":" + code).c_str()) != OGRERR_NONE) return std::nullopt;
  return isKnown(named) ? std::optional(area) : std::nullopt;
}

}  // namespace

bool isInUse(const OGRSpatialReference& system, Point degrees) {
  constexpr double kNearby = 6;  // degrees
  const int zone = system.GetUTMZone();
  if (zone != 0 && degreesFromMeridian(degrees, zone) > 3 + kNearby) return false;
  const std::optional<AreaOfUse> area = areaOfUse(system);
  return !area || (degrees.x >= area->west - kNearby && degrees.x <= area->east + kNearby &&
                   degrees.y >= area->south - kNearby && degrees.y <= area->north + kNearby);
}

}  // namespace study
