#include "motor/session/window_shape.h"

#include <algorithm>
#include <array>

#include "motor/session/map_view.h"
#include "motor/session/session_state.h"

namespace motor {
namespace {

constexpr std::array kShown{MapWindowProperties::Shown::minimized, MapWindowProperties::Shown::maximized,
                            MapWindowProperties::Shown::normal};  // by WindowState

int sideOr(const std::optional<Measure>& length, int otherwise, const SessionState& session) {
  if (!length) return otherwise;
  const std::string& unit = length->unit.empty() ? session.paperUnit : length->unit;
  return std::max(1, paperPixels(session.number(length->value), unit));
}

}  // namespace

void setShape(SessionState& session, MapWindow& window, const WindowShape& shape) {
  MapWindowProperties& properties = window.properties();
  if (shape.position) {
    const Point at = session.point(shape.position->at);
    const double perInch = paperUnitsPerInch(shape.position->unit.empty() ? session.paperUnit : shape.position->unit);
    properties.paperX = at.x / perInch;
    properties.paperY = at.y / perInch;
  }
  if (shape.width || shape.height) {
    const int width = sideOr(shape.width, window.map().pixelWidth, session);
    const int height = sideOr(shape.height, window.map().pixelHeight, session);
    properties.shown = MapWindowProperties::Shown::normal;
    session.port.resize(window, width, height);
  }
  if (shape.state) properties.shown = kShown[static_cast<std::size_t>(*shape.state)];
  if (shape.state == WindowState::maximized) session.port.maximize(window);
}

}  // namespace motor
