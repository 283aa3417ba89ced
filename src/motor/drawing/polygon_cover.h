#pragma once

#include <QPointF>
#include <QRect>
#include <cstdint>
#include <utility>
#include <vector>

#include "motor/drawing/fixed_point.h"
#include "motor/drawing/marked_bytes.h"

namespace motor {

// How much of each pixel of an area lies inside a polygon. Every edge adds, in each row that it passes, what it changes
// to the cover of the pixels right of it; a running sum over the row's changes is the cover, exact but for rounding.
// Only the pixels that edges pass are looked at, so that a large polygon costs what its outline is long.
class PolygonCover {
 public:
  // Begins with another polygon, of which nothing outside `area` is asked for.
  void begin(const QRect& area);
  // Adds an edge, in pixels; all edges together are closed rings.
  void addEdge(QPointF from, QPointF to);
  // Calls `visit` with what the polygon covers by the even-odd rule, row after row, from left to right: a row, its
  // pixels [begin, end), and how much of each is covered, 1 to 255 of 255. Another polygon is to be begun afterwards.
  template <typename Visit>
  void take(const Visit& visit);

 private:
  [[nodiscard]] static unsigned coverOf(std::int32_t sum);

  QRect area_;
  std::size_t rowPixels_ = 0;  // between the starts of two rows in what follows, with room for a pixel behind each
  std::vector<std::int32_t> changes_;
  std::vector<std::uint8_t> marks_;  // a byte for each pixel that was changed
};

inline unsigned PolygonCover::coverOf(std::int32_t sum) {
  Fixed cover = sum < 0 ? -Fixed{sum} : Fixed{sum};
  if (cover > kOne) {
    cover %= 2 * kOne;
    if (cover > kOne) cover = 2 * kOne - cover;
  }
  return toCover(cover);
}

template <typename Visit>
void PolygonCover::take(const Visit& visit) {
  for (int row = 0; row < area_.height(); ++row) {
    const std::size_t first = static_cast<std::size_t>(row) * rowPixels_;
    std::int32_t* changes = changes_.data() + first;
    std::int32_t sum = 0;
    unsigned cover = 0;
    int begin = 0;
    const auto endAt = [&](int column) {
      if (cover > 0) visit(area_.y() + row, area_.x() + begin, area_.x() + column, cover);
    };
    takeMarked(marks_.data() + first, rowPixels_, [&](std::size_t column, std::uint8_t) {
      sum += std::exchange(changes[column], 0);
      const unsigned next = coverOf(sum);
      if (next == cover || static_cast<int>(column) >= area_.width()) return;
      endAt(static_cast<int>(column));
      begin = static_cast<int>(column);
      cover = next;
    });
    endAt(area_.width());
  }
}

}  // namespace motor
