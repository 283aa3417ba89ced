#include "motor/language/expressions/function_call.h"

#include <algorithm>

namespace motor {

namespace {

int greatestHeight(const std::vector<ExpressionPtr>& nodes) {
  int height = 0;
  for (const ExpressionPtr& node : nodes) height = std::max(height, node->height());
  return height;
}

}  // namespace

FunctionCall::FunctionCall(Position position, std::string name, std::vector<ExpressionPtr> arguments)
    : Expression(position, greatestHeight(arguments)), name_(std::move(name)), arguments_(std::move(arguments)) {}

Value FunctionCall::evaluate(const Scope& scope) const {
  std::vector<Value> values;
  values.reserve(arguments_.size());
  for (const ExpressionPtr& argument : arguments_) values.push_back(argument->evaluate(scope));
  return scope.call(*this, values);
}

std::vector<const Expression*> FunctionCall::children() const {
  std::vector<const Expression*> nodes;
  for (const ExpressionPtr& argument : arguments_) nodes.push_back(argument.get());
  return nodes;
}

}  // namespace motor
