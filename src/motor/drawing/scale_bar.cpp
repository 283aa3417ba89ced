#include "motor/drawing/scale_bar.h"

#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "motor/drawing/halo_text.h"

namespace motor {

namespace {

// Pixels.
constexpr double kTick = 4;
constexpr double kPadding = 8;  // of the plate, left and right of what lies on it
constexpr double kAboveText = 3;
constexpr double kBelowBar = 6;
constexpr double kTextGap = 1;  // between the text and the bar
constexpr double kCorner = 4;

constexpr double kMetresInKilometre = 1000;
constexpr int kInk = 0x464C54;
const QColor kPlate(255, 255, 255, 216);
const QColor kPlateEdge(70, 76, 84, 70);

HaloText textOf(const ScaleBar& bar) {
  Font font;
  font.name = "Tahoma";
  font.size = 7.5;
  font.fore = kInk;
  return HaloText({bar.text}, font);
}

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

QRectF scaleBarPlate(const ScaleBar& bar, QPointF corner) {
  if (bar.pixels <= 0) return {};
  const QSizeF text = textOf(bar).size();
  const double width = std::ceil(std::max(bar.pixels, text.width())) + 2 * kPadding;
  const double height = std::ceil(kAboveText + text.height() + kTextGap + kBelowBar);
  const QPointF end(std::floor(corner.x()), std::floor(corner.y()));
  return {end.x(), end.y() - height, width, height};
}

void paintScaleBar(QPainter& painter, const ScaleBar& bar, QPointF corner) {
  if (bar.pixels <= 0) return;
  const QRectF plate = scaleBarPlate(bar, corner);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kPlateEdge, 1));
  painter.setBrush(kPlate);
  painter.drawRoundedRect(plate.adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);

  const double left = std::floor(plate.center().x() - bar.pixels / 2) + 0.5;
  const double right = left + std::round(bar.pixels);
  const double bottom = plate.bottom() - kBelowBar + 0.5;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor::fromRgb(QRgb(kInk)), 1));
  painter.drawPolyline(QPolygonF{QPointF(left, bottom - kTick), QPointF(left, bottom), QPointF(right, bottom),
                                 QPointF(right, bottom - kTick)});
  const HaloText text = textOf(bar);
  text.paint(painter, {plate.center().x() - text.size().width() / 2, plate.top() + kAboveText}, Qt::AlignLeft);
  painter.restore();
}

}  // namespace motor
