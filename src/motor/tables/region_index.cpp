#include "motor/tables/region_index.h"

#include <algorithm>
#include <cmath>

namespace motor {
namespace {

constexpr std::size_t kEdgesPerBand = 4;

}  // namespace

RegionIndex::RegionIndex(const MapObject& region)
    : bounds_(region.bounds), bandEnds_(std::max<std::size_t>(1, region.points.size() / kEdgesPerBand), 0) {
  const double height = bounds_.maxY - bounds_.minY;
  if (height > 0) bandsPerUnit_ = static_cast<double>(bandEnds_.size()) / height;
  // A counting sort: how many are in each band, where each band begins, and the edges put there.
  const auto forEachBand = [&](const auto& visit) {
    forEachEdge(region, [&](const Edge& edge) {
      const std::size_t last = bandOf(std::max(edge.a.y, edge.b.y));
      for (std::size_t band = bandOf(std::min(edge.a.y, edge.b.y)); band <= last; ++band) visit(band, edge);
    });
  };
  forEachBand([&](std::size_t band, const Edge&) { ++bandEnds_[band]; });
  std::uint32_t total = 0;
  for (std::uint32_t& end : bandEnds_) {
    const std::uint32_t count = end;
    end = total;
    total += count;
  }
  edges_.resize(total);
  forEachBand([&](std::size_t band, const Edge& edge) { edges_[bandEnds_[band]++] = edge; });
}

// The same for equal numbers and never less for greater ones, which is all that it takes.
std::size_t RegionIndex::bandOf(double y) const {
  const double band = (y - bounds_.minY) * bandsPerUnit_;
  if (!(band > 0)) return 0;
  return std::min(bandEnds_.size() - 1, static_cast<std::size_t>(band));
}

bool RegionIndex::contains(Point p) const {
  if (!bounds_.contains(p)) return false;
  const std::size_t band = bandOf(p.y);
  const std::uint32_t begin = band == 0 ? 0 : bandEnds_[band - 1];
  PointSide side(p);
  for (std::uint32_t i = begin; i < bandEnds_[band]; ++i) side.pass(edges_[i]);
  return side.isCovered();
}

}  // namespace motor
