#include "study/generator/point_grid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace study::generator {

namespace {

constexpr double kPointsInBucket = 2;

std::size_t index(double offset, double side, std::size_t count) {
  if (offset <= 0) return 0;
  return std::min(static_cast<std::size_t>(offset / side), count - 1);
}

}  // namespace

PointGrid::PointGrid(const Extent& box, std::size_t expected) : box_(box) {
  const double buckets = std::max(1.0, static_cast<double>(expected) / kPointsInBucket);
  side_ = std::max(1.0, std::sqrt(box.width() * box.height() / buckets));
  columns_ = static_cast<std::size_t>(box.width() / side_) + 1;
  rows_ = static_cast<std::size_t>(box.height() / side_) + 1;
  buckets_.resize(columns_ * rows_);
}

PointGrid::PointGrid(const std::vector<Point>& points)
    : PointGrid(points.empty() ? Extent{} : extent({points}), points.size()) {
  for (std::size_t i = 0; i < points.size(); ++i) insert(i, points[i]);
}

std::size_t PointGrid::column(double x) const { return index(x - box_.minX, side_, columns_); }
std::size_t PointGrid::row(double y) const { return index(y - box_.minY, side_, rows_); }

void PointGrid::insert(std::size_t number, Point p) { bucket(p).push_back({number, p}); }

void PointGrid::remove(std::size_t number, Point p) {
  std::erase_if(bucket(p), [&](const Entry& entry) { return entry.number == number; });
}

void PointGrid::searchBucket(std::size_t index, Point p, Best& best) const {
  for (const Entry& entry : buckets_[index]) {
    const double squared = squaredDistance(entry.place, p);
    if (squared < best.squared || (squared == best.squared && best.number && entry.number < *best.number)) {
      best = {entry.number, squared};
    }
  }
}

// Ring by ring around the point's bucket, until what lies further out is further away.
PointGrid::Best PointGrid::search(Point p, double upTo) const {
  Best best{std::nullopt, upTo * upTo};
  const std::size_t middleColumn = column(p.x);
  const std::size_t middleRow = row(p.y);
  for (std::size_t ring = 0; ring <= std::max(columns_, rows_); ++ring) {
    const double innermost = ring == 0 ? 0 : static_cast<double>(ring - 1) * side_;
    if (innermost * innermost > best.squared) break;
    const std::size_t left = middleColumn - std::min(middleColumn, ring);
    const std::size_t right = std::min(columns_ - 1, middleColumn + ring);
    const std::size_t bottom = middleRow - std::min(middleRow, ring);
    const std::size_t top = std::min(rows_ - 1, middleRow + ring);
    for (std::size_t y = bottom; y <= top; ++y) {
      const bool wholeRow = y + ring == middleRow || y == middleRow + ring;
      for (std::size_t x = left; x <= right; ++x) {
        if (wholeRow || x + ring == middleColumn || x == middleColumn + ring) searchBucket(y * columns_ + x, p, best);
      }
    }
  }
  return best;
}

std::optional<std::size_t> PointGrid::nearest(Point p) const {
  return search(p, std::numeric_limits<double>::infinity()).number;
}

bool PointGrid::hasWithin(Point p, double metres) const { return search(p, metres).number.has_value(); }

}  // namespace study::generator
