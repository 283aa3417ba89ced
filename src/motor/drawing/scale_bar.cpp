#include "motor/drawing/scale_bar.h"

#include <QPen>
#include <QPolygonF>
#include <cmath>

#include "motor/drawing/halo_text.h"

namespace motor {

namespace {

constexpr double kTick = 4;  // pixels
constexpr double kMetresInKilometre = 1000;

}  // namespace

ScaleBar scaleBarFor(double metresPerPixel, double mostPixels) {
  const double most = metresPerPixel * mostPixels;
  if (!std::isfinite(most) || most <= 0) return {};
  const double power = std::pow(10, std::floor(std::log10(most)));
  double metres = power;
  for (const double step : {2.0, 5.0}) {
    if (step * power <= most) metres = step * power;
  }
  const bool inKilometres = metres >= kMetresInKilometre;
  const double shown = inKilometres ? metres / kMetresInKilometre : metres;
  return {metres, metres / metresPerPixel,
          QString::number(shown, 'g', 10).replace('.', ',') + (inKilometres ? " km" : " m")};
}

void paintScaleBar(QPainter& painter, const ScaleBar& bar, QPointF corner) {
  if (bar.pixels <= 0) return;
  const double left = std::floor(corner.x()) + 0.5;
  const double right = left + std::round(bar.pixels);
  const double bottom = std::floor(corner.y()) + 0.5;
  const QPolygonF line{QPointF(left, bottom - kTick), QPointF(left, bottom), QPointF(right, bottom),
                       QPointF(right, bottom - kTick)};
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(255, 255, 255, 190), 3.5));
  painter.drawPolyline(line);
  painter.setPen(QPen(QColor(70, 76, 84), 1));
  painter.drawPolyline(line);
  Font font;
  font.name = "Tahoma";
  font.size = 7.5;
  font.fore = 0x464C54;
  const HaloText text({bar.text}, font);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  text.paint(painter, {(left + right - text.size().width()) / 2, bottom - 2 - text.size().height()}, Qt::AlignLeft);
  painter.restore();
}

}  // namespace motor
