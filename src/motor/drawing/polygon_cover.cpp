#include "motor/drawing/polygon_cover.h"

#include <algorithm>
#include <cmath>

namespace motor {

namespace {

struct Row {
  std::int32_t* changes;
  std::uint8_t* marks;
  Fixed width;
};

// A piece of an edge that lies in one column of a row: `height` rows high with its direction's sign, `middle` of the
// column to the right on the mean.
inline void passPixel(const Row& row, int column, Fixed middle, Fixed height) {
  const auto right = static_cast<std::int32_t>(product(height, middle));
  row.changes[column] += static_cast<std::int32_t>(height) - right;
  row.changes[column + 1] += right;
  row.marks[column] = 1;
  row.marks[column + 1] = 1;
}

// A piece that lies in one row, `rise` rows high for each column, in fine steps and without a sign. What lies left of
// the row counts in its first column, what lies right of it nowhere.
inline void passRow(const Row& row, Fixed xBegin, Fixed xEnd, Fixed height, Fixed rise) {
  Fixed from = std::min(xBegin, xEnd);
  Fixed to = std::max(xBegin, xEnd);
  if (from >= row.width) return;
  if (to <= 0) return passPixel(row, 0, 0, height);
  int column = wholePixels(from);
  if (from >= 0 && to <= (column + 1) * kOne) return passPixel(row, column, (from + to) / 2 - column * kOne, height);
  const Fixed start = from;
  const Fixed step = height < 0 ? -rise : rise;
  Fixed passed = 0;  // of the height, left of `from`
  const auto passTo = [&](Fixed x) {
    const Fixed reached = productWithFine(x - start, step);
    return reached - std::exchange(passed, reached);
  };
  if (from < 0) {
    passPixel(row, 0, 0, passTo(0));
    from = 0;
    column = 0;
  }
  const bool endsInside = to <= row.width;
  to = std::min(to, row.width);
  for (; (column + 1) * kOne < to; ++column) {
    const Fixed next = (column + 1) * kOne;
    passPixel(row, column, kOne - (next - from) / 2, passTo(next));
    from = next;
  }
  passPixel(row, column, (from + to) / 2 - column * kOne, endsInside ? height - passed : passTo(to));
}

}  // namespace

void PolygonCover::begin(const QRect& area) {
  area_ = area;
  rowPixels_ = wholeGroups(static_cast<std::size_t>(area.width()) + 1);
  const std::size_t pixels = static_cast<std::size_t>(area.height()) * rowPixels_;
  if (changes_.size() < pixels) {
    changes_.resize(pixels, 0);
    marks_.resize(pixels, 0);
  }
}

void PolygonCover::addEdge(QPointF from, QPointF to) {
  const bool isDown = from.y() < to.y();
  const QPointF upper = (isDown ? from : to) - area_.topLeft();
  const QPointF lower = (isDown ? to : from) - area_.topLeft();
  const Fixed begin = toFixed(std::clamp<double>(upper.y(), 0, area_.height()));
  const Fixed end = toFixed(std::clamp<double>(lower.y(), 0, area_.height()));
  if (begin >= end) return;
  const double slope = (lower.x() - upper.x()) / (lower.y() - upper.y());
  const double first = upper.x() + (static_cast<double>(begin) / static_cast<double>(kOne) - upper.y()) * slope;
  const Fixed perRow = toFixed(withinReach(slope));
  const Fixed rise = toFine(withinReach(1 / std::fabs(slope)));
  Fixed x = toFixed(withinReach(first));
  const std::size_t firstPixel = static_cast<std::size_t>(wholePixels(begin)) * rowPixels_;
  Row row{changes_.data() + firstPixel, marks_.data() + firstPixel, area_.width() * kOne};
  for (Fixed y = begin; y < end;) {
    const Fixed nextY = std::min(end, (wholePixels(y) + 1) * kOne);
    const Fixed height = nextY - y;
    const Fixed nextX = x + product(height, perRow);
    passRow(row, x, nextX, isDown ? height : -height, rise);
    y = nextY;
    x = nextX;
    row.changes += rowPixels_;
    row.marks += rowPixels_;
  }
}

}  // namespace motor
