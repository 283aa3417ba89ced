#include "motor/language/parsing/part_parsers.h"
#include "motor/language/parsing/statement_parsers.h"

// Run ..., End, Dim, Undim, assignments, Set CoordSys, Set ... Units, Set Format.
namespace motor {

namespace {

constexpr const char* kVariable = "el nombre de una variable";

Name parseVariable(TokenStream& stream) {
  if (stream.peek().kind != Token::Kind::name) stream.failExpecting(kVariable);
  const Token& token = stream.next();
  return {token.text, token.position};
}

// As type [* length]
std::string parseType(TokenStream& stream) {
  stream.expectWord("as", "As");
  if (stream.peek().kind != Token::Kind::name) stream.failExpecting("un tipo");
  std::string type = stream.next().folded;
  if (stream.acceptSign("*")) static_cast<void>(parseOperand(stream));
  return type;
}

Statement parseUnitsOf(TokenStream& stream, Position position, SetUnits::Kind kind) {
  stream.expectWord("units", "Units");
  return SetUnits{position, kind, parseExpression(stream)};
}

}  // namespace

Statement parseRunMenuCommand(TokenStream& stream, Position position) {
  RunMenuCommand run;
  run.position = position;
  run.isOwnId = stream.acceptWord("id");
  run.code = parseExpression(stream);
  return run;
}

Statement parseRunApplication(TokenStream& stream, Position position) {
  return RunApplication{position, parseExpression(stream)};
}

Statement parseRunCommand(TokenStream& stream, Position position) {
  return RunCommand{position, parseExpression(stream)};
}

Statement parseEndSession(TokenStream& stream, Position position) {
  stream.acceptWord("interactive");
  return EndSession{position};
}

Statement parseDim(TokenStream& stream, Position position) {
  Dim dim;
  dim.position = position;
  std::size_t untyped = 0;
  do {
    dim.variables.push_back({parseVariable(stream), ""});
    if (stream.isSign(",")) continue;
    const std::string type = parseType(stream);
    for (; untyped < dim.variables.size(); ++untyped) dim.variables[untyped].type = type;
  } while (stream.acceptSign(","));
  return dim;
}

Statement parseUndim(TokenStream& stream, Position position) {
  Undim undim;
  undim.position = position;
  do {
    undim.names.push_back(parseVariable(stream));
  } while (stream.acceptSign(","));
  return undim;
}

Statement parseAssignment(TokenStream& stream, Position position) {
  Assignment assignment;
  assignment.position = position;
  assignment.name = parseVariable(stream);
  stream.expectSign("=");
  assignment.value = parseExpression(stream);
  return assignment;
}

Statement parseSetCoordSys(TokenStream& stream, Position position) {
  return SetCoordSys{position, parseCoordSysClause(stream)};
}

Statement parseSetDistanceUnits(TokenStream& stream, Position position) {
  return parseUnitsOf(stream, position, SetUnits::Kind::distance);
}

Statement parseSetAreaUnits(TokenStream& stream, Position position) {
  return parseUnitsOf(stream, position, SetUnits::Kind::area);
}

Statement parseSetPaperUnits(TokenStream& stream, Position position) {
  return parseUnitsOf(stream, position, SetUnits::Kind::paper);
}

Statement parseSetFormat(TokenStream& stream, Position position) {
  SetFormat format;
  format.position = position;
  if (stream.acceptWord("date")) {
    format.kind = SetFormat::Kind::date;
  } else {
    stream.expectWord("number", "Number o Date");
  }
  format.format = parseExpression(stream);
  return format;
}

}  // namespace motor
