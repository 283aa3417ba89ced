#pragma once

#include <QPointF>
#include <QRect>
#include <cstdint>
#include <vector>

#include "motor/drawing/fixed_point.h"
#include "motor/drawing/marked_bytes.h"

namespace motor {

// How much of each pixel of an area a thin line covers: as much as its distance from the line's middle tells. Pieces of
// line that meet or cross cover a pixel as much as the one that covers it most, so that no bend is darker than the
// rest.
class LineCover {
 public:
  // Begins with another line, `width` pixels wide, of which nothing outside `area` is asked for.
  void begin(const QRect& area, double width);
  // Adds a straight piece, in pixels. It begins round and ends straight: in a ring of pieces every bend is round.
  void addPiece(QPointF from, QPointF to);
  // Calls `visit` with what the line covers, row after row, from left to right: a row, a pixel of it, and how much of
  // that is covered, 1 to 255 of 255. Another line is to be begun afterwards.
  template <typename Visit>
  void take(const Visit& visit);

 private:
  QRect area_;
  double reach_ = 0;           // from the line's middle, where its cover ends
  std::size_t rowPixels_ = 0;  // between the starts of two rows in what follows
  std::vector<std::uint8_t> covers_;
};

template <typename Visit>
void LineCover::take(const Visit& visit) {
  for (int row = 0; row < area_.height(); ++row) {
    takeMarked(covers_.data() + static_cast<std::size_t>(row) * rowPixels_, rowPixels_,
               [&](std::size_t column, std::uint8_t cover) {
                 visit(area_.y() + row, area_.x() + static_cast<int>(column), unsigned{cover});
               });
  }
}

}  // namespace motor
