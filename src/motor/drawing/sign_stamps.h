#pragma once

#include <QImage>
#include <QPainter>
#include <QPointF>
#include <map>
#include <tuple>

#include "motor/language/styles.h"

namespace motor {

// Paints theme signs on pictures of pixels from kept small images: thousands of signs of few sizes. Such a sign stands
// on whole pixels and its size is rounded to half a pixel; on anything else signs are drawn exactly.
class SignStamps {
 public:
  // As paintSign.
  void paint(QPainter& painter, const Symbol& symbol, double points, QPointF at, double devicePixelRatio);

 private:
  using Key = std::tuple<int, Colour, int, double, double>;  // shape, colour, half pixels, angle, pixel ratio
  std::map<Key, QImage> images_;
};

}  // namespace motor
