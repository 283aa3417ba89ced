#include "motor/tables/coverage_grid.h"

#include <algorithm>
#include <cmath>

#include "motor/tables/edge.h"

namespace motor {
namespace {

// How close to a cell, in cells, an edge may pass and be taken for one that meets it: far more than rounding moves it.
constexpr double kMargin = 1.0 / 1024;
// A side of a region's box must be at least this part of its coordinates, or rounding would move more than that.
constexpr double kLeastSide = 1e-9;

struct Range {
  std::size_t first;
  std::size_t last;
};

// The cells of a row or column of `count` that a stretch meets; those outside count as the outermost.
Range cellsOf(double a, double b, double count) {
  const auto cell = [count](double at) { return static_cast<std::size_t>(std::clamp(at, 0.0, count - 1)); };
  return {cell(std::floor(std::min(a, b) - kMargin)), cell(std::floor(std::max(a, b) + kMargin))};
}

// The part of an edge between two heights, the lower first, none of which need lie on it.
Edge between(const Edge& edge, double low, double high) {
  const double height = edge.b.y - edge.a.y;
  const auto at = [&](double y) {
    const double along = height != 0 ? std::clamp((y - edge.a.y) / height, 0.0, 1.0) : 0;
    return Point{edge.a.x + along * (edge.b.x - edge.a.x), y};
  };
  return height != 0 ? Edge{at(low), at(high)} : edge;
}

}  // namespace

CoverageGrid::CoverageGrid(const MapObject& region, const RegionIndex& index)
    : origin_{region.bounds.minX, region.bounds.minY} {
  const Box& box = region.bounds;
  const double width = box.maxX - box.minX;
  const double height = box.maxY - box.minY;
  const double farthest = std::max({std::abs(box.minX), std::abs(box.maxX), std::abs(box.minY), std::abs(box.maxY)});
  if (!(std::min(width, height) > kLeastSide * farthest)) return;
  columnsPerUnit_ = kSide / width;
  rowsPerUnit_ = kSide / height;

  std::array<std::array<bool, kSide>, kSide> touched{};
  forEachEdge(region, [&](const Edge& onMap) {
    const Edge edge{inCells(onMap.a), inCells(onMap.b)};
    const Range rows = cellsOf(edge.a.y, edge.b.y, kSide);
    for (std::size_t row = rows.first; row <= rows.last; ++row) {
      const Edge inRow = between(edge, static_cast<double>(row) - kMargin, static_cast<double>(row) + 1 + kMargin);
      const Range columns = cellsOf(inRow.a.x, inRow.b.x, kSide);
      for (std::size_t column = columns.first; column <= columns.last; ++column) touched[row][column] = true;
    }
  });

  for (std::size_t row = 0; row < kSide; ++row) {
    Answer answer = Answer::unknown;
    for (std::size_t column = 0; column < kSide; ++column) {
      if (touched[row][column]) {
        answer = Answer::unknown;
        continue;
      }
      // No edge lies between a cell and the one before it.
      if (answer == Answer::unknown) {
        const Point middle{box.minX + (static_cast<double>(column) + 0.5) / columnsPerUnit_,
                           box.minY + (static_cast<double>(row) + 0.5) / rowsPerUnit_};
        answer = index.contains(middle) ? Answer::inside : Answer::outside;
      }
      rows_[row] |= static_cast<std::uint32_t>(answer) << 2 * column;
    }
  }
}

}  // namespace motor
