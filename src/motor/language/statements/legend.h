#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// A text of the legend: left out, `Auto` (the engine's own words) or given.
struct LegendText {
  bool automatic = true;
  ExpressionPtr text;
  std::optional<StyleClause> font;
};

// One line of a theme's legend; the first one is that of "all others".
struct LegendRow {
  Position position;
  LegendText text;
  bool shown = true;
};

// Layer n | name | Prev ...: how one theme shows in the legend.
struct LegendLayer {
  Position position;
  std::optional<LayerReference> layer;  // none: Prev
  std::optional<bool> shown;
  std::optional<bool> shades;
  std::optional<bool> symbols;
  std::optional<bool> lines;
  std::optional<bool> count;
  std::optional<LegendText> title;
  std::optional<LegendText> subtitle;
  std::optional<bool> ascending;
  std::optional<StyleClause> rowFont;
  std::vector<LegendRow> rows;
};

// Set Legend [Window id] Layer ..., Layer ...
struct SetLegend {
  Position position;
  ExpressionPtr window;
  std::vector<LegendLayer> layers;
};

// Create Legend [From Window id] [Show | Hide]
struct CreateLegend {
  Position position;
  ExpressionPtr window;
  bool shown = true;
};

// What stands above a frame or beside its signs: a text, in which # is the layer's name and % the kind of its objects.
struct FrameText {
  ExpressionPtr text;
  std::optional<StyleClause> font;
};

// One line of a frame: Text t  Symbol ... | Line Pen ... | Region Pen ... Brush ...
struct LegendSample {
  enum class Kind { point, line, region };

  Position position;
  ExpressionPtr text;
  Kind kind = Kind::point;
  StyleList style;
};

// Frame From Layer n [Position (x, y)] [Title t] [Subtitle t] [Style sample ...] ...
struct LegendFrame {
  Position position;
  LayerReference layer;
  std::optional<Placement> place;
  FrameText title;
  FrameText subtitle;
  std::optional<StyleClause> sampleFont;
  std::optional<StyleClause> border;
  std::vector<LegendSample> samples;
};

// Create Cartographic Legend [From Window id] [Default Frame Title t] ... Frame From Layer n ...
struct CreateCartographicLegend {
  Position position;
  ExpressionPtr window;
  WindowShape shape;
  FrameText defaultTitle;
  FrameText defaultSubtitle;
  FrameText defaultStyle;
  std::optional<StyleClause> defaultBorder;
  std::vector<LegendFrame> frames;
};

}  // namespace motor
