#include "motor/drawing/label_points.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "motor/drawing/label_point.h"

namespace motor {

namespace {

constexpr double kShareOfRegion = 0.02;  // precision of a label's place, as a part of the region's size

}  // namespace

Point LabelPoints::of(const ObjectPtr& region) {
  Entry& entry = points_[region.get()];
  if (entry.object.lock() != region) {
    const MapObject& object = *region;
    std::vector<QPolygonF> rings;
    for (std::size_t part = 0; part < object.partCount(); ++part) {
      QPolygonF ring;
      for (std::size_t i = object.parts[part]; i < object.partEnd(part); ++i) {
        ring.append({object.points[i].x, object.points[i].y});
      }
      rings.push_back(std::move(ring));
    }
    const double size = std::min(object.bounds.maxX - object.bounds.minX, object.bounds.maxY - object.bounds.minY);
    const QPointF best = labelPoint(rings, size * kShareOfRegion);
    entry = {region, {best.x(), best.y()}};
  }
  return entry.point;
}

void LabelPoints::dropUnused() {
  std::erase_if(points_, [](const auto& entry) { return entry.second.object.expired(); });
}

}  // namespace motor
