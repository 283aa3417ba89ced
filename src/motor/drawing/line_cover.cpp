#include "motor/drawing/line_cover.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace motor {

namespace {

constexpr double kSoftEdge = 0.5;  // pixels from where a pixel is covered whole to where it is half covered

// The covers of an area as a piece of line sees them that runs more along one axis than along the other.
struct Grid {
  std::uint8_t* covers;
  int along;  // pixels
  int across;
  std::size_t alongStep;  // to the next pixel in that direction
  std::size_t acrossStep;
};

// The first of `count` pixels whose middle is not below a coordinate; `count` where none is.
int firstPixel(double at, int count) {
  const double place = std::clamp(at - 0.5, 0.0, static_cast<double>(count));
  const int below = static_cast<int>(place);
  return below < place ? below + 1 : below;
}

// A piece of line on such a grid: x runs along the axis and grows from `a` to `b`, y runs across it.
struct Piece {
  QPointF a;
  QPointF b;
  QPointF way;  // from a to b, one pixel long
  bool beginsAtA = true;
  double reach = 1;  // from its middle, where its cover ends

  [[nodiscard]] double slope() const { return way.y() / way.x(); }
  // Where its middle is, in pixels across.
  [[nodiscard]] double middleAt(int along) const { return a.y() + (along + 0.5 - a.x()) * slope() - 0.5; }
  // Pixels across that may be covered on either side of the middle.
  [[nodiscard]] double halfAcross() const { return reach / way.x(); }
};

void coverAtLeast(std::uint8_t& cover, Fixed share) {
  cover = std::max(cover, static_cast<std::uint8_t>(toCover(std::clamp<Fixed>(share, 0, kOne))));
}

// Pixels [begin, end) along, near the piece's ends: beyond the one where it begins it is round, beyond the other it is
// not.
void passEnd(const Grid& grid, const Piece& piece, int begin, int end) {
  const double length = QPointF::dotProduct(piece.b - piece.a, piece.way);
  const double half = piece.halfAcross();
  for (int along = begin; along < end; ++along) {
    const double middle = piece.middleAt(along);
    const double first = std::clamp(std::ceil(middle - half), 0.0, grid.across + 0.0);
    const double last = std::min(middle + half, grid.across - 1.0);
    for (int across = static_cast<int>(first); across <= last; ++across) {
      const QPointF apart = QPointF(along + 0.5, across + 0.5) - piece.a;
      const double onward = QPointF::dotProduct(apart, piece.way);
      const double before = piece.beginsAtA ? -onward : onward - length;
      const double behind = piece.beginsAtA ? onward - length : -onward;
      if (behind > 0) continue;
      const double aside = apart.x() * piece.way.y() - apart.y() * piece.way.x();
      const double distance = before > 0 ? std::sqrt(before * before + aside * aside) : std::fabs(aside);
      coverAtLeast(grid.covers[static_cast<std::size_t>(along) * grid.alongStep +
                               static_cast<std::size_t>(across) * grid.acrossStep],
                   toFixed(piece.reach - distance));
    }
  }
}

// Pixels [begin, end) along, far from the ends.
void passMiddle(const Grid& grid, const Piece& piece, int begin, int end) {
  // Far off, a line that never comes near may be taken for one that lies a bit nearer.
  Fixed fineMiddle = toFine(withinReach(piece.middleAt(begin)));
  const Fixed fineSlope = toFine(piece.slope());
  const Fixed half = toFixed(piece.halfAcross());
  const Fixed reach = toFixed(piece.reach);
  const Fixed cosine = toFixed(piece.way.x());
  const int count = wholePixels(2 * half) + 1;  // that may be covered, across
  for (int along = begin; along < end; ++along, fineMiddle += fineSlope) {
    const Fixed middle = fromFine(fineMiddle);
    const int first = wholePixels(middle - half + kOne - 1);
    const int from = std::max(first, 0);
    const int to = std::min(first + count, grid.across);
    std::uint8_t* cover = grid.covers + static_cast<std::size_t>(along) * grid.alongStep +
                          static_cast<std::size_t>(from) * grid.acrossStep;
    for (int across = from; across < to; ++across, cover += grid.acrossStep) {
      coverAtLeast(*cover, reach - product(std::abs(across * kOne - middle), cosine));
    }
  }
}

// The pixels [first, second) along at which a piece's line comes near the grid: all where it runs straight along.
std::pair<int, int> pixelsNear(const Grid& grid, const Piece& piece) {
  const double slope = piece.slope();
  if (slope == 0) return {0, grid.along};
  const double margin = piece.halfAcross() + 1;
  const double atFirst = piece.a.x() + (-margin - piece.a.y()) / slope;
  const double atLast = piece.a.x() + (grid.across + margin - piece.a.y()) / slope;
  return {firstPixel(std::min(atFirst, atLast), grid.along), firstPixel(std::max(atFirst, atLast), grid.along)};
}

void pass(const Grid& grid, const Piece& piece) {
  const double endReach = piece.reach * std::fabs(piece.way.y());  // of what lies beside an end
  const double roundReach = std::max(piece.reach, endReach);
  const auto [nearBegin, nearEnd] = pixelsNear(grid, piece);
  const int begin =
      std::max(nearBegin, firstPixel(piece.a.x() - (piece.beginsAtA ? roundReach : endReach), grid.along));
  const int end = std::min(nearEnd, firstPixel(piece.b.x() + (piece.beginsAtA ? endReach : roundReach), grid.along));
  if (begin >= end) return;
  const int middleBegin = std::clamp(firstPixel(piece.a.x() + endReach, grid.along), begin, end);
  const int middleEnd = std::clamp(firstPixel(piece.b.x() - endReach, grid.along), middleBegin, end);
  passEnd(grid, piece, begin, middleBegin);
  passMiddle(grid, piece, middleBegin, middleEnd);
  passEnd(grid, piece, middleEnd, end);
}

}  // namespace

void LineCover::begin(const QRect& area, double width) {
  area_ = area;
  reach_ = width / 2 + kSoftEdge;
  rowPixels_ = wholeGroups(static_cast<std::size_t>(area.width()));
  const std::size_t pixels = static_cast<std::size_t>(area.height()) * rowPixels_;
  if (covers_.size() < pixels) covers_.resize(pixels, 0);
}

void LineCover::addPiece(QPointF from, QPointF to) {
  const QPointF a = from - area_.topLeft();
  const QPointF b = to - area_.topLeft();
  if (std::max(a.y(), b.y()) < -reach_ || std::min(a.y(), b.y()) > area_.height() + reach_) return;
  const double length = std::sqrt(QPointF::dotProduct(b - a, b - a));
  if (!(length > 0)) return;
  Piece piece{a, b, (b - a) / length, true, reach_};
  Grid grid{covers_.data(), area_.width(), area_.height(), 1, rowPixels_};
  if (std::fabs(piece.way.x()) < std::fabs(piece.way.y())) {
    piece = {a.transposed(), b.transposed(), piece.way.transposed(), true, reach_};
    grid = {covers_.data(), area_.height(), area_.width(), rowPixels_, 1};
  }
  if (piece.way.x() < 0) piece = {piece.b, piece.a, -piece.way, false, reach_};
  pass(grid, piece);
}

}  // namespace motor
