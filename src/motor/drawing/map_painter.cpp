#include "motor/drawing/map_painter.h"

#include <set>

#include "motor/drawing/map_view.h"
#include "motor/drawing/shape_painter.h"
#include "motor/drawing/theme_styles.h"
#include "motor/map/projected_objects.h"

namespace motor {

namespace {

// Pixels around the picture within which symbols and thick lines of objects outside it may still show.
constexpr double kReach = 64;

// What the picture shows with a margin, in the map's coordinates.
Box reachOf(const MapView& view) { return view.toMap(view.rect().adjusted(-kReach, -kReach, kReach, kReach)); }

// A theme draws over the objects of its base layer those that it has a style for.
void paintTheme(ShapePainter& shapes, const Layer& layer, const ObjectSet& set, const Box& reach) {
  const ThemeStyles theme(layer);
  for (const std::uint32_t index : set.objectsIn(reach)) {
    const ObjectPtr& object = set.objects()[index];
    if (const auto styles = theme.of(set.rowsOf(index).front())) shapes.paint(object, styleWith(*styles, *object));
  }
}

void paintLayer(ShapePainter& shapes, const Map& map, const Layer& layer, const Box& reach) {
  if (!layer.table || !layer.isDrawnAt(map.zoomMetres)) return;
  const std::shared_ptr<const ObjectSet> set = projectedObjects(layer.table, map.coordinateSystem);
  if (layer.theme) return paintTheme(shapes, layer, *set, reach);
  for (const std::uint32_t index : set->objectsIn(reach)) {
    const ObjectPtr& object = set->objects()[index];
    shapes.paint(object, styleIn(layer, *object));
  }
}

// The labels that were put or changed by hand, and one for each other object where the layer labels by itself.
std::vector<LabelCandidate> candidatesOf(const Map& map, const Layer& layer, const Box& reach) {
  std::vector<LabelCandidate> candidates;
  const std::shared_ptr<const ObjectSet> set = projectedObjects(layer.table, map.coordinateSystem);
  const Transformation toMap(layer.table->coordinateSystem(), map.coordinateSystem);
  std::set<std::uint32_t> edited;
  for (const EditedLabel& label : layer.label.edited) {
    if (label.row < 1 || label.row > layer.table->rowCount() || !layer.table->object(label.row)) continue;
    const std::uint32_t index = set->indexOf(label.row);
    edited.insert(index);
    if (!label.visible) continue;
    candidates.push_back({set->objects()[index], label.row, &label, std::nullopt});
    if (label.anchor) candidates.back().anchor = toMap(*label.anchor);
  }
  if (!layer.label.automatic) return candidates;
  for (const std::uint32_t index : set->objectsIn(reach)) {
    if (edited.contains(index)) continue;
    candidates.push_back({set->objects()[index], set->rowsOf(index).front(), nullptr, std::nullopt});
  }
  return candidates;
}

}  // namespace

void MapPainter::paint(QPainter& painter, const Map& map, QSizeF size, double devicePixelRatio, Quality quality) {
  if (size.isEmpty() || !(map.unitsPerPixel() > 0)) return;
  const MapView view(map, size);
  const Box reach = reachOf(view);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, quality == Quality::best);
  ShapePainter shapes(painter, view, paths_, devicePixelRatio);
  for (auto layer = map.layers.rbegin(); layer != map.layers.rend(); ++layer) paintLayer(shapes, map, *layer, reach);
  paintLayer(shapes, map, map.cosmetic, reach);
  if (quality == Quality::best) {
    paintLabels(painter, map, view, shapes.level());
    paths_.dropUnused();
    points_.dropUnused();
  }
  painter.restore();
}

void MapPainter::paintLabels(QPainter& painter, const Map& map, const MapView& view, int level) {
  const Box seen = view.toMap(view.rect());
  LabelPainter labels(painter, view, paths_, level, texts_, points_);
  for (const Layer& layer : map.layers) {
    if (layer.table && isLabelledAt(layer, map.zoomMetres)) labels.paintLayer(layer, candidatesOf(map, layer, seen));
  }
}

}  // namespace motor
