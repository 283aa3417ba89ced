#include "motor/window/overlays/selection_light.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "motor/map/projected_objects.h"

namespace motor {

namespace {

constexpr QColor kEdge(255, 255, 255, 200);
constexpr QColor kLine(232, 89, 12);
constexpr double kEdgeWidth = 4.6;
constexpr double kLineWidth = 2.2;
constexpr int kFewPoints = 3000;  // as many are marked anew in no time
constexpr int kFewEdged = 900;    // as many get a light edge, which sets them off from what is below
constexpr int kFewRounded = 120;  // as many get round corners, which take longest

bool shows(const Map& map, const TablePtr& table) {
  return std::any_of(map.layers.begin(), map.layers.end(),
                     [&](const Layer& layer) { return layer.table == table && layer.isDrawnAt(map.zoomMetres); });
}

int elementCount(const std::vector<QPainterPath>& outlines) {
  int count = 0;
  for (const QPainterPath& outline : outlines) count += outline.elementCount();
  return count;
}

// Each outline is stroked on its own: the toolkit takes many times longer for one path that is spread over the window.
void mark(QPainter& painter, const std::vector<QPainterPath>& outlines) {
  const int elements = elementCount(outlines);
  const bool areRound = elements <= kFewRounded;
  const auto stroke = [&](const QColor& colour, double width) {
    const QPen pen(colour, width, Qt::SolidLine, areRound ? Qt::RoundCap : Qt::FlatCap,
                   areRound ? Qt::RoundJoin : Qt::BevelJoin);
    for (const QPainterPath& outline : outlines) painter.strokePath(outline, pen);
  };
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (elements <= kFewEdged) stroke(kEdge, kEdgeWidth);
  stroke(kLine, kLineWidth);
  painter.restore();
}

}  // namespace

bool SelectionLight::findObjects(const MapWindow& window) {
  const auto selection = window.selection();
  if (selection == selection_ && window.revision() == revision_) return false;
  const std::vector<ObjectPtr> before = std::exchange(objects_, {});
  selection_ = selection;
  revision_ = window.revision();
  if (!selection_ || !shows(window.map(), selection_->base().table)) return !before.empty();
  const auto set = projectedObjects(selection_->base().table, window.map().coordinateSystem);
  std::vector<bool> isSelected(set->objects().size(), false);
  for (const RowId row : selection_->contents().rows.front()) {
    const std::uint32_t index = set->indexOf(row);
    if (index == ObjectSet::kNone || isSelected[index]) continue;
    isSelected[index] = true;
    objects_.push_back(set->objects()[index]);
  }
  if (objects_.size() == set->objects().size() && objects_.size() > 1) objects_.clear();
  return objects_ != before;
}

std::vector<QPainterPath> SelectionLight::outlines(const MapView& view, double devicePixelRatio) {
  const Box seen = reachOf(view);
  std::vector<QPainterPath> paths;
  for (const ObjectPtr& object : objects_) {
    if (object->bounds.intersects(seen)) paths.push_back(outlineOf(object, view, devicePixelRatio));
  }
  return paths;
}

void SelectionLight::paint(QPainter& painter, const MapWindow& window, const MapView& view, double devicePixelRatio,
                           bool moving) {
  if (findObjects(window)) marks_ = {};
  if (objects_.empty()) return;
  const Box shown = view.toMap(view.rect());
  const QSize pixels = (view.rect().size() * devicePixelRatio).toSize();
  const bool isGood = !marks_.isNull() && shown == shown_ && marks_.size() == pixels;
  if (!isGood && (marks_.isNull() || !moving)) {
    marks_ = {};
    const std::vector<QPainterPath> paths = outlines(view, devicePixelRatio);
    if (elementCount(paths) <= kFewPoints) return mark(painter, paths);
    marks_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    marks_.setDevicePixelRatio(devicePixelRatio);
    marks_.fill(Qt::transparent);
    QPainter marksPainter(&marks_);
    mark(marksPainter, paths);
    shown_ = shown;
  }
  shown == shown_ ? painter.drawImage(QPointF(0, 0), marks_) : painter.drawImage(view.toPixels(shown_), marks_);
}

}  // namespace motor
