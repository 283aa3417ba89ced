#pragma once

#include "motor/language/expression.h"

namespace motor {

// `name(argument, ...)`; the scope knows the function.
class FunctionCall final : public Expression {
 public:
  FunctionCall(Position position, std::string name, std::vector<ExpressionPtr> arguments);

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  [[nodiscard]] std::vector<const Expression*> children() const override;
  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] const std::vector<ExpressionPtr>& arguments() const { return arguments_; }

 private:
  std::string name_;
  std::vector<ExpressionPtr> arguments_;
};

}  // namespace motor
