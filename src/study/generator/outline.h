#pragma once

#include <array>
#include <vector>

#include "study/generator/plane.h"
#include "study/generator/random.h"

namespace study::generator {

// The rough shape of a region: an ellipse with bays and headlands, star-shaped around its centre.
class Outline {
 public:
  Outline(Random& random, Point centre, double meanRadius);

  [[nodiscard]] bool contains(Point p) const;
  // The line itself, closely sampled, counter-clockwise, on whole metres.
  [[nodiscard]] const Ring& line() const { return line_; }

 private:
  Point centre_;
  std::vector<double> radii_;  // by angle, in even steps
  Ring line_;
};

}  // namespace study::generator
