#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "motor/language/error.h"
#include "motor/language/value.h"

namespace motor {

class Aggregate;
class FunctionCall;
class NameReference;
class ValueSet;
struct SelectStatement;

enum class SpatialRelation {
  contains,        // left holds the centroid of right
  containsPart,    // the two share a point, as intersects
  containsEntire,  // left holds all of right
  within,          // right holds the centroid of left
  partlyWithin,    // the two share a point
  entirelyWithin,  // right holds all of left
  intersects,      // the two share a point
};

// What names, functions and objects mean where an expression is evaluated. Objects are in the session's coordinates.
class Scope {
 public:
  virtual ~Scope() = default;

  // `name` (a column of the current row, a variable, or a table, which gives its name as text) or `table.name` (a
  // column, `obj`, `rowid` or `colN` of the table's current row). Throws LanguageError for a name that means nothing
  // here.
  [[nodiscard]] virtual Value name(const NameReference& reference) const = 0;

  // `table.col(n)`, n from 1; `table` is empty for a bare `col(n)`.
  [[nodiscard]] virtual Value column(const std::string& table, double number, Position position) const = 0;

  [[nodiscard]] virtual Value call(const FunctionCall& function, std::span<const Value> arguments) const = 0;

  // The following have no meaning outside Select: a LanguageError.
  [[nodiscard]] virtual bool related(SpatialRelation relation, const ObjectPtr& left, const ObjectPtr& right,
                                     Position position) const;
  [[nodiscard]] virtual Value aggregate(const Aggregate& aggregate) const;
  // The values of the first column of a Select inside an expression.
  [[nodiscard]] virtual const ValueSet& values(const SelectStatement& select) const;

  // Whether a name that is also a constant's (a colour) means something else here.
  [[nodiscard]] virtual bool hides(const NameReference& constant) const;
};

// A node of an expression's tree.
class Expression {
 public:
  virtual ~Expression() = default;
  Expression(const Expression&) = delete;
  Expression& operator=(const Expression&) = delete;

  // Throws LanguageError at the node that cannot be evaluated, and whatever the scope throws.
  [[nodiscard]] virtual Value evaluate(const Scope& scope) const = 0;

  [[nodiscard]] Position position() const { return position_; }
  // Nodes on the longest way down to a leaf, this one included.
  [[nodiscard]] int height() const { return height_; }
  // The nodes right below this one.
  [[nodiscard]] virtual std::vector<const Expression*> children() const { return {}; }

 protected:
  explicit Expression(Position position, int heightBelow = 0) : position_(position), height_(heightBelow + 1) {}

 private:
  Position position_;
  int height_;
};

using ExpressionPtr = std::shared_ptr<const Expression>;

// An expression with its text as written, for those that the engine tells again (labels, themes, computed columns).
struct WrittenExpression {
  ExpressionPtr expression;
  std::string text;
};

}  // namespace motor
