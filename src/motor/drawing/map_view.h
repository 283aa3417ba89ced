#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <algorithm>
#include <cmath>

#include "motor/map/map.h"

namespace motor {

// What part of the world a picture shows: the map's centre and zoom on a picture of any size in logical pixels. The
// zoom is the picture's width; a zoom beyond what the coordinates of the centre can tell apart, or beyond all
// coordinates, counts as the last one that is not.
class MapView {
 public:
  MapView(const Map& map, QSizeF size)
      : centre_(map.centre),
        unitsPerPixel_(
            std::clamp(map.unitsPerPixel() * map.pixelWidth / size.width(), leastUnits(map.centre), kMostUnits)),
        size_(size) {}

  [[nodiscard]] double unitsPerPixel() const { return unitsPerPixel_; }
  [[nodiscard]] QRectF rect() const { return {QPointF(0, 0), size_}; }
  [[nodiscard]] QPointF toPixel(Point p) const {
    return {size_.width() / 2 + (p.x - centre_.x) / unitsPerPixel_,
            size_.height() / 2 - (p.y - centre_.y) / unitsPerPixel_};
  }
  [[nodiscard]] QRectF toPixels(const Box& box) const {
    return {toPixel({box.minX, box.maxY}), toPixel({box.maxX, box.minY})};
  }
  // The map's coordinates of a rectangle of pixels.
  [[nodiscard]] Box toMap(const QRectF& pixels) const {
    return {centre_.x + (pixels.left() - size_.width() / 2) * unitsPerPixel_,
            centre_.y - (pixels.bottom() - size_.height() / 2) * unitsPerPixel_,
            centre_.x + (pixels.right() - size_.width() / 2) * unitsPerPixel_,
            centre_.y - (pixels.top() - size_.height() / 2) * unitsPerPixel_};
  }

 private:
  static constexpr double kMostUnits = 1e30;
  // What can be told apart around a point, with some digits to spare for the picture.
  [[nodiscard]] static double leastUnits(Point centre) {
    constexpr double kPrecision = 1e-14;
    return std::min(std::max({1.0, std::fabs(centre.x), std::fabs(centre.y)}) * kPrecision, kMostUnits);
  }

  Point centre_;
  double unitsPerPixel_;
  QSizeF size_;
};

// What a picture shows with a margin within which symbols and thick lines of objects outside it may still show, in the
// map's coordinates.
[[nodiscard]] inline Box reachOf(const MapView& view) {
  constexpr double kReach = 64;  // pixels
  return view.toMap(view.rect().adjusted(-kReach, -kReach, kReach, kReach));
}

}  // namespace motor
