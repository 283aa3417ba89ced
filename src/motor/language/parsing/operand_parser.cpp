#include <algorithm>
#include <array>
#include <string_view>

#include "motor/language/expressions/aggregate.h"
#include "motor/language/expressions/column_by_number.h"
#include "motor/language/expressions/function_call.h"
#include "motor/language/expressions/literal.h"
#include "motor/language/expressions/name_reference.h"
#include "motor/language/parsing/expression_parser.h"

namespace motor {

namespace {

constexpr const char* kExpected = "una expresión";

constexpr std::array<std::string_view, 13> kReserved = {
    "and", "between", "by", "contains", "entirely", "from", "in", "intersects", "like", "mod", "or", "partly", "where"};

// Whether the next word belongs to the grammar and names no column or variable; Like is also a function.
bool isReserved(const TokenStream& stream) {
  const Token& token = stream.peek();
  if (token.isWord("like") && stream.isSign("(", 1)) return false;
  return std::find(kReserved.begin(), kReserved.end(), token.folded) != kReserved.end();
}

struct AggregateName {
  const char* name;
  Aggregate::Kind kind;
};
constexpr std::array kAggregates = {
    AggregateName{"count", Aggregate::Kind::count}, AggregateName{"sum", Aggregate::Kind::sum},
    AggregateName{"avg", Aggregate::Kind::average}, AggregateName{"min", Aggregate::Kind::minimum},
    AggregateName{"max", Aggregate::Kind::maximum}, AggregateName{"wtavg", Aggregate::Kind::weightedAverage},
};

ExpressionPtr checked(const TokenStream& stream, ExpressionPtr node) {
  if (node->height() > kMaximumHeight) stream.fail("la expresión es demasiado larga");
  return node;
}

std::vector<ExpressionPtr> parseArguments(TokenStream& stream) {
  std::vector<ExpressionPtr> arguments;
  stream.expectSign("(");
  if (!stream.isSign(")")) arguments = parseExpressionList(stream);
  stream.expectSign(")");
  return arguments;
}

ExpressionPtr parseAggregate(TokenStream& stream, Position position, Aggregate::Kind kind) {
  stream.expectSign("(");
  ExpressionPtr value;
  ExpressionPtr weight;
  if (kind == Aggregate::Kind::count) {
    stream.expectSign("*");
  } else {
    value = parseExpression(stream);
  }
  if (kind == Aggregate::Kind::weightedAverage) {
    stream.expectSign(",");
    weight = parseExpression(stream);
  }
  stream.expectSign(")");
  return checked(stream, std::make_shared<const Aggregate>(position, kind, std::move(value), std::move(weight)));
}

// What follows `table.`
ExpressionPtr parseColumn(TokenStream& stream, Position position, const std::string& table) {
  if (stream.peek().kind != Token::Kind::name) stream.failExpecting("el nombre de una columna");
  const Token column = stream.next();
  if (column.isWord("col") && stream.acceptSign("(")) {
    ExpressionPtr number = parseExpression(stream);
    stream.expectSign(")");
    return checked(stream, std::make_shared<const ColumnByNumber>(position, table, std::move(number)));
  }
  return std::make_shared<const NameReference>(position, table, column.text);
}

// `Zones(1).column`: the table of a theme layer has its number in its name.
ExpressionPtr parseColumnOfTheme(TokenStream& stream, const Token& name, const std::vector<ExpressionPtr>& arguments) {
  const auto* literal = arguments.size() == 1 ? dynamic_cast<const Literal*>(arguments.front().get()) : nullptr;
  if (literal == nullptr) stream.failExpecting("el final de la expresión");
  stream.next();
  return parseColumn(stream, name.position, name.text + "(" + literal->value().toText() + ")");
}

ExpressionPtr parseCall(TokenStream& stream, const Token& name) {
  const auto* aggregate = std::find_if(kAggregates.begin(), kAggregates.end(),
                                       [&name](const AggregateName& row) { return name.isWord(row.name); });
  if (aggregate != kAggregates.end()) return parseAggregate(stream, name.position, aggregate->kind);
  std::vector<ExpressionPtr> arguments = parseArguments(stream);
  if (stream.isSign(".")) return parseColumnOfTheme(stream, name, arguments);
  if (name.isWord("col") && arguments.size() == 1) {
    return checked(stream, std::make_shared<const ColumnByNumber>(name.position, "", arguments.front()));
  }
  return checked(stream, std::make_shared<const FunctionCall>(name.position, name.text, std::move(arguments)));
}

ExpressionPtr parseNamed(TokenStream& stream) {
  const Token name = stream.next();
  if (stream.isSign("(")) return parseCall(stream, name);
  if (stream.acceptSign(".")) return parseColumn(stream, name.position, name.text);
  if (name.isWord("true")) return std::make_shared<const Literal>(name.position, true);
  if (name.isWord("false")) return std::make_shared<const Literal>(name.position, false);
  return std::make_shared<const NameReference>(name.position, "", name.text);
}

}  // namespace

ExpressionPtr parseOperand(TokenStream& stream) {
  const TokenStream::Level level(stream);
  const Token& token = stream.peek();
  const Position position = token.position;
  switch (token.kind) {
    case Token::Kind::number:
      return std::make_shared<const Literal>(position, stream.next().number);
    case Token::Kind::text:
      return std::make_shared<const Literal>(position, stream.next().text);
    case Token::Kind::name:
      if (isReserved(stream)) stream.failExpecting(kExpected);
      return parseNamed(stream);
    default:
      break;
  }
  if (!stream.acceptSign("(")) stream.failExpecting(kExpected);
  ExpressionPtr inner = parseExpression(stream);
  stream.expectSign(")");
  return inner;
}

}  // namespace motor
