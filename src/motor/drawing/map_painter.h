#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <utility>
#include <vector>

#include "motor/drawing/label_painter.h"
#include "motor/drawing/label_texts.h"
#include "motor/drawing/object_memory.h"
#include "motor/drawing/theme_painter.h"
#include "motor/map/map.h"

namespace motor {

// Smooth edges and labels, or what can be painted many times a second while the map moves.
enum class Quality { best, fast };

// Paints maps: the layers that are drawn at the map's zoom from the bottom up, each distinct object once, the cosmetic
// layer on top, then the labels, those of the upper layers first. What it learns about objects is kept for the next
// time.
class MapPainter {
 public:
  // Labels keep off these places of the next pictures, in logical pixels; nothing else does.
  void keepLabelsOff(std::vector<QRectF> places) { withoutLabels_ = std::move(places); }
  // Paints the map on a picture of `size` logical pixels, each of `devicePixelRatio` device pixels; the zoom is the
  // picture's width. The ground is left as it is.
  void paint(QPainter& painter, const Map& map, QSizeF size, double devicePixelRatio, Quality quality);

 private:
  void paintLabels(QPainter& painter, const Map& map, const MapView& view, int level, ThemePainter& themes);

  ObjectMemory& objects_ = ObjectMemory::shared();
  LabelTexts texts_;
  ThemeMemory themes_;
  std::vector<QRectF> withoutLabels_;
};

}  // namespace motor
