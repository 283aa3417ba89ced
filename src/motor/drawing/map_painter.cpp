#include "motor/drawing/map_painter.h"

#include <cmath>
#include <set>

#include "motor/drawing/layer_marks.h"
#include "motor/drawing/map_view.h"
#include "motor/drawing/shape_painter.h"
#include "motor/map/projected_objects.h"

namespace motor {

namespace {

// An object that themes above paint over is left to them.
void paintLayer(ShapePainter& shapes, const Map& map, const Layer& layer, const Box& reach,
                const std::vector<bool>& covered) {
  const std::shared_ptr<const ObjectSet> set = projectedObjects(layer.table, map.coordinateSystem);
  for (const std::uint32_t index : set->objectsIn(reach)) {
    if (index < covered.size() && covered[index]) continue;
    const ObjectPtr& object = set->objects()[index];
    shapes.paint(object, styleIn(layer, *object));
  }
  shapes.finishLayer();
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
    candidates.push_back({set->objects()[index], label.row, &label, std::nullopt, std::nullopt});
    if (label.anchor) candidates.back().anchor = toMap(*label.anchor);
    if (label.callout) candidates.back().callout = toMap(*label.callout);
  }
  if (!layer.label.automatic) return candidates;
  for (const std::uint32_t index : set->objectsIn(reach)) {
    if (edited.contains(index)) continue;
    candidates.push_back({set->objects()[index], set->rowsOf(index).front(), nullptr, std::nullopt, std::nullopt});
  }
  return candidates;
}

// Labels that lie where the engine puts them stay clear of the theme signs on their objects.
void keepOffSigns(std::vector<LabelCandidate>& candidates, const std::shared_ptr<const ObjectSet>& set,
                  const std::vector<double>& radii, ObjectPlaces& places) {
  if (radii.empty()) return;
  const std::vector<Point>& centres = places.centres(set);
  for (LabelCandidate& candidate : candidates) {
    const std::uint32_t index = set->indexOf(candidate.row);
    if (candidate.edited != nullptr || index >= radii.size() || !(radii[index] > 0)) continue;
    candidate.anchor = centres[index];
    candidate.clearance = radii[index];
  }
}

}  // namespace

void MapPainter::paint(QPainter& painter, const Map& map, QSizeF size, double devicePixelRatio, Quality quality) {
  if (size.isEmpty() || !(map.unitsPerPixel() > 0) || !std::isfinite(map.centre.x) || !std::isfinite(map.centre.y))
    return;
  const MapView view(map, size);
  const Box reach = reachOf(view);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, quality == Quality::best);
  ShapePainter shapes(painter, view, objects_.paths, devicePixelRatio);
  ThemePainter themes(painter, shapes, map, view, themes_, devicePixelRatio);
  for (std::size_t i = map.layers.size(); i-- > 0;) {
    const Layer& layer = map.layers[i];
    if (!layer.table || !layer.isDrawnAt(map.zoomMetres)) continue;
    if (layer.theme) {
      themes.paint(i);
    } else {
      const auto set = projectedObjects(layer.table, map.coordinateSystem);
      paintLayer(shapes, map, layer, reach, themes.coveredObjects(i, *set));
      paintLayerMarks(painter, map, layer, view);
    }
  }
  if (map.cosmetic.table && map.cosmetic.isDrawnAt(map.zoomMetres)) paintLayer(shapes, map, map.cosmetic, reach, {});
  if (quality == Quality::best) {
    paintLabels(painter, map, view, shapes.level(), themes);
    themes_.dropUnused();
    objects_.dropUnused();
  }
  painter.restore();
}

void MapPainter::paintLabels(QPainter& painter, const Map& map, const MapView& view, int level, ThemePainter& themes) {
  const Box seen = view.toMap(view.rect());
  LabelPainter labels(painter, view, objects_, level, texts_);
  labels.keepOff(withoutLabels_);
  for (std::size_t i = 0; i < map.layers.size(); ++i) {
    const Layer& layer = map.layers[i];
    if (!layer.table || !isLabelledAt(layer, map.zoomMetres)) continue;
    std::vector<LabelCandidate> candidates = candidatesOf(map, layer, seen);
    keepOffSigns(candidates, projectedObjects(layer.table, map.coordinateSystem), themes.signRadii(i), themes_.places);
    labels.paintLayer(layer, std::move(candidates));
  }
}

}  // namespace motor
