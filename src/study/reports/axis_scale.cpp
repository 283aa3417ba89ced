#include "study/reports/axis_scale.h"

#include <algorithm>
#include <cmath>

#include "study/thematic/classes.h"
#include "text/spanish_number.h"

namespace study::reports {

namespace {

// The smallest of 1, 2, 2.5 and 5 times a power of ten that is not below `number`.
double stepAbove(double number) {
  const double below = readableStep(number);
  return below >= number * (1 - 1e-9) ? below : readableStep(below * 2.0001);
}

}  // namespace

AxisScale AxisScale::linear(double greatest, int ticks) { return around(0, greatest, ticks); }

AxisScale AxisScale::around(double least, double greatest, int ticks) {
  const double span = greatest - least;
  const double step = span > 0 ? stepAbove(span / ticks) : (greatest > 0 ? stepAbove(greatest / ticks) : 1.0 / ticks);
  const double from = std::floor(least / step + 1e-9);
  const double to = std::max(std::ceil(greatest / step - 1e-9), from + 1);
  AxisScale scale(from * step, to * step, false);
  for (double tick = from; tick <= to; ++tick) scale.ticks_.push_back({tick * step, true});
  return scale;
}

AxisScale AxisScale::logarithmic(double least, double greatest) {
  const int from = static_cast<int>(std::floor(std::log10(least) + 1e-9));
  const int to = std::max(static_cast<int>(std::ceil(std::log10(greatest) - 1e-9)), from + 1);
  AxisScale scale(std::pow(10.0, from), std::pow(10.0, to), true);
  for (int decade = from; decade <= to; ++decade) {
    const double begin = std::pow(10.0, decade);
    scale.ticks_.push_back({begin, true});
    for (const int part : {2, 5}) {
      if (decade < to) scale.ticks_.push_back({part * begin, false});
    }
  }
  return scale;
}

double AxisScale::at(double value) const {
  const double share = isLogarithmic_ ? std::log(std::max(value, from_) / from_) / std::log(to_ / from_)
                                      : (value - from_) / (to_ - from_);
  return std::clamp(share, 0.0, 1.0);
}

std::string AxisScale::label(const Tick& tick) const {
  constexpr int kMostDecimals = 4;
  return text::shortSpanishNumber(tick.value, kMostDecimals);
}

}  // namespace study::reports
