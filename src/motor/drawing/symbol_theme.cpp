#include "motor/drawing/symbol_theme.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/size_growth.h"

namespace motor {

namespace {

constexpr double kMostPoints = 200;  // of a value far beyond those that the statement names

}  // namespace

SymbolTheme::SymbolTheme(const Layer& layer, const ShadeGraduated& graduated) : by_(graduated.by) {
  const ThemeValues values(layer);
  minimum_ = values.number(graduated.minimum);
  minimumPoints_ = values.number(graduated.minimumSize);
  maximum_ = values.number(graduated.maximum);
  maximumPoints_ = values.number(graduated.maximumSize);
  if (minimum_ < 0) {  // sizes tell how far a value is from 0
    maximum_ = std::max(-minimum_, maximum_);
    maximumPoints_ = std::max(minimumPoints_, maximumPoints_);
    minimum_ = 0;
    minimumPoints_ = 0;
  }
  if (graduated.symbol) positive_ = values.symbol(*graduated.symbol);
  if (graduated.inflect) negative_ = values.symbol(*graduated.inflect);
  if (!layer.theme->with.empty()) values_ = values.numbersOfObjects(*layer.theme->with.front().expression);
  for (std::uint32_t i = 0; i < values_.size(); ++i) {
    if (pointsOf(values_[i]) > 0) order_.push_back(i);
  }
  std::stable_sort(order_.begin(), order_.end(),
                   [&](std::uint32_t a, std::uint32_t b) { return pointsOf(values_[a]) > pointsOf(values_[b]); });
}

double SymbolTheme::pointsOf(double value) const {
  if (!std::isfinite(value) || (value < 0 && !negative_)) return 0;
  const double from = sizeGrowth(by_, minimum_);
  const double range = sizeGrowth(by_, maximum_) - from;
  if (!(range > 0)) return std::clamp(maximumPoints_, 0.0, kMostPoints);
  const double share = (sizeGrowth(by_, value) - from) / range;
  return std::clamp(minimumPoints_ + share * (maximumPoints_ - minimumPoints_), 0.0, kMostPoints);
}

const Symbol* SymbolTheme::symbolOf(double value) const {
  if (!(pointsOf(value) > 0)) return nullptr;
  return value < 0 ? &*negative_ : &positive_;
}

double SymbolTheme::largestPoints() const { return order_.empty() ? 0 : pointsOf(values_[order_.front()]); }

}  // namespace motor
