#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Add Column t (column [type]) {Values v, ... | From s Set To e Where a = b [Dynamic]}: a temporary column.
struct AddColumn {
  Position position;
  Name table;
  Name column;
  std::string type;  // in lower case, "float" when left out
  std::vector<ExpressionPtr> values;
  std::optional<Name> source;
  ExpressionPtr setTo;
  ExpressionPtr where;
};

}  // namespace motor
