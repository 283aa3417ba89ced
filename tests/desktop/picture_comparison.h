#pragma once

#include <QImage>
#include <optional>

namespace pictures {

// How far two pictures may lie apart and still count as alike. Shades of an edge differ a little between machines;
// words, colours and places do not.
struct Tolerance {
  int shade = 40;         // difference of a colour channel, of 255, from which a pixel counts as another
  double share = 0.0015;  // of all pixels that may be others
};

struct Difference {
  double share = 0;  // of all pixels that are others; 1 where the sizes differ
  QImage map;        // the expected picture, pale, with the other pixels in red; null where the sizes differ
};

// How `actual` differs from `expected`.
[[nodiscard]] Difference compare(const QImage& expected, const QImage& actual, const Tolerance& tolerance = {});

}  // namespace pictures
