#pragma once

#include <QPainter>
#include <QPainterPath>
#include <vector>

#include "motor/drawing/map_view.h"
#include "motor/drawing/simplified_paths.h"
#include "motor/language/style_clause.h"
#include "motor/map/layer.h"

namespace motor {

// The style that an object is drawn with: its own, or what the layer overrides.
struct DrawnStyle {
  Pen pen;
  Brush brush;
  Symbol symbol;
  Font font;
};
[[nodiscard]] DrawnStyle styleIn(const Layer& layer, const MapObject& object);
// An object's own style with what `styles` gives in its place.
[[nodiscard]] DrawnStyle styleWith(const Styles& styles, const MapObject& object);

// An object's rings or lines in pixels, cut off well outside the picture where they reach far beyond it.
[[nodiscard]] std::vector<QPolygonF> pixelParts(const MapObject& object, const SimplifiedShape& shape,
                                                const MapView& view);

// Paints objects of the map's coordinate system one by one. Changing the painter's pens and brushes between two objects
// is left to it.
class ShapePainter {
 public:
  ShapePainter(QPainter& painter, const MapView& view, SimplifiedPaths& paths, double devicePixelRatio);

  void paint(const ObjectPtr& object, const DrawnStyle& style);
  // The zoom level whose shapes are painted.
  [[nodiscard]] int level() const { return level_; }

 private:
  void paintRegion(const std::vector<QPolygonF>& rings, const DrawnStyle& style);
  void paintLines(const std::vector<QPolygonF>& lines, const Pen& pen);
  void paintText(const MapObject& object, const Font& font);
  void usePen(const Pen& pen);
  void useBrush(const Brush& brush);

  QPainter& painter_;
  const MapView& view_;
  SimplifiedPaths& paths_;
  double devicePixelRatio_;
  int level_;
  // The last pen and brush in the toolkit's terms: most objects of a layer share them.
  Pen pen_;
  std::vector<QPen> strokes_;
  Brush brush_;
  QBrush fill_;
};

}  // namespace motor
