#pragma once

#include <array>
#include <vector>

#include "study/plane.h"
#include "study/random.h"

namespace study {

// The rough shape of a region: an ellipse with bays and headlands, star-shaped around its centre.
class Outline {
 public:
  Outline(Random& random, Point centre, double meanRadius);

  [[nodiscard]] bool contains(Point p) const;
  // The line itself, closely sampled, counter-clockwise.
  [[nodiscard]] const std::vector<Point>& line() const { return line_; }

 private:
  struct Wave {
    double amplitude;
    double phase;
  };

  [[nodiscard]] double radius(double angle) const;

  Point centre_;
  double meanRadius_;
  std::array<Wave, 12> waves_{};
  std::vector<Point> line_;
};

}  // namespace study
