#include "motor/window/overlays/hover_light.h"

#include <QPainter>

#include "motor/map/projected_objects.h"
#include "motor/window/overlays/object_name.h"
#include "motor/window/overlays/plate.h"

namespace motor {

namespace {

constexpr qsizetype kMostNames = 3;
constexpr QColor kLight(255, 255, 255, 28);
constexpr QColor kEdge(255, 255, 255, 190);
constexpr QColor kLine(24, 34, 52, 220);
constexpr double kEdgeWidth = 3.4;
constexpr double kLineWidth = 1.4;

}  // namespace

bool HoverLight::pointTo(const MapWindow& window, QPointF at) {
  const Map& map = window.map();
  const std::vector<Hit> hits = window.pointedAt({at.x(), at.y()});
  if (hits.empty()) return clear();
  const auto set = projectedObjects(map.layers[hits.front().layer].table, map.coordinateSystem);
  const bool isOther = std::exchange(object_, set->objects()[set->indexOf(hits.front().row)]) != object_;
  const bool hasMoved = std::exchange(at_, at) != at;
  QStringList names;
  for (const Hit& hit : hits) {
    const QString name = objectName(map, hit, texts_);
    if (!name.isEmpty() && !names.contains(name) && names.size() < kMostNames) names.append(name);
  }
  const bool isCalledOtherwise = std::exchange(names_, names) != names_;
  return isOther || isCalledOtherwise || (hasMoved && !names_.isEmpty());
}

bool HoverLight::clear() {
  names_.clear();
  return std::exchange(object_, nullptr) != nullptr;
}

void HoverLight::paintOutline(QPainter& painter, const MapView& view, double devicePixelRatio) {
  if (!object_) return;
  const QPainterPath path = outlineOf(object_, view, devicePixelRatio);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (object_->kind != MapObject::Kind::polyline) painter.fillPath(path, kLight);
  painter.strokePath(path, QPen(kEdge, kEdgeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.strokePath(path, QPen(kLine, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.restore();
}

void HoverLight::paintNames(QPainter& painter, const MapView& view) const {
  if (object_) paintNote(painter, at_, view.rect(), names_);
}

}  // namespace motor
