#pragma once

#include <QPainter>
#include <QPainterPath>
#include <optional>
#include <vector>

#include "motor/drawing/map_view.h"
#include "motor/drawing/simplified_paths.h"
#include "motor/drawing/smooth_canvas.h"
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
// is left to it; the painter's transformation and clipping stay as they were at the start. What has no place in the
// picture, such as a point that is not a number, is left out.
class ShapePainter {
 public:
  ShapePainter(QPainter& painter, const MapView& view, SimplifiedPaths& paths, double devicePixelRatio);

  void paint(const ObjectPtr& object, const DrawnStyle& style);
  // Draws what waits for all objects of their layer: the lines and borders of interleaved pens, and what the canvas
  // paints at once. To be called before anybody else paints.
  void finishLayer();
  // The zoom level whose shapes are painted.
  [[nodiscard]] int level() const { return level_; }

 private:
  // Lines whose strokes are drawn when all lines of the layer are known.
  struct WaitingLines {
    Pen pen;
    std::vector<QPolygonF> lines;
    bool closed = false;
  };
  void paintPoints(const MapObject& object, const Symbol& symbol);
  void paintRegion(std::vector<QPolygonF> rings, const DrawnStyle& style);
  void paintFill(const std::vector<QPolygonF>& rings, const QPen& outline);
  void paintLines(std::vector<QPolygonF> lines, const Pen& pen);
  void paintText(const MapObject& object, const Font& font);
  // The pen around a fill that closes the seam to its neighbours.
  [[nodiscard]] QPen seamPen() const;
  [[nodiscard]] static bool isPlain(const QPen& pen);
  // The painter, for what the canvas cannot paint; what the canvas has is painted before.
  [[nodiscard]] QPainter& painter();
  void usePen(const Pen& pen);
  void useBrush(const Brush& brush);

  QPainter& painter_;
  const MapView& view_;
  SimplifiedPaths& paths_;
  double devicePixelRatio_;
  std::optional<SmoothCanvas> canvas_;  // for what it can paint
  int level_;
  // The last pen and brush in the toolkit's terms: most objects of a layer share them.
  Pen pen_;
  std::vector<QPen> strokes_;
  Brush brush_;
  QBrush fill_;
  bool fillIsClosed_ = false;  // without gaps through which the ground is to be seen
  std::vector<WaitingLines> waiting_;
};

}  // namespace motor
