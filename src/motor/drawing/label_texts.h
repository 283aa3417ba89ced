#pragma once

#include <map>
#include <string>

#include "motor/language/expression.h"
#include "motor/language/function_table.h"
#include "motor/map/layer.h"

namespace motor {

// The texts that label a layer's rows: its label expression over the row's columns, or the table's first text column.
class LabelTexts {
 public:
  LabelTexts();

  // Empty where the expression has no value or cannot be evaluated.
  [[nodiscard]] std::string of(const Layer& layer, RowId row);

 private:
  [[nodiscard]] const Expression* expression(const std::string& source);

  FunctionTable functions_;
  std::map<std::string, ExpressionPtr> parsed_;  // null for a source that is no expression
};

}  // namespace motor
