#pragma once

#include <array>
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
    const double column = (p.x - origin_.x) * columnsPerUnit_;
    const double row = (p.y - origin_.y) * rowsPerUnit_;
    if (!(column >= 0 && column < kSide && row >= 0 && row < kSide)) return Answer::unknown;
    return static_cast<Answer>(rows_[static_cast<std::size_t>(row)] >> 2 * static_cast<unsigned>(column) & 3U);
  }

 private:
  static constexpr int kSide = 16;

  [[nodiscard]] Point inCells(Point p) const {
    return {(p.x - origin_.x) * columnsPerUnit_, (p.y - origin_.y) * rowsPerUnit_};
  }

  Point origin_;
  double columnsPerUnit_ = 0;
  double rowsPerUnit_ = 0;
  std::array<std::uint32_t, kSide> rows_{};  // an Answer in two bits for each column
};

}  // namespace motor
