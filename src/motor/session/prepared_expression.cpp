#include "motor/session/prepared_expression.h"

#include "motor/language/expressions/name_reference.h"
#include "motor/language/parser.h"
#include "motor/session/session_state.h"

namespace motor {

class PreparedExpression::BoundScope final : public Scope {
 public:
  BoundScope(const PreparedExpression& prepared, const SessionState& session)
      : prepared_(prepared), scope_(session.scope), functions_(session.functions) {}

  [[nodiscard]] Value name(const NameReference& reference) const override {
    if (reference.table().empty()) return scope_.name(reference);
    for (const auto& [bound, binding] : prepared_.bindings_) {
      if (bound == &reference) return scope_.read(binding);
    }
    prepared_.bindings_.emplace_back(&reference, scope_.bind(reference));
    return scope_.read(prepared_.bindings_.back().second);
  }

  [[nodiscard]] bool hides(const NameReference& constant) const override { return scope_.hides(constant); }

  [[nodiscard]] Value column(const std::string& table, double number, Position position) const override {
    return scope_.column(table, number, position);
  }

  [[nodiscard]] Value call(const FunctionCall& function, std::span<const Value> arguments) const override {
    for (const auto& [bound, entry] : prepared_.functions_) {
      if (bound == &function) return entry->call(function, arguments);
    }
    prepared_.functions_.emplace_back(&function, &functions_.find(function));
    return prepared_.functions_.back().second->call(function, arguments);
  }

 private:
  const PreparedExpression& prepared_;
  const SessionScope& scope_;
  const FunctionTable& functions_;
};

PreparedExpression::PreparedExpression(const std::string& text) : expression_(parseExpression(text)) {
  const auto* name = dynamic_cast<const NameReference*>(expression_.get());
  if (name != nullptr && !name->table().empty()) column_ = name;
}

const ColumnBinding* PreparedExpression::boundColumn(const SessionState& session) const {
  if (generation_ != session.tables.generation()) {
    bindings_.clear();
    generation_ = session.tables.generation();
  }
  if (column_ == nullptr) return nullptr;
  if (bindings_.empty()) bindings_.emplace_back(column_, session.scope.bind(*column_));
  return &bindings_.front().second;
}

Value PreparedExpression::evaluate(const SessionState& session) const {
  const ColumnBinding* column = boundColumn(session);
  return column == nullptr ? expression_->evaluate(BoundScope(*this, session)) : session.scope.read(*column);
}

std::string PreparedExpression::evaluateToText(const SessionState& session) const {
  const ColumnBinding* column = boundColumn(session);
  if (column != nullptr) {
    if (const std::string* text = session.scope.readText(*column)) return *text;
  }
  return evaluate(session).toText();
}

}  // namespace motor
