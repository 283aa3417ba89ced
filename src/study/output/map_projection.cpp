#include "study/output/map_projection.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "text/number_text.h"

namespace study {

namespace {

constexpr double kStep = 100'000;    // metres, to which the bounds are rounded
constexpr double kSide = 1'000'000;  // metres, of the bounds' square
constexpr double kMargin = 10'000;   // metres around the region at least
constexpr double kFalseNorthing = 10'000'000;

// A square about the region, on round coordinates.
Extent boundsAround(const Extent& region) {
  const double side =
      std::max({kSide, region.width() + 2 * (kMargin + kStep), region.height() + 2 * (kMargin + kStep)});
  const Point centre = region.centre();
  const double minX = std::floor((centre.x - side / 2) / kStep) * kStep;
  const double minY = std::floor((centre.y - side / 2) / kStep) * kStep;
  const double rounded = std::ceil(side / kStep) * kStep;
  return {minX, minY, minX + rounded, minY + rounded};
}

}  // namespace

MapProjection mapProjection(const Study& study) {
  const int meridian = std::abs(study.utmZone) * 6 - 183;
  const double northing = study.utmZone < 0 ? kFalseNorthing : 0;
  return {
      "Earth Projection 8, 104, \"m\", " + std::to_string(meridian) + ", 0, 0.9996, 500000, " + text::number(northing),
      boundsAround(extent(study.regionArea))};
}

}  // namespace study
