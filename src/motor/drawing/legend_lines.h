#pragma once

#include <vector>

#include "motor/drawing/legend_sections.h"
#include "motor/drawing/theme.h"
#include "motor/drawing/theme_values.h"

namespace motor {

// The lines of a theme's legend: its classes and all others, some sizes of its symbols, or the parts of its charts, as
// `wanted` has them shown, worded and ordered. `sample` is an object of the table, null when that has none. Throws
// LanguageError or EngineError for a text without a value.
[[nodiscard]] std::vector<LegendLine> legendLines(const Layer& layer, const Theme& theme, const LegendLayer& wanted,
                                                  const ThemeValues& values, const ObjectPtr& sample);

// Some values of a theme of symbols whose sizes explain the others, readable numbers from the greatest down.
[[nodiscard]] std::vector<double> sampleValues(const SymbolTheme& theme);

}  // namespace motor
