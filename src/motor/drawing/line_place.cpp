#include "motor/drawing/line_place.h"

#include <QLineF>
#include <algorithm>
#include <cmath>

#include "motor/drawing/clipping.h"
#include "motor/drawing/measured_line.h"

namespace motor {

namespace {

constexpr int kPlaces = 24;            // that are tried along the line
constexpr double kMiddleWeight = 0.3;  // of the way from the middle against the line's bend

MeasuredLine longestPiece(const std::vector<QPolygonF>& lines, const QRectF& window) {
  MeasuredLine longest;
  for (const QPolygonF& line : lines) {
    for (QPolygonF& piece : clippedLine(line, window)) {
      MeasuredLine measured(std::move(piece));
      if (measured.length() > longest.length()) longest = std::move(measured);
    }
  }
  return longest;
}

double uprightAngle(double degrees) {
  while (degrees > 90) degrees -= 180;
  while (degrees <= -90) degrees += 180;
  return degrees;
}

}  // namespace

std::optional<LinePlace> linePlace(const std::vector<QPolygonF>& lines, const QRectF& window, double width) {
  const MeasuredLine line = longestPiece(lines, window);
  if (!(line.length() > 0)) return std::nullopt;
  const double span = std::clamp(width, std::min(1.0, line.length()), line.length());
  const double room = line.length() - span;  // that the label may be moved along the line
  LinePlace best;
  double least = 0;
  for (int i = 0; i <= kPlaces; ++i) {
    const double start = room * i / kPlaces;
    const QLineF chord(line.after(start), line.after(start + span));
    const QPointF middle = line.after(start + span / 2);
    const double bend = (span - chord.length() + QLineF(chord.center(), middle).length()) / span;
    const double cost = bend + kMiddleWeight * std::fabs(2.0 * i / kPlaces - 1) * room / line.length();
    if (i > 0 && !(cost < least)) continue;
    least = cost;
    best = {(chord.center() + middle) / 2, chord.length() > 0 ? uprightAngle(chord.angle()) : 0};
  }
  return best;
}

}  // namespace motor
