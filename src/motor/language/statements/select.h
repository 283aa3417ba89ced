#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// A column of the result: a name or any expression, and the name it gets.
struct SelectColumn {
  Position position;
  WrittenExpression value;
  std::string alias;  // empty: the column's own name, or COLn when it is computed
};

// A key of Group By or Order By: a column's name (of the result or of a table), `colN`, or a position in the result.
struct SelectKey {
  Position position;
  ExpressionPtr column;  // a NameReference or a numeric Literal
  bool descending = false;
};

// Select columns | * From tables [Where e] [Group By keys] [Order By keys] [Into t] [NoSelect], clauses in any order.
struct SelectStatement {
  Position position;
  bool all = false;  // *
  std::vector<SelectColumn> columns;
  std::vector<Name> tables;
  ExpressionPtr where;
  std::vector<SelectKey> groupBy;
  std::vector<SelectKey> orderBy;
  std::optional<Name> into;
  bool noSelect = false;
};

}  // namespace motor
