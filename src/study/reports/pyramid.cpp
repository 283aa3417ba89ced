#include <algorithm>

#include "study/reports/chart_parts.h"

namespace study::reports {

namespace {

void paintHalfAxis(Page& page, const QRectF& half, const AxisScale& scale, bool isMirrored) {
  double free = -1;  // how far from the middle the last number reaches
  for (const Tick& tick : scale.ticks()) {
    const double away = scale.at(tick.value) * half.width();
    const double x = isMirrored ? half.right() - away : half.left() + away;
    page.line({x, half.top()}, {x, half.bottom()}, {kGrid, 0.5});
    const std::string label = scale.label(tick);
    const double reach = textWidth(label, kChartFaint) / 2;
    if (away - reach < free) continue;
    page.text({x, half.bottom() + 9}, label, kChartFaint, Align::centre);
    free = away + reach + 5;
  }
}

}  // namespace

void paintChart(Page& page, const QRectF& box, const Pyramid& chart) {
  if (chart.bands.empty()) return;
  double greatest = 0;
  double names = 0;
  for (const Pyramid::Band& band : chart.bands) {
    greatest = std::max({greatest, band.left, band.right});
    names = std::max(names, textWidth(band.name, kChartText));
  }
  constexpr double kTitles = 16;
  const AxisScale scale = AxisScale::linear(greatest, 4);
  const double edge = roomBeyond(scale);
  names = std::min(names + 14, box.width() * 0.3);
  const double width = (box.width() - names) / 2 - edge;
  const double height = box.height() - kTitles - kAxisHeight;
  const QRectF left(box.left() + edge, box.top() + kTitles, width, height);
  const QRectF right(box.right() - edge - width, box.top() + kTitles, width, height);
  paintHalfAxis(page, left, scale, true);
  paintHalfAxis(page, right, scale, false);
  page.text({left.right(), box.top() + 9}, chart.left.name, {8, true, chart.left.colour}, Align::right);
  page.text({right.left(), box.top() + 9}, chart.right.name, {8, true, chart.right.colour});
  page.text({right.right(), right.bottom() + 20}, chart.axis, kChartFaint, Align::right);

  const double step = height / static_cast<double>(chart.bands.size());
  double top = left.bottom() - step;
  for (const Pyramid::Band& band : chart.bands) {
    const double gap = std::min(step * 0.06, 1.0);
    const double men = scale.at(band.left) * width;
    const double women = scale.at(band.right) * width;
    if (men > 0) page.box({left.right() - men, top + gap, men, step - 2 * gap}, chart.left.colour);
    if (women > 0) page.box({right.left(), top + gap, women, step - 2 * gap}, chart.right.colour);
    page.text({(left.right() + right.left()) / 2, top + step / 2 + kChartText.size * 0.36},
              shortened(band.name, names, kChartText), kChartText, Align::centre);
    top -= step;
  }
}

}  // namespace study::reports
