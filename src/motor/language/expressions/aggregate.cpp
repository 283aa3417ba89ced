#include "motor/language/expressions/aggregate.h"

#include <algorithm>

namespace motor {

Aggregate::Aggregate(Position position, Kind kind, ExpressionPtr value, ExpressionPtr weight)
    : Expression(position, std::max(value ? value->height() : 0, weight ? weight->height() : 0)),
      kind_(kind),
      value_(std::move(value)),
      weight_(std::move(weight)) {}

Value Aggregate::evaluate(const Scope& scope) const { return scope.aggregate(*this); }

std::vector<const Expression*> Aggregate::children() const {
  std::vector<const Expression*> nodes;
  if (value_) nodes.push_back(value_.get());
  if (weight_) nodes.push_back(weight_.get());
  return nodes;
}

}  // namespace motor
