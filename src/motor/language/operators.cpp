#include "motor/language/operators.h"

#include <algorithm>
#include <array>

namespace motor {

namespace {

struct Row {
  Operator op;
  int precedence;
  std::string_view spelling;
  bool isBinary;  // between two operands, by one sign or word
};

constexpr std::array kOperators = {
    Row{Operator::logicalOr, 1, "or", true},
    Row{Operator::logicalAnd, 2, "and", true},
    Row{Operator::logicalNot, 3, "not", false},
    Row{Operator::equal, 4, "=", true},
    Row{Operator::notEqual, 4, "<>", true},
    Row{Operator::less, 4, "<", true},
    Row{Operator::lessOrEqual, 4, "<=", true},
    Row{Operator::greater, 4, ">", true},
    Row{Operator::greaterOrEqual, 4, ">=", true},
    Row{Operator::like, 4, "like", true},
    Row{Operator::contains, 4, "contains", true},
    Row{Operator::containsPart, 4, "contains part", false},
    Row{Operator::containsEntire, 4, "contains entire", false},
    Row{Operator::within, 4, "within", true},
    Row{Operator::partlyWithin, 4, "partly within", false},
    Row{Operator::entirelyWithin, 4, "entirely within", false},
    Row{Operator::intersects, 4, "intersects", true},
    Row{Operator::in, 4, "in", false},
    Row{Operator::between, 4, "between", false},
    Row{Operator::add, 5, "+", true},
    Row{Operator::subtract, 5, "-", true},
    Row{Operator::concatenate, 5, "&", true},
    Row{Operator::multiply, 6, "*", true},
    Row{Operator::divide, 6, "/", true},
    Row{Operator::integerDivide, 6, "\\", true},
    Row{Operator::modulo, 6, "mod", true},
    Row{Operator::negate, 7, "-", false},
    Row{Operator::plus, 7, "+", false},
    Row{Operator::power, 8, "^", true},
};

const Row& rowOf(Operator op) {
  return *std::find_if(kOperators.begin(), kOperators.end(), [op](const Row& row) { return row.op == op; });
}

}  // namespace

int precedence(Operator op) { return rowOf(op).precedence; }

std::string_view spelling(Operator op) { return rowOf(op).spelling; }

std::optional<Operator> binaryOperator(std::string_view text) {
  const auto row = std::find_if(kOperators.begin(), kOperators.end(), [text](const Row& candidate) {
    return candidate.isBinary && candidate.spelling == text;
  });
  if (row == kOperators.end()) return std::nullopt;
  return row->op;
}

}  // namespace motor
