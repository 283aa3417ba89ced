#pragma once

#include <string>
#include <utility>
#include <vector>

namespace study::reports {

struct Tick {
  double value = 0;
  bool isLabelled = true;
};

// Where a chart's numbers lie along an axis: linear from 0, or logarithmic where they span much.
class AxisScale {
 public:
  // From 0 to a readable number that is not below `greatest`, with about `ticks` ticks. `greatest` of 0: to 1.
  [[nodiscard]] static AxisScale linear(double greatest, int ticks = 5);
  // From readable numbers around the values, not from 0: `least` to `greatest`, both not negative.
  [[nodiscard]] static AxisScale around(double least, double greatest, int ticks = 6);
  // By decades; `least` and `greatest` are above 0.
  [[nodiscard]] static AxisScale logarithmic(double least, double greatest);

  // 0 at the axis's beginning, 1 at its end. Values beyond are put to the nearer end.
  [[nodiscard]] double at(double value) const;
  [[nodiscard]] const std::vector<Tick>& ticks() const { return ticks_; }
  // In Spanish, with as many decimals as the ticks need.
  [[nodiscard]] std::string label(const Tick& tick) const;

 private:
  AxisScale(double from, double to, bool isLogarithmic) : from_(from), to_(to), isLogarithmic_(isLogarithmic) {}

  double from_;
  double to_;
  bool isLogarithmic_;
  std::vector<Tick> ticks_;
};

}  // namespace study::reports
