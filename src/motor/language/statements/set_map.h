#pragma once

#include "motor/language/statements/layer_change.h"

namespace motor {

// Zoom Entire [Layer n]
struct ZoomEntire {
  Position position;
  std::optional<LayerReference> layer;
};

// Scale a Units u For b Units v
struct ScaleClause {
  Position position;
  Measure screen;
  Measure ground;
};

// Zoom w [Units u], Zoom Entire or Scale: how much the map shows. Of several the last one counts.
using ZoomClause = std::variant<Measure, ZoomEntire, ScaleClause>;

// Set Map [Window id] ...: the window's own clauses, then those of its layers in the order written.
struct SetMap {
  enum class Preserve { zoom, scale };
  enum class Status { scale, zoom, position };

  Position position;
  ExpressionPtr window;  // null: the front map
  std::optional<CoordSysClause> coordSys;
  std::optional<CoordinatePair> center;  // in the system of `coordSys` if there is one, else in the session's
  std::optional<ZoomClause> zoom;
  std::optional<Preserve> preserve;
  std::optional<Status> status;  // Display Scale | Zoom | Position, what the status bar tells
  std::string distanceUnit;
  std::string areaUnit;
  std::string xyUnit;
  std::vector<ExpressionPtr> order;
  std::vector<LayerChange> layers;
};

}  // namespace motor
