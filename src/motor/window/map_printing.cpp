#include "motor/window/map_printing.h"

#include <QPainter>

#include "motor/drawing/map_painter.h"
#include "motor/drawing/scale_bar.h"

namespace motor {

namespace {

constexpr double kLogicalDpi = 96;
constexpr double kScaleBarPixels = 150;
constexpr double kInset = 16;

}  // namespace

void printMap(QPrinter& printer, const Map& map) {
  const bool isWide = map.pixelWidth > map.pixelHeight;
  printer.setPageOrientation(isWide ? QPageLayout::Landscape : QPageLayout::Portrait);
  const double scale = printer.resolution() / kLogicalDpi;
  const QSizeF page = QSizeF(printer.pageRect(QPrinter::DevicePixel).size()) / scale;
  // The part of the world that the window shows, as large as the page allows.
  const QSizeF size = QSizeF(map.pixelWidth, map.pixelHeight).scaled(page, Qt::KeepAspectRatio);
  QPainter painter(&printer);
  painter.scale(scale, scale);
  painter.setClipRect(QRectF(QPointF(0, 0), size));
  MapPainter().paint(painter, map, size, scale, Quality::best);
  const ScaleBar bar = scaleBarFor(map.zoomMetres / size.width(), kScaleBarPixels);
  paintScaleBar(painter, bar, {kInset, size.height() - kInset});
}

}  // namespace motor
