#include "motor/drawing/shape_painter.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/brushes.h"
#include "motor/drawing/clipping.h"
#include "motor/drawing/colours.h"
#include "motor/drawing/halo_text.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/symbols.h"
#include "motor/drawing/turns.h"

namespace motor {

namespace {

constexpr double kFarOutside = 2000;  // pixels beyond the picture from which on parts are cut
constexpr double kCutMargin = 100;    // and how far beyond it they are cut
constexpr double kLeastBorder = 1;    // device pixels, of a border that hides the seam
constexpr double kBroad = 8;          // logical pixels of a line, above which the toolkit's painter is as fast
constexpr double kSeam = 1.5;         // device pixels: the line around a fill that closes the seam to its neighbour

QRectF grown(const QRectF& rect, double by) { return rect.adjusted(-by, -by, by, by); }

// False also for a box that is no place.
bool liesIn(const QRectF& room, const QRectF& box) {
  return box.left() >= room.left() && box.right() <= room.right() && box.top() >= room.top() &&
         box.bottom() <= room.bottom();
}

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

bool leavesNoGaps(const Brush& brush) {
  return brush.pattern == 2 || (brush.pattern > 2 && brush.back != kTransparent);
}

QPainterPath pathOf(const std::vector<QPolygonF>& rings) {
  QPainterPath path;
  path.setFillRule(Qt::OddEvenFill);
  for (const QPolygonF& ring : rings) path.addPolygon(ring);
  return path;
}

Qt::Alignment alignmentOf(TextJustify justify) {
  switch (justify) {
    case TextJustify::center:
      return Qt::AlignHCenter;
    case TextJustify::right:
      return Qt::AlignRight;
    case TextJustify::left:
      break;
  }
  return Qt::AlignLeft;
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
  if (liesIn(grown(view.rect(), kFarOutside), view.toPixels(object.bounds))) return parts;
  return cut(parts, grown(view.rect(), kCutMargin), object.kind == MapObject::Kind::region);
}

ShapePainter::ShapePainter(QPainter& painter, const MapView& view, SimplifiedPaths& paths, double devicePixelRatio)
    : painter_(painter),
      view_(view),
      paths_(paths),
      devicePixelRatio_(devicePixelRatio),
      canvas_(SmoothCanvas::of(painter)),
      level_(simplificationLevel(view.unitsPerPixel() / devicePixelRatio)),
      strokes_(penStrokes(pen_)),
      fill_(toQBrush(brush_, devicePixelRatio)),
      fillIsClosed_(leavesNoGaps(brush_)) {}

QPainter& ShapePainter::painter() {
  if (canvas_) canvas_->paint();
  return painter_;
}

void ShapePainter::usePen(const Pen& pen) {
  if (pen == pen_) return;
  pen_ = pen;
  strokes_ = penStrokes(pen);
}

void ShapePainter::useBrush(const Brush& brush) {
  if (brush == brush_) return;
  brush_ = brush;
  fill_ = toQBrush(brush, devicePixelRatio_);
  fillIsClosed_ = leavesNoGaps(brush);
}

void ShapePainter::paint(const ObjectPtr& object, const DrawnStyle& style) {
  switch (object->kind) {
    case MapObject::Kind::point:
      paintPoints(*object, style.symbol);
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

void ShapePainter::finishLayer() {
  std::size_t most = 0;
  for (const WaitingLines& waiting : waiting_) most = std::max(most, penStrokes(waiting.pen).size());
  if (most > 0) painter().setBrush(Qt::NoBrush);
  for (std::size_t i = 0; i < most; ++i) {
    for (const WaitingLines& waiting : waiting_) {
      usePen(waiting.pen);
      if (i >= strokes_.size()) continue;
      for (const QPolygonF& line : waiting.lines) {
        drawStroke(painter(), strokes_[i], waiting.closed ? line : shaftOf(pen_, line));
      }
    }
  }
  for (const WaitingLines& waiting : waiting_) {
    if (waiting.closed) continue;
    for (const QPolygonF& line : waiting.lines) paintArrowHeads(painter(), waiting.pen, line);
  }
  waiting_.clear();
  if (canvas_) canvas_->paint();
}

void ShapePainter::paintPoints(const MapObject& object, const Symbol& symbol) {
  const QRectF reach = grown(view_.rect(), kFarOutside);
  for (const Point& p : object.points) {
    const QPointF at = view_.toPixel(p);
    if (reach.contains(at)) paintSymbol(painter(), symbol, at);
  }
}

// Two smooth edges side by side let the ground shine through: a fill reaches over its own edge, so far that a pixel
// which its edge crosses is covered by the line around it.
QPen ShapePainter::seamPen() const {
  const bool mayGape = fillIsClosed_ && painter_.testRenderHint(QPainter::Antialiasing);
  return mayGape ? QPen(fill_, kSeam / devicePixelRatio_, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin) : QPen(Qt::NoPen);
}

// Whether the canvas draws a border as the painter does.
bool ShapePainter::isPlain(const QPen& pen) {
  return pen.style() == Qt::SolidLine && pen.brush().style() == Qt::SolidPattern && pen.widthF() <= kBroad;
}

void ShapePainter::paintFill(const std::vector<QPolygonF>& rings, const QPen& outline) {
  const bool fills = fill_.style() != Qt::NoBrush;
  const bool borders = outline.style() != Qt::NoPen;
  if (canvas_ && (!fills || fill_.style() == Qt::SolidPattern) && (!borders || isPlain(outline))) {
    SmoothCanvas::Style style;
    if (fills) style.fill = fill_.color().rgba();
    if (borders) style.border = outline.color().rgba();
    style.borderWidth = outline.widthF();
    canvas_->add(rings, style);
    return;
  }
  painter().setBrush(fill_);
  painter().setPen(outline);
  if (rings.size() == 1) {
    painter().drawPolygon(rings.front());
  } else {
    painter().drawPath(pathOf(rings));
  }
}

void ShapePainter::paintRegion(std::vector<QPolygonF> rings, const DrawnStyle& style) {
  usePen(style.pen);
  useBrush(style.brush);
  const bool filled = fill_.style() != Qt::NoBrush;
  if (rings.empty() || (!filled && strokes_.empty())) return;
  const bool waits = isInterleaved(pen_) && !strokes_.empty();
  // A border that covers the whole seam is drawn along with the fill.
  const bool coversSeam = !waits && !strokes_.empty() && strokes_.front().style() == Qt::SolidLine &&
                          strokes_.front().widthF() * devicePixelRatio_ >= kLeastBorder;
  if (filled || coversSeam) paintFill(rings, coversSeam ? strokes_.front() : seamPen());
  if (waits) {
    waiting_.push_back({pen_, std::move(rings), true});
    return;
  }
  const std::size_t firstStroke = coversSeam ? 1 : 0;
  if (firstStroke < strokes_.size()) painter().setBrush(Qt::NoBrush);
  for (std::size_t i = firstStroke; i < strokes_.size(); ++i) {
    for (const QPolygonF& ring : rings) drawStroke(painter(), strokes_[i], ring);
  }
}

void ShapePainter::paintLines(std::vector<QPolygonF> lines, const Pen& pen) {
  usePen(pen);
  if (strokes_.empty() || lines.empty()) return;
  if (isInterleaved(pen)) {
    waiting_.push_back({pen, std::move(lines), false});
    return;
  }
  for (const QPen& stroke : strokes_) {
    for (const QPolygonF& line : lines) drawStroke(painter(), stroke, shaftOf(pen, line));
  }
  for (const QPolygonF& line : lines) paintArrowHeads(painter(), pen, line);
}

void ShapePainter::paintText(const MapObject& object, const Font& font) {
  if (object.points.empty()) return;
  const QStringList lines = QString::fromStdString(object.text).split('\n');
  const double height = font.size > 0 ? font.size * kPixelsPerPoint : object.lineHeight / view_.unitsPerPixel();
  if (!(height >= 2 && height < 4 * view_.rect().height())) return;
  const QPointF corner = view_.toPixel(object.points.front());
  if (!grown(view_.rect(), kFarOutside + height).contains(corner)) return;
  const HaloText text(lines, font, height, object.lineSpacing);
  painter().save();
  painter().translate(corner);
  painter().rotate(-turnOf(object.angle));
  text.paint(painter(), {0, -text.size().height()}, alignmentOf(object.justify));
  painter().restore();
}

}  // namespace motor
