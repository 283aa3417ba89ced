#include "picture_comparison.h"

#include <algorithm>
#include <cstdlib>

namespace pictures {

namespace {

bool differs(QRgb a, QRgb b, int shade) {
  return std::abs(qRed(a) - qRed(b)) > shade || std::abs(qGreen(a) - qGreen(b)) > shade ||
         std::abs(qBlue(a) - qBlue(b)) > shade;
}

int pale(int channel) { return 255 - (255 - channel) / 3; }

}  // namespace

Difference compare(const QImage& expected, const QImage& actual, const Tolerance& tolerance) {
  if (expected.size() != actual.size() || expected.isNull()) return {1, {}};
  const QImage wanted = expected.convertToFormat(QImage::Format_RGB32);
  const QImage given = actual.convertToFormat(QImage::Format_RGB32);
  Difference result{0, wanted};
  long others = 0;
  for (int y = 0; y < wanted.height(); ++y) {
    for (int x = 0; x < wanted.width(); ++x) {
      const QRgb colour = wanted.pixel(x, y);
      const bool other = differs(colour, given.pixel(x, y), tolerance.shade);
      if (other) ++others;
      result.map.setPixel(
          x, y, other ? qRgb(220, 0, 0) : qRgb(pale(qRed(colour)), pale(qGreen(colour)), pale(qBlue(colour))));
    }
  }
  result.share = static_cast<double>(others) / (static_cast<double>(wanted.width()) * wanted.height());
  return result;
}

}  // namespace pictures
