#pragma once

#include <algorithm>
#include <cstdint>

namespace motor {

// Coordinates of pixels as whole numbers, in steps of which a pixel has kOne.
using Fixed = std::int64_t;
inline constexpr int kFixedBits = 16;
inline constexpr Fixed kOne = Fixed{1} << kFixedBits;

// What is farther than any picture reaches, as far as steps do: pixels, or pixels in a row.
[[nodiscard]] inline double withinReach(double pixels) {
  constexpr double kFarthest = 1e7;
  return std::clamp(pixels, -kFarthest, kFarthest);
}
// A number's steps, the last one that it reaches counted from zero. The number is within reach.
[[nodiscard]] inline Fixed toFixed(double pixels) { return static_cast<Fixed>(pixels * static_cast<double>(kOne)); }
// The pixel that a coordinate lies in, rounded down.
[[nodiscard]] constexpr int wholePixels(Fixed at) { return static_cast<int>(at >> kFixedBits); }
[[nodiscard]] constexpr Fixed product(Fixed a, Fixed b) { return (a * b) >> kFixedBits; }

// What counts once for every pixel of a wide picture has steps so fine that their rounding adds up to nothing.
inline constexpr int kFineBits = 32;
[[nodiscard]] inline Fixed toFine(double number) {
  return static_cast<Fixed>(number * static_cast<double>(Fixed{1} << kFineBits));
}
[[nodiscard]] constexpr Fixed fromFine(Fixed fine) { return fine >> (kFineBits - kFixedBits); }
[[nodiscard]] constexpr Fixed productWithFine(Fixed a, Fixed fine) { return (a * fine) >> kFineBits; }

// A part of one as a part of 255.
[[nodiscard]] constexpr unsigned toCover(Fixed share) {
  return static_cast<unsigned>((share * 255 + kOne / 2) >> kFixedBits);
}

}  // namespace motor
