#include "motor/language/parser.h"

#include <algorithm>

#include "motor/language/parsing/expression_parser.h"
#include "motor/language/parsing/statement_table.h"

namespace motor {

namespace {

// The first rule whose words come next, or null.
template <typename Rule>
const Rule* findRule(std::span<const Rule> rules, const TokenStream& stream) {
  const auto found =
      std::find_if(rules.begin(), rules.end(), [&](const Rule& rule) { return stream.wordsNext(rule.words) > 0; });
  return found == rules.end() ? nullptr : &*found;
}

bool isAssignment(const TokenStream& stream) {
  return stream.peek().kind == Token::Kind::name && stream.isSign("=", 1);
}

bool isStatement(const TokenStream& stream) {
  return findRule(statementRules(), stream) != nullptr || findRule(passedOverRules(), stream) != nullptr ||
         findRule(refusedRules(), stream) != nullptr;
}

// Reads a statement's own words; gives them as written.
std::string readWords(TokenStream& stream, const char* words) {
  const std::size_t first = stream.index();
  stream.beginStatement(words);
  stream.skip(stream.wordsNext(words));
  return stream.written(first);
}

// Reads up to the beginning of the next statement: whatever a statement that is refused says, it stays refused.
void skip(TokenStream& stream) {
  int depth = 0;
  while (!stream.atEnd()) {
    if (depth == 0 && isStatement(stream)) break;
    if (stream.isSign("(")) ++depth;
    if (stream.isSign(")")) --depth;
    stream.next();
  }
}

Statement parseStatement(TokenStream& stream) {
  const Position position = stream.position();
  if (const StatementRule* rule = findRule(statementRules(), stream)) {
    readWords(stream, rule->words);
    return rule->parse(stream, position);
  }
  if (const PassedOverRule* rule = findRule(passedOverRules(), stream)) {
    std::string name = readWords(stream, rule->words);
    stream.passOver(position, {});
    const TokenStream::Quiet quiet(stream);
    rule->read(stream);
    return PassedOver{position, std::move(name)};
  }
  if (const RefusedRule* rule = findRule(refusedRules(), stream)) {
    std::string name = readWords(stream, rule->words);
    skip(stream);
    return Refused{position, std::move(name), rule->reason};
  }
  if (isAssignment(stream)) return parseAssignment(stream, position);
  stream.failExpecting("el principio de una instrucción");
}

}  // namespace

Program parseProgramWhole(std::string_view source, Position start) {
  TokenStream stream(source, start);
  Program program;
  while (!stream.atEnd()) program.statements.push_back(parseStatement(stream));
  program.passedOver = stream.passedOver();
  return program;
}

std::vector<Statement> parseProgram(std::string_view source, Position start) {
  return parseProgramWhole(source, start).statements;
}

ExpressionPtr parseExpression(std::string_view source) {
  TokenStream stream(source, {});
  ExpressionPtr expression = parseExpression(stream);
  if (!stream.atEnd()) stream.failExpecting("el final de la expresión");
  return expression;
}

}  // namespace motor
