#include "motor/language/parsing/expression_parser.h"

#include <algorithm>
#include <array>

#include "motor/language/expressions/between.h"
#include "motor/language/expressions/literal.h"
#include "motor/language/expressions/operation.h"
#include "motor/language/expressions/set_comparison.h"
#include "motor/language/parsing/select_parser.h"

namespace motor {

namespace {

constexpr const char* kTooLong = "la expresión es demasiado larga";

template <typename Node, typename... Parts>
ExpressionPtr make(const TokenStream& stream, Parts&&... parts) {
  auto node = std::make_shared<const Node>(std::forward<Parts>(parts)...);
  if (node->height() > kMaximumHeight) stream.fail(kTooLong);
  return node;
}

ExpressionPtr parseLevel(TokenStream& stream, int level);

// The second word of a spatial operator, and what the two mean.
struct SpatialWords {
  const char* first;
  const char* second;
  Operator op;
};
constexpr std::array kSpatialWords = {
    SpatialWords{"contains", "part", Operator::containsPart},
    SpatialWords{"contains", "entire", Operator::containsEntire},
    SpatialWords{"partly", "within", Operator::partlyWithin},
    SpatialWords{"entirely", "within", Operator::entirelyWithin},
};

// The operator that comes next, with how many tokens it is written.
struct NextOperator {
  Operator op;
  std::size_t tokens;
};

std::optional<NextOperator> peekOperator(const TokenStream& stream) {
  for (const SpatialWords& words : kSpatialWords) {
    if (stream.isWord(words.first) && stream.isWord(words.second, 1)) return NextOperator{words.op, 2};
  }
  const Token& token = stream.peek();
  if (token.kind != Token::Kind::name && token.kind != Token::Kind::sign) return std::nullopt;
  const auto op = binaryOperator(token.kind == Token::Kind::name ? token.folded : token.text);
  if (!op) return std::nullopt;
  return NextOperator{*op, 1};
}

// In, Between and Like may have a Not before them.
bool isNegatedComparison(const TokenStream& stream) {
  return stream.isWord("not") && stream.isAnyWord({"in", "between", "like"}, 1);
}

ExpressionPtr negatedIf(bool negated, const TokenStream& stream, Position position, ExpressionPtr node) {
  return negated ? make<UnaryOperation>(stream, position, Operator::logicalNot, std::move(node)) : node;
}

// (a, b, ...) or (Select ...)
ExpressionPtr parseSet(TokenStream& stream, Position position, Operator op, SetComparison::Quantifier quantifier,
                       ExpressionPtr value) {
  stream.expectSign("(");
  std::vector<ExpressionPtr> members;
  std::shared_ptr<const SelectStatement> select;
  if (stream.isWord("select")) {
    const Position at = stream.position();
    stream.next();
    const TokenStream::Level level(stream);
    select = std::make_shared<const SelectStatement>(parseSelect(stream, at));
  } else {
    members = parseExpressionList(stream);
  }
  stream.expectSign(")");
  return make<SetComparison>(stream, position, op, quantifier, std::move(value), std::move(members), std::move(select));
}

ExpressionPtr parseIn(TokenStream& stream, Position position, bool negated, ExpressionPtr value) {
  const auto quantifier = negated ? SetComparison::Quantifier::all : SetComparison::Quantifier::any;
  return parseSet(stream, position, negated ? Operator::notEqual : Operator::equal, quantifier, std::move(value));
}

ExpressionPtr parseBetween(TokenStream& stream, Position position, bool negated, ExpressionPtr value) {
  const int level = precedence(Operator::add);
  ExpressionPtr low = parseLevel(stream, level);
  stream.expectWord("and", "And entre los dos límites de Between");
  ExpressionPtr high = parseLevel(stream, level);
  return make<Between>(stream, position, negated, std::move(value), std::move(low), std::move(high));
}

// What follows a comparison's sign or word.
ExpressionPtr parseComparison(TokenStream& stream, Position position, Operator op, ExpressionPtr left) {
  if (stream.isAnyWord({"any", "all"}) && stream.isSign("(", 1)) {
    const auto quantifier =
        stream.next().isWord("any") ? SetComparison::Quantifier::any : SetComparison::Quantifier::all;
    return parseSet(stream, position, op, quantifier, std::move(left));
  }
  return make<BinaryOperation>(stream, position, op, std::move(left), parseLevel(stream, precedence(op) + 1));
}

// The comparisons of one operand, one after the other.
ExpressionPtr parseComparisons(TokenStream& stream) {
  const int level = precedence(Operator::equal);
  ExpressionPtr left = parseLevel(stream, level + 1);
  for (;;) {
    const Position position = stream.position();
    const bool negated = isNegatedComparison(stream);
    if (negated) stream.next();
    if (stream.acceptWord("in")) {
      left = parseIn(stream, position, negated, std::move(left));
    } else if (stream.acceptWord("between")) {
      left = parseBetween(stream, position, negated, std::move(left));
    } else {
      const auto op = peekOperator(stream);
      if (!op || precedence(op->op) != level) return left;
      for (std::size_t i = 0; i < op->tokens; ++i) stream.next();
      left = negatedIf(negated, stream, position, parseComparison(stream, position, op->op, std::move(left)));
    }
  }
}

ExpressionPtr parseUnary(TokenStream& stream, Operator op) {
  const TokenStream::Level level(stream);
  const Position position = stream.position();
  stream.next();
  ExpressionPtr operand = parseLevel(stream, precedence(op));
  const auto* literal = dynamic_cast<const Literal*>(operand.get());
  if (op == Operator::negate && literal != nullptr && literal->value().number() != nullptr) {
    return make<Literal>(stream, position, -*literal->value().number());
  }
  return make<UnaryOperation>(stream, position, op, std::move(operand));
}

// An operand with the powers that follow it; the exponent may have a sign of its own.
ExpressionPtr parsePowers(TokenStream& stream) {
  ExpressionPtr left = parseOperand(stream);
  while (stream.isSign("^")) {
    const Position position = stream.position();
    stream.next();
    ExpressionPtr right = stream.isSign("-")   ? parseUnary(stream, Operator::negate)
                          : stream.isSign("+") ? parseUnary(stream, Operator::plus)
                                               : parseOperand(stream);
    left = make<BinaryOperation>(stream, position, Operator::power, std::move(left), std::move(right));
  }
  return left;
}

ExpressionPtr parseBinaries(TokenStream& stream, int level) {
  ExpressionPtr left = parseLevel(stream, level + 1);
  for (;;) {
    const auto op = peekOperator(stream);
    if (!op || precedence(op->op) != level) return left;
    const Position position = stream.position();
    stream.next();
    left = make<BinaryOperation>(stream, position, op->op, std::move(left), parseLevel(stream, level + 1));
  }
}

// An expression of operators that bind at least as tightly as `level`.
ExpressionPtr parseLevel(TokenStream& stream, int level) {
  if (level >= precedence(Operator::power)) return parsePowers(stream);
  if (level == precedence(Operator::negate)) {
    if (stream.isSign("-")) return parseUnary(stream, Operator::negate);
    if (stream.isSign("+")) return parseUnary(stream, Operator::plus);
    return parseLevel(stream, level + 1);
  }
  if (level == precedence(Operator::equal)) return parseComparisons(stream);
  if (level == precedence(Operator::logicalNot)) {
    return stream.isWord("not") ? parseUnary(stream, Operator::logicalNot) : parseLevel(stream, level + 1);
  }
  return parseBinaries(stream, level);
}

}  // namespace

ExpressionPtr parseExpression(TokenStream& stream) {
  const TokenStream::Level level(stream);
  return parseLevel(stream, precedence(Operator::logicalOr));
}

WrittenExpression parseWrittenExpression(TokenStream& stream) {
  const std::size_t first = stream.index();
  WrittenExpression result;
  result.expression = parseExpression(stream);
  result.text = stream.written(first);
  return result;
}

std::vector<ExpressionPtr> parseExpressionList(TokenStream& stream) {
  std::vector<ExpressionPtr> list;
  do {
    list.push_back(parseExpression(stream));
  } while (stream.acceptSign(","));
  return list;
}

}  // namespace motor
