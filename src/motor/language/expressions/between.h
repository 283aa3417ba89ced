#pragma once

#include "motor/language/expression.h"

namespace motor {

// `value Between low And high`, both ends included.
class Between final : public Expression {
 public:
  Between(Position position, bool negated, ExpressionPtr value, ExpressionPtr low, ExpressionPtr high);

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  [[nodiscard]] std::vector<const Expression*> children() const override {
    return {value_.get(), low_.get(), high_.get()};
  }

 private:
  bool negated_;
  ExpressionPtr value_;
  ExpressionPtr low_;
  ExpressionPtr high_;
};

}  // namespace motor
