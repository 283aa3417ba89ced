#include "motor/language/parsing/layer_parser.h"

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

struct SwitchWord {
  const char* word;
  std::optional<bool> LayerChange::*field;
};
constexpr SwitchWord kSwitches[] = {
    {"selectable", &LayerChange::selectable}, {"editable", &LayerChange::editable},   {"arrows", &LayerChange::arrows},
    {"nodes", &LayerChange::nodes},           {"centroids", &LayerChange::centroids},
};

bool acceptSwitch(TokenStream& stream, LayerChange& layer) {
  for (const SwitchWord& row : kSwitches) {
    if (!stream.acceptWord(row.word)) continue;
    layer.*row.field = parseSwitch(stream);
    return true;
  }
  return false;
}

// How the colours of a picture are changed: read and not kept.
bool acceptPictureClause(TokenStream& stream) {
  if (stream.isAnyWord({"contrast", "brightness", "alpha", "color"})) {
    stream.next();
    static_cast<void>(parseExpression(stream));
    return true;
  }
  if (!stream.isAnyWord({"transparency", "grayscale"})) return false;
  stream.next();
  static_cast<void>(parseSwitch(stream));
  return true;
}

bool acceptLayerClause(TokenStream& stream, LayerChange& layer) {
  const Position position = stream.position();
  if (stream.acceptWord("display")) {
    layer.display = parseDisplay(stream);
  } else if (stream.acceptWord("global")) {
    addStyles(layer.global, stream);
  } else if (stream.isWord("zoom") && stream.isSign("(", 1)) {
    stream.next();
    layer.zoom = parseZoomRange(stream);
  } else if (stream.acceptWord("label")) {
    layer.label = parseLabelClause(stream, position);
  } else if (stream.acceptWords("default", "zoom")) {
    layer.defaultZoom = true;
  } else {
    return acceptSwitch(stream, layer) || acceptPictureClause(stream);
  }
  return true;
}

}  // namespace

LayerChange parseLayerChange(TokenStream& stream, Position position) {
  LayerChange layer;
  layer.position = position;
  layer.layer = parseLayerReference(stream);
  while (acceptLayerClause(stream, layer)) {
  }
  return layer;
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
