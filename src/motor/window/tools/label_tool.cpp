#include "motor/window/tools/label_tool.h"

#include <algorithm>
#include <utility>

#include "motor/drawing/halo_text.h"
#include "motor/map/projected_objects.h"
#include "motor/session/hand_labels.h"

namespace motor {

namespace {

constexpr QColor kFrame(20, 96, 200);
constexpr QColor kGround(255, 255, 255, 150);
constexpr double kFrameRound = 3;
constexpr double kFromEdge = 5;  // a label that reaches beyond the window's edge would not be shown

// Where the label of a point object is anchored, in the map's coordinates.
Point anchorOf(const Map& map, const Hit& object) {
  const Layer& layer = map.layers[object.layer];
  const auto& labels = layer.label.edited;
  const auto edited =
      std::find_if(labels.begin(), labels.end(), [&](const EditedLabel& l) { return l.row == object.row; });
  if (edited != labels.end() && edited->anchor) {
    return Transformation(layer.table->coordinateSystem(), map.coordinateSystem)(*edited->anchor);
  }
  const auto set = projectedObjects(layer.table, map.coordinateSystem);
  return set->objects()[set->indexOf(object.row)]->points.front();
}

}  // namespace

void LabelTool::press(const Pointer& pointer) {
  gesture_.begin(pointer.at);
  const PlacedLabel* label = site().labels().at(pointer.at);
  grabbed_ = label == nullptr ? std::nullopt : std::optional(*label);
}

void LabelTool::drag(const Pointer& pointer) {
  gesture_.moveTo(pointer.at);
  if (!grabbed_ || !gesture_.isDragging()) return;
  site().updateCursor();
  site().toolChanged();
}

void LabelTool::release(const Pointer& pointer) {
  gesture_.moveTo(pointer.at);
  if (!gesture_.end()) return;
  if (gesture_.isDrag()) {
    if (grabbed_) dropLabel();
  } else {
    clickAt(gesture_.from());
  }
  grabbed_.reset();
}

void LabelTool::clickAt(QPointF at) {
  if (grabbed_) return mapWindow()->labelRemoved(grabbed_->object);
  const std::vector<Hit> objects = mapWindow()->pointedAt(toPoint(at));
  if (objects.empty()) return;
  const Map& map = mapWindow()->map();
  const bool isLabelled = hasHandLabel(map, objects.front()) || site().labels().of(map, objects.front()) != nullptr;
  isLabelled ? mapWindow()->labelRemoved(objects.front()) : mapWindow()->labelPut(objects.front());
}

QPointF LabelTool::carriedBy(const QRectF& window) const {
  const QRectF room = window.adjusted(kFromEdge, kFromEdge, -kFromEdge, -kFromEdge);
  const QRectF& box = grabbed_->box;
  const QPointF by = gesture_.by();
  return {std::clamp(by.x(), std::min(0.0, room.left() - box.left()), std::max(0.0, room.right() - box.right())),
          std::clamp(by.y(), std::min(0.0, room.top() - box.top()), std::max(0.0, room.bottom() - box.bottom()))};
}

void LabelTool::dropLabel() {
  const Map& map = mapWindow()->map();
  const QPointF by = carriedBy(QRectF(0, 0, map.pixelWidth, map.pixelHeight));
  Point anchor = map.toMap(toPoint(grabbed_->box.center() + by));
  if (grabbed_->shape->kind == MapObject::Kind::point) {
    const QPointF before = toQPointF(map.toPixel(anchorOf(map, grabbed_->object)));
    anchor = map.toMap(toPoint(before + by));
  }
  mapWindow()->labelMoved(grabbed_->object, anchor);
}

void LabelTool::hover(const Pointer& pointer) {
  const bool isOverLabel = site().labels().at(pointer.at) != nullptr;
  if (std::exchange(isOverLabel_, isOverLabel) != isOverLabel) site().updateCursor();
}

bool LabelTool::cancel() {
  if (!gesture_.end()) return false;
  grabbed_.reset();
  site().toolChanged();
  return true;
}

void LabelTool::paint(QPainter& painter, const MapView& view) const {
  if (!grabbed_ || !gesture_.isDragging()) return;
  const QRectF box = grabbed_->box.translated(carriedBy(view.rect()));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kFrame, 1, Qt::DashLine));
  painter.setBrush(kGround);
  painter.drawRoundedRect(box, kFrameRound, kFrameRound);
  const HaloText text(grabbed_->lines, grabbed_->font);
  const QPointF half(text.size().width() / 2, text.size().height() / 2);
  text.paint(painter, box.center() - half, Qt::AlignHCenter);
  painter.restore();
}

QCursor LabelTool::cursor() const {
  return isOverLabel_ || (grabbed_ && gesture_.isDragging()) ? QCursor(Qt::SizeAllCursor) : MapTool::cursor();
}

}  // namespace motor
