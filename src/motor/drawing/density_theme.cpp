#include "motor/drawing/density_theme.h"

#include <algorithm>
#include <cmath>

namespace motor {

namespace {

constexpr double kMostDots = 10'000;  // in one region, which they fill long before

}  // namespace

DensityTheme::DensityTheme(const Layer& layer, const ShadeDensity& density) : isSquare_(density.square) {
  const ThemeValues values(layer);
  perDot_ = values.number(density.value);
  if (!(perDot_ > 0)) throw LanguageError(density.value->position(), "Density", "un punto vale más que 0");
  if (density.width) width_ = std::clamp(values.number(density.width), 1.0, 25.0);
  if (density.colour) colour_ = static_cast<Colour>(std::clamp(values.number(density.colour), 0.0, double{0xFFFFFF}));
  if (layer.theme->with.empty()) return;
  for (const double value : values.numbersOfObjects(*layer.theme->with.front().expression)) {
    const double dots = std::isfinite(value) ? std::round(value / perDot_) : 0;
    dots_.push_back(static_cast<std::uint32_t>(std::clamp(dots, 0.0, kMostDots)));
  }
}

}  // namespace motor
