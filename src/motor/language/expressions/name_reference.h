#pragma once

#include <optional>

#include "motor/language/expression.h"

namespace motor {

// `name` or `table.name`: a column, a variable or a table; the scope knows which.
class NameReference final : public Expression {
 public:
  NameReference(Position position, std::string table, std::string name);

  [[nodiscard]] Value evaluate(const Scope& scope) const override;
  // Empty for a bare name.
  [[nodiscard]] const std::string& table() const { return table_; }
  [[nodiscard]] const std::string& name() const { return name_; }
  // Of a bare name that is a colour's (BLACK, WHITE, RED...): its number, which counts where the scope does not hide
  // it.
  [[nodiscard]] const std::optional<double>& colour() const { return colour_; }
  // As in a message: "table.name".
  [[nodiscard]] std::string text() const { return table_.empty() ? name_ : table_ + "." + name_; }

 private:
  std::string table_;
  std::string name_;
  std::optional<double> colour_;
};

}  // namespace motor
