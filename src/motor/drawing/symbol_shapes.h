#pragma once

#include <QPainterPath>
#include <string_view>

namespace motor {

// A symbol as a text of drawing commands in a square from -1 to 1, y down: "M x y" goes to a point, "L x y" draws a
// line there, "Z" closes the figure, "C x y r" is a circle. Filled shapes are filled by the even-odd rule; the others
// are lines.
struct SymbolShape {
  int number = 0;
  bool filled = true;
  std::string_view figure;
};

// The shape of a number 32-67; null for 31, which draws nothing, and for any other.
[[nodiscard]] const SymbolShape* symbolShape(int number);

// The figure of a shape of `symbolShape` as a path in the square from -1 to 1.
[[nodiscard]] QPainterPath symbolPath(const SymbolShape& shape);

}  // namespace motor
