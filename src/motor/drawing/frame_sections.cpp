#include "motor/drawing/frame_sections.h"

#include <algorithm>

namespace motor {

namespace {

LegendLine lineOf(const FrameLine& line) {
  const Styles& given = line.style;
  const Pen pen = line.kind == MapObject::Kind::polyline && given.line ? *given.line : given.pen.value_or(Pen{});
  const DrawnStyle style{pen, given.brush.value_or(Brush{}), given.symbol.value_or(Symbol{}),
                         given.font.value_or(Font{})};
  return {{swatchOf(line.kind), style, 0}, QString::fromStdString(line.text), std::nullopt};
}

}  // namespace

std::vector<LegendSection> frameSections(const Map& map,
                                         const std::function<LegendSection(const Layer& layer)>& sectionOf) {
  std::vector<LegendSection> sections;
  for (const MapLegendFrame& frame : map.legendFrames) {
    const auto layer = std::find_if(map.layers.begin(), map.layers.end(),
                                    [&](const Layer& l) { return l.name == frame.layer && l.table; });
    if (layer == map.layers.end() || layer->display == Display::off) continue;
    LegendSection section = sectionOf(*layer);
    if (!frame.title.empty()) section.title = QString::fromStdString(frame.title);
    if (!frame.subtitle.empty()) section.subtitle = QString::fromStdString(frame.subtitle);
    section.titleFont = frame.titleFont.value_or(section.titleFont);
    section.subtitleFont = frame.subtitleFont.value_or(section.subtitleFont);
    section.lineFont = frame.lineFont.value_or(section.lineFont);
    section.border = frame.border;
    if (!frame.lines.empty()) section.lines.clear();
    for (const FrameLine& line : frame.lines) section.lines.push_back(lineOf(line));
    sections.push_back(std::move(section));
  }
  return sections;
}

}  // namespace motor
