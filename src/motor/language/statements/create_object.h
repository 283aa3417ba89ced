#pragma once

#include "motor/language/statements/parts.h"
#include "motor/language/styles.h"

namespace motor {

// Create Point | Line | Pline | Region | Rect | RoundRect | Ellipse | Arc | Text ... [Into Window id]: an object of the
// editable cosmetic layer, in the session's coordinates.
struct CreateObject {
  enum class Kind { point, line, polyline, region, rectangle, roundedRectangle, ellipse, arc, text };

  Position position;
  Kind kind = Kind::point;
  ExpressionPtr window;
  std::vector<std::vector<CoordinatePair>> parts;  // one part but for Pline Multiple and Region
  std::vector<ExpressionPtr> angles;  // of an arc, start and end, degrees; of a rounded rectangle, rounding
  ExpressionPtr text;
  ExpressionPtr angle;    // of a text, degrees
  ExpressionPtr spacing;  // from line to line, as a multiple of their height
  TextJustify justify = TextJustify::left;
  StyleList style;
};

}  // namespace motor
