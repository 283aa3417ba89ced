#pragma once

#include "motor/language/expression.h"

namespace motor {

// `table.col(n)`: a column by a computed number.
class ColumnByNumber final : public Expression {
 public:
  ColumnByNumber(Position position, std::string table, ExpressionPtr number)
      : Expression(position, number->height()), table_(std::move(table)), number_(std::move(number)) {}

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  [[nodiscard]] std::vector<const Expression*> children() const override { return {number_.get()}; }
  [[nodiscard]] const std::string& table() const { return table_; }

 private:
  std::string table_;
  ExpressionPtr number_;
};

}  // namespace motor
