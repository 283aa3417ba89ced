#pragma once

#include <cstdint>
#include <vector>

namespace motor {

// A point of a grid, counted from the grid's origin or from a point near by.
struct GridPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const GridPoint&) const = default;
};

// What of a line on a grid is to be seen: the points without which the rest would lie more than three quarters of a
// step beside the line (by halving, the method of Douglas and Peucker 1973). The line is halved from points on that
// every line with the same points is halved from, whichever way it runs, so that two neighbours leave out the same
// points of a border that they share; only near its ends may they differ by as little as is left out.
// `points` are counted from `origin`, in grid steps. A ring begins and ends at the same point, and so does the result.
[[nodiscard]] std::vector<GridPoint> thinnedLine(const std::vector<GridPoint>& points, GridPoint origin);
[[nodiscard]] std::vector<GridPoint> thinnedRing(const std::vector<GridPoint>& points, GridPoint origin);

}  // namespace motor
