#pragma once

#include <array>
#include <cstdint>

namespace motor {

// Directions of hatch lines, to be added up.
inline constexpr int kAcross = 1;   // horizontal
inline constexpr int kUpright = 2;  // vertical
inline constexpr int kFalling = 4;  // from the top left to the bottom right
inline constexpr int kRising = 8;   // from the bottom left to the top right

// A fill pattern in a tile of 8 by 8 logical pixels: hatch lines (`directions` not 0), `spacing` (2, 4 or 8) apart and
// `width` thick, or a bitmap, a byte a row, the highest bit at the left.
struct BrushPattern {
  int number = 0;
  int directions = 0;
  int spacing = 0;
  double width = 0;
  std::array<std::uint8_t, 8> bitmap = {};
};

// The pattern of a number 3-8 or 12-71; null for any other.
[[nodiscard]] const BrushPattern* brushPattern(int number);

}  // namespace motor
