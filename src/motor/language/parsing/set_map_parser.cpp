#include <array>

#include "motor/language/parsing/layer_parser.h"
#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"

// Set Map.
namespace motor {

namespace {

ZoomClause parseZoom(TokenStream& stream) {
  const Position position = stream.position();
  if (!stream.acceptWord("entire")) return parseMeasure(stream);
  ZoomEntire entire{position, std::nullopt};
  if (stream.acceptWord("layer")) entire.layer = parseLayerReference(stream);
  return entire;
}

ZoomClause parseScale(TokenStream& stream) {
  ScaleClause scale;
  scale.position = stream.position();
  scale.screen = parseMeasure(stream);
  stream.expectWord("for", "For");
  scale.ground = parseMeasure(stream);
  return scale;
}

template <SetMap::Preserve kPreserved>
void setPreserved(TokenStream& /*stream*/, SetMap& map) {
  map.preserve = kPreserved;
}

SetMap::Status parseStatus(TokenStream& stream) {
  if (stream.acceptWord("scale")) return SetMap::Status::scale;
  if (stream.acceptWord("zoom")) return SetMap::Status::zoom;
  if (stream.acceptWord("position")) return SetMap::Status::position;
  stream.failExpecting("Scale, Zoom o Position");
}

std::string parseUnit(TokenStream& stream) { return stream.expectText("una unidad entre comillas"); }

// Lengths follow the coordinate system, whatever is said here.
void ignoreDistanceType(TokenStream& stream, SetMap& /*map*/) {
  if (!stream.acceptWord("cartesian") && !stream.acceptWord("spherical")) {
    stream.failExpecting("Cartesian o Spherical");
  }
}

// Off | Object o
void ignoreClipping(TokenStream& stream, SetMap& /*map*/) {
  if (stream.acceptWord("off")) return;
  stream.expectWord("object", "Off u Object");
  static_cast<void>(parseExpression(stream));
}

template <auto kField>
void readUnit(TokenStream& stream, SetMap& map) {
  map.*kField = parseUnit(stream);
}

void readLayer(TokenStream& stream, SetMap& map) {
  const Position position = stream.before().position;
  map.layers.push_back(parseLayerChange(stream, position));
}

using Rule = ClauseRule<SetMap>;

constexpr std::array kRules = {
    Rule{"coordsys", Support::done,
         [](TokenStream& stream, SetMap& map) { map.coordSys = parseCoordSysClause(stream); }},
    Rule{"center", Support::done, [](TokenStream& stream, SetMap& map) { map.center = parseCoordinatePair(stream); }},
    Rule{"zoom", Support::done, [](TokenStream& stream, SetMap& map) { map.zoom = parseZoom(stream); }},
    Rule{"scale", Support::done, [](TokenStream& stream, SetMap& map) { map.zoom = parseScale(stream); }},
    Rule{"preserve zoom", Support::done, setPreserved<SetMap::Preserve::zoom>},
    Rule{"preserve scale", Support::done, setPreserved<SetMap::Preserve::scale>},
    Rule{"display", Support::done, [](TokenStream& stream, SetMap& map) { map.status = parseStatus(stream); }},
    Rule{"distance type", Support::passedOver, ignoreDistanceType},
    Rule{"distance units", Support::done, readUnit<&SetMap::distanceUnit>},
    Rule{"area units", Support::done, readUnit<&SetMap::areaUnit>},
    Rule{"xy units", Support::done, readUnit<&SetMap::xyUnit>},
    Rule{"redraw", Support::passedOver, ignoreSwitch<SetMap>},
    Rule{"clipping", Support::passedOver, ignoreClipping},
    Rule{"order", Support::done, [](TokenStream& stream, SetMap& map) { map.order = parseExpressionList(stream); }},
    Rule{"layer", Support::done, readLayer},
};

}  // namespace

Statement parseSetMap(TokenStream& stream, Position position) {
  SetMap map;
  map.position = position;
  map.window = parseWindowClause(stream);
  if (!acceptClauses<SetMap>(stream, kRules, map)) stream.failExpecting("una cláusula de Set Map");
  return map;
}

ClauseEntries setMapClauses() {
  ClauseEntries entries;
  addEntries<SetMap>(entries, "", kRules);
  addLayerEntries(entries, "layer");
  return entries;
}

}  // namespace motor
