#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "motor/language/function_table.h"
#include "motor/language/statements/legend.h"
#include "motor/language/statements/shade.h"
#include "motor/map/layer.h"

namespace motor {

// What a theme's expressions give.
class ThemeValues {
 public:
  // `layer` has a theme and a table, and outlives this.
  explicit ThemeValues(const Layer& layer);

  // An expression's value for each distinct object of the table, that of the first row which has it; none where it
  // cannot be evaluated or is a value to ignore.
  [[nodiscard]] std::vector<std::optional<Value>> ofObjects(const Expression& expression) const;
  // The same as numbers; not a number where there is none.
  [[nodiscard]] std::vector<double> numbersOfObjects(const Expression& expression) const;

  // What belongs to the theme and to no row. Throw LanguageError or EngineError where it has no value.
  [[nodiscard]] Value constant(const Expression& expression) const;
  [[nodiscard]] double number(const ExpressionPtr& expression) const;
  [[nodiscard]] Styles styles(const StyleList& list) const;
  [[nodiscard]] Symbol symbol(const StyleClause& clause) const;
  [[nodiscard]] Pen pen(const StyleClause& clause) const;
  [[nodiscard]] Brush brush(const StyleClause& clause) const;
  [[nodiscard]] Font font(const StyleClause& clause) const;
  // A length on paper in logical pixels; a length without unit is in inches.
  [[nodiscard]] double paperPixels(const Measure& length) const;

 private:
  Layer base_;  // the theme's table under the name that its expressions use
  FunctionTable functions_;
  std::vector<Value> ignored_;
};

// The name of the layer that a theme layer shades: "Zonas" of "Zonas(1)".
[[nodiscard]] std::string shadedName(const Layer& theme);

// As `=` compares: texts without regard to case; a logical is 1 or 0.
[[nodiscard]] bool areSame(const Value& a, const Value& b);

}  // namespace motor
