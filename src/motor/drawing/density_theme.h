#pragma once

#include <cstdint>
#include <vector>

#include "motor/drawing/theme_values.h"

namespace motor {

// A theme of dots strewn over regions, each of which stands for a part of the region's value.
class DensityTheme {
 public:
  // Throws LanguageError or EngineError where its settings have no value. `layer` has the theme.
  DensityTheme(const Layer& layer, const ShadeDensity& density);

  // What a dot stands for, greater than 0.
  [[nodiscard]] double perDot() const { return perDot_; }
  // The dots' look; its size is the dot's width in pixels.
  [[nodiscard]] bool isSquare() const { return isSquare_; }
  [[nodiscard]] double width() const { return width_; }
  [[nodiscard]] Colour colour() const { return colour_; }
  // How many dots each object has.
  [[nodiscard]] const std::vector<std::uint32_t>& dots() const { return dots_; }

 private:
  double perDot_ = 1;
  bool isSquare_ = false;
  double width_ = 2;
  Colour colour_ = 0;
  std::vector<std::uint32_t> dots_;
};

}  // namespace motor
