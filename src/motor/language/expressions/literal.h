#pragma once

#include "motor/language/expression.h"

namespace motor {

// A number, a text or a logical written out.
class Literal final : public Expression {
 public:
  Literal(Position position, Value value) : Expression(position), value_(std::move(value)) {}

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  [[nodiscard]] const Value& value() const { return value_; }

 private:
  Value value_;
};

}  // namespace motor
