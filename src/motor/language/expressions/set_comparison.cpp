#include "motor/language/expressions/set_comparison.h"

#include <algorithm>

#include "motor/language/comparison.h"
#include "motor/language/expressions/literal.h"
#include "motor/language/statements/select.h"

namespace motor {

namespace {

int greatestHeight(const ExpressionPtr& value, const std::vector<ExpressionPtr>& members) {
  int height = value->height();
  for (const ExpressionPtr& member : members) height = std::max(height, member->height());
  return height;
}

// Takes the literals out of the members.
ValueSet takeConstants(std::vector<ExpressionPtr>& members) {
  std::vector<Value> values;
  std::erase_if(members, [&values](const ExpressionPtr& member) {
    const auto* literal = dynamic_cast<const Literal*>(member.get());
    if (literal != nullptr) values.push_back(literal->value());
    return literal != nullptr;
  });
  return ValueSet(std::move(values));
}

}  // namespace

SetComparison::SetComparison(Position position, Operator op, Quantifier quantifier, ExpressionPtr value,
                             std::vector<ExpressionPtr> members, std::shared_ptr<const SelectStatement> select)
    : Expression(position, greatestHeight(value, members)),
      op_(op),
      quantifier_(quantifier),
      value_(std::move(value)),
      constants_(takeConstants(members)),
      members_(std::move(members)),
      select_(std::move(select)) {}

Value SetComparison::evaluate(const Scope& scope) const {
  const Value left = value_->evaluate(scope);
  const bool any = quantifier_ == Quantifier::any;
  if (holdsWith(left, select_ ? scope.values(*select_) : constants_) == any) return any;
  for (const ExpressionPtr& member : members_) {
    if (holds(left, member->evaluate(scope)) == any) return any;
  }
  return !any;
}

std::vector<const Expression*> SetComparison::children() const {
  std::vector<const Expression*> nodes = {value_.get()};
  for (const ExpressionPtr& member : members_) nodes.push_back(member.get());
  return nodes;
}

bool SetComparison::holdsWith(const Value& left, const ValueSet& set) const {
  const bool any = quantifier_ == Quantifier::any;
  if (set.values().empty()) return !any;
  if (op_ == (any ? Operator::equal : Operator::notEqual)) {
    const auto found = set.contains(left);
    if (!found) rejectComparison();
    return *found == any;
  }
  // What holds with one of several ordered values holds with the first or the last, and what holds with both with all.
  if (const auto& range = set.range()) {
    const bool withLeast = holds(left, range->least);
    return withLeast == any ? any : holds(left, range->greatest);
  }
  const auto decides = [&](const Value& member) { return holds(left, member) == any; };
  return std::any_of(set.values().begin(), set.values().end(), decides) == any;
}

bool SetComparison::holds(const Value& left, const Value& member) const {
  const auto result = compare(left, op_, member);
  if (!result) rejectComparison();
  return *result;
}

void SetComparison::rejectComparison() const {
  throw LanguageError(position(), std::string(spelling(op_)), "los valores no se pueden comparar");
}

}  // namespace motor
