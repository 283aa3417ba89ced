#include "motor/language/expressions/operation.h"

#include <algorithm>
#include <cmath>

#include "motor/language/comparison.h"
#include "motor/language/like_pattern.h"
#include "motor/language/text_limit.h"

namespace motor {

namespace {

[[noreturn]] void reject(const Expression& node, Operator op, const std::string& reason) {
  throw LanguageError(node.position(), std::string(spelling(op)), reason);
}

bool truthOf(const Value& value, const Expression& node, Operator op) {
  const auto result = truth(value);
  if (!result) reject(node, op, "se esperaba un valor lógico");
  return *result;
}

double numberOf(const Value& value, const Expression& node, Operator op) {
  if (value.number() == nullptr) reject(node, op, "se esperaba un número");
  return *value.number();
}

// Mod and \ work on whole numbers.
double quotientOrRest(double left, double right, Operator op) {
  const double dividend = std::round(left);
  const double divisor = std::round(right);
  return op == Operator::modulo ? std::fmod(dividend, divisor) : std::trunc(dividend / divisor);
}

Value calculate(double left, double right, const Expression& node, Operator op) {
  const bool wholeDivision = op == Operator::modulo || op == Operator::integerDivide;
  const double divisor = wholeDivision ? std::round(right) : right;
  if ((wholeDivision || op == Operator::divide) && divisor == 0) reject(node, op, "división por cero");
  double result = 0;
  switch (op) {
    case Operator::add:
      result = left + right;
      break;
    case Operator::subtract:
      result = left - right;
      break;
    case Operator::multiply:
      result = left * right;
      break;
    case Operator::divide:
      result = left / right;
      break;
    case Operator::power:
      result = std::pow(left, right);
      break;
    default:
      result = quotientOrRest(left, right, op);
      break;
  }
  if (!std::isfinite(result)) reject(node, op, "el resultado no es un número finito");
  return result;
}

Value joined(std::string left, const std::string& right, const Expression& node, Operator op) {
  if (left.size() + right.size() > kLongestText) reject(node, op, "el texto sería demasiado largo");
  return left += right;
}

// + joins texts too; a number beside a text is taken as its text.
Value arithmetic(const Value& left, const Value& right, const Expression& node, Operator op) {
  const bool isText = left.text() != nullptr || right.text() != nullptr;
  if (op == Operator::concatenate || (op == Operator::add && isText)) {
    return joined(left.toText(), right.toText(), node, op);
  }
  if (left.isEmpty() || right.isEmpty()) return {};
  return calculate(numberOf(left, node, op), numberOf(right, node, op), node, op);
}

bool like(const Value& left, const Value& right, const Expression& node, Operator op) {
  if (right.text() == nullptr) reject(node, op, "se esperaba un texto");
  return LikePattern(*right.text()).matches(left.toText());
}

bool comparison(const Value& left, const Value& right, const Expression& node, Operator op) {
  if (op == Operator::like) return like(left, right, node, op);
  const auto result = compare(left, op, right);
  if (!result) reject(node, op, "los valores no se pueden comparar");
  return *result;
}

bool related(SpatialRelation relation, const Value& left, const Value& right, const Expression& node, Operator op,
             const Scope& scope) {
  const auto isObject = [](const Value& value) { return value.isEmpty() || value.object() != nullptr; };
  if (!isObject(left) || !isObject(right)) reject(node, op, "se esperaba un objeto del mapa");
  if (!truth(left).value_or(false) || !truth(right).value_or(false)) return false;
  return scope.related(relation, *left.object(), *right.object(), node.position());
}

}  // namespace

std::optional<SpatialRelation> spatialRelation(Operator op) {
  switch (op) {
    case Operator::contains:
      return SpatialRelation::contains;
    case Operator::containsPart:
      return SpatialRelation::containsPart;
    case Operator::containsEntire:
      return SpatialRelation::containsEntire;
    case Operator::within:
      return SpatialRelation::within;
    case Operator::partlyWithin:
      return SpatialRelation::partlyWithin;
    case Operator::entirelyWithin:
      return SpatialRelation::entirelyWithin;
    case Operator::intersects:
      return SpatialRelation::intersects;
    default:
      return std::nullopt;
  }
}

Value UnaryOperation::evaluate(const Scope& scope) const {
  const Value value = operand_->evaluate(scope);
  if (op_ == Operator::logicalNot) return !truthOf(value, *this, op_);
  if (value.isEmpty()) return {};
  const double number = numberOf(value, *this, op_);
  return op_ == Operator::negate ? -number : number;
}

BinaryOperation::BinaryOperation(Position position, Operator op, ExpressionPtr left, ExpressionPtr right)
    : Expression(position, std::max(left->height(), right->height())),
      op_(op),
      left_(std::move(left)),
      right_(std::move(right)) {}

Value BinaryOperation::evaluate(const Scope& scope) const {
  const Value left = left_->evaluate(scope);
  if (op_ == Operator::logicalAnd || op_ == Operator::logicalOr) {
    const bool decides = truthOf(left, *this, op_) == (op_ == Operator::logicalOr);
    return decides ? op_ == Operator::logicalOr : truthOf(right_->evaluate(scope), *this, op_);
  }
  const Value right = right_->evaluate(scope);
  if (const auto relation = spatialRelation(op_)) return related(*relation, left, right, *this, op_, scope);
  if (precedence(op_) == precedence(Operator::equal)) return comparison(left, right, *this, op_);
  return arithmetic(left, right, *this, op_);
}

}  // namespace motor
