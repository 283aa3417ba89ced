#include "motor/session/ground_distance.h"

#include <cmath>
#include <numbers>
#include <optional>
#include <string>
#include <string_view>

#include "text/number_text.h"

namespace motor {
namespace {

// The part of a system's definition that begins with `keyword` and its bracket, up to the bracket that closes it.
std::string_view partOf(std::string_view definition, std::string_view keyword) {
  const std::size_t start = definition.find(keyword);
  if (start == std::string_view::npos) return {};
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = start; i < definition.size(); ++i) {
    const char c = definition[i];
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == '[') ++depth;
    if (c == ']' && --depth == 0) return definition.substr(start, i + 1 - start);
  }
  return {};
}

// The two numbers behind the name in SPHEROID["name",semi-major axis,inverse flattening, ...].
std::optional<Ellipsoid> ellipsoidOf(std::string_view definition) {
  const std::string_view spheroid = partOf(definition, "SPHEROID[");
  const std::size_t axis = spheroid.find("\",");
  if (axis == std::string_view::npos) return std::nullopt;
  const std::size_t inverse = spheroid.find(',', axis + 2);
  const std::size_t end = spheroid.find_first_of(",]", inverse + 1);
  if (inverse == std::string_view::npos || end == std::string_view::npos) return std::nullopt;
  const double semiMajorAxis = text::toNumber(spheroid.substr(axis + 2, inverse - axis - 2));
  const double inverseFlattening = text::toNumber(spheroid.substr(inverse + 1, end - inverse - 1));
  return Ellipsoid{semiMajorAxis, inverseFlattening > 0 ? 1 / inverseFlattening : 0};
}

}  // namespace

GroundDistance::GroundDistance(const CoordinateSystem& system) : system_(system), longLat_(system) {
  if (!system.isEarth()) return;
  ellipsoid_ = ellipsoidOf(system.wkt()).value_or(Ellipsoid());
  if (!system.isLongLat()) longLat_ = CoordinateSystem::fromWkt(std::string(partOf(system.wkt(), "GEOGCS[")));
  toLongLat_ = std::make_shared<const Transformation>(system, longLat_);
}

double GroundDistance::operator()(Point from, Point to) const {
  if (!toLongLat_) return std::hypot(to.x - from.x, to.y - from.y) * system_.metresPerUnit();
  return geodesicMetres(ellipsoid_, (*toLongLat_)(from), (*toLongLat_)(to));
}

double GroundDistance::northAt(Point p) const {
  constexpr double kStep = 1e-3;  // degrees
  if (!toLongLat_ || system_.isLongLat()) return 0;
  const Point here = (*toLongLat_)(p);
  const Point north = Transformation(longLat_, system_)(Point{here.x, here.y + kStep});
  const double angle = std::atan2(north.x - p.x, north.y - p.y) * 180 / std::numbers::pi;
  return std::isfinite(angle) ? angle : 0;
}

}  // namespace motor
