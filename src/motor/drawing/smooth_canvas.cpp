#include "motor/drawing/smooth_canvas.h"

#include <QImage>
#include <QPaintEngine>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>

#include "motor/drawing/all_cores.h"

namespace motor {

namespace {

constexpr unsigned kWhole = 255;
constexpr int kBandRows = 48;
constexpr double kSoftEdge = 1;                 // pixels that a border may touch beyond its width
constexpr std::size_t kManyPoints = 2'000;      // from which on other cores are worth waking
constexpr std::size_t kMostPoints = 1'000'000;  // that wait

bool isPlain(const QPainter& painter) {
  const QTransform& transform = painter.deviceTransform();
  return painter.testRenderHint(QPainter::Antialiasing) && !painter.hasClipping() && painter.opacity() == 1 &&
         painter.compositionMode() == QPainter::CompositionMode_SourceOver && transform.type() <= QTransform::TxScale &&
         transform.m11() == transform.m22() && transform.m11() > 0;
}

// Two channels of a colour over those of another, `cover` of 255: 255 times the mean of both, divided as integers are.
constexpr QRgb kTwoChannels = 0x00FF00FF;
QRgb mixedChannels(QRgb over, QRgb below, unsigned cover) {
  constexpr QRgb kHalves = 0x00800080;
  const QRgb sum = (over & kTwoChannels) * cover + (below & kTwoChannels) * (kWhole - cover) + kHalves;
  return ((sum + ((sum >> 8) & kTwoChannels)) >> 8) & kTwoChannels;
}

QRgb mixed(QRgb over, QRgb below, unsigned cover) {
  return mixedChannels(over, below, cover) | (mixedChannels(over >> 8, below >> 8, cover) << 8);
}

// A colour to be laid over pixels.
class Ink {
 public:
  explicit Ink(QRgb colour) : colour_(colour | 0xFF000000U), opacity_(static_cast<unsigned>(qAlpha(colour))) {}

  // Covers pixels [begin, end) of a row in part, `cover` of 255.
  void cover(QRgb* row, int begin, int end, unsigned cover) const {
    const unsigned share = opacity_ == kWhole ? cover : cover * opacity_ / kWhole;
    if (share == kWhole) {
      std::fill(row + begin, row + end, colour_);
    } else {
      for (int x = begin; x < end; ++x) row[x] = mixed(colour_, row[x], share);
    }
  }

 private:
  QRgb colour_;
  unsigned opacity_;
};

// The pixels from the lowest to the highest of some coordinates, and a margin, as far as a picture may reach.
QRect pixelsAround(const QPointF& lowest, const QPointF& highest, double margin) {
  constexpr double kFarthest = 1e9;
  const auto least = [&](double at) {
    return static_cast<int>(std::floor(std::clamp(at - margin, -kFarthest, kFarthest)));
  };
  const auto most = [&](double at) {
    return static_cast<int>(std::ceil(std::clamp(at + margin, -kFarthest, kFarthest)));
  };
  return {QPoint(least(lowest.x()), least(lowest.y())), QPoint(most(highest.x()) - 1, most(highest.y()) - 1)};
}

}  // namespace

std::optional<SmoothCanvas> SmoothCanvas::of(QPainter& painter) {
  if (painter.paintEngine() == nullptr || painter.paintEngine()->type() != QPaintEngine::Raster) return std::nullopt;
  auto* picture = dynamic_cast<QImage*>(painter.device());
  if (picture == nullptr || picture->format() != QImage::Format_RGB32 || !isPlain(painter)) return std::nullopt;
  return SmoothCanvas(*picture, painter.deviceTransform());
}

SmoothCanvas::SmoothCanvas(QImage& picture, const QTransform& toPixels)
    : pixels_(picture.bits()), bytesPerRow_(picture.bytesPerLine()), picture_(picture.rect()), toPixels_(toPixels) {}

void SmoothCanvas::add(const std::vector<QPolygonF>& rings, const Style& style) {
  QPointF lowest(std::numeric_limits<double>::max(), std::numeric_limits<double>::max());
  QPointF highest = -lowest;
  for (const QPolygonF& ring : rings) {
    for (const QPointF& corner : ring) {
      const QPointF point = toPixels_.map(corner);
      lowest = {std::min(lowest.x(), point.x()), std::min(lowest.y(), point.y())};
      highest = {std::max(highest.x(), point.x()), std::max(highest.y(), point.y())};
      points_.push_back(point);
    }
    ringEnds_.push_back(points_.size());
  }
  const double margin = style.border ? style.borderWidth * toPixels_.m11() / 2 + kSoftEdge : 0;
  const bool isSomewhere = lowest.x() <= highest.x();
  const QRect pixels = isSomewhere ? pixelsAround(lowest, highest, margin) & picture_ : QRect();
  shapes_.push_back({ringEnds_.size(), pixels, style});
  if (points_.size() >= kMostPoints) paint();
}

void SmoothCanvas::paint() {
  if (shapes_.empty()) return;
  std::atomic<int> next{0};
  const auto takePart = [&] {
    Tools tools;
    for (int top = next.fetch_add(kBandRows); top < picture_.height(); top = next.fetch_add(kBandRows)) {
      paintBand(QRect(0, top, picture_.width(), kBandRows), tools);
    }
  };
  points_.size() < kManyPoints ? takePart() : onAllCores(takePart);
  points_.clear();
  ringEnds_.clear();
  shapes_.clear();
}

void SmoothCanvas::paintBand(const QRect& band, Tools& tools) const {
  for (std::size_t i = 0; i < shapes_.size(); ++i) {
    const QRect area = shapes_[i].pixels & band;
    if (!area.isEmpty()) paintShape(i, area, tools);
  }
}

template <typename Visit>
void SmoothCanvas::forEdges(std::size_t shape, const Visit& visit) const {
  const std::size_t firstRing = shape == 0 ? 0 : shapes_[shape - 1].ringsEnd;
  for (std::size_t ring = firstRing; ring < shapes_[shape].ringsEnd; ++ring) {
    const std::size_t begin = ring == 0 ? 0 : ringEnds_[ring - 1];
    if (begin == ringEnds_[ring]) continue;
    for (std::size_t i = begin; i + 1 < ringEnds_[ring]; ++i) visit(points_[i], points_[i + 1]);
    visit(points_[ringEnds_[ring] - 1], points_[begin]);
  }
}

void SmoothCanvas::paintShape(std::size_t shape, const QRect& area, Tools& tools) const {
  const Style& style = shapes_[shape].style;
  if (style.fill) {
    tools.polygon.begin(area);
    forEdges(shape, [&](const QPointF& from, const QPointF& to) { tools.polygon.addEdge(from, to); });
    const Ink ink(*style.fill);
    tools.polygon.take([&](int row, int begin, int end, unsigned cover) { ink.cover(rowAt(row), begin, end, cover); });
  }
  if (style.border) {
    tools.line.begin(area, style.borderWidth * toPixels_.m11());
    forEdges(shape, [&](const QPointF& from, const QPointF& to) { tools.line.addPiece(from, to); });
    const Ink ink(*style.border);
    tools.line.take([&](int row, int column, unsigned cover) { ink.cover(rowAt(row), column, column + 1, cover); });
  }
}

}  // namespace motor
