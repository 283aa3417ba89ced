#pragma once

#include "motor/language/expression.h"
#include "motor/language/operators.h"

namespace motor {

// The relation between objects that an operator asks for, if it is one of those.
[[nodiscard]] std::optional<SpatialRelation> spatialRelation(Operator op);

// An operator before one operand: Not, -, +. `position` is the operator's.
class UnaryOperation final : public Expression {
 public:
  UnaryOperation(Position position, Operator op, ExpressionPtr operand)
      : Expression(position, operand->height()), op_(op), operand_(std::move(operand)) {}

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  [[nodiscard]] std::vector<const Expression*> children() const override { return {operand_.get()}; }
  [[nodiscard]] Operator op() const { return op_; }
  [[nodiscard]] const ExpressionPtr& operand() const { return operand_; }

 private:
  Operator op_;
  ExpressionPtr operand_;
};

// An operator between two operands. `position` is the operator's. And and Or leave the right side alone when the left
// one decides.
class BinaryOperation final : public Expression {
 public:
  BinaryOperation(Position position, Operator op, ExpressionPtr left, ExpressionPtr right);

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  [[nodiscard]] std::vector<const Expression*> children() const override { return {left_.get(), right_.get()}; }
  [[nodiscard]] Operator op() const { return op_; }
  [[nodiscard]] const ExpressionPtr& left() const { return left_; }
  [[nodiscard]] const ExpressionPtr& right() const { return right_; }

 private:
  Operator op_;
  ExpressionPtr left_;
  ExpressionPtr right_;
};

}  // namespace motor
