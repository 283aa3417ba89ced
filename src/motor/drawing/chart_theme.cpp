#include "motor/drawing/chart_theme.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/size_growth.h"
#include "motor/drawing/turns.h"

namespace motor {

namespace {

constexpr double kDefaultSize = 36;  // pixels, of the largest chart
constexpr double kMostSize = 2000;
constexpr std::size_t kMostParts = 1000;
constexpr double kDefaultBarWidth = 7;
// Of parts that the statement gives no brush.
constexpr Colour kPartColours[] = {0x3A87A0, 0xE0A458, 0x7A9E4F, 0xB5523B, 0x6C5B8E, 0x8C8C8C};

// A size that a picture has room for; of none, nothing.
double bounded(double pixels) { return pixels > 0 ? std::min(pixels, kMostSize) : 0; }

}  // namespace

ChartTheme::ChartTheme(const Layer& layer, const ShadeChart& chart) : by_(chart.by) {
  if (layer.theme->with.size() > kMostParts) throw EngineError("el tema tiene demasiados valores");
  const ThemeValues values(layer);
  readLook(chart, values, layer.theme->with.size());
  readValues(*layer.theme, values);
  size_ = chart.maximumSize ? bounded(values.paperPixels(*chart.maximumSize)) : kDefaultSize;
  for (std::uint32_t i = 0; i * look_.parts.size() < byObject_.size(); ++i) {
    const double amount = amountOf(valuesOf(i));
    if (amount > 0) order_.push_back(i);
    atAmount_ = std::max(atAmount_, amount);
  }
  if (chart.atValue) atAmount_ = values.number(chart.atValue);
  std::stable_sort(order_.begin(), order_.end(),
                   [&](std::uint32_t a, std::uint32_t b) { return amountOf(valuesOf(a)) > amountOf(valuesOf(b)); });
}

void ChartTheme::readLook(const ShadeChart& chart, const ThemeValues& values, std::size_t parts) {
  look_.isPie = chart.isPie;
  if (chart.angle) look_.angle = turnOf(values.number(chart.angle));
  look_.counterClockwise = chart.counterClockwise;
  look_.half = chart.half;
  look_.fixed = chart.fixed;
  look_.stacked = chart.stacked;
  look_.normalized = chart.normalized;
  look_.barWidth = chart.width ? bounded(values.paperPixels(*chart.width)) : kDefaultBarWidth;
  for (std::size_t i = 0; i < parts; ++i) {
    const Brush own{2, kPartColours[i % std::size(kPartColours)], kTransparent};
    look_.parts.push_back(i < chart.parts.size() ? values.styles(chart.parts[i]).brush.value_or(own) : own);
  }
  if (chart.border) look_.border = values.pen(*chart.border);
  if (chart.frame) look_.frame = values.brush(*chart.frame);
  look_.placement = chart.placement.value_or(0);
}

void ChartTheme::readValues(const Shade& theme, const ThemeValues& values) {
  std::vector<std::vector<double>> parts;
  for (const WrittenExpression& with : theme.with) parts.push_back(values.numbersOfObjects(*with.expression));
  if (parts.empty()) return;
  for (std::size_t object = 0; object < parts.front().size(); ++object) {
    for (const std::vector<double>& part : parts) byObject_.push_back(part[object]);
  }
}

std::span<const double> ChartTheme::valuesOf(std::uint32_t object) const {
  const std::size_t parts = look_.parts.size();
  if ((object + 1) * parts > byObject_.size()) return {};
  return std::span(byObject_).subspan(object * parts, parts);
}

double ChartTheme::amountOf(std::span<const double> values) const {
  double sum = 0;
  double greatest = 0;
  for (const double value : values) {
    if (!std::isfinite(value)) continue;
    sum += std::max(value, 0.0);
    greatest = std::max(greatest, std::fabs(value));
  }
  return look_.isPie || look_.stacked ? sum : greatest;
}

double ChartTheme::sizeOf(double amount) const {
  constexpr double kMostTimes = 4;  // of the largest size, by amounts beyond the one it belongs to
  if (look_.fixed || (look_.stacked && look_.normalized)) return size_;
  const double full = sizeGrowth(by_, atAmount_);
  return full > 0 ? size_ * std::min(sizeGrowth(by_, amount) / full, kMostTimes) : 0;
}

double ChartTheme::reach() const {
  if (order_.empty()) return 0;
  const double bars = look_.isPie ? 0 : look_.barWidth * static_cast<double>(look_.parts.size());
  return std::max(sizeOf(amountOf(valuesOf(order_.front()))), bars);
}

}  // namespace motor
