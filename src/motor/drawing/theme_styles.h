#pragma once

#include <optional>
#include <string>
#include <vector>

#include "motor/language/function_table.h"
#include "motor/language/style_clause.h"
#include "motor/map/layer.h"

namespace motor {

// One class of a theme: the values it takes and the style it gives.
struct ThemeClass {
  Value minimum;  // of a range; of a theme of single values, the value
  Value maximum;  // of a range, not belonging to it; empty for a single value
  Styles styles;
};

// The styles of a theme of ranges or of single values, with its expressions evaluated. Themes of other kinds, and
// those whose expressions cannot be evaluated, have none.
class ThemeStyles {
 public:
  // `layer` has a theme and outlives this.
  explicit ThemeStyles(const Layer& layer);

  [[nodiscard]] const std::vector<ThemeClass>& classes() const { return classes_; }
  // The style of a row; none where the row's value is ignored, has no class and there is no style for all others.
  [[nodiscard]] std::optional<Styles> of(RowId row) const;

 private:
  void addClasses(const ShadeRanges& theme, const Scope& scope);
  void addClasses(const ShadeValues& theme, const Scope& scope);

  const Layer& layer_;
  FunctionTable functions_;
  std::vector<ThemeClass> classes_;
  std::optional<Styles> otherwise_;
  std::vector<Value> ignored_;
};

}  // namespace motor
