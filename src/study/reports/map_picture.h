#pragma once

#include <optional>
#include <string>
#include <vector>

#include "study/model/study.h"
#include "study/reports/page.h"

namespace study::reports {

// Units filled by the class of their value, with the thematic maps' colours: grey where there is none.
struct MapPicture {
  const Study* study = nullptr;
  UnitKind units = UnitKind::province;
  std::vector<std::optional<double>> values;  // by unit
  std::vector<double> limits;                 // of the classes, ascending; at least two
  bool hasNames = false;                      // of the provinces, where there is room for them
  bool hasScale = true;
};

// The height that the map needs in a box of that width, its scale included.
[[nodiscard]] double mapHeight(const MapPicture& map, double width);

// As large as the box allows, centred; the map's scale in kilometres at the lower left.
void paintMap(Page& page, const QRectF& box, const MapPicture& map);

// The class of a value: limits[i] <= value < limits[i + 1]; values beyond are in the nearest.
[[nodiscard]] std::size_t classOf(double value, const std::vector<double>& limits);

// The classes and, where a value is missing, "sin datos", side by side from the box's left, in as many lines as needed.
// Returns the height used.
double paintMapLegend(Page& page, QPointF leftTop, double width, const MapPicture& map);

}  // namespace study::reports
