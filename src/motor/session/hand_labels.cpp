#include "motor/session/hand_labels.h"

#include <algorithm>

namespace motor {
namespace {

bool isLabelable(const Layer& layer, double zoomMetres) {
  if (!layer.table || layer.theme || !layer.isDrawnAt(zoomMetres)) return false;
  const LabelSettings& label = layer.label;
  switch (label.visibility) {
    case LabelSettings::Visibility::off:
      return false;
    case LabelSettings::Visibility::on:
      return true;
    case LabelSettings::Visibility::zoom:
      return zoomMetres >= label.minZoom && zoomMetres <= label.maxZoom;
  }
  return false;
}

// The label of the object that a row has; rows that share one object share its label.
std::vector<EditedLabel>::const_iterator find(const Layer& layer, RowId row) {
  const std::vector<EditedLabel>& labels = layer.label.edited;
  const ObjectPtr& object = layer.table->object(row);
  return std::find_if(labels.begin(), labels.end(), [&](const EditedLabel& l) {
    return l.row == row || (l.row >= 1 && l.row <= layer.table->rowCount() && layer.table->object(l.row) == object);
  });
}

EditedLabel& handLabelOf(Layer& layer, RowId row) {
  const auto found = find(layer, row);
  std::vector<EditedLabel>& labels = layer.label.edited;
  if (found != labels.end()) return labels[static_cast<std::size_t>(found - labels.begin())];
  labels.emplace_back().row = row;
  return labels.back();
}

}  // namespace

std::optional<Hit> labelableAt(const Map& map, Point p) {
  for (const bool selectable : {true, false}) {
    for (std::size_t i = 0; i < map.layers.size(); ++i) {
      const Layer& layer = map.layers[i];
      if (layer.selectable != selectable || !isLabelable(layer, map.zoomMetres)) continue;
      const std::vector<RowId> rows = rowsAt(map, layer, p);
      if (!rows.empty()) return Hit{i, rows.front()};
    }
  }
  return std::nullopt;
}

bool hasHandLabel(const Map& map, const Hit& object) {
  const Layer& layer = map.layers[object.layer];
  const auto found = find(layer, object.row);
  return found != layer.label.edited.end() && found->visible;
}

void putHandLabel(Map& map, const Hit& object) { handLabelOf(map.layers[object.layer], object.row).visible = true; }

void removeLabel(Map& map, const Hit& object) {
  Layer& layer = map.layers[object.layer];
  if (layer.label.automatic) {
    handLabelOf(layer, object.row).visible = false;
    return;
  }
  const auto found = find(layer, object.row);
  if (found != layer.label.edited.end()) layer.label.edited.erase(found);
}

void moveLabel(Map& map, const Hit& object, Point anchor) {
  constexpr int kCentre = 0;
  Layer& layer = map.layers[object.layer];
  EditedLabel& label = handLabelOf(layer, object.row);
  label.anchor = Transformation(map.coordinateSystem, layer.table->coordinateSystem())(anchor);
  label.visible = true;
  const ObjectPtr& labelled = layer.table->object(object.row);
  if (labelled && labelled->kind != MapObject::Kind::point) label.position = kCentre;
}

}  // namespace motor
