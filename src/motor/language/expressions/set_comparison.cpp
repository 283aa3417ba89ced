#include "motor/language/expressions/set_comparison.h"

#include <algorithm>

#include "motor/language/comparison.h"
#include "motor/language/statements/select.h"

namespace motor {

namespace {

int greatestHeight(const ExpressionPtr& value, const std::vector<ExpressionPtr>& members) {
  int height = value->height();
  for (const ExpressionPtr& member : members) height = std::max(height, member->height());
  return height;
}

bool satisfies(std::weak_ordering ordering, Operator op) {
  switch (op) {
    case Operator::less:
      return ordering < 0;
    case Operator::lessOrEqual:
      return ordering <= 0;
    case Operator::greater:
      return ordering > 0;
    default:
      return ordering >= 0;
  }
}

}  // namespace

SetComparison::SetComparison(Position position, Operator op, Quantifier quantifier, ExpressionPtr value,
                             std::vector<ExpressionPtr> members, std::shared_ptr<const SelectStatement> select)
    : Expression(position, greatestHeight(value, members)),
      op_(op),
      quantifier_(quantifier),
      value_(std::move(value)),
      members_(std::move(members)),
      select_(std::move(select)) {}

Value SetComparison::evaluate(const Scope& scope) const {
  const Value left = value_->evaluate(scope);
  const bool any = quantifier_ == Quantifier::any;
  for (const ExpressionPtr& member : members_) {
    if (holds(left, member->evaluate(scope)) == any) return any;
  }
  if (select_) {
    for (const Value& member : scope.values(*select_)) {
      if (holds(left, member) == any) return any;
    }
  }
  return !any;
}

std::vector<const Expression*> SetComparison::children() const {
  std::vector<const Expression*> nodes = {value_.get()};
  for (const ExpressionPtr& member : members_) nodes.push_back(member.get());
  return nodes;
}

bool SetComparison::holds(const Value& left, const Value& member) const {
  if (op_ == Operator::equal || op_ == Operator::notEqual) {
    const auto same = equals(left, member);
    if (!same) throw LanguageError(position(), std::string(spelling(op_)), "los valores no se pueden comparar");
    return *same == (op_ == Operator::equal);
  }
  const auto ordering = order(left, member);
  if (!ordering) throw LanguageError(position(), std::string(spelling(op_)), "los valores no se pueden comparar");
  return satisfies(*ordering, op_);
}

}  // namespace motor
