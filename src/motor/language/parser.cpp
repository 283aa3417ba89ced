#include "motor/language/parser.h"

#include <algorithm>

#include "motor/language/parsing/expression_parser.h"
#include "motor/language/parsing/statement_table.h"

namespace motor {

namespace {

// Whether these words (the later ones may be null) come next after `ahead` tokens.
bool areNext(const TokenStream& stream, std::size_t ahead, std::initializer_list<const char*> words) {
  for (const char* word : words) {
    if (word == nullptr) return true;
    if (!stream.isWord(word, ahead++)) return false;
  }
  return true;
}

template <typename Rule>
bool begins(const TokenStream& stream, const Rule& rule) {
  return areNext(stream, 0, {rule.first, rule.second});
}
bool begins(const TokenStream& stream, const StatementRule& rule) {
  return areNext(stream, 0, {rule.first, rule.second, rule.third});
}

// The first rule whose words come next, or null.
template <typename Rule>
const Rule* findRule(std::span<const Rule> rules, const TokenStream& stream) {
  const auto found = std::find_if(rules.begin(), rules.end(), [&](const Rule& rule) { return begins(stream, rule); });
  return found == rules.end() ? nullptr : &*found;
}

bool isAssignment(const TokenStream& stream) {
  return stream.peek().kind == Token::Kind::name && stream.isSign("=", 1);
}

bool isStatement(const TokenStream& stream) {
  return findRule(statementRules(), stream) != nullptr || findRule(passedOverRules(), stream) != nullptr ||
         findRule(refusedRules(), stream) != nullptr;
}

std::string readWords(TokenStream& stream, const char* second) {
  const std::size_t first = stream.index();
  stream.next();
  if (second != nullptr) stream.next();
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
    readWords(stream, rule->second);
    if (rule->third != nullptr) stream.next();
    return rule->parse(stream, position);
  }
  if (const PassedOverRule* rule = findRule(passedOverRules(), stream)) {
    std::string name = readWords(stream, rule->second);
    rule->read(stream);
    return PassedOver{position, std::move(name)};
  }
  if (const RefusedRule* rule = findRule(refusedRules(), stream)) {
    std::string name = readWords(stream, rule->second);
    skip(stream);
    return Refused{position, std::move(name)};
  }
  if (isAssignment(stream)) return parseAssignment(stream, position);
  stream.failExpecting("el principio de una instrucción");
}

}  // namespace

std::vector<Statement> parseProgram(std::string_view source, Position start) {
  TokenStream stream(source, start);
  std::vector<Statement> statements;
  while (!stream.atEnd()) statements.push_back(parseStatement(stream));
  return statements;
}

ExpressionPtr parseExpression(std::string_view source) {
  TokenStream stream(source, {});
  ExpressionPtr expression = parseExpression(stream);
  if (!stream.atEnd()) stream.failExpecting("el final de la expresión");
  return expression;
}

}  // namespace motor
