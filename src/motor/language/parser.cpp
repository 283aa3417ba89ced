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

const StatementRule* findStatement(const TokenStream& stream, std::size_t ahead = 0) {
  for (const StatementRule& rule : statementRules()) {
    if (areNext(stream, ahead, {rule.first, rule.second, rule.third})) return &rule;
  }
  return nullptr;
}

const SkippedRule* findSkipped(std::span<const SkippedRule> rules, const TokenStream& stream, std::size_t ahead = 0) {
  for (const SkippedRule& rule : rules) {
    if (areNext(stream, ahead, {rule.first, rule.second})) return &rule;
  }
  return nullptr;
}

bool isAssignment(const TokenStream& stream) {
  return stream.peek().kind == Token::Kind::name && stream.isSign("=", 1);
}

bool isStatement(const TokenStream& stream) {
  return findStatement(stream) != nullptr || findSkipped(passedOverRules(), stream) != nullptr ||
         findSkipped(refusedRules(), stream) != nullptr;
}

std::size_t wordCount(const SkippedRule& rule) { return rule.second == nullptr ? 1 : 2; }
std::size_t wordCount(const StatementRule& rule) { return rule.second == nullptr ? 1 : rule.third == nullptr ? 2 : 3; }

// Reads a statement's words and everything up to the beginning of the next statement; gives the words as written.
std::string skip(TokenStream& stream, const SkippedRule& rule, bool mayHoldAssignments) {
  const std::size_t first = stream.index();
  for (std::size_t i = 0; i < wordCount(rule); ++i) stream.next();
  std::string name = stream.written(first);
  int depth = 0;
  while (!stream.atEnd()) {
    if (depth == 0 && (isStatement(stream) || (!mayHoldAssignments && isAssignment(stream)))) break;
    if (stream.isSign("(")) ++depth;
    if (stream.isSign(")")) --depth;
    stream.next();
  }
  return name;
}

Statement parseStatement(TokenStream& stream) {
  const Position position = stream.position();
  if (const StatementRule* rule = findStatement(stream)) {
    for (std::size_t i = 0; i < wordCount(*rule); ++i) stream.next();
    return rule->parse(stream, position);
  }
  if (const SkippedRule* rule = findSkipped(passedOverRules(), stream)) {
    return PassedOver{position, skip(stream, *rule, false)};
  }
  if (const SkippedRule* rule = findSkipped(refusedRules(), stream)) {
    return Refused{position, skip(stream, *rule, true)};
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
