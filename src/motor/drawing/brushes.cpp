#include "motor/drawing/brushes.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "motor/drawing/brush_patterns.h"
#include "motor/drawing/colours.h"

namespace motor {

namespace {

constexpr int kTile = 8;  // logical pixels

// Upright lines stand on whole device pixels, so that they stay sharp.
void paintUprightLines(QPainter& painter, const BrushPattern& pattern, int side, double scale, const QColor& colour) {
  const int width = std::max(1, static_cast<int>(std::lround(pattern.width * scale)));
  for (int at = 0; at < kTile; at += pattern.spacing) {
    const int from = static_cast<int>(std::lround(at * scale));
    if (pattern.directions & kAcross) painter.fillRect(0, from, side, width, colour);
    if (pattern.directions & kUpright) painter.fillRect(from, 0, width, side, colour);
  }
}

// Slanting lines are bands cut off level with the tile's sides, so that neighbouring tiles join.
void paintSlantingLines(QPainter& painter, const BrushPattern& pattern, int side, double scale, const QColor& colour) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  const QPointF half(pattern.width * scale / std::numbers::sqrt2, 0);
  const auto paintBand = [&](QPointF from, QPointF to) {
    painter.drawPolygon(QPolygonF{from - half, from + half, to + half, to - half});
  };
  for (int at = -kTile; at <= kTile; at += pattern.spacing) {
    const double shift = at * scale;
    if (pattern.directions & kFalling) paintBand({shift, 0}, {shift + side, static_cast<double>(side)});
    if (pattern.directions & kRising) paintBand({shift, static_cast<double>(side)}, {shift + side, 0});
  }
}

void paintBitmap(QImage& tile, const BrushPattern& pattern, int side, const QColor& colour) {
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const std::uint8_t row = pattern.bitmap[static_cast<std::size_t>(y * kTile / side)];
      if (row >> (kTile - 1 - x * kTile / side) & 1) tile.setPixelColor(x, y, colour);
    }
  }
}

QImage paintTile(const BrushPattern& pattern, const Brush& brush, int side) {
  QImage tile(side, side, QImage::Format_ARGB32_Premultiplied);
  tile.fill(brush.back == kTransparent ? QColor(Qt::transparent) : toQColor(brush.back));
  const QColor colour = toQColor(brush.fore);
  if (pattern.directions == 0) {
    paintBitmap(tile, pattern, side, colour);
    return tile;
  }
  const double scale = static_cast<double>(side) / kTile;
  QPainter painter(&tile);
  paintUprightLines(painter, pattern, side, scale, colour);
  paintSlantingLines(painter, pattern, side, scale, colour);
  return tile;
}

}  // namespace

bool isVisible(const Brush& brush) { return brush.pattern != 1; }

QBrush toQBrush(const Brush& brush, double devicePixelRatio) {
  if (!isVisible(brush)) return Qt::NoBrush;
  const BrushPattern* pattern = brushPattern(brush.pattern);
  if (pattern == nullptr) return toQColor(brush.fore);
  const int side = std::max(kTile, static_cast<int>(std::lround(kTile * devicePixelRatio)));
  QBrush result(paintTile(*pattern, brush, side));
  // The painter enlarges by the ratio; the tile has the device's pixels already.
  const double shrink = 1 / devicePixelRatio;
  result.setTransform(QTransform::fromScale(shrink, shrink));
  return result;
}

}  // namespace motor
