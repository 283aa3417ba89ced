#include "study/reports/page.h"

#include <utility>

namespace study::reports {

namespace {

QRectF grown(const QRectF& box, const std::optional<Stroke>& stroke) {
  const double half = stroke ? stroke->width / 2 : 0;
  return box.adjusted(-half, -half, half, half);
}

QRectF extentOf(const TextMark& mark) {
  return {mark.at.x(), mark.at.y() - ascent(mark.style), textWidth(mark.text, mark.style),
          ascent(mark.style) + descent(mark.style)};
}

QRectF extentOf(const ShapeMark& mark) {
  std::optional<QRectF> all;
  for (const QPolygonF& line : mark.lines) {
    if (line.isEmpty()) continue;
    const QRectF box = grown(line.boundingRect(), mark.stroke);
    all = all ? all->united(box) : box;
  }
  return all.value_or(QRectF());
}

QRectF extentOf(const DiscMark& mark) {
  return grown({mark.centre.x() - mark.radius, mark.centre.y() - mark.radius, 2 * mark.radius, 2 * mark.radius},
               mark.stroke);
}

}  // namespace

QRectF markExtent(const Mark& mark) {
  return std::visit([](const auto& each) { return extentOf(each); }, mark);
}

void Page::text(QPointF at, std::string_view text, const TextStyle& style, Align align) {
  if (text.empty()) return;
  const double width = align == Align::left ? 0 : textWidth(text, style);
  if (align == Align::centre) at.rx() -= width / 2;
  if (align == Align::right) at.rx() -= width;
  marks_.emplace_back(TextMark{at, std::string(text), style});
}

void Page::box(const QRectF& box, int fill) {
  area({QPolygonF({box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()})}, fill);
}

void Page::line(QPointF from, QPointF to, const Stroke& stroke) { path(QPolygonF({from, to}), stroke); }

void Page::path(QPolygonF points, const Stroke& stroke) {
  marks_.emplace_back(ShapeMark{{std::move(points)}, false, std::nullopt, stroke});
}

void Page::area(std::vector<QPolygonF> rings, std::optional<int> fill, std::optional<Stroke> stroke) {
  marks_.emplace_back(ShapeMark{std::move(rings), true, fill, stroke});
}

void Page::disc(QPointF centre, double radius, int fill, std::optional<Stroke> stroke) {
  marks_.emplace_back(DiscMark{centre, radius, fill, stroke});
}

}  // namespace study::reports
