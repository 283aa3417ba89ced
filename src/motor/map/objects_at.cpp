#include <algorithm>
#include <cmath>
#include <map>

#include "motor/map/map.h"
#include "motor/map/projected_objects.h"
#include "motor/tables/edge.h"

namespace motor {
namespace {

bool isLineNear(const MapObject& line, Point p, double tolerance) {
  for (std::size_t part = 0; part < line.partCount(); ++part) {
    for (std::size_t i = line.parts[part]; i + 1 < line.partEnd(part); ++i) {
      const Edge edge{line.points[i], line.points[i + 1]};
      if (std::sqrt(edge.squaredDistanceTo(p)) <= tolerance) return true;
    }
  }
  return false;
}

bool isHit(const ObjectSet& set, std::uint32_t index, Point p, double tolerance) {
  const MapObject& object = *set.objects()[index];
  switch (object.kind) {
    case MapObject::Kind::region:
      return set.covers(index, p);
    case MapObject::Kind::polyline:
      return isLineNear(object, p, tolerance);
    case MapObject::Kind::point:
      return std::any_of(object.points.begin(), object.points.end(),
                         [&](Point q) { return std::hypot(q.x - p.x, q.y - p.y) <= tolerance; });
    case MapObject::Kind::text:
      return object.bounds.contains(p);
  }
  return false;
}

}  // namespace

bool isSearched(const Layer& layer, const Map& map) {
  return layer.table && layer.selectable && layer.isDrawnAt(map.zoomMetres);
}

std::vector<RowId> rowsAt(const Map& map, const Layer& layer, Point p, double tolerancePixels) {
  const double tolerance = tolerancePixels * map.unitsPerPixel();
  const Box around{p.x - tolerance, p.y - tolerance, p.x + tolerance, p.y + tolerance};
  const std::shared_ptr<const ObjectSet> set = projectedObjects(layer.table, map.coordinateSystem);
  std::vector<RowId> rows;
  for (const std::uint32_t index : set->objectsIn(around)) {
    if (isHit(*set, index, p, tolerance)) rows.push_back(set->rowsOf(index).front());
  }
  return rows;
}

std::vector<Hit> objectsAt(const Map& map, Point p, double tolerancePixels) {
  std::vector<Hit> hits;
  std::map<const Table*, Display> searched;
  for (std::size_t i = 0; i < map.layers.size(); ++i) {
    const Layer& layer = map.layers[i];
    if (!isSearched(layer, map)) continue;
    // A theme and the layer that it shades are the same objects.
    const auto [earlier, isFirst] = searched.try_emplace(layer.table.get(), layer.display);
    if (!isFirst && (earlier->second == Display::value || layer.display == Display::value)) continue;
    for (const RowId row : rowsAt(map, layer, p, tolerancePixels)) hits.push_back({i, row});
  }
  return hits;
}

}  // namespace motor
