#pragma once

#include <optional>
#include <string>
#include <vector>

#include "motor/language/style_clause.h"
#include "motor/language/styles.h"
#include "motor/tables/geometry.h"

namespace motor {

// A sign of a legend's frame and the text beside it.
struct FrameLine {
  std::string text;  // maybe of several lines
  MapObject::Kind kind = MapObject::Kind::point;
  Styles style;
};

// What a cartographic legend says of one layer. Without lines it is the layer that tells: a theme its classes, another
// layer its first object. A text that was not given is empty; a font that was not, the legend's own.
struct MapLegendFrame {
  std::string layer;  // the layer's name
  std::string title;
  std::string subtitle;
  std::optional<Font> titleFont;
  std::optional<Font> subtitleFont;
  std::optional<Font> lineFont;
  std::optional<Pen> border;
  std::vector<FrameLine> lines;
};

}  // namespace motor
