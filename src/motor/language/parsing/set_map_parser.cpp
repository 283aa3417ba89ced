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

SetMap::Preserve parsePreserve(TokenStream& stream) {
  if (stream.acceptWord("zoom")) return SetMap::Preserve::zoom;
  if (stream.acceptWord("scale")) return SetMap::Preserve::scale;
  stream.failExpecting("Zoom o Scale");
}

SetMap::Status parseStatus(TokenStream& stream) {
  if (stream.acceptWord("scale")) return SetMap::Status::scale;
  if (stream.acceptWord("zoom")) return SetMap::Status::zoom;
  if (stream.acceptWord("position")) return SetMap::Status::position;
  stream.failExpecting("Scale, Zoom o Position");
}

std::string parseUnit(TokenStream& stream) {
  stream.expectWord("units", "Units");
  return stream.expectText("una unidad entre comillas");
}

// Distance Units u, or Distance Type Cartesian | Spherical, which is not kept: lengths follow the coordinate system.
void parseDistance(TokenStream& stream, SetMap& map) {
  if (!stream.acceptWord("type")) {
    map.distanceUnit = parseUnit(stream);
  } else if (!stream.acceptWord("cartesian") && !stream.acceptWord("spherical")) {
    stream.failExpecting("Cartesian o Spherical");
  }
}

ClippingClause parseClipping(TokenStream& stream) {
  ClippingClause clipping{stream.position(), nullptr};
  if (stream.acceptWord("off")) return clipping;
  stream.expectWord("object", "Off u Object");
  clipping.object = parseExpression(stream);
  return clipping;
}

bool acceptUnits(TokenStream& stream, SetMap& map) {
  if (stream.acceptWord("distance")) {
    parseDistance(stream, map);
  } else if (stream.acceptWord("area")) {
    map.areaUnit = parseUnit(stream);
  } else if (stream.acceptWord("xy")) {
    map.xyUnit = parseUnit(stream);
  } else {
    return false;
  }
  return true;
}

bool acceptView(TokenStream& stream, SetMap& map) {
  if (stream.acceptWord("coordsys")) {
    map.coordSys = parseCoordSysClause(stream);
  } else if (stream.acceptWord("center")) {
    map.center = parseCoordinatePair(stream);
  } else if (stream.acceptWord("zoom")) {
    map.zoom = parseZoom(stream);
  } else if (stream.acceptWord("scale")) {
    map.zoom = parseScale(stream);
  } else if (stream.acceptWord("preserve")) {
    map.preserve = parsePreserve(stream);
  } else if (stream.acceptWord("display")) {
    map.status = parseStatus(stream);
  } else {
    return false;
  }
  return true;
}

bool acceptMapClause(TokenStream& stream, SetMap& map) {
  const Position position = stream.position();
  if (acceptView(stream, map) || acceptUnits(stream, map)) return true;
  if (stream.acceptWord("redraw")) {
    map.redraw = parseSwitch(stream);
  } else if (stream.acceptWord("clipping")) {
    map.clipping = parseClipping(stream);
  } else if (stream.acceptWord("order")) {
    map.order = parseExpressionList(stream);
  } else if (stream.acceptWord("layer")) {
    map.layers.push_back(parseLayerChange(stream, position));
  } else {
    return false;
  }
  return true;
}

}  // namespace

Statement parseSetMap(TokenStream& stream, Position position) {
  SetMap map;
  map.position = position;
  map.window = parseWindowClause(stream);
  if (!acceptMapClause(stream, map)) stream.failExpecting("una cláusula de Set Map");
  while (acceptMapClause(stream, map)) {
  }
  return map;
}

}  // namespace motor
