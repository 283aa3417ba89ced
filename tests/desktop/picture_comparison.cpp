#include "picture_comparison.h"

#include <algorithm>
#include <array>

namespace pictures {

namespace {

constexpr int kChannels = 3;
using Colour = std::array<int, kChannels>;

Colour colourOf(QRgb pixel) { return {qRed(pixel), qGreen(pixel), qBlue(pixel)}; }

const QRgb* line(const QImage& image, int y) { return reinterpret_cast<const QRgb*>(image.constScanLine(y)); }

// Whether the colour lies outside all that the picture has at that place and right around it.
bool isOutside(const Colour& colour, const QImage& picture, int x, int y, int shade) {
  Colour least{255, 255, 255};
  Colour most{0, 0, 0};
  for (int row = std::max(0, y - 1); row <= std::min(picture.height() - 1, y + 1); ++row) {
    for (int column = std::max(0, x - 1); column <= std::min(picture.width() - 1, x + 1); ++column) {
      const Colour near = colourOf(line(picture, row)[column]);
      for (std::size_t i = 0; i < kChannels; ++i) {
        least[i] = std::min(least[i], near[i]);
        most[i] = std::max(most[i], near[i]);
      }
    }
  }
  for (std::size_t i = 0; i < kChannels; ++i) {
    if (colour[i] < least[i] - shade || colour[i] > most[i] + shade) return true;
  }
  return false;
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
      const QRgb want = line(wanted, y)[x];
      const QRgb give = line(given, y)[x];
      const bool other = want != give && (isOutside(colourOf(give), wanted, x, y, tolerance.shade) ||
                                          isOutside(colourOf(want), given, x, y, tolerance.shade));
      if (other) ++others;
      result.map.setPixel(x, y,
                          other ? qRgb(220, 0, 0) : qRgb(pale(qRed(want)), pale(qGreen(want)), pale(qBlue(want))));
    }
  }
  result.share = static_cast<double>(others) / (static_cast<double>(wanted.width()) * wanted.height());
  return result;
}

}  // namespace pictures
