#pragma once

#include <map>
#include <string>

#include "motor/language/expression.h"
#include "motor/language/expressions/name_reference.h"
#include "motor/language/function_table.h"
#include "text/utf8.h"

// A scope for tests: names with given values, the pure functions, and columns by number.
namespace motor::testing_scope {

class FixedScope : public Scope {
 public:
  FixedScope() = default;
  explicit FixedScope(std::map<std::string, Value> names) : names_(std::move(names)) {}

  [[nodiscard]] Value name(const NameReference& reference) const override {
    const auto found = names_.find(text::lower(reference.text()));
    if (found == names_.end()) throw LanguageError(reference.position(), reference.text(), "nombre desconocido");
    return found->second;
  }
  [[nodiscard]] Value column(const std::string& table, double number, Position /*position*/) const override {
    return table + "/" + Value(number).toText();
  }
  [[nodiscard]] Value call(const FunctionCall& function, std::span<const Value> arguments) const override {
    return functions_.call(function, arguments);
  }

 private:
  std::map<std::string, Value> names_;
  FunctionTable functions_ = pureFunctions();
};

}  // namespace motor::testing_scope
