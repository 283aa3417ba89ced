#include "motor/drawing/chart_painter.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/brushes.h"
#include "motor/drawing/pens.h"

namespace motor {

namespace {

constexpr double kSixteenths = 16;  // of a degree, the toolkit's unit of angles
constexpr double kTurn = 360;
// Where the chart lies from the centre by its position number, in halves of its size: as labels do.
constexpr double kPositions[][2] = {{0, 0}, {-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {0, 1}, {1, 1}};

class ChartPainter {
 public:
  ChartPainter(QPainter& painter, const ChartTheme& theme, std::span<const double> values, double mostSize,
               double devicePixelRatio)
      : painter_(painter),
        theme_(theme),
        look_(theme.look()),
        values_(values),
        mostSize_(mostSize),
        devicePixelRatio_(devicePixelRatio) {
    const std::vector<QPen> strokes = penStrokes(look_.border);
    border_ = strokes.empty() ? QPen(Qt::NoPen) : strokes.front();
  }

  void paint(QPointF at) {
    painter_.setPen(border_);
    if (look_.isPie) return paintPie(at);
    look_.stacked ? paintStackedBar(at) : paintBars(at);
  }

 private:
  [[nodiscard]] double part(std::size_t i) const { return std::isfinite(values_[i]) ? values_[i] : 0; }

  [[nodiscard]] double sizeOf(double amount) const { return std::min(theme_.sizeOf(amount), mostSize_); }

  [[nodiscard]] QRectF boxAt(QPointF at, QSizeF size) const {
    const double* side = kPositions[std::clamp(look_.placement, 0, 8)];
    const QPointF centre = at + QPointF(side[0] * size.width() / 2, side[1] * size.height() / 2);
    return {centre - QPointF(size.width() / 2, size.height() / 2), size};
  }

  void useBrush(std::size_t i) { painter_.setBrush(toQBrush(look_.parts[i], devicePixelRatio_)); }

  void paintPie(QPointF at) {
    const double sum = theme_.amountOf(values_);
    const double size = sizeOf(sum);
    const QRectF box = boxAt(at, {size, size});
    const double turn = (look_.half ? kTurn / 2 : kTurn) * (look_.counterClockwise ? 1 : -1);
    double angle = look_.angle;
    for (std::size_t i = 0; i < values_.size(); ++i) {
      const double span = std::max(part(i), 0.0) / sum * turn;
      if (span == 0) continue;
      useBrush(i);
      if (std::fabs(span) >= kTurn) {
        painter_.drawEllipse(box);
      } else {
        painter_.drawPie(box, static_cast<int>(std::lround(angle * kSixteenths)),
                         static_cast<int>(std::lround(span * kSixteenths)));
      }
      angle += span;
    }
  }

  void paintFrame(const QRectF& box) {
    if (!isVisible(look_.frame)) return;
    painter_.setBrush(toQBrush(look_.frame, devicePixelRatio_));
    painter_.drawRect(box);
  }

  void paintStackedBar(QPointF at) {
    const double sum = theme_.amountOf(values_);
    const QRectF box = boxAt(at, {look_.barWidth, sizeOf(sum)});
    paintFrame(box);
    double bottom = box.bottom();
    for (std::size_t i = 0; i < values_.size(); ++i) {
      const double height = std::max(part(i), 0.0) / sum * box.height();
      if (height == 0) continue;
      useBrush(i);
      painter_.drawRect(QRectF(box.left(), bottom - height, box.width(), height));
      bottom -= height;
    }
  }

  void paintBars(QPointF at) {
    const double amount = theme_.amountOf(values_);
    const QRectF box = boxAt(at, {look_.barWidth * static_cast<double>(values_.size()), sizeOf(amount)});
    paintFrame(box);
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (part(i) == 0) continue;
      const double tall = look_.fixed ? std::fabs(part(i)) / amount * box.height() : sizeOf(part(i));
      const double own = part(i) < 0 ? -tall : tall;
      useBrush(i);
      const QPointF foot(box.left() + static_cast<double>(i) * look_.barWidth, box.bottom());
      painter_.drawRect(QRectF(foot, QSizeF(look_.barWidth, -own)).normalized());
    }
  }

  QPainter& painter_;
  const ChartTheme& theme_;
  const ChartLook& look_;
  std::span<const double> values_;
  double mostSize_;
  double devicePixelRatio_;
  QPen border_;
};

}  // namespace

void paintChart(QPainter& painter, const ChartTheme& theme, std::span<const double> values, QPointF at, double mostSize,
                double devicePixelRatio) {
  const double amount = theme.amountOf(values);
  if (!(amount > 0) || !std::isfinite(amount)) return;
  painter.save();
  ChartPainter(painter, theme, values, mostSize, devicePixelRatio).paint(at);
  painter.restore();
}

}  // namespace motor
