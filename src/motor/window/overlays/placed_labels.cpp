#include "motor/window/overlays/placed_labels.h"

#include <QHash>
#include <algorithm>
#include <limits>

#include "motor/drawing/label_painter.h"
#include "motor/drawing/map_view.h"
#include "motor/map/projected_objects.h"

namespace motor {

namespace {

// An object that may have a label, with the place where that is looked for first.
struct Candidate {
  Hit object;
  QPointF at;
  Font font;
};

using Candidates = QHash<QString, std::vector<Candidate>>;

// Adds the objects of a layer that have a label by hand and, where the layer labels by itself, all that are seen.
void addLayer(Candidates& candidates, const Map& map, std::size_t number, const MapView& view, LabelTexts& texts) {
  const Layer& layer = map.layers[number];
  const auto set = projectedObjects(layer.table, map.coordinateSystem);
  const auto middle = [&](std::uint32_t index) { return view.toPixels(set->objects()[index]->bounds).center(); };
  for (const EditedLabel& label : layer.label.edited) {
    if (!label.visible || label.row < 1 || label.row > layer.table->rowCount()) continue;
    const std::uint32_t index = set->indexOf(label.row);
    if (index == ObjectSet::kNone) continue;
    const std::string text = label.text ? *label.text : texts.of(layer, label.row);
    QPointF at = middle(index);
    if (label.anchor) {
      at = view.toPixel(Transformation(layer.table->coordinateSystem(), map.coordinateSystem)(*label.anchor));
    }
    candidates[QString::fromStdString(text).simplified()].push_back(
        {{number, label.row}, at, label.font.value_or(layer.label.font)});
  }
  if (!layer.label.automatic) return;
  for (const std::uint32_t index : set->objectsIn(view.toMap(view.rect()))) {
    const RowId row = set->rowsOf(index).front();
    candidates[QString::fromStdString(texts.of(layer, row)).simplified()].push_back(
        {{number, row}, middle(index), layer.label.font});
  }
}

}  // namespace

PlacedLabels::PlacedLabels(const Map& map, QSizeF size, const std::vector<PaintedText>& texts, LabelTexts& labelTexts) {
  const MapView view(map, size);
  Candidates candidates;
  for (std::size_t i = 0; i < map.layers.size(); ++i) {
    if (map.layers[i].table && isLabelledAt(map.layers[i], map.zoomMetres))
      addLayer(candidates, map, i, view, labelTexts);
  }
  for (const PaintedText& text : texts) {
    const auto found = candidates.constFind(text.lines.join(' ').simplified());
    if (found == candidates.constEnd()) continue;
    const auto distance = [&](const Candidate& c) { return (c.at - text.box.center()).manhattanLength(); };
    const Candidate& nearest =
        *std::min_element(found->begin(), found->end(),
                          [&](const Candidate& a, const Candidate& b) { return distance(a) < distance(b); });
    const Layer& layer = map.layers[nearest.object.layer];
    labels_.push_back({nearest.object, layer.table->object(nearest.object.row), text.lines, text.box, nearest.font});
  }
}

const PlacedLabel* PlacedLabels::at(QPointF pixel) const {
  const auto found = std::find_if(labels_.rbegin(), labels_.rend(),
                                  [&](const PlacedLabel& label) { return label.box.contains(pixel); });
  return found == labels_.rend() ? nullptr : &*found;
}

const PlacedLabel* PlacedLabels::of(const Map& map, const Hit& object) const {
  const ObjectPtr& shape = map.layers[object.layer].table->object(object.row);
  const auto found = std::find_if(labels_.begin(), labels_.end(), [&](const PlacedLabel& label) {
    return label.object.layer == object.layer && label.shape == shape;
  });
  return found == labels_.end() ? nullptr : &*found;
}

}  // namespace motor
