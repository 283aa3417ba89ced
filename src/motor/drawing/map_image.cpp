#include "motor/drawing/map_image.h"

#include "motor/drawing/map_painter.h"

namespace motor {

QImage renderMap(const Map& map, QSize size, double devicePixelRatio) {
  QImage image((QSizeF(size) * devicePixelRatio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::white);
  QPainter painter(&image);
  MapPainter().paint(painter, map, size, devicePixelRatio, Quality::best);
  return image;
}

}  // namespace motor
