#include "motor/drawing/label_point.h"

#include <QRectF>
#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <queue>

#include "motor/tables/edge.h"

namespace motor {

namespace {

constexpr double kMostSquares = 32;  // along the longer side, at the start
constexpr int kMostSteps = 4000;     // far more than any region needs

Point toPoint(QPointF p) { return {p.x(), p.y()}; }

// Calls `visit` with each edge of the rings.
template <typename Visit>
void forRingEdges(const std::vector<QPolygonF>& rings, const Visit& visit) {
  for (const QPolygonF& ring : rings) {
    for (qsizetype i = 1; i < ring.size(); ++i) visit(Edge{toPoint(ring[i - 1]), toPoint(ring[i])});
  }
}

// The distance to the outline, negative outside.
double signedDistance(const std::vector<QPolygonF>& rings, QPointF at) {
  const Point p = toPoint(at);
  bool inside = false;
  double nearest = std::numeric_limits<double>::max();
  forRingEdges(rings, [&](const Edge& edge) {
    if (edge.crosses(p.y) && p.x < edge.crossingX(p.y)) inside = !inside;
    nearest = std::min(nearest, edge.squaredDistanceTo(p));
  });
  return (inside ? 1 : -1) * std::sqrt(nearest);
}

struct Square {
  QPointF centre;
  double half = 0;      // of its side
  double distance = 0;  // of its centre to the outline
  double bound = 0;     // no point in it is farther

  Square(const std::vector<QPolygonF>& rings, QPointF at, double halfSide)
      : centre(at), half(halfSide), distance(signedDistance(rings, at)), bound(distance + half * std::numbers::sqrt2) {}
  bool operator<(const Square& other) const { return bound < other.bound; }
};

// From where to where a row around `x` lies inside the rings; the whole row where x is not inside.
struct Span {
  double left = -std::numeric_limits<double>::max();
  double right = std::numeric_limits<double>::max();
};

Span spanAround(const std::vector<QPolygonF>& rings, double x, double y) {
  Span span;
  bool isInside = false;
  forRingEdges(rings, [&](const Edge& edge) {
    if (!edge.crosses(y)) return;
    const double crossing = edge.crossingX(y);
    if (x < crossing) {
      isInside = !isInside;
      span.right = std::min(span.right, crossing);
    } else {
      span.left = std::max(span.left, crossing);
    }
  });
  return isInside ? span : Span();
}

}  // namespace

QPointF labelPoint(const std::vector<QPolygonF>& rings, double precision) {
  QRectF bounds;
  for (const QPolygonF& ring : rings) bounds = bounds.isNull() ? ring.boundingRect() : bounds | ring.boundingRect();
  const double longest = std::max(bounds.width(), bounds.height());
  if (!(std::min(bounds.width(), bounds.height()) > 0) || !std::isfinite(longest)) return bounds.center();
  const double side = std::max(std::min(bounds.width(), bounds.height()), longest / kMostSquares);
  std::priority_queue<Square> squares;
  const double half = side / 2;
  const auto squaresAlong = [side](double length) { return static_cast<int>(std::ceil(length / side)); };
  for (int column = 0; column < squaresAlong(bounds.width()); ++column) {
    for (int row = 0; row < squaresAlong(bounds.height()); ++row) {
      squares.emplace(rings, bounds.topLeft() + QPointF(column * side + half, row * side + half), half);
    }
  }
  Square best(rings, bounds.center(), 0);
  for (int step = 0; step < kMostSteps && !squares.empty(); ++step) {
    const Square square = squares.top();
    squares.pop();
    if (square.bound - best.distance <= precision) break;
    if (square.distance > best.distance) best = square;
    const double quarter = square.half / 2;
    for (const double dx : {-quarter, quarter}) {
      for (const double dy : {-quarter, quarter}) squares.emplace(rings, square.centre + QPointF(dx, dy), quarter);
    }
  }
  return best.centre;
}

QPointF roomForLabel(const std::vector<QPolygonF>& rings, QPointF point, QSizeF label) {
  Span room;
  for (const double row : {-0.5, 0.0, 0.5}) {
    const Span span = spanAround(rings, point.x(), point.y() + row * label.height());
    room = {std::max(room.left, span.left), std::min(room.right, span.right)};
  }
  const double least = room.left + label.width() / 2;
  const double most = room.right - label.width() / 2;
  return {least <= most ? std::clamp(point.x(), least, most) : (least + most) / 2, point.y()};
}

}  // namespace motor
