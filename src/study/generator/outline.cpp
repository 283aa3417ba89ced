#include "study/generator/outline.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace study::generator {

namespace {

constexpr std::size_t kSamples = 4096;
constexpr double kStep = 2 * std::numbers::pi / kSamples;

struct Wave {
  double amplitude;
  double phase;
};
using Waves = std::array<Wave, 36>;

Waves makeWaves(Random& random) {
  // The first wave is wave number 2, which makes the ellipse; higher ones fade as in natural outlines.
  Waves waves{};
  for (std::size_t i = 0; i < waves.size(); ++i) {
    const double number = static_cast<double>(i + 2);
    waves[i] = {0.30 / std::pow(number, 1.15) * random.between(0.45, 1), random.between(0, 2 * std::numbers::pi)};
  }
  return waves;
}

double radiusAt(double angle, const Waves& waves) {
  double factor = 1;
  for (std::size_t i = 0; i < waves.size(); ++i) {
    factor += waves[i].amplitude * std::cos(static_cast<double>(i + 2) * angle + waves[i].phase);
  }
  return factor;
}

}  // namespace

Outline::Outline(Random& random, Point centre, double meanRadius) : centre_(centre) {
  const Waves waves = makeWaves(random);
  for (std::size_t i = 0; i < kSamples; ++i) {
    const double angle = kStep * static_cast<double>(i);
    const double radius = meanRadius * radiusAt(angle, waves);
    radii_.push_back(radius);
    line_.push_back(onWholeMetres({centre_.x + radius * std::cos(angle), centre_.y + radius * std::sin(angle)}));
  }
}

bool Outline::contains(Point p) const {
  double angle = std::atan2(p.y - centre_.y, p.x - centre_.x);
  if (angle < 0) angle += 2 * std::numbers::pi;
  const double step = angle / kStep;
  const std::size_t before = static_cast<std::size_t>(step) % kSamples;
  const double share = step - std::floor(step);
  const double radius = radii_[before] + share * (radii_[(before + 1) % kSamples] - radii_[before]);
  return squaredDistance(p, centre_) < radius * radius;
}

}  // namespace study::generator
