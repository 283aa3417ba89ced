#pragma once

#include <QImage>
#include <QPainter>

#include "motor/language/styles.h"

// Small pictures of styles, for tests.
namespace motor::small {

inline constexpr QRgb kInk = 0xFF102030;
inline constexpr Colour kInkColour = 0x102030;

template <typename Paint>
QImage picture(QSize size, double devicePixelRatio, Paint paint) {
  QImage image(size * devicePixelRatio, QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::white);
  QPainter painter(&image);
  paint(painter);
  painter.end();
  return image;
}

inline QImage blank(QSize size) {
  return picture(size, 1, [](QPainter&) {});
}

inline int countOf(const QImage& image, QRgb colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour;
  }
  return count;
}

}  // namespace motor::small
