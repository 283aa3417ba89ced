#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "motor/tables/region_index.h"

namespace motor {

// A region's box in 16 by 16 cells, each wholly inside the region, wholly outside, or not told: small enough for those
// of all regions of a map to stay near the processor, and enough for most points.
class CoverageGrid {
 public:
  enum class Answer : std::uint8_t { unknown, outside, inside };

  // One that knows nothing.
  CoverageGrid() = default;
  // `region` and `index`, which is its own, are not needed afterwards.
  CoverageGrid(const MapObject& region, const RegionIndex& index);

  // What contains(region, p) says, where that is known.
  [[nodiscard]] Answer at(Point p) const {
    const Point cell = inCells(p);
    if (!(cell.x >= 0 && cell.x < kSide && cell.y >= 0 && cell.y < kSide)) return Answer::unknown;
    return static_cast<Answer>(rows_[static_cast<std::size_t>(cell.y)] >> 2 * static_cast<unsigned>(cell.x) & 3U);
  }

 private:
  static constexpr std::size_t kSide = 16;

  [[nodiscard]] Point inCells(Point p) const {
    return {(p.x - origin_.x) * columnsPerUnit_, (p.y - origin_.y) * rowsPerUnit_};
  }

  Point origin_;
  double columnsPerUnit_ = 0;
  double rowsPerUnit_ = 0;
  std::array<std::uint32_t, kSide> rows_{};  // an Answer in two bits for each column
};

}  // namespace motor
