#include "motor/session/session_state.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>

#include "motor/session/executors.h"
#include "motor/session/session_functions.h"
#include "motor/session/statement_words.h"
#include "text/utf8.h"

namespace motor {
namespace {

// Window ids mean nothing but are never given twice in a process.
std::int32_t nextWindowId() {
  static std::atomic<std::int32_t> last{234499920};
  return ++last;
}

std::string defaultTitle(const Map& map) {
  std::string title;
  for (const Layer& layer : map.layers) title += (title.empty() ? "" : ",") + layer.name;
  return title + " Map";
}

// Statements may run statements; endless circles must not.
constexpr int kDeepest = 16;

constexpr std::size_t kMostWindows = 200;

}  // namespace

SessionState::SessionState(WindowPort& windowPort, SessionOptions sessionOptions)
    : port(windowPort), options(std::move(sessionOptions)), files(options.roots) {
  useNumberSigns({.decimal = options.decimalSign, .thousands = options.thousandsSign});
}

SessionState::~SessionState() { closeAllWindows(); }

MapWindow& SessionState::openWindow(Map map) {
  if (windows_.size() >= kMostWindows)
    throw EngineError("no se pueden abrir más de " + std::to_string(kMostWindows) + " ventanas de mapa");
  auto window = std::make_unique<MapWindow>(*this, nextWindowId());
  window->map_ = std::move(map);
  window->map_.cosmetic.name = "Cosmetic" + std::to_string(++cosmeticTables_);
  window->properties_.title = defaultTitle(window->map_);
  window->properties_.distanceUnit = distanceUnit;
  window->handle_ = port.openMap(*window);
  windows_.push_back(std::move(window));
  bringToFront(*windows_.back());
  return *windows_.back();
}

void SessionState::passOverDocument() { frontPassedOver_ = *passedOver_.insert(nextWindowId()).first; }

std::int32_t SessionState::frontDocument() const { return frontPassedOver_ != 0 ? frontPassedOver_ : front_; }

bool SessionState::isPassedOver(std::int32_t id) const { return passedOver_.count(id) != 0; }

void SessionState::closePassedOver(std::int32_t id) {
  passedOver_.erase(id);
  if (frontPassedOver_ == id) frontPassedOver_ = 0;
}

void SessionState::closeWindow(MapWindow& window) {
  const auto at = std::find_if(windows_.begin(), windows_.end(), [&](const auto& w) { return w.get() == &window; });
  const std::unique_ptr<MapWindow> closing = std::move(*at);
  windows_.erase(at);
  if (front_ == closing->id()) front_ = windows_.empty() ? 0 : windows_.back()->id();
  if (windows_.empty() && legend.open) {
    legend.open = false;
    port.hideLegend();
  }
  port.closeMap(*closing);
  placeLegend();
}

void SessionState::bringToFront(const MapWindow& window) {
  const bool isOther = front_ != window.id();
  front_ = window.id();
  frontPassedOver_ = 0;
  if (isOther) placeLegend();
}

void SessionState::placeLegend() {
  MapWindow* front = frontWindow();
  if (legend.open && front != nullptr) port.showLegend(*front, legend.parent, legend.x, legend.y);
}

void SessionState::closeAllWindows() {
  if (legend.open && !windows_.empty()) {
    legend.open = false;
    port.hideLegend();
  }
  while (!windows_.empty()) closeWindow(*windows_.back());
  passedOver_.clear();
  frontPassedOver_ = 0;
}

MapWindow* SessionState::frontWindow() const {
  const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const auto& w) { return w->id() == front_; });
  return found == windows_.end() ? nullptr : found->get();
}

MapWindow& SessionState::window(std::int32_t id) const {
  for (const auto& window : windows_) {
    if (window->id() == id) return *window;
  }
  throw EngineError("no hay ninguna ventana de mapa con el identificador " + std::to_string(id));
}

MapWindow& SessionState::windowOrFront(const ExpressionPtr& id) const {
  if (id) return window(integer(id));
  MapWindow* front = frontWindow();
  if (front == nullptr) throw EngineError("no hay ninguna ventana de mapa abierta");
  return *front;
}

void SessionState::chooseTool(const Tool& tool) {
  toolbox.choose(tool);
  rulerOpen = tool.command == tools::kRuler;
  allMapsChangedAbove();
}

void SessionState::allMapsChanged() {
  for (const auto& window : windows_) window->changed();
}

void SessionState::allMapsChangedAbove() {
  for (const auto& window : windows_) window->changedAbove();
}

double SessionState::number(const ExpressionPtr& expression) const {
  const Value value = expression->evaluate(scope);
  if (value.number() == nullptr) throw LanguageError(expression->position(), value.toText(), "se esperaba un número");
  return *value.number();
}

int SessionState::integer(const ExpressionPtr& expression) const {
  const double value = std::round(number(expression));
  if (!(std::abs(value) <= std::numeric_limits<int>::max()))
    throw LanguageError(expression->position(), Value(value).toText(), "el número es demasiado grande");
  return static_cast<int>(value);
}

std::string SessionState::text(const ExpressionPtr& expression) const { return expression->evaluate(scope).toText(); }

Point SessionState::point(const CoordinatePair& pair) const { return {number(pair.x), number(pair.y)}; }

void SessionState::run(const std::vector<Statement>& statements) {
  if (depth_ >= kDeepest) throw EngineError("demasiadas instrucciones que ejecutan otras");
  if (depth_ == 0) budget = RunBudget();
  struct Deeper {
    int& depth;
    explicit Deeper(int& d) : depth(d) { ++depth; }
    ~Deeper() { --depth; }
  } const deeper(depth_);
  for (const Statement& statement : statements) {
    if (ended) throw EngineError("la sesión ha terminado");
    try {
      budget.spendStatement();
      std::visit([this](const auto& s) { execute(*this, s); }, statement);
    } catch (const EngineError& e) {
      throw LanguageError(positionOf(statement), firstWord(statement), e.what());
    }
  }
}

void SessionState::useNumberSigns(const NumberSigns& signs) {
  expressions.clear();  // they remember the functions that go
  functions = pureFunctions(signs);
  functions.add<SessionState>(*this, sessionFunctions());
}

Point toSession(const SessionState& session, const Map& map, Point inMap) {
  return Transformation(map.coordinateSystem, session.coordinateSystem)(inMap);
}

Point toMapCoordinates(const SessionState& session, const Map& map, Point inSession) {
  return Transformation(session.coordinateSystem, map.coordinateSystem)(inSession);
}

}  // namespace motor
