#include "motor/language/parsing/layer_parser.h"

#include <array>

#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/style_parser.h"

namespace motor {

namespace {

LayerDisplay parseDisplay(TokenStream& stream) {
  if (stream.acceptWord("off")) return LayerDisplay::off;
  if (stream.acceptWord("graphic")) return LayerDisplay::graphic;
  if (stream.acceptWord("global")) return LayerDisplay::global;
  if (stream.acceptWord("value")) return LayerDisplay::value;
  stream.failExpecting("Off, Graphic, Global o Value");
}

void addStyles(StyleList& list, TokenStream& stream) {
  while (auto clause = acceptStyleClause(stream)) addStyle(list, std::move(*clause));
}

void readLabel(TokenStream& stream, LayerChange& layer) {
  const Position position = stream.before().position;
  layer.label = parseLabelClause(stream, position);
}

bool isRangeNext(const TokenStream& stream) { return stream.isSign("(", 1); }

using Rule = ClauseRule<LayerChange>;

constexpr std::array kRules = {
    Rule{"display", Support::done,
         [](TokenStream& stream, LayerChange& layer) { layer.display = parseDisplay(stream); }},
    Rule{"global", Support::done, [](TokenStream& stream, LayerChange& layer) { addStyles(layer.global, stream); }},
    Rule{"zoom", Support::done, [](TokenStream& stream, LayerChange& layer) { layer.zoom = parseZoomRange(stream); },
         isRangeNext},
    Rule{"selectable", Support::done, readSwitch<&LayerChange::selectable>},
    Rule{"editable", Support::done, readSwitch<&LayerChange::editable>},
    Rule{"arrows", Support::done, readSwitch<&LayerChange::arrows>},
    Rule{"nodes", Support::done, readSwitch<&LayerChange::nodes>},
    Rule{"centroids", Support::done, readSwitch<&LayerChange::centroids>},
    Rule{"label", Support::done, readLabel},
    Rule{"default zoom", Support::passedOver, readNothing<LayerChange>},
    // How the colours of a picture are changed.
    Rule{"contrast", Support::passedOver, ignoreExpression<LayerChange>},
    Rule{"brightness", Support::passedOver, ignoreExpression<LayerChange>},
    Rule{"alpha", Support::passedOver, ignoreExpression<LayerChange>},
    Rule{"color", Support::passedOver, ignoreExpression<LayerChange>},
    Rule{"transparency", Support::passedOver, ignoreSwitch<LayerChange>},
    Rule{"grayscale", Support::passedOver, ignoreSwitch<LayerChange>},
};

}  // namespace

LayerChange parseLayerChange(TokenStream& stream, Position position) {
  LayerChange layer;
  layer.position = position;
  layer.layer = parseLayerReference(stream);
  acceptClauses<LayerChange>(stream, kRules, layer);
  return layer;
}

void addLayerEntries(ClauseEntries& entries, const std::string& within) {
  addEntries<LayerChange>(entries, within, kRules);
  addLabelEntries(entries, within + " label");
}

ZoomRange parseZoomRange(TokenStream& stream) {
  ZoomRange zoom;
  zoom.position = stream.position();
  const CoordinatePair range = parseCoordinatePair(stream);
  zoom.minimum = range.x;
  zoom.maximum = range.y;
  zoom.unit = parseUnits(stream);
  if (stream.isAnyWord({"on", "off"})) zoom.on = parseSwitch(stream);
  return zoom;
}

}  // namespace motor
