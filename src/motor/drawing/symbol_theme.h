#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "motor/drawing/theme_values.h"

namespace motor {

// A theme of symbols whose size tells the objects' values.
class SymbolTheme {
 public:
  // Throws LanguageError or EngineError where its sizes or symbols have no value. `layer` has the theme.
  SymbolTheme(const Layer& layer, const ShadeGraduated& graduated);

  // By object; not a number where there is none.
  [[nodiscard]] const std::vector<double>& values() const { return values_; }
  // The numbers of the objects that have a symbol, the largest first.
  [[nodiscard]] const std::vector<std::uint32_t>& order() const { return order_; }

  // A value's symbol, whose size is `pointsOf`; null for a value that has none: of no size, or negative without a
  // symbol for those.
  [[nodiscard]] const Symbol* symbolOf(double value) const;
  // Its size in points, 0 where it has none.
  [[nodiscard]] double pointsOf(double value) const;
  // The value with the largest symbol that the statement names.
  [[nodiscard]] double greatest() const { return maximum_; }
  [[nodiscard]] bool showsNegative() const { return negative_.has_value(); }
  // The largest symbol on the map, in points.
  [[nodiscard]] double largestPoints() const;

 private:
  Symbol positive_;
  std::optional<Symbol> negative_;
  std::string by_;
  double minimum_ = 0;
  double minimumPoints_ = 0;
  double maximum_ = 0;
  double maximumPoints_ = 0;
  std::vector<double> values_;
  std::vector<std::uint32_t> order_;
};

}  // namespace motor
