#pragma once

#include <cstddef>
#include <vector>

namespace study {

// Whether a number of deaths may not be published: fewer than `below`, but not none. Whatever is computed from them is
// not published either. A setting of 0 publishes all.
[[nodiscard]] constexpr bool isSuppressed(long deaths, int below) { return deaths > 0 && deaths < below; }

// One line of an axis that is the sum of others: all sexes, a province, the whole of a list of causes.
struct AxisSum {
  std::size_t total = 0;
  std::vector<std::size_t> parts;
};

// A direction of a cross-table of counts.
struct Axis {
  std::size_t size = 0;
  std::vector<AxisSum> sums;
};

// Which cells of a cross-table of counts may not be published.
//
// Counts from 1 to `below` - 1 are hidden. That alone protects nobody: whoever subtracts the published parts of a sum
// from its total finds the one part that is missing. So wherever a total is published with parts hidden, at least two
// are, and together they count at least `below`; and a hidden total has a hidden part. What else must be hidden for
// that is the smallest published part that is not 0. Hidden cells of both kinds are to look alike: a mark that told
// them apart would narrow down the small ones. This is the usual complementary suppression, done line by line; it does
// not look for what several sums tell together. Source: L. Willenborg, T. de Waal, "Elements of Statistical Disclosure
// Control", Lecture Notes in Statistics 155, Springer, New York 2001.
class HiddenCells {
 public:
  // `counts` in the order of the axes, the last one changing fastest; they keep to the axes' sums. `below` of 0: all
  // cells are published.
  HiddenCells(std::vector<Axis> axes, std::vector<long> counts, int below);

  // One index for each axis.
  [[nodiscard]] bool isHidden(const std::vector<std::size_t>& cell) const;

  // Hides a cell that another table hides. Whether it was not hidden yet: `protect` is due then.
  bool hide(const std::vector<std::size_t>& cell);
  // Hides what else must be hidden.
  void protect();

 private:
  [[nodiscard]] std::size_t placeOf(const std::vector<std::size_t>& cell) const;
  [[nodiscard]] bool protectAll();
  [[nodiscard]] bool protectAxis(std::size_t axis, std::size_t step);
  [[nodiscard]] bool protectSum(const AxisSum& sum, std::size_t first, std::size_t step);
  [[nodiscard]] bool givesAway(const AxisSum& sum, std::size_t first, std::size_t step) const;

  std::vector<Axis> axes_;
  std::vector<long> counts_;
  long below_;
  std::vector<bool> hidden_;  // empty: none is
};

}  // namespace study
