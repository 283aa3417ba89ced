#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "motor/drawing/shape_painter.h"
#include "motor/drawing/theme_values.h"

namespace motor {

// One class of a theme: the values it takes and the style it gives.
struct ThemeClass {
  Value minimum;  // of a range; of a theme of single values, the value
  Value maximum;  // of a range, not belonging to it; empty for a single value
  Styles styles;
  std::size_t objects = 0;  // that are in it
};

// A theme of ranges or of single values: each object of the table is in one class, in none, or with all others.
class ClassTheme {
 public:
  // Throw LanguageError or EngineError where a class has no value. `layer` has the theme.
  ClassTheme(const Layer& layer, const ShadeRanges& ranges);
  ClassTheme(const Layer& layer, const ShadeValues& values);

  [[nodiscard]] const std::vector<ThemeClass>& classes() const { return classes_; }
  // All others: the objects in no class, with their style where the theme has one for them.
  [[nodiscard]] const ThemeClass& others() const { return others_; }
  [[nodiscard]] bool drawsOthers() const { return drawsOthers_; }

  // The class that gives an object its style, by the object's number; null where the theme leaves it alone.
  [[nodiscard]] const ThemeClass* of(std::uint32_t object) const;
  // The style of an object of a class, from the one that it has without the theme.
  [[nodiscard]] DrawnStyle shaded(const ThemeClass& theme, const MapObject& object, const DrawnStyle& without) const;
  // Whether the theme leaves nothing to be seen of an object below it.
  [[nodiscard]] bool covers(std::uint32_t index, const MapObject& object) const;

 private:
  template <typename Kind>
  void addOthers(const Kind& kind, const ThemeValues& values);
  void classify(const Layer& layer, const ThemeValues& values);

  ThemeAttribute apply_;
  std::vector<ThemeClass> classes_;
  ThemeClass others_;
  bool drawsOthers_ = false;
  std::vector<std::int16_t> classOf_;  // by object; kOthers and kNone below 0
};

}  // namespace motor
