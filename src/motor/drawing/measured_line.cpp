#include "motor/drawing/measured_line.h"

#include <QLineF>
#include <algorithm>
#include <iterator>

namespace motor {

MeasuredLine::MeasuredLine(QPolygonF line) : line_(std::move(line)) {
  double length = 0;
  way_.reserve(static_cast<std::size_t>(line_.size()));
  for (qsizetype i = 0; i < line_.size(); ++i) {
    if (i > 0) length += QLineF(line_[i - 1], line_[i]).length();
    way_.push_back(length);
  }
}

QPointF MeasuredLine::after(double way) const {
  const auto next = std::lower_bound(way_.begin(), way_.end(), way);
  if (next == way_.begin()) return line_.front();
  if (next == way_.end()) return line_.back();
  const auto i = next - way_.begin();
  const double before = *std::prev(next);
  const double share = *next > before ? (way - before) / (*next - before) : 0;
  return line_[i - 1] + (line_[i] - line_[i - 1]) * share;
}

}  // namespace motor
