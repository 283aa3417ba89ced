#pragma once

#include "motor/language/expression.h"
#include "motor/language/function_table.h"
#include "motor/map/layer.h"

namespace motor {

// The columns of one row of a layer's table, and the functions that need nothing but their arguments. What it is made
// of outlives it. Row 0 is none: its columns have no value.
class RowScope final : public Scope {
 public:
  RowScope(const Layer& layer, RowId row, const FunctionTable& functions)
      : layer_(layer), row_(row), functions_(functions) {}

  [[nodiscard]] Value name(const NameReference& reference) const override;
  [[nodiscard]] Value column(const std::string& table, double number, Position position) const override;
  [[nodiscard]] bool hides(const NameReference& constant) const override;
  [[nodiscard]] Value call(const FunctionCall& function, std::span<const Value> arguments) const override;

 private:
  void requireRow(Position position, const std::string& word) const;

  const Layer& layer_;
  RowId row_;
  const FunctionTable& functions_;
};

}  // namespace motor
