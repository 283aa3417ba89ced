#pragma once

#include <memory>
#include <variant>
#include <vector>

#include "motor/drawing/chart_theme.h"
#include "motor/drawing/class_theme.h"
#include "motor/drawing/density_theme.h"
#include "motor/drawing/symbol_theme.h"

namespace motor {

// A layer's theme with its expressions evaluated; nothing where they cannot be.
using Theme = std::variant<std::monostate, ClassTheme, SymbolTheme, ChartTheme, DensityTheme>;

// The themes of layers. Each is evaluated once for a table, however often it is asked for.
class Themes {
 public:
  // `layer` has a theme and a table. Good until `dropUnused`.
  [[nodiscard]] const Theme& of(const Layer& layer);
  // Forgets the themes that are gone or whose tables are.
  void dropUnused();
  // How many themes were evaluated so far.
  [[nodiscard]] std::size_t evaluatedCount() const { return evaluated_; }

 private:
  struct Entry {
    std::weak_ptr<const Shade> shade;
    std::weak_ptr<const Table> table;
    std::unique_ptr<const Theme> theme;
  };
  std::vector<Entry> entries_;
  std::size_t evaluated_ = 0;
};

}  // namespace motor
