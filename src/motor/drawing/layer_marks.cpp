#include "motor/drawing/layer_marks.h"

#include <QPolygonF>
#include <cmath>

#include "motor/drawing/colours.h"
#include "motor/drawing/shape_painter.h"
#include "motor/map/projected_objects.h"

namespace motor {

namespace {

constexpr double kArrow = 6;      // pixels, half the length of an arrow
constexpr double kNode = 4;       // the side of a node's square
constexpr double kCentroid = 4;   // half the length of a centroid's cross
constexpr double kDirected = 24;  // the least length of a line that gets an arrow

class Marks {
 public:
  Marks(QPainter& painter, const MapView& view) : painter_(painter), view_(view) {}

  // An arrow in the middle of each part of a line that is long enough to have one.
  void arrows(const MapObject& line, const QColor& colour) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour);
    for (std::size_t part = 0; part < line.partCount(); ++part) {
      double left = lengthOf(line, part) / 2;
      if (2 * left < kDirected) continue;
      for (std::size_t i = line.parts[part] + 1; i < line.partEnd(part); ++i) {
        const QPointF a = view_.toPixel(line.points[i - 1]);
        const QPointF way = view_.toPixel(line.points[i]) - a;
        const double length = std::hypot(way.x(), way.y());
        if (length > 0 && left <= length) {
          arrow(a + way * (left / length), way / length);
          break;
        }
        left -= length;
      }
    }
  }

  void nodes(const MapObject& object) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(Qt::black);
    for (const Point& p : object.points) {
      const QPointF at = view_.toPixel(p);
      if (view_.rect().contains(at)) painter_.drawRect(QRectF(at.x() - kNode / 2, at.y() - kNode / 2, kNode, kNode));
    }
  }

  void centroidOf(const MapObject& object) {
    const QPointF at = view_.toPixel(centroid(object));
    if (!view_.rect().contains(at)) return;
    painter_.setPen(QPen(Qt::black, 1));
    painter_.drawLine(at - QPointF(kCentroid, 0), at + QPointF(kCentroid, 0));
    painter_.drawLine(at - QPointF(0, kCentroid), at + QPointF(0, kCentroid));
  }

 private:
  [[nodiscard]] double lengthOf(const MapObject& line, std::size_t part) const {
    double length = 0;
    for (std::size_t i = line.parts[part] + 1; i < line.partEnd(part); ++i) {
      length += std::hypot(line.points[i].x - line.points[i - 1].x, line.points[i].y - line.points[i - 1].y);
    }
    return length / view_.unitsPerPixel();
  }

  void arrow(QPointF middle, QPointF direction) {
    if (!view_.rect().contains(middle)) return;
    const QPointF along = direction * kArrow;
    const QPointF side(-along.y() / 2, along.x() / 2);
    painter_.drawPolygon(QPolygonF{middle + along, middle - along + side, middle - along - side});
  }

  QPainter& painter_;
  const MapView& view_;
};

}  // namespace

void paintLayerMarks(QPainter& painter, const Map& map, const Layer& layer, const MapView& view) {
  if (!layer.arrows && !layer.nodes && !layer.centroids) return;
  painter.save();
  Marks marks(painter, view);
  const std::shared_ptr<const ObjectSet> set = projectedObjects(layer.table, map.coordinateSystem);
  for (const std::uint32_t index : set->objectsIn(reachOf(view))) {
    const MapObject& object = *set->objects()[index];
    const bool isLine = object.kind == MapObject::Kind::polyline;
    if (layer.arrows && isLine) marks.arrows(object, toQColor(styleIn(layer, object).pen.colour));
    if (layer.nodes && (isLine || object.kind == MapObject::Kind::region)) marks.nodes(object);
    if (layer.centroids) marks.centroidOf(object);
  }
  painter.restore();
}

}  // namespace motor
