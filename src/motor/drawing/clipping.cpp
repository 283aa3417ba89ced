#include "motor/drawing/clipping.h"

#include <algorithm>

namespace motor {

namespace {

// A side of the rectangle: inside is where sign * coordinate >= sign * at.
struct Side {
  bool vertical;  // x is compared, not y
  double at;
  double sign;

  [[nodiscard]] double distance(QPointF p) const { return sign * ((vertical ? p.x() : p.y()) - at); }
  // A point that should lie on the side, without what rounding of far points has added.
  [[nodiscard]] QPointF onIt(QPointF p) const { return vertical ? QPointF(at, p.y()) : QPointF(p.x(), at); }
};

QPolygonF clippedAt(const QPolygonF& ring, const Side& side) {
  QPolygonF result;
  if (ring.isEmpty()) return result;
  result.reserve(ring.size() + 4);
  QPointF previous = ring.back();
  double before = side.distance(previous);
  for (const QPointF& point : ring) {
    const double now = side.distance(point);
    if ((before < 0) != (now < 0)) {
      result.append(side.onIt(previous + (point - previous) * (before / (before - now))));
    }
    if (now >= 0) result.append(point);
    previous = point;
    before = now;
  }
  return result;
}

QPointF inside(const QRectF& area, QPointF p) {
  return {std::clamp(p.x(), area.left(), area.right()), std::clamp(p.y(), area.top(), area.bottom())};
}

// The part of a segment inside the rectangle (Liang and Barsky 1984); false when nothing is.
bool clipSegment(QPointF& from, QPointF& to, const QRectF& area) {
  const QPointF d = to - from;
  const double towards[4] = {-d.x(), d.x(), -d.y(), d.y()};
  const double room[4] = {from.x() - area.left(), area.right() - from.x(), from.y() - area.top(),
                          area.bottom() - from.y()};
  double enter = 0;
  double leave = 1;
  for (int i = 0; i < 4; ++i) {
    if (towards[i] == 0) {
      if (room[i] < 0) return false;
    } else if (towards[i] < 0) {
      enter = std::max(enter, room[i] / towards[i]);
    } else {
      leave = std::min(leave, room[i] / towards[i]);
    }
  }
  if (enter > leave) return false;
  if (leave < 1) to = inside(area, from + d * leave);
  if (enter > 0) from = inside(area, from + d * enter);
  return true;
}

}  // namespace

QPolygonF clippedRing(const QPolygonF& ring, const QRectF& area) {
  QPolygonF result = ring;
  for (const Side& side : {Side{true, area.left(), 1}, Side{true, area.right(), -1}, Side{false, area.top(), 1},
                           Side{false, area.bottom(), -1}}) {
    result = clippedAt(result, side);
  }
  if (!result.isEmpty()) result.append(result.front());
  return result;
}

std::vector<QPolygonF> clippedLine(const QPolygonF& line, const QRectF& area) {
  std::vector<QPolygonF> pieces;
  bool joined = false;  // whether the last piece reaches the next segment's start
  for (qsizetype i = 1; i < line.size(); ++i) {
    QPointF from = line[i - 1];
    QPointF to = line[i];
    if (!clipSegment(from, to, area)) {
      joined = false;
      continue;
    }
    if (!joined) pieces.push_back({from});
    pieces.back().append(to);
    joined = to == line[i];
  }
  return pieces;
}

}  // namespace motor
