#include <cmath>

#include "motor/session/executors.h"
#include "motor/session/map_view.h"
#include "motor/session/session_state.h"
#include "motor/session/special_windows.h"
#include "motor/session/window_shape.h"

namespace motor {
namespace {

std::int64_t handleOf(const ExpressionPtr& handle, const SessionState& session) {
  return std::llround(session.number(handle));
}

void setLegendWindow(SessionState& session, const SetWindow& statement) {
  LegendState legend = session.legend;
  if (statement.parent) legend.parent = handleOf(statement.parent, session);
  if (const auto& placement = statement.shape.position) {
    const Point at = session.point(placement->at);
    legend.x = paperPixels(at.x, placement->unit.empty() ? session.paperUnit : placement->unit);
    legend.y = paperPixels(at.y, placement->unit.empty() ? session.paperUnit : placement->unit);
  }
  session.legend = legend;
  session.placeLegend();
}

void setMapWindow(SessionState& session, MapWindow& window, const SetWindow& statement) {
  const EvaluatedShape shape = evaluate(statement.shape, session);
  MapWindowProperties& properties = window.properties();
  if (statement.title) properties.title = session.text(statement.title);
  properties.scrollBars = statement.scrollBars.value_or(properties.scrollBars);
  properties.autoscroll = statement.autoscroll.value_or(properties.autoscroll);
  properties.closeBox = statement.closeBox.value_or(properties.closeBox);
  setShape(session, window, shape);
  if (statement.front) session.bringToFront(window);
}

void openLegend(SessionState& session) {
  session.legend.open = true;
  session.placeLegend();
}

void closeLegend(SessionState& session) {
  if (!session.legend.open) return;
  session.legend.open = false;
  session.port.hideLegend();
}

}  // namespace

void execute(SessionState& session, const SetWindow& statement) {
  const std::optional<int> special = specialWindowOf(statement.window, session);
  if (!special) {
    const std::int32_t id = session.integer(statement.window.id);
    if (!session.isPassedOver(id)) setMapWindow(session, session.window(id), statement);
    return;
  }
  switch (*special) {
    case kLegendWindow:
      setLegendWindow(session, statement);
      return;
    case kRulerWindow:
      if (statement.parent) session.rulerParent = handleOf(statement.parent, session);
      return;
    default:
      return;  // the other floating windows are not there; what is said about them is passed over
  }
}

void execute(SessionState& session, const OpenWindow& statement) {
  const std::optional<int> special = specialWindowOf(statement.window, session);
  if (special == kLegendWindow) openLegend(session);
  if (special == kRulerWindow) session.rulerOpen = true;
}

void execute(SessionState& session, const CloseWindow& statement) {
  const std::optional<int> special = specialWindowOf(statement.window, session);
  if (!special) {
    const std::int32_t id = session.integer(statement.window.id);
    session.isPassedOver(id) ? session.closePassedOver(id) : session.closeWindow(session.window(id));
  } else if (special == kLegendWindow) {
    closeLegend(session);
  } else if (special == kRulerWindow) {
    session.rulerOpen = false;
  }
}

// Dialogs lie where the host puts them.
void execute(SessionState& session, const SetApplicationWindow& statement) {
  [[maybe_unused]] const double handle = session.number(statement.handle);
}

// Every new document lies where the port puts it.
void execute(SessionState& session, const SetNextDocument& statement) {
  if (statement.parent) [[maybe_unused]]
    const double handle = session.number(statement.parent);
}

void execute(SessionState& session, const CreateLegend& statement) {
  if (statement.window) session.bringToFront(session.windowOrFront(statement.window));
  if (statement.shown) openLegend(session);
}

}  // namespace motor
