#pragma once

#include <string>
#include <variant>
#include <vector>

#include "motor/drawing/small_maps.h"
#include "motor/language/parser.h"

// Layers with themes for tests.
namespace motor::small {

// A theme layer above `base`, as the statement makes it.
inline Layer theme(const Layer& base, const std::string& statement, int number = 1) {
  Layer layer = base;
  layer.name = base.name + "(" + std::to_string(number) + ")";
  layer.display = Display::value;
  layer.theme = std::make_shared<Shade>(std::get<Shade>(parseProgram(statement).front()));
  return layer;
}

// What a `Set Legend` statement says of its first layer.
inline std::shared_ptr<const LegendLayer> legend(const std::string& statement) {
  return std::make_shared<LegendLayer>(std::get<SetLegend>(parseProgram(statement).front()).layers.front());
}

// A layer of squares side by side, 20 metres wide and 100 high, with the values 0.5, 1.5 and so on.
inline Layer squares(std::size_t count, const Brush& brush) {
  std::vector<ObjectPtr> rows;
  std::vector<std::string> names;
  for (std::size_t i = 0; i < count; ++i) {
    const double left = 20.0 * static_cast<double>(i);
    rows.push_back(region({square(left, 0, left + 20, 100)}, brush));
    names.push_back("Zona " + std::to_string(i + 1));
  }
  return layer(rows, names);
}

}  // namespace motor::small
