#pragma once

#include <array>

namespace motor {

// One stroke of a line pattern. Widths and dashes are multiples of the pen's own width; a dash of 0 ends the list, no
// dash at all is a solid stroke. Paper strokes are white: they open the inside of a double line.
struct PatternStroke {
  double width = 0;
  std::array<double, 8> dash = {};
  bool paper = false;
};

// A line pattern: up to three strokes, the first at the bottom, and arrow heads at its ends.
struct PenPattern {
  enum class Arrow { none, end, start, both };

  int number = 0;
  std::array<PatternStroke, 3> strokes = {};
  Arrow arrow = Arrow::none;
  bool openHead = false;  // the arrow's head is two strokes, not a filled triangle
};

// The pattern of a number 2-118; the solid one for any other.
[[nodiscard]] const PenPattern& penPattern(int number);

}  // namespace motor
