#pragma once

#include <optional>
#include <string_view>

namespace motor {

enum class Operator {
  logicalOr,
  logicalAnd,
  logicalNot,
  equal,
  notEqual,
  less,
  lessOrEqual,
  greater,
  greaterOrEqual,
  like,
  contains,
  containsPart,
  containsEntire,
  within,
  partlyWithin,
  entirelyWithin,
  intersects,
  in,
  between,
  add,
  subtract,
  concatenate,
  multiply,
  divide,
  integerDivide,
  modulo,
  negate,
  plus,
  power,
};

// How tightly an operator binds: the greater, the tighter. Operators of one level associate to the left.
[[nodiscard]] int precedence(Operator op);

// The operator's sign or words, for messages.
[[nodiscard]] std::string_view spelling(Operator op);

// The operator between two operands that is spelled by one sign or one word in lower case; `in` and `between`, which
// read more than one operand, and the spatial ones of two words are not among them.
[[nodiscard]] std::optional<Operator> binaryOperator(std::string_view text);

}  // namespace motor
