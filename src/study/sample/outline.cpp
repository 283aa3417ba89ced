#include "study/sample/outline.h"

#include <cmath>
#include <numbers>

namespace study {

Outline::Outline(Random& random, Point centre, double meanRadius) : centre_(centre), meanRadius_(meanRadius) {
  // The first wave is wave number 2, which makes the ellipse; higher ones fade as in natural outlines.
  for (std::size_t i = 0; i < waves_.size(); ++i) {
    const double number = static_cast<double>(i + 2);
    waves_[i] = {0.30 / std::pow(number, 1.15) * random.between(0.45, 1), random.between(0, 2 * std::numbers::pi)};
  }
  constexpr int kSamples = 1440;
  for (int i = 0; i < kSamples; ++i) {
    const double angle = 2 * std::numbers::pi * i / kSamples;
    const double r = radius(angle);
    line_.push_back({centre_.x + r * std::cos(angle), centre_.y + r * std::sin(angle)});
  }
}

double Outline::radius(double angle) const {
  double factor = 1;
  for (std::size_t i = 0; i < waves_.size(); ++i) {
    factor += waves_[i].amplitude * std::cos(static_cast<double>(i + 2) * angle + waves_[i].phase);
  }
  return meanRadius_ * factor;
}

bool Outline::contains(Point p) const {
  const double r = radius(std::atan2(p.y - centre_.y, p.x - centre_.x));
  return squaredDistance(p, centre_) < r * r;
}

}  // namespace study
