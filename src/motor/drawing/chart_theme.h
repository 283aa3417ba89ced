#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "motor/drawing/theme_values.h"

namespace motor {

// How the charts of a theme look, in logical pixels.
struct ChartLook {
  bool isPie = true;
  double angle = 180;  // where a pie starts, in degrees counter-clockwise from the right
  bool counterClockwise = false;
  bool half = false;   // of a pie: all parts together are half a turn
  bool fixed = false;  // all charts are of one size
  bool stacked = false;
  bool normalized = false;  // stacked bars are all of one height
  double barWidth = 0;
  std::vector<Brush> parts;  // one for each of the theme's expressions
  Pen border{1, 2, 0xFFFFFF};
  Brush frame{1, 0, kTransparent};  // behind the bars
  int placement = 0;                // of the chart from the object's centre, as of a label
};

// A theme of pies or bars: a chart of several values on each object.
class ChartTheme {
 public:
  // Throws LanguageError or EngineError where its settings have no value, and EngineError for more than 1,000 values a
  // chart. `layer` has the theme.
  ChartTheme(const Layer& layer, const ShadeChart& chart);

  [[nodiscard]] const ChartLook& look() const { return look_; }
  // An object's values, one a part; not a number where there is none.
  [[nodiscard]] std::span<const double> valuesOf(std::uint32_t object) const;
  // What the size of the chart of some values stands for: of a pie and of stacked bars their sum, of bars the greatest.
  [[nodiscard]] double amountOf(std::span<const double> values) const;
  // A pie's diameter or the height of the bar of an amount, in pixels.
  [[nodiscard]] double sizeOf(double amount) const;
  // The numbers of the objects that have a chart, the largest first.
  [[nodiscard]] const std::vector<std::uint32_t>& order() const { return order_; }
  // No chart reaches farther from its object's centre, in pixels.
  [[nodiscard]] double reach() const;

 private:
  void readLook(const ShadeChart& chart, const ThemeValues& values, std::size_t parts);
  void readValues(const Shade& theme, const ThemeValues& values);

  ChartLook look_;
  std::string by_;
  double size_ = 0;
  double atAmount_ = 0;
  std::vector<double> byObject_;  // the values, by object and part
  std::vector<std::uint32_t> order_;
};

}  // namespace motor
