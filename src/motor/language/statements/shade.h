#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

enum class ThemeAttribute { all, colour, size };

// min: max style
struct ShadeRange {
  Position position;
  ExpressionPtr minimum;
  ExpressionPtr maximum;
  StyleList style;
};

// Ranges [Apply a] [Use a style] min: max style, ... [Default style]
struct ShadeRanges {
  ThemeAttribute apply = ThemeAttribute::all;
  std::optional<ThemeAttribute> use;
  StyleList useStyle;
  std::vector<ShadeRange> ranges;
  std::optional<StyleList> otherwise;  // Default
};

// value style
struct ShadeValue {
  Position position;
  ExpressionPtr value;
  StyleList style;
};

// Values value style, ... [Default style]
struct ShadeValues {
  ThemeAttribute apply = ThemeAttribute::all;
  std::optional<ThemeAttribute> use;
  StyleList useStyle;
  std::vector<ShadeValue> values;
  std::optional<StyleList> otherwise;
};

// [Half] Pie [Angle a] [Counter] [Fixed] ... Style brush, ...
// Bar [Stacked] [Normalized] [Frame brush] [Width w [Units u]] ... Style brush, ...
// both with [Max Size s [Units u] [At Value v [By "SQRT" | "CONST" | "LOG"]]] [Border pen] [Position ...]
struct ShadeChart {
  bool isPie = true;
  ExpressionPtr angle;  // degrees, 180 when left out
  bool counterClockwise = false;
  bool half = false;
  bool fixed = false;
  bool stacked = false;
  bool normalized = false;
  std::optional<Measure> width;  // of the bars
  std::optional<Measure> maximumSize;
  ExpressionPtr atValue;
  std::string by;  // "sqrt", "log", "const" in lower case
  std::optional<StyleClause> border;
  std::optional<StyleClause> frame;
  std::optional<int> placement;  // as LabelClause::placement
  std::vector<StyleList> parts;  // one for each expression
};

// Graduated min: size max: size Symbol ... [Inflect Symbol ...] [Vary Size By "SQRT" | "CONST" | "LOG"]
struct ShadeGraduated {
  ExpressionPtr minimum;
  ExpressionPtr minimumSize;  // points
  ExpressionPtr maximum;
  ExpressionPtr maximumSize;
  std::optional<StyleClause> symbol;
  std::optional<StyleClause> inflect;  // of negative values
  std::string by;                      // as ShadeChart::by
};

// Density value [Circle | Square] [Width n] [Color c]
struct ShadeDensity {
  ExpressionPtr value;
  bool square = false;
  ExpressionPtr width;
  ExpressionPtr colour;
};

using ShadeKind = std::variant<ShadeRanges, ShadeValues, ShadeChart, ShadeGraduated, ShadeDensity>;

// Shade [Window id] layer With expression, ... [Ignore value, ...] kind: a theme right above its base layer.
struct Shade {
  Position position;
  ExpressionPtr window;
  LayerReference layer;
  std::vector<WrittenExpression> with;
  std::vector<ExpressionPtr> ignored;
  ShadeKind kind;
};

// Set Shade [Window id] layer | Prev ...: changes a theme.
struct SetShade {
  Position position;
  Shade shade;
  bool previous = false;
};

}  // namespace motor
