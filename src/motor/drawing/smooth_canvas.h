#pragma once

#include <QPainter>
#include <QPolygonF>
#include <QRect>
#include <QRgb>
#include <QTransform>
#include <cstddef>
#include <optional>
#include <vector>

#include "motor/drawing/line_cover.h"
#include "motor/drawing/polygon_cover.h"

namespace motor {

// Fills and borders polygons in plain colours, with smooth edges, on a picture in memory: what the toolkit's painter
// does with pens and brushes of any kind, but several times as fast, which is what a map of many regions needs. All of
// the processor's cores take part, each in bands of the picture of its own.
class SmoothCanvas {
 public:
  // What a polygon is painted with, from the bottom up.
  struct Style {
    std::optional<QRgb> fill = {};
    std::optional<QRgb> border = {};
    double borderWidth = 1;  // logical pixels, a device pixel at least
  };

  // The canvas of a painter's picture, good as long as the painter's transformation and clipping stay as they are. None
  // where only the painter can paint: on paper, in a file of vectors, on a picture of other than 32 bits without alpha,
  // turned, clipped or translucent, or without smooth edges.
  [[nodiscard]] static std::optional<SmoothCanvas> of(QPainter& painter);

  // Adds rings, inside by the even-odd rule, in the painter's logical pixels; one that ends elsewhere than it begins is
  // closed. Where very much waits already, that is painted now.
  void add(const std::vector<QPolygonF>& rings, const Style& style);
  // Paints what was added, the first at the bottom. To be called before the painter itself paints on.
  void paint();

 private:
  struct Shape {
    std::size_t ringsEnd = 0;  // behind its last ring in ringEnds_
    QRect pixels;              // that it may touch, the border included
    Style style;
  };
  // What one core paints with.
  struct Tools {
    PolygonCover polygon;
    LineCover line;
  };
  SmoothCanvas(QImage& picture, const QTransform& toPixels);

  void paintBand(const QRect& band, Tools& tools) const;
  void paintShape(std::size_t shape, const QRect& area, Tools& tools) const;
  // Calls `visit` with the pixels that a shape's edges go from and to.
  template <typename Visit>
  void forEdges(std::size_t shape, const Visit& visit) const;
  [[nodiscard]] QRgb* rowAt(int row) const { return reinterpret_cast<QRgb*>(pixels_ + row * bytesPerRow_); }

  uchar* pixels_;
  qsizetype bytesPerRow_;
  QRect picture_;
  QTransform toPixels_;  // enlarges alike in both directions and moves, no more
  // What waits to be painted.
  std::vector<QPointF> points_;
  std::vector<std::size_t> ringEnds_;
  std::vector<Shape> shapes_;
};

}  // namespace motor
