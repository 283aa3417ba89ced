#include <gtest/gtest.h>

#include <QImage>
#include <cmath>

#include "motor/drawing/map_painter.h"
#include "motor/drawing/small_maps.h"

// Regions that share a long, ragged border, at many zooms.
namespace motor {
namespace {

constexpr double kZooms[] = {1.3, 4, 17, 60, 100, 130.7, 400, 1'700, 9'000};  // metres across the picture
constexpr double kRatios[] = {1, 1.5, 2};

// Three and a half thousand points from bottom to top, whose wiggles are seen at one zoom or another.
Ring border() {
  Ring points;
  for (int i = 0; i <= 3500; ++i) {
    const double y = -2000 + 4000.0 * i / 3500;
    points.push_back({50 + 300 * std::sin(y / 700) + 6 * std::sin(y / 9) + 0.6 * std::sin(i * 1.7), y});
  }
  return points;
}

ObjectPtr besideBorder(double x, const Brush& brush) {
  Ring ring = border();
  ring.push_back({x, 2000});
  ring.push_back({x, -2000});
  ring.push_back(ring.front());
  return small::region({ring}, brush);
}

QImage painted(const std::vector<ObjectPtr>& regions, double zoom, double devicePixelRatio, Quality quality) {
  Map map = small::map({small::layer(regions)});
  map.zoomMetres = zoom;
  const QSize size(100, 100);
  QImage image((QSizeF(size) * devicePixelRatio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::white);
  QPainter painter(&image);
  MapPainter().paint(painter, map, size, devicePixelRatio, quality);
  return image;
}

// Calls `visit` with each pixel that is inside both regions together, and with the same of another picture.
template <typename Visit>
void forPixels(const QImage& image, const QImage& other, double zoom, Visit visit) {
  constexpr double kHalf = 1900;  // metres
  const double half = std::min(image.width() / 2.0, kHalf * image.width() / zoom - 2);
  const int from = static_cast<int>(std::ceil(image.width() / 2.0 - half));
  const int to = static_cast<int>(std::floor(image.width() / 2.0 + half));
  for (int y = from; y < to; ++y) {
    for (int x = from; x < to; ++x) visit(image.pixel(x, y), other.pixel(x, y));
  }
}

TEST(Neighbours, ShowNoGroundBetweenThem) {
  const ObjectPtr west = besideBorder(-2000, {2, small::kRed, kTransparent});
  const ObjectPtr east = besideBorder(2000, {2, small::kBlue, kTransparent});
  for (const double ratio : kRatios) {
    for (const double zoom : kZooms) {
      const QImage image = painted({west, east}, zoom, ratio, Quality::best);
      int ground = 0;
      forPixels(image, image, zoom, [&](QRgb pixel, QRgb) { ground = std::max(ground, qGreen(pixel)); });
      EXPECT_LE(ground, 2) << "of 255, at zoom " << zoom << " and ratio " << ratio;
    }
  }
}

TEST(Neighbours, AreEachOfOneColourWhenPaintedFast) {
  const ObjectPtr west = besideBorder(-2000, {2, small::kRed, kTransparent});
  const ObjectPtr east = besideBorder(2000, {2, small::kBlue, kTransparent});
  for (const double zoom : kZooms) {
    const QImage image = painted({west, east}, zoom, 1, Quality::fast);
    forPixels(image, image, zoom, [&](QRgb pixel, QRgb) {
      ASSERT_TRUE(pixel == 0xFFFF0000 || pixel == 0xFF0000FF) << std::hex << pixel << " at zoom " << zoom;
    });
  }
}

// Of one fill, two neighbours look like one region: solid, hatched and in figures.
TEST(Neighbours, ShowNoSeamWithinOneFill) {
  for (const int pattern : {2, 8, 34, 56}) {
    const Brush brush{pattern, 0x204080, 0xE0C060};
    const ObjectPtr west = besideBorder(-2000, brush);
    const ObjectPtr east = besideBorder(2000, brush);
    const ObjectPtr whole = small::region({small::square(-2000, -2000, 2000, 2000)}, brush);
    for (const double ratio : kRatios) {
      for (const double zoom : kZooms) {
        const QImage image = painted({west, east}, zoom, ratio, Quality::best);
        const QImage one = painted({whole}, zoom, ratio, Quality::best);
        int most = 0;
        forPixels(image, one, zoom, [&](QRgb a, QRgb b) {
          most = std::max({most, std::abs(qRed(a) - qRed(b)), std::abs(qBlue(a) - qBlue(b))});
        });
        EXPECT_LE(most, 2) << "of 255, pattern " << pattern << ", zoom " << zoom << ", ratio " << ratio;
      }
    }
  }
}

}  // namespace
}  // namespace motor
