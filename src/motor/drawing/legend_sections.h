#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "motor/drawing/legend_swatch.h"
#include "motor/drawing/theme.h"
#include "motor/map/map.h"

namespace motor {

// One line of a legend.
struct LegendLine {
  LegendSwatch swatch;
  QString text;
  std::optional<std::size_t> count;  // of objects, in parentheses behind the text
};

// The part of a legend that belongs to one theme. An empty title or subtitle takes no room.
struct LegendSection {
  QString title;
  QString subtitle;
  Font titleFont;
  Font subtitleFont;
  Font lineFont;
  std::optional<Pen> border;  // around all of it
  std::vector<LegendLine> lines;
};

// What the legend of a map says, from the top down: the frames of its cartographic legend; without those its displayed
// themes as `Set Legend` wants them; of a map without themes its displayed layers; a word where there is nothing to
// explain.
[[nodiscard]] std::vector<LegendSection> legendSections(const Map& map, Themes& themes);

}  // namespace motor
