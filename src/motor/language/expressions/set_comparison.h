#pragma once

#include <memory>

#include "motor/language/expression.h"
#include "motor/language/operators.h"
#include "motor/language/value_set.h"

namespace motor {

// `value In (a, b)`, `value = Any (a, b)`, `value <> All (a, b)`: a comparison with each of several values, written out
// or given by a Select. In is "= Any", Not In is "<> All".
class SetComparison final : public Expression {
 public:
  enum class Quantifier { any, all };

  SetComparison(Position position, Operator op, Quantifier quantifier, ExpressionPtr value,
                std::vector<ExpressionPtr> members, std::shared_ptr<const SelectStatement> select);

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  [[nodiscard]] std::vector<const Expression*> children() const override;
  // Null for values that are written out.
  [[nodiscard]] const std::shared_ptr<const SelectStatement>& select() const { return select_; }

 private:
  [[nodiscard]] bool holds(const Value& left, const Value& member) const;
  // Whether the comparison holds with any or all of the set's values.
  [[nodiscard]] bool holdsWith(const Value& left, const ValueSet& set) const;
  [[noreturn]] void rejectComparison() const;

  Operator op_;
  Quantifier quantifier_;
  ExpressionPtr value_;
  ValueSet constants_;                  // the members that are plain values
  std::vector<ExpressionPtr> members_;  // the others
  std::shared_ptr<const SelectStatement> select_;
};

}  // namespace motor
