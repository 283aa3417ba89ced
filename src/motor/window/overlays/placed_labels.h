#pragma once

#include <QRectF>
#include <QStringList>
#include <vector>

#include "motor/drawing/label_texts.h"
#include "motor/map/map.h"
#include "motor/window/overlays/text_recorder.h"

namespace motor {

// A label as it stands on the map.
struct PlacedLabel {
  Hit object;
  ObjectPtr shape;  // the object that it belongs to, of the layer's table
  QStringList lines;
  QRectF box;  // logical pixels
  Font font;
};

// The labels that stand on a map, which of its painted texts belong to which objects.
class PlacedLabels {
 public:
  PlacedLabels() = default;
  // `texts` were painted of the map in a picture of `size` logical pixels.
  PlacedLabels(const Map& map, QSizeF size, const std::vector<PaintedText>& texts, LabelTexts& labelTexts);

  [[nodiscard]] const std::vector<PlacedLabel>& all() const { return labels_; }
  // The label under a pixel, the one on top; null without one.
  [[nodiscard]] const PlacedLabel* at(QPointF pixel) const;
  // The label of an object; null without one.
  [[nodiscard]] const PlacedLabel* of(const Map& map, const Hit& object) const;

 private:
  std::vector<PlacedLabel> labels_;
};

}  // namespace motor
