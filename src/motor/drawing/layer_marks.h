#pragma once

#include <QPainter>

#include "motor/drawing/map_view.h"

namespace motor {

// Marks the directions of a layer's lines, the points that its lines and regions are made of, and the centroids of its
// objects, where the layer wants them marked.
void paintLayerMarks(QPainter& painter, const Map& map, const Layer& layer, const MapView& view);

}  // namespace motor
