#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

enum class LayerDisplay { off, graphic, global, value };

// Zoom (min, max) [Units u] [On | Off]: the map widths between which a layer or its labels are shown.
struct ZoomRange {
  Position position;
  ExpressionPtr minimum;
  ExpressionPtr maximum;
  std::string unit;        // empty: the map's distance unit
  std::optional<bool> on;  // whether the range counts; not written means On
};

// Line None | Simple | Arrow
enum class LabelLine { none, simple, arrow };

// An edited label: Object row [Table t] [Visibility On | Off] [Line ...] [Anchor (x, y)] [Callout (x, y)] [Text t]
// [Position ...] [Font ...] [Pen ...] [Angle a] [Offset n].
struct CustomLabel {
  Position position;
  ExpressionPtr row;
  std::optional<Name> table;
  std::optional<bool> visible;
  std::optional<LabelLine> line;
  std::optional<CoordinatePair> anchor;
  std::optional<CoordinatePair> callout;
  ExpressionPtr text;
  std::optional<int> placement;  // as LabelClause::placement
  std::optional<StyleClause> font;
  std::optional<StyleClause> pen;
  ExpressionPtr angle;
  ExpressionPtr offset;
};

// Label ...
struct LabelClause {
  enum class Visibility { off, zoom, on };

  Position position;
  bool toDefault = false;  // Label Default: edited labels are dropped
  std::optional<LabelLine> line;
  std::optional<int> placement;  // 0 CC, 1 TL, 2 TC, 3 TR, 4 CL, 5 CR, 6 BL, 7 BC, 8 BR
  std::optional<StyleClause> font;
  std::optional<StyleClause> pen;
  std::optional<WrittenExpression> with;
  std::optional<bool> parallel;
  std::optional<Visibility> visibility;
  std::optional<ZoomRange> visibilityZoom;  // of Visibility::zoom
  std::optional<bool> automatic;
  std::optional<bool> overlap;
  std::optional<bool> duplicates;
  ExpressionPtr offset;  // points
  bool saysMaximum = false;
  ExpressionPtr maximum;  // of labels; with `saysMaximum`, none: no limit
  std::vector<CustomLabel> objects;
};

// One `Layer n ...` of a Set Map: what is to change, the rest stays.
struct LayerChange {
  Position position;
  LayerReference layer;
  std::optional<LayerDisplay> display;
  StyleList global;  // the override style of Display Global
  std::optional<ZoomRange> zoom;
  std::optional<bool> selectable;
  std::optional<bool> editable;
  std::optional<bool> arrows;
  std::optional<bool> nodes;
  std::optional<bool> centroids;
  std::optional<LabelClause> label;
};

}  // namespace motor
