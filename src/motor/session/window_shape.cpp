#include "motor/session/window_shape.h"

#include <algorithm>
#include <array>

#include "motor/session/map_view.h"
#include "motor/session/session_state.h"

namespace motor {
namespace {

constexpr std::array kShown{MapWindowProperties::Shown::minimized, MapWindowProperties::Shown::maximized,
                            MapWindowProperties::Shown::normal};  // by WindowState

std::optional<int> side(const std::optional<Measure>& length, const SessionState& session) {
  if (!length) return std::nullopt;
  const std::string& unit = length->unit.empty() ? session.paperUnit : length->unit;
  return std::max(1, paperPixels(session.number(length->value), unit));
}

}  // namespace

EvaluatedShape evaluate(const WindowShape& shape, const SessionState& session) {
  EvaluatedShape evaluated;
  if (shape.position) {
    const Point at = session.point(shape.position->at);
    const double perInch = paperUnitsPerInch(shape.position->unit.empty() ? session.paperUnit : shape.position->unit);
    evaluated.paper = {at.x / perInch, at.y / perInch};
  }
  evaluated.width = side(shape.width, session);
  evaluated.height = side(shape.height, session);
  evaluated.state = shape.state;
  return evaluated;
}

void setShape(SessionState& session, MapWindow& window, const EvaluatedShape& shape) {
  MapWindowProperties& properties = window.properties();
  if (shape.paper) {
    properties.paperX = shape.paper->x;
    properties.paperY = shape.paper->y;
  }
  if (shape.width || shape.height) {
    properties.shown = MapWindowProperties::Shown::normal;
    session.port.resize(window, shape.width.value_or(window.map().pixelWidth),
                        shape.height.value_or(window.map().pixelHeight));
  }
  if (shape.state) properties.shown = kShown[static_cast<std::size_t>(*shape.state)];
  if (shape.state == WindowState::maximized) session.port.maximize(window);
}

}  // namespace motor
