#include <array>

#include "motor/session/attributes.h"
#include "motor/session/map_view.h"
#include "motor/session/session_functions.h"
#include "motor/session/session_state.h"
#include "motor/session/special_windows.h"

namespace motor {
namespace {

using WindowAttribute = Attribute<SessionState, MapWindow>;
using SpecialAttribute = Attribute<SessionState, int>;

constexpr int kMapWindowType = 1;

double inPaperUnits(double pixels, const SessionState& session) {
  return pixels / kPixelsPerInch * paperUnitsPerInch(session.paperUnit);
}

constexpr std::array kMapAttributes{
    WindowAttribute{1, [](const SessionState&, const MapWindow& w) -> Value { return w.properties().title; }},
    WindowAttribute{3, [](const SessionState&, const MapWindow&) -> Value { return kMapWindowType; }},
    WindowAttribute{
        4, [](const SessionState& s, const MapWindow& w) -> Value { return inPaperUnits(w.map().pixelWidth, s); }},
    WindowAttribute{
        5, [](const SessionState& s, const MapWindow& w) -> Value { return inPaperUnits(w.map().pixelHeight, s); }},
    WindowAttribute{6,
                    [](const SessionState& s, const MapWindow& w) -> Value {
                      return w.properties().paperX * paperUnitsPerInch(s.paperUnit);
                    }},
    WindowAttribute{7,
                    [](const SessionState& s, const MapWindow& w) -> Value {
                      return w.properties().paperY * paperUnitsPerInch(s.paperUnit);
                    }},
    WindowAttribute{8, [](const SessionState& s, const MapWindow& w) -> Value { return s.frontWindow() == &w; }},
    WindowAttribute{
        9, [](const SessionState&, const MapWindow& w) -> Value { return static_cast<int>(w.properties().shown); }},
    WindowAttribute{10, [](const SessionState&, const MapWindow& w) -> Value { return w.map().cosmetic.name; }},
    WindowAttribute{11, [](const SessionState&, const MapWindow&) -> Value { return true; }},
    WindowAttribute{12,
                    [](const SessionState&, const MapWindow& w) -> Value { return static_cast<double>(w.handle()); }},
    WindowAttribute{13, [](const SessionState&, const MapWindow& w) -> Value { return w.id(); }},
    WindowAttribute{16, [](const SessionState&, const MapWindow& w) -> Value { return w.properties().closeBox; }},
    WindowAttribute{17, [](const SessionState&, const MapWindow& w) -> Value { return w.properties().autoscroll; }},
};

constexpr std::array kSpecialAttributes{
    SpecialAttribute{3, [](const SessionState&, const int& code) -> Value { return code; }},
    SpecialAttribute{11, [](const SessionState& s, const int& code) -> Value { return isSpecialWindowOpen(s, code); }},
    SpecialAttribute{12,
                     [](const SessionState& s, const int& code) -> Value {
                       const bool isShown = code == kLegendWindow && s.legend.open;
                       return isShown ? static_cast<double>(s.port.legendHandle()) : 0;
                     }},
    SpecialAttribute{13, [](const SessionState&, const int& code) -> Value { return code; }},
};

using SessionAttribute = Attribute<SessionState>;

constexpr std::array kSessionAttributes{
    SessionAttribute{1, [](const SessionState& s) -> Value { return "CoordSys " + s.coordinateSystem.clause(); }},
    SessionAttribute{2, [](const SessionState& s) -> Value { return s.distanceUnit; }},
    SessionAttribute{3, [](const SessionState& s) -> Value { return s.areaUnit; }},
    SessionAttribute{4, [](const SessionState& s) -> Value { return s.paperUnit; }},
};

}  // namespace

Value sessionInfo(SessionState& session, const Arguments& arguments) {
  return readAttribute(kSessionAttributes, arguments, 0, session);
}

Value windowId(SessionState& session, const Arguments& arguments) {
  const int n = arguments.integer(0);
  const auto& windows = session.windows();
  if (isSpecialWindow(n)) return n;
  if (n == 0) return windows.empty() ? 0 : windows.back()->id();
  const std::size_t index = static_cast<std::size_t>(std::abs(static_cast<long>(n))) - 1;
  if (index >= windows.size()) throw EngineError("no hay ninguna ventana con el número " + std::to_string(n));
  return windows[index]->id();
}

Value frontWindow(SessionState& session, const Arguments& /*arguments*/) { return session.frontDocument(); }

Value windowInfo(SessionState& session, const Arguments& arguments) {
  const int id = arguments.integer(0);
  if (isSpecialWindow(id)) return readAttribute(kSpecialAttributes, arguments, 1, session, id);
  return readAttribute(kMapAttributes, arguments, 1, session, session.window(id));
}

Value numberOfWindows(SessionState& session, const Arguments& /*arguments*/) {
  return static_cast<double>(session.windows().size());
}

Value numberOfAllWindows(SessionState& session, const Arguments& /*arguments*/) {
  const int floating = static_cast<int>(isSpecialWindowOpen(session, kLegendWindow)) +
                       static_cast<int>(isSpecialWindowOpen(session, kRulerWindow));
  return static_cast<double>(session.windows().size()) + floating;
}

Value commandInfo(SessionState& session, const Arguments& arguments) {
  const int code = arguments.integer(0);
  if (code < 1 || code > static_cast<int>(session.event.size()))
    arguments.reject(0, "no hay ningún atributo " + std::to_string(code));
  return session.event[static_cast<std::size_t>(code - 1)];
}

}  // namespace motor
