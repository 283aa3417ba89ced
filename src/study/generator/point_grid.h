#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "study/generator/plane.h"

namespace study::generator {

// Numbered points in square buckets, so that the nearest one is found without looking at all.
class PointGrid {
 public:
  // Best for about `expected` points spread over the box; points beyond it are allowed.
  PointGrid(const Extent& box, std::size_t expected);
  // Holds points[i] as number i.
  explicit PointGrid(const std::vector<Point>& points);

  void insert(std::size_t number, Point p);
  // Takes out a point that was inserted with this number.
  void remove(std::size_t number, Point p);

  // The number of the nearest point, the lowest of equally near ones; none in an empty grid.
  [[nodiscard]] std::optional<std::size_t> nearest(Point p) const;
  // Whether a point lies nearer than this.
  [[nodiscard]] bool hasWithin(Point p, double metres) const;

 private:
  struct Entry {
    std::size_t number;
    Point place;
  };
  struct Best {
    std::optional<std::size_t> number;
    double squared = 0;
  };

  [[nodiscard]] std::size_t column(double x) const;
  [[nodiscard]] std::size_t row(double y) const;
  [[nodiscard]] std::vector<Entry>& bucket(Point p) { return buckets_[row(p.y) * columns_ + column(p.x)]; }
  [[nodiscard]] Best search(Point p, double upTo) const;
  void searchBucket(std::size_t index, Point p, Best& best) const;

  Extent box_;
  double side_ = 1;
  std::size_t columns_ = 1;
  std::size_t rows_ = 1;
  std::vector<std::vector<Entry>> buckets_;
};

}  // namespace study::generator
