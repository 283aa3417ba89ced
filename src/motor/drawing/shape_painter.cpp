#include "motor/drawing/shape_painter.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/brushes.h"
#include "motor/drawing/clipping.h"
#include "motor/drawing/colours.h"
#include "motor/drawing/halo_text.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/symbols.h"

namespace motor {

namespace {

constexpr double kFarOutside = 2000;  // pixels beyond the picture from which on parts are cut
constexpr double kCutMargin = 100;    // and how far beyond it they are cut
constexpr double kSeam = 0.7;         // pixels that a fill without border grows to meet its neighbour

QRectF grown(const QRectF& rect, double by) { return rect.adjusted(-by, -by, by, by); }

std::vector<QPolygonF> cut(const std::vector<QPolygonF>& parts, const QRectF& area, bool rings) {
  std::vector<QPolygonF> result;
  for (const QPolygonF& part : parts) {
    if (rings) {
      if (QPolygonF ring = clippedRing(part, area); ring.size() > 2) result.push_back(std::move(ring));
    } else {
      for (QPolygonF& piece : clippedLine(part, area)) result.push_back(std::move(piece));
    }
  }
  return result;
}

QPainterPath pathOf(const std::vector<QPolygonF>& rings) {
  QPainterPath path;
  path.setFillRule(Qt::OddEvenFill);
  for (const QPolygonF& ring : rings) path.addPolygon(ring);
  return path;
}

}  // namespace

DrawnStyle styleIn(const Layer& layer, const MapObject& object) {
  if (layer.display != Display::global) return styleWith({}, object);
  return styleWith({layer.pen, layer.line, layer.brush, layer.symbol, layer.font}, object);
}

DrawnStyle styleWith(const Styles& styles, const MapObject& object) {
  const bool isLine = object.kind == MapObject::Kind::polyline;
  const std::optional<Pen>& pen = isLine && styles.line ? styles.line : styles.pen;
  return {pen.value_or(object.pen), styles.brush.value_or(object.brush), styles.symbol.value_or(object.symbol),
          styles.font.value_or(object.font)};
}

std::vector<QPolygonF> pixelParts(const MapObject& object, const SimplifiedShape& shape, const MapView& view) {
  const QPointF corner = view.toPixel(shape.origin);
  const double pixelsPerStep = shape.step / view.unitsPerPixel();
  std::vector<QPolygonF> parts;
  parts.reserve(shape.partEnds.size());
  std::size_t next = 0;
  for (const std::uint32_t end : shape.partEnds) {
    QPolygonF part(static_cast<qsizetype>(end - next));
    for (QPointF& p : part) {
      p = {corner.x() + shape.points[next].x * pixelsPerStep, corner.y() - shape.points[next].y * pixelsPerStep};
      ++next;
    }
    parts.push_back(std::move(part));
  }
  if (grown(view.rect(), kFarOutside).contains(view.toPixels(object.bounds))) return parts;
  return cut(parts, grown(view.rect(), kCutMargin), object.kind == MapObject::Kind::region);
}

ShapePainter::ShapePainter(QPainter& painter, const MapView& view, SimplifiedPaths& paths, double devicePixelRatio)
    : painter_(painter),
      view_(view),
      paths_(paths),
      devicePixelRatio_(devicePixelRatio),
      level_(simplificationLevel(view.unitsPerPixel() / devicePixelRatio)),
      strokes_(penStrokes(pen_)),
      fill_(toQBrush(brush_, devicePixelRatio)) {}

void ShapePainter::usePen(const Pen& pen) {
  if (pen == pen_) return;
  pen_ = pen;
  strokes_ = penStrokes(pen);
}

void ShapePainter::useBrush(const Brush& brush) {
  if (brush == brush_) return;
  brush_ = brush;
  fill_ = toQBrush(brush, devicePixelRatio_);
}

void ShapePainter::paint(const ObjectPtr& object, const DrawnStyle& style) {
  switch (object->kind) {
    case MapObject::Kind::point:
      for (const Point& p : object->points) paintSymbol(painter_, style.symbol, view_.toPixel(p));
      break;
    case MapObject::Kind::text:
      paintText(*object, style.font);
      break;
    case MapObject::Kind::polyline:
      paintLines(pixelParts(*object, paths_.of(object, level_), view_), style.pen);
      break;
    case MapObject::Kind::region:
      paintRegion(pixelParts(*object, paths_.of(object, level_), view_), style);
      break;
  }
}

void ShapePainter::paintRegion(const std::vector<QPolygonF>& rings, const DrawnStyle& style) {
  usePen(style.pen);
  useBrush(style.brush);
  const bool filled = fill_.style() != Qt::NoBrush;
  if (rings.empty() || (!filled && strokes_.empty())) return;
  painter_.setBrush(fill_);
  QPen first = strokes_.empty() ? QPen(Qt::NoPen) : strokes_.front();
  // Two smooth edges side by side let the ground shine through; a fill without a border overlaps its neighbour a
  // little.
  const bool mayGape = painter_.testRenderHint(QPainter::Antialiasing) && fill_.style() == Qt::SolidPattern;
  if (strokes_.empty() && mayGape) first = QPen(fill_.color(), kSeam);
  painter_.setPen(first);
  if (rings.size() == 1) {
    painter_.drawPolygon(rings.front());
  } else {
    painter_.drawPath(pathOf(rings));
  }
  for (std::size_t i = 1; i < strokes_.size(); ++i) {
    painter_.setPen(strokes_[i]);
    for (const QPolygonF& ring : rings) painter_.drawPolyline(ring);
  }
}

void ShapePainter::paintLines(const std::vector<QPolygonF>& lines, const Pen& pen) {
  usePen(pen);
  for (const QPen& stroke : strokes_) {
    painter_.setPen(stroke);
    for (const QPolygonF& line : lines) painter_.drawPolyline(line);
  }
  for (const QPolygonF& line : lines) paintArrowHeads(painter_, pen, line);
}

// A font without a size of its own grows with the map.
void ShapePainter::paintText(const MapObject& object, const Font& font) {
  if (object.points.empty()) return;
  const QStringList lines = QString::fromStdString(object.text).split('\n');
  const double height = font.size > 0 ? font.size * kPixelsPerPoint : object.lineHeight / view_.unitsPerPixel();
  if (!(height >= 2 && height < 4 * view_.rect().height())) return;
  const HaloText text(lines, font, height);
  painter_.save();
  painter_.translate(view_.toPixel(object.points.front()));
  painter_.rotate(-object.angle);
  text.paint(painter_, {0, -text.size().height()}, Qt::AlignLeft);
  painter_.restore();
}

}  // namespace motor
