#include <algorithm>

#include "motor/session/executors.h"
#include "motor/session/map_layers.h"
#include "motor/session/session_state.h"
#include "motor/session/text_lines.h"

namespace motor {
namespace {

MapObject::Kind kindOf(LegendSample::Kind kind) {
  switch (kind) {
    case LegendSample::Kind::point:
      return MapObject::Kind::point;
    case LegendSample::Kind::line:
      return MapObject::Kind::polyline;
    case LegendSample::Kind::region:
      return MapObject::Kind::region;
  }
  return MapObject::Kind::point;
}

// What % stands for in a frame's texts.
const char* kindName(const Layer& layer) {
  switch (firstKind(layer).value_or(MapObject::Kind::region)) {
    case MapObject::Kind::text:
      return "Texto";
    case MapObject::Kind::point:
      return "Punto";
    case MapObject::Kind::polyline:
      return "Línea";
    case MapObject::Kind::region:
      return "Región";
  }
  return "";
}

// A frame with where its statement wants it; frames stand from the top down, then from the left.
struct PlacedFrame {
  std::optional<Point> place;
  MapLegendFrame frame;
};

class Frames {
 public:
  Frames(const CreateCartographicLegend& legend, const Map& map, const SessionState& session)
      : legend_(legend), map_(map), session_(session) {}

  [[nodiscard]] std::vector<MapLegendFrame> all() const {
    std::vector<PlacedFrame> placed;
    for (const LegendFrame& frame : legend_.frames) placed.push_back(placedFrame(frame));
    const auto above = [](const PlacedFrame& a, const PlacedFrame& b) {
      return std::pair(a.place->y, a.place->x) < std::pair(b.place->y, b.place->x);
    };
    if (std::all_of(placed.begin(), placed.end(), [](const PlacedFrame& f) { return f.place.has_value(); }))
      std::stable_sort(placed.begin(), placed.end(), above);
    std::vector<MapLegendFrame> frames;
    for (PlacedFrame& frame : placed) frames.push_back(std::move(frame.frame));
    return frames;
  }

 private:
  [[nodiscard]] PlacedFrame placedFrame(const LegendFrame& written) const {
    const Layer& layer = map_.layers[layerIndexOf(map_, written.layer, session_)];
    PlacedFrame placed;
    if (written.place) placed.place = session_.point(written.place->at);
    MapLegendFrame& frame = placed.frame;
    frame.layer = layer.name;
    const std::optional<StyleClause>& border = written.border ? written.border : legend_.defaultBorder;
    if (border) frame.border = evaluatePen(*border, session_.scope);
    if (layer.theme) return placed;  // its own legend says all
    frame.title = text(written.title, legend_.defaultTitle, layer);
    frame.subtitle = text(written.subtitle, legend_.defaultSubtitle, layer);
    frame.titleFont = font(written.title.font, legend_.defaultTitle.font);
    frame.subtitleFont = font(written.subtitle.font, legend_.defaultSubtitle.font);
    frame.lineFont = font(written.sampleFont, legend_.defaultStyle.font);
    for (const LegendSample& sample : written.samples) {
      frame.lines.push_back(
          {patternText(sample.text, layer), kindOf(sample.kind), evaluate(sample.style, session_.scope)});
    }
    return placed;
  }

  [[nodiscard]] std::string text(const FrameText& own, const FrameText& byDefault, const Layer& layer) const {
    if (own.text) return patternText(own.text, layer);
    return byDefault.text ? patternText(byDefault.text, layer) : std::string();
  }

  [[nodiscard]] std::string patternText(const ExpressionPtr& pattern, const Layer& layer) const {
    std::string result;
    for (const char c : withLineBreaks(session_.text(pattern))) {
      if (c == '#') {
        result += layer.name;
      } else if (c == '%') {
        result += kindName(layer);
      } else {
        result += c;
      }
    }
    return result;
  }

  [[nodiscard]] std::optional<Font> font(const std::optional<StyleClause>& own,
                                         const std::optional<StyleClause>& byDefault) const {
    if (own) return evaluateFont(*own, session_.scope);
    if (byDefault) return evaluateFont(*byDefault, session_.scope);
    return std::nullopt;
  }

  const CreateCartographicLegend& legend_;
  const Map& map_;
  const SessionState& session_;
};

}  // namespace

// A document of its own, of which the id is all that is kept; what its frames say shows in the map's legend.
void execute(SessionState& session, const CreateCartographicLegend& statement) {
  MapWindow& window = session.windowOrFront(statement.window);
  window.map().legendFrames = Frames(statement, window.map(), session).all();
  session.passOverDocument();
  window.changed();
}

}  // namespace motor
