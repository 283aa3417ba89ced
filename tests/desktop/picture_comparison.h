#pragma once

#include <QImage>

namespace pictures {

// How far two pictures may lie apart and still count as alike. The shades along an edge differ a little between
// machines: a pixel is another one when its colour lies outside those of the other picture around its place. So a word
// that is missing, another colour or a line two pixels away are seen, however small they are.
struct Tolerance {
  int shade = 12;          // of 255, by which a colour may lie outside those around its place
  double share = 0.00001;  // of all pixels that may be others
};

struct Difference {
  double share = 0;  // of all pixels that are others; 1 where the sizes differ
  QImage map;        // the expected picture, pale, with the other pixels in red; null where the sizes differ
};

// How `actual` differs from `expected`.
[[nodiscard]] Difference compare(const QImage& expected, const QImage& actual, const Tolerance& tolerance = {});

}  // namespace pictures
