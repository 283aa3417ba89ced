#include "motor/language/parsing/part_parsers.h"

#include <algorithm>

#include "motor/language/special_windows.h"

namespace motor {

namespace {

bool isSpecialWindow(const Token& token) {
  return token.kind == Token::Kind::name && std::any_of(kSpecialWindows.begin(), kSpecialWindows.end(),
                                                        [&](const SpecialWindow& w) { return w.name == token.folded; });
}

// A number of a coordinate system's definition, with its sign, or a unit.
void readParameter(TokenStream& stream) {
  if (stream.peek().kind == Token::Kind::text) {
    stream.next();
    return;
  }
  if (!stream.acceptSign("-")) stream.acceptSign("+");
  if (stream.peek().kind != Token::Kind::number) stream.failExpecting("un número del sistema de coordenadas");
  stream.next();
}

void readParameters(TokenStream& stream) {
  do {
    readParameter(stream);
  } while (stream.acceptSign(","));
}

void readBounds(TokenStream& stream) {
  if (!stream.acceptWord("bounds")) return;
  for (int corner = 0; corner < 2; ++corner) {
    stream.expectSign("(");
    readParameters(stream);
    stream.expectSign(")");
  }
}

void readAffine(TokenStream& stream) {
  if (!stream.acceptWord("affine")) return;
  stream.expectWord("units", "Units");
  readParameters(stream);
}

void readEarth(TokenStream& stream) {
  if (stream.acceptWord("projection")) readParameters(stream);
  readAffine(stream);
  readBounds(stream);
}

void readUnitsAndBounds(TokenStream& stream) {
  readAffine(stream);
  stream.expectWord("units", "Units");
  readParameter(stream);
  readBounds(stream);
}

}  // namespace

Name parseName(TokenStream& stream, const char* what) {
  const Token token = stream.peek();
  if (token.kind != Token::Kind::name && token.kind != Token::Kind::text) stream.failExpecting(what);
  stream.next();
  Name name{token.text, token.position};
  const bool isTheme = token.kind == Token::Kind::name && stream.isSign("(") && stream.isSign(")", 2) &&
                       stream.peek(1).kind == Token::Kind::number;
  if (isTheme) {
    stream.next();
    name.text += "(" + stream.next().text + ")";
    stream.next();
  }
  return name;
}

std::vector<Name> parseNames(TokenStream& stream, const char* what) {
  std::vector<Name> names;
  do {
    names.push_back(parseName(stream, what));
  } while (stream.acceptSign(","));
  return names;
}

bool parseSwitch(TokenStream& stream) {
  if (stream.acceptWord("off")) return false;
  stream.acceptWord("on");
  return true;
}

CoordinatePair parseCoordinatePair(TokenStream& stream) {
  CoordinatePair pair;
  pair.position = stream.position();
  stream.expectSign("(");
  pair.x = parseExpression(stream);
  stream.expectSign(",");
  pair.y = parseExpression(stream);
  stream.expectSign(")");
  return pair;
}

std::string parseUnits(TokenStream& stream) {
  return stream.acceptWord("units") ? stream.expectText("una unidad entre comillas") : std::string();
}

Measure parseMeasure(TokenStream& stream) {
  Measure measure;
  measure.value = parseExpression(stream);
  measure.unit = parseUnits(stream);
  return measure;
}

Placement parsePlacement(TokenStream& stream) {
  Placement placement;
  placement.at = parseCoordinatePair(stream);
  placement.unit = parseUnits(stream);
  return placement;
}

LayerReference parseLayerReference(TokenStream& stream) {
  LayerReference layer;
  layer.position = stream.position();
  const Token::Kind kind = stream.peek().kind;
  if (kind == Token::Kind::text || kind == Token::Kind::name) {
    layer.name = parseName(stream, "una capa").text;
  } else if (kind == Token::Kind::number || stream.isSign("(")) {
    layer.number = parseOperand(stream);
  } else {
    stream.failExpecting("el número o el nombre de una capa");
  }
  return layer;
}

WindowReference parseWindowReference(TokenStream& stream) {
  WindowReference window;
  window.position = stream.position();
  if (isSpecialWindow(stream.peek())) {
    window.name = stream.next().folded;
  } else {
    window.id = parseExpression(stream);
  }
  return window;
}

ExpressionPtr parseWindowClause(TokenStream& stream) {
  return stream.acceptWord("window") ? parseExpression(stream) : nullptr;
}

CoordSysClause parseCoordSysClause(TokenStream& stream) {
  CoordSysClause clause;
  clause.position = stream.position();
  const std::size_t first = stream.index();
  if (stream.acceptWord("earth")) {
    readEarth(stream);
  } else if (stream.acceptWord("nonearth")) {
    clause.kind = CoordSysClause::Kind::nonEarth;
    readUnitsAndBounds(stream);
  } else if (stream.acceptWord("layout")) {
    clause.kind = CoordSysClause::Kind::layout;
    readUnitsAndBounds(stream);
  } else if (stream.acceptWord("table")) {
    clause.kind = CoordSysClause::Kind::table;
    clause.table = parseName(stream, "el nombre de una tabla").text;
  } else if (stream.acceptWord("window")) {
    clause.kind = CoordSysClause::Kind::window;
    clause.window = parseExpression(stream);
  } else {
    stream.failExpecting("Earth, NonEarth, Layout, Table o Window");
  }
  clause.text = stream.written(first);
  return clause;
}

int parseAnchor(TokenStream& stream) {
  constexpr int kAbove = 2;
  constexpr int kLeft = 4;
  constexpr int kRight = 5;
  constexpr int kBelow = 7;
  if (stream.acceptWord("center")) return 0;
  const bool above = stream.acceptWord("above");
  const bool below = !above && stream.acceptWord("below");
  const bool left = stream.acceptWord("left");
  const bool right = !left && stream.acceptWord("right");
  if (above || below) {
    stream.acceptWord("center");
    return (above ? kAbove : kBelow) + (left ? -1 : right ? 1 : 0);
  }
  if (!left && !right) stream.failExpecting("Center, Above, Below, Left o Right");
  return left ? kLeft : kRight;
}

void skipEditorTrailer(TokenStream& stream) {
  if (!stream.acceptSign("#")) return;
  while (!stream.isSign("#")) {
    if (stream.atEnd()) stream.failExpecting("«#»");
    stream.next();
  }
  stream.next();
}

}  // namespace motor
