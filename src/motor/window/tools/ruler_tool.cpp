#include "motor/window/tools/ruler_tool.h"

#include <limits>
#include <numeric>

#include "motor/language/error.h"
#include "motor/session/distance_text.h"
#include "motor/window/tools/rubber_band.h"

namespace motor {

namespace {

constexpr QPointF kPanelCorner(8, 8);

}  // namespace

void RulerTool::begin() {
  cancel();
  isRunning_ = true;
  system_ = mapWindow()->map().coordinateSystem;
  try {
    distance_.emplace(system_);
  } catch (const EngineError&) {
    distance_.reset();  // the panel says that there is no length
  }
}

void RulerTool::followMap() {
  if (!(mapWindow()->map().coordinateSystem == system_)) cancel();
}

double RulerTool::measured(Point from, Point to) const {
  return distance_ ? (*distance_)(from, to) : std::numeric_limits<double>::quiet_NaN();
}

void RulerTool::press(const Pointer& pointer) {
  followMap();
  if (!isRunning_) begin();
  const Point knot = mapWindow()->map().toMap(toPoint(pointer.at));
  if (!knots_.empty()) segments_.push_back(measured(knots_.back(), knot));
  knots_.push_back(knot);
  end_ = knot;
  running_ = 0;
  site().toolChanged();
}

// The last point is there already: the first press of the double click has put it.
void RulerTool::doublePress(const Pointer& pointer) {
  if (!isRunning_) return press(pointer);
  isRunning_ = false;
  end_.reset();
  if (knots_.size() < 2) cancel();
  site().toolChanged();
}

void RulerTool::hover(const Pointer& pointer) {
  followMap();
  if (!isRunning_) return;
  end_ = mapWindow()->map().toMap(toPoint(pointer.at));
  running_ = measured(knots_.back(), *end_);
  site().toolChanged();
}

bool RulerTool::takeBack() {
  if (!isRunning_) return false;
  if (knots_.size() < 2) return cancel();
  knots_.pop_back();
  segments_.pop_back();
  if (end_) running_ = measured(knots_.back(), *end_);
  site().toolChanged();
  return true;
}

bool RulerTool::cancel() {
  const bool hadBegun = isRunning_ || !knots_.empty();
  isRunning_ = false;
  knots_.clear();
  segments_.clear();
  end_.reset();
  if (hadBegun) site().toolChanged();
  return hadBegun;
}

QString RulerTool::textOf(double metres) const {
  return QString::fromStdString(distanceText(metres, mapWindow()->properties().distanceUnit));
}

std::vector<Reading> RulerTool::readings() const {
  if (knots_.empty()) return {};
  const double fixed = std::accumulate(segments_.begin(), segments_.end(), 0.0);
  if (!isRunning_) {
    return {{QStringLiteral("Tramos"), QString::number(segments_.size())}, {QStringLiteral("Total"), textOf(fixed)}};
  }
  return {{QStringLiteral("Tramo"), textOf(running_)}, {QStringLiteral("Total"), textOf(fixed + running_)}};
}

QString RulerTool::hint() const {
  if (isRunning_) return QStringLiteral("Doble clic: terminar · Esc: anular");
  return knots_.empty() ? QStringLiteral("Haga clic donde empieza la distancia") : QString();
}

void RulerTool::paint(QPainter& painter, const MapView& view) const {
  if (mapWindow() == nullptr) return;
  if (knots_.size() > 1) {
    QPainterPath path(view.toPixel(knots_.front()));
    for (const Point& knot : knots_) path.lineTo(view.toPixel(knot));
    paintBand(painter, path, Ground::none);
  }
  if (isRunning_ && end_) paintRunningLine(painter, {view.toPixel(knots_.back()), view.toPixel(*end_)});
  for (const Point& knot : knots_) paintKnot(painter, view.toPixel(knot));
  paintReadings(painter, kPanelCorner, readings(), hint());
}

}  // namespace motor
