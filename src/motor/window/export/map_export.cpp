#include "motor/window/export/map_export.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "motor/drawing/map_painter.h"
#include "motor/drawing/scale_bar.h"

namespace motor {

namespace {

constexpr double kFineness = 2;       // picture pixels in a logical one
constexpr double kShapeFineness = 4;  // of shapes that keep their form when they are enlarged
constexpr int kDotsPerInch = 96;      // of logical pixels
constexpr double kPointsPerPixel = 0.75;
constexpr double kMetresPerInch = 0.0254;
constexpr double kScaleBarPixels = 110;
constexpr double kScaleBarInset = 8;

void paintSheet(QPainter& painter, const Map& map, QSize size, double fineness) {
  const QRectF sheet(QPointF(0, 0), QSizeF(size));
  painter.fillRect(sheet, Qt::white);
  const ScaleBar bar = scaleBarFor(map.zoomMetres / size.width(), kScaleBarPixels);
  const QPointF corner(kScaleBarInset, size.height() - kScaleBarInset);
  MapPainter mapPainter;
  mapPainter.keepLabelsOff({scaleBarPlate(bar, corner)});
  mapPainter.paint(painter, map, size, fineness, Quality::best);
  paintScaleBar(painter, bar, corner);
}

// On what keeps shapes, those that reach beyond the sheet are to end there.
void paintClipped(QPainter& painter, const Map& map, QSize size) {
  painter.setClipRect(QRect(QPoint(0, 0), size));
  paintSheet(painter, map, size, kShapeFineness);
}

}  // namespace

QImage mapAsImage(const Map& map, QSize size) {
  QImage image((QSizeF(size) * kFineness).toSize(), QImage::Format_RGB32);
  const int dotsPerMetre = qRound(kDotsPerInch * kFineness / kMetresPerInch);
  image.setDotsPerMeterX(dotsPerMetre);
  image.setDotsPerMeterY(dotsPerMetre);
  QPainter painter(&image);
  painter.scale(kFineness, kFineness);
  paintSheet(painter, map, size, kFineness);
  return image;
}

QByteArray mapAsPng(const Map& map, QSize size) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  mapAsImage(map, size).save(&file, "PNG");
  return file.data();
}

QByteArray mapAsSvg(const Map& map, QSize size) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&file);
  generator.setTitle(QStringLiteral("Mapa"));
  generator.setSize(size);
  generator.setViewBox(QRect(QPoint(0, 0), size));
  generator.setResolution(kDotsPerInch);
  QPainter painter(&generator);
  paintClipped(painter, map, size);
  painter.end();
  return file.data();
}

QByteArray mapAsPdf(const Map& map, QSize size) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QPdfWriter writer(&file);
  writer.setTitle(QStringLiteral("Mapa"));
  writer.setResolution(qRound(kDotsPerInch * kShapeFineness));
  writer.setPageSize(
      QPageSize(QSizeF(size) * kPointsPerPixel, QPageSize::Point, QStringLiteral("Mapa"), QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF(0, 0, 0, 0));
  QPainter painter(&writer);
  painter.scale(kShapeFineness, kShapeFineness);
  paintClipped(painter, map, size);
  painter.end();
  return file.data();
}

}  // namespace motor
