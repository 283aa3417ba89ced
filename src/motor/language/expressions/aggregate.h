#pragma once

#include "motor/language/expression.h"

namespace motor {

// `Count(*)`, `Sum(e)`, `Avg(e)`, `Min(e)`, `Max(e)`, `WtAvg(e, weight)`: a figure over the rows of a group.
class Aggregate final : public Expression {
 public:
  enum class Kind { count, sum, average, minimum, maximum, weightedAverage };

  Aggregate(Position position, Kind kind, ExpressionPtr value, ExpressionPtr weight);

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  [[nodiscard]] std::vector<const Expression*> children() const override;
  [[nodiscard]] Kind kind() const { return kind_; }
  // Null for Count.
  [[nodiscard]] const ExpressionPtr& value() const { return value_; }
  // Null but for WtAvg.
  [[nodiscard]] const ExpressionPtr& weight() const { return weight_; }

 private:
  Kind kind_;
  ExpressionPtr value_;
  ExpressionPtr weight_;
};

}  // namespace motor
