#pragma once

#include <string>
#include <string_view>

#include "motor/language/styles.h"

namespace motor {

// An object's own style.
struct ObjectStyle {
  Pen pen;
  Brush brush;
  Symbol symbol;
  Font font;
  bool isText = false;  // the rest is of a text object
  std::string text;
  double angle = 0;
  double lineHeight = 0;
};

// From a style string of the format library: PEN(w:2px,c:#ff0000,id:"mapinfo-pen-2,ogr-pen-0");BRUSH(...). What it does
// not name keeps its default.
[[nodiscard]] ObjectStyle parseObjectStyle(std::string_view style);

}  // namespace motor
