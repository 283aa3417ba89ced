#include "motor/language/expressions/between.h"

#include <algorithm>
#include <compare>

#include "motor/language/comparison.h"

namespace motor {

Between::Between(Position position, bool negated, ExpressionPtr value, ExpressionPtr low, ExpressionPtr high)
    : Expression(position, std::max({value->height(), low->height(), high->height()})),
      negated_(negated),
      value_(std::move(value)),
      low_(std::move(low)),
      high_(std::move(high)) {}

Value Between::evaluate(const Scope& scope) const {
  const Value value = value_->evaluate(scope);
  const auto fromLow = order(value, low_->evaluate(scope));
  const auto fromHigh = order(value, high_->evaluate(scope));
  if (!fromLow || !fromHigh) throw LanguageError(position(), "between", "los valores no se pueden comparar");
  return (std::is_gteq(*fromLow) && std::is_lteq(*fromHigh)) != negated_;
}

}  // namespace motor
