#include "motor/drawing/sign_stamps.h"

#include <QPaintEngine>
#include <cmath>

#include "motor/drawing/pens.h"
#include "motor/drawing/symbols.h"

namespace motor {

namespace {

constexpr std::size_t kMostImages = 400;
constexpr double kLargest = 96;  // pixels; larger signs are few
constexpr double kRoom = 2;      // pixels around a sign for its edge

QImage stamp(const Symbol& symbol, double pixels, double devicePixelRatio) {
  // An even number of device pixels: the sign's centre is a corner of pixels.
  const int side = 2 * static_cast<int>(std::ceil((pixels / 2 + kRoom) * devicePixelRatio));
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double centre = side / devicePixelRatio / 2;
  paintSign(painter, symbol, pixels / kPixelsPerPoint, {centre, centre});
  return image;
}

}  // namespace

void SignStamps::paint(QPainter& painter, const Symbol& symbol, double points, QPointF at, double devicePixelRatio) {
  const int halfPixels = static_cast<int>(std::lround(points * kPixelsPerPoint * 2));
  const bool isShape = symbol.font.empty() && symbol.file.empty();
  const bool isRaster = painter.paintEngine()->type() == QPaintEngine::Raster;
  if (!isShape || !isRaster || halfPixels > 2 * kLargest) return paintSign(painter, symbol, points, at);
  if (images_.size() >= kMostImages) images_.clear();
  QImage& image = images_[{symbol.shape, symbol.colour, halfPixels, symbol.angle, devicePixelRatio}];
  if (image.isNull()) image = stamp(symbol, halfPixels / 2.0, devicePixelRatio);
  const auto onPixel = [&](double centre) { return std::round(centre * devicePixelRatio) / devicePixelRatio; };
  const double half = image.width() / devicePixelRatio / 2;
  painter.drawImage(QPointF(onPixel(at.x()) - half, onPixel(at.y()) - half), image);
}

}  // namespace motor
