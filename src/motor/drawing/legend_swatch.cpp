#include "motor/drawing/legend_swatch.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/brushes.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/symbols.h"

namespace motor {

namespace {

constexpr QSizeF kSize(26, 14);
constexpr QColor kInk(40, 44, 52);
constexpr QColor kHairline(31, 42, 60, 90);  // around a fill whose border would be lost on the legend's white

bool isLight(const Pen& pen) { return (pen.colour & 0xFF) > 0xD0 && (pen.colour >> 16 & 0xFF) > 0xD0; }

void paintRegion(QPainter& painter, const DrawnStyle& style, const QRectF& box, double devicePixelRatio) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(toQBrush(style.brush, devicePixelRatio));
  painter.drawRect(box);
  painter.setBrush(Qt::NoBrush);
  if (!isVisible(style.pen) || isLight(style.pen)) {
    painter.setPen(QPen(kHairline, 1));
    painter.drawRect(box);
    return;
  }
  for (const QPen& stroke : penStrokes(style.pen)) {
    painter.setPen(stroke);
    painter.drawRect(box);
  }
}

void paintSampleLine(QPainter& painter, const Pen& pen, const QRectF& box) {
  const QPolygonF line{QPointF(box.left(), box.bottom() - 2), QPointF(box.left() + 9, box.top() + 3),
                       QPointF(box.right() - 9, box.bottom() - 3), QPointF(box.right(), box.top() + 2)};
  painter.setBrush(Qt::NoBrush);
  paintLine(painter, pen, line);
}

}  // namespace

LegendSwatch::Kind swatchOf(MapObject::Kind kind) {
  switch (kind) {
    case MapObject::Kind::region:
      return LegendSwatch::Kind::region;
    case MapObject::Kind::polyline:
      return LegendSwatch::Kind::line;
    case MapObject::Kind::point:
      return LegendSwatch::Kind::symbol;
    case MapObject::Kind::text:
      return LegendSwatch::Kind::text;
  }
  return LegendSwatch::Kind::none;
}

QSizeF swatchSize(const LegendSwatch& swatch) {
  if (swatch.kind == LegendSwatch::Kind::none) return {0, 0};
  const double sign = swatch.kind == LegendSwatch::Kind::sign ? std::ceil(swatch.points * kPixelsPerPoint) + 1 : 0;
  return {std::max(kSize.width(), sign), std::max(kSize.height(), sign)};
}

void paintSwatch(QPainter& painter, const LegendSwatch& swatch, const QRectF& box, double devicePixelRatio) {
  // On the middles of pixels, so that one pixel's lines are sharp.
  const QPointF corner = box.center() - QPointF(kSize.width() / 2, kSize.height() / 2);
  const QRectF inner(std::floor(corner.x()) + 0.5, std::floor(corner.y()) + 0.5, kSize.width() - 1, kSize.height() - 1);
  switch (swatch.kind) {
    case LegendSwatch::Kind::none:
      break;
    case LegendSwatch::Kind::region:
      paintRegion(painter, swatch.style, inner, devicePixelRatio);
      break;
    case LegendSwatch::Kind::line:
      paintSampleLine(painter, swatch.style.pen, inner);
      break;
    case LegendSwatch::Kind::symbol: {
      Symbol symbol = swatch.style.symbol;
      symbol.size = std::min(symbol.size, static_cast<int>(kSize.height() / kPixelsPerPoint));
      paintSymbol(painter, symbol, box.center());
      break;
    }
    case LegendSwatch::Kind::sign:
      paintSign(painter, swatch.style.symbol, swatch.points, box.center());
      break;
    case LegendSwatch::Kind::text:
      painter.setPen(kInk);
      painter.drawText(inner, Qt::AlignCenter, QStringLiteral("Aa"));
      break;
  }
}

}  // namespace motor
