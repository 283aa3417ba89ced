#pragma once

#include <QPolygonF>
#include <vector>

namespace motor {

// A line with the length of the way up to each of its points.
class MeasuredLine {
 public:
  MeasuredLine() = default;
  explicit MeasuredLine(QPolygonF line);

  [[nodiscard]] double length() const { return way_.empty() ? 0 : way_.back(); }
  // The point after a way along the line, which has points; its ends before and beyond them.
  [[nodiscard]] QPointF after(double way) const;

 private:
  QPolygonF line_;
  std::vector<double> way_;
};

}  // namespace motor
