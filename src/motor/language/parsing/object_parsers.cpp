#include <array>
#include <cmath>

#include "motor/language/expressions/literal.h"
#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"
#include "motor/language/parsing/style_parser.h"

// Create Point, Line, Pline, Region, Rect, RoundRect, Ellipse, Arc, Text.
namespace motor {

namespace {

CreateObject begin(TokenStream& stream, Position position, CreateObject::Kind kind) {
  CreateObject object;
  object.position = position;
  object.kind = kind;
  if (stream.acceptWord("into")) {
    stream.expectWord("window", "Window");
    object.window = parseExpression(stream);
  }
  return object;
}

std::vector<CoordinatePair> parsePoints(TokenStream& stream, std::size_t count) {
  std::vector<CoordinatePair> points;
  for (std::size_t i = 0; i < count; ++i) points.push_back(parseCoordinatePair(stream));
  return points;
}

std::vector<CoordinatePair> parseAllPoints(TokenStream& stream) {
  std::vector<CoordinatePair> points;
  while (stream.isSign("(")) points.push_back(parseCoordinatePair(stream));
  return points;
}

// A whole number written out.
std::size_t parseCount(TokenStream& stream) {
  constexpr double kMaximum = 10'000'000;
  const Token& token = stream.peek();
  if (token.kind != Token::Kind::number || token.number != std::floor(token.number) || token.number > kMaximum) {
    stream.failExpecting("un número de puntos");
  }
  return static_cast<std::size_t>(stream.next().number);
}

Statement parseTwoPoints(TokenStream& stream, Position position, CreateObject::Kind kind, std::size_t angles) {
  CreateObject object = begin(stream, position, kind);
  object.parts.push_back(parsePoints(stream, 2));
  for (std::size_t i = 0; i < angles; ++i) object.angles.push_back(parseExpression(stream));
  object.style = parseStyleList(stream);
  return object;
}

template <TextJustify kJustify>
void readJustify(TokenStream& /*stream*/, CreateObject& object) {
  object.justify = kJustify;
}

void ignorePoint(TokenStream& stream, CreateObject& /*object*/) { static_cast<void>(parseCoordinatePair(stream)); }

using Rule = ClauseRule<CreateObject>;

// The engine's smoothing and centroid of an object.
constexpr std::array kShapeRules = {
    Rule{"smooth", Support::passedOver, readNothing<CreateObject>},
    Rule{"center", Support::passedOver, ignorePoint},
};

bool isStyleNext(const TokenStream& stream) { return stream.isSign("(", 1); }

constexpr std::array kTextRules = {
    Rule{"font", Support::done,
         [](TokenStream& stream, CreateObject& object) { addStyle(object.style, parseStyleArguments(stream)); },
         isStyleNext},
    Rule{"pen", Support::passedOver,
         [](TokenStream& stream, CreateObject& object) { addStyle(object.style, parseStyleArguments(stream)); },
         isStyleNext},
    Rule{"angle", Support::done, readExpression<&CreateObject::angle>},
    Rule{"spacing", Support::done, readExpression<&CreateObject::spacing>},
    Rule{"justify left", Support::done, readJustify<TextJustify::left>},
    Rule{"justify center", Support::done, readJustify<TextJustify::center>},
    Rule{"justify right", Support::done, readJustify<TextJustify::right>},
    Rule{"label line simple", Support::passedOver, ignorePoint},
    Rule{"label line arrow", Support::passedOver, ignorePoint},
};

}  // namespace

Statement parseCreatePoint(TokenStream& stream, Position position) {
  CreateObject object = begin(stream, position, CreateObject::Kind::point);
  object.parts.push_back(parsePoints(stream, 1));
  object.style = parseStyleList(stream);
  return object;
}

Statement parseCreateLine(TokenStream& stream, Position position) {
  return parseTwoPoints(stream, position, CreateObject::Kind::line, 0);
}

Statement parseCreatePolyline(TokenStream& stream, Position position) {
  CreateObject object = begin(stream, position, CreateObject::Kind::polyline);
  if (stream.acceptWord("multiple")) {
    const std::size_t parts = parseCount(stream);
    for (std::size_t i = 0; i < parts; ++i) object.parts.push_back(parsePoints(stream, parseCount(stream)));
  } else if (stream.peek().kind == Token::Kind::number) {
    object.parts.push_back(parsePoints(stream, parseCount(stream)));
  } else {
    object.parts.push_back(parseAllPoints(stream));
  }
  object.style = parseStyleList(stream);
  acceptClauses<CreateObject>(stream, kShapeRules, object);
  return object;
}

Statement parseCreateRegion(TokenStream& stream, Position position) {
  CreateObject object = begin(stream, position, CreateObject::Kind::region);
  const std::size_t parts = parseCount(stream);
  for (std::size_t i = 0; i < parts; ++i) object.parts.push_back(parsePoints(stream, parseCount(stream)));
  object.style = parseStyleList(stream);
  acceptClauses<CreateObject>(stream, kShapeRules, object);
  return object;
}

Statement parseCreateRectangle(TokenStream& stream, Position position) {
  return parseTwoPoints(stream, position, CreateObject::Kind::rectangle, 0);
}

Statement parseCreateRoundedRectangle(TokenStream& stream, Position position) {
  return parseTwoPoints(stream, position, CreateObject::Kind::roundedRectangle, 1);
}

Statement parseCreateEllipse(TokenStream& stream, Position position) {
  return parseTwoPoints(stream, position, CreateObject::Kind::ellipse, 0);
}

Statement parseCreateArc(TokenStream& stream, Position position) {
  return parseTwoPoints(stream, position, CreateObject::Kind::arc, 2);
}

Statement parseCreateText(TokenStream& stream, Position position) {
  CreateObject object = begin(stream, position, CreateObject::Kind::text);
  object.text = parseExpression(stream);
  object.parts.push_back(parsePoints(stream, 2));
  acceptClauses<CreateObject>(stream, kTextRules, object);
  return object;
}

ClauseEntries shapeClauses() { return entriesOf<CreateObject>("", kShapeRules); }

ClauseEntries textClauses() { return entriesOf<CreateObject>("", kTextRules); }

}  // namespace motor
