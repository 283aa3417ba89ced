#pragma once

#include <cstdint>
#include <vector>

#include "motor/tables/edge.h"

namespace motor {

// The edges of a region in bands by their y, so that one that is asked about many points looks at few edges for each.
class RegionIndex {
 public:
  // `region` is a region; it is not needed afterwards.
  explicit RegionIndex(const MapObject& region);

  // The same as contains(region, p), to the last bit.
  [[nodiscard]] bool contains(Point p) const;

 private:
  [[nodiscard]] std::size_t bandOf(double y) const;

  Box bounds_;
  double bandsPerUnit_ = 0;
  std::vector<std::uint32_t> bandEnds_;  // of each band in edges_
  std::vector<Edge> edges_;              // band after band; an edge is in each band that it passes through
};

}  // namespace motor
