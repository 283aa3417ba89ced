#include "motor/map/map.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "motor/map/projected_objects.h"

namespace motor {
namespace {

// Metres per degree of longitude along the parallel of a latitude on the WGS 84 ellipsoid. Near the poles it stays that
// of the last parallel with some length, so that a zoom never becomes infinite.
double metresPerDegree(double latitude) {
  constexpr double kSemiMajorAxis = 6378137.0;
  constexpr double kFlattening = 1 / 298.257223563;
  constexpr double kEccentricitySquared = kFlattening * (2 - kFlattening);
  constexpr double kLastLatitude = 89.0;
  constexpr double kRadiansPerDegree = std::numbers::pi / 180;
  const double phi = std::clamp(latitude, -kLastLatitude, kLastLatitude) * kRadiansPerDegree;
  const double sine = std::sin(phi);
  return kRadiansPerDegree * kSemiMajorAxis * std::cos(phi) / std::sqrt(1 - kEccentricitySquared * sine * sine);
}

double metresPerUnitAt(const CoordinateSystem& system, Point centre) {
  return system.isLongLat() ? metresPerDegree(centre.y) : system.metresPerUnit();
}

}  // namespace

double Map::unitsPerPixel() const {
  return zoomMetres / metresPerUnitAt(coordinateSystem, centre) / std::max(1, pixelWidth);
}

Point Map::toMap(Point pixel) const {
  const double scale = unitsPerPixel();
  return {centre.x + (pixel.x - pixelWidth / 2.0) * scale, centre.y - (pixel.y - pixelHeight / 2.0) * scale};
}

Point Map::toPixel(Point map) const {
  const double scale = unitsPerPixel();
  return {pixelWidth / 2.0 + (map.x - centre.x) / scale, pixelHeight / 2.0 - (map.y - centre.y) / scale};
}

Box Map::visibleBox() const {
  Box box;
  box.add(toMap({0, 0}));
  box.add(toMap({static_cast<double>(pixelWidth), static_cast<double>(pixelHeight)}));
  return box;
}

void Map::showBox(const Box& box, double margin) {
  if (box.isEmpty()) return;
  centre = {(box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2};
  const double width = std::max(1, pixelWidth);
  const double height = std::max(1, pixelHeight);
  const double perPixel = std::max((box.maxX - box.minX) / width, (box.maxY - box.minY) / height) * (1 + 2 * margin);
  if (perPixel > 0) zoomMetres = perPixel * width * metresPerUnitAt(coordinateSystem, centre);
}

Box Map::fullExtent() const {
  Box extent;
  for (const Layer& layer : layers) {
    if (layer.display != Display::off) extent.add(extentOf(layer));
  }
  if (cosmetic.display != Display::off) extent.add(extentOf(cosmetic));
  return extent;
}

Box Map::extentOf(const Layer& layer) const {
  return layer.table ? projectedObjects(layer.table, coordinateSystem)->bounds() : Box{};
}

}  // namespace motor
