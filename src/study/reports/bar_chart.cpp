#include <algorithm>

#include "study/reports/chart_parts.h"

namespace study::reports {

void paintChart(Page& page, const QRectF& box, const BarChart& chart) {
  if (chart.bars.empty()) return;
  double greatest = 0;
  double textRoom = 0;
  std::vector<std::string> names;
  for (const Bar& bar : chart.bars) {
    greatest = std::max(greatest, bar.value.value_or(0));
    textRoom = std::max(textRoom, textWidth(bar.text, kChartText) + 8);
    names.push_back(bar.name);
  }
  const double left = namesWidth(names, box.width() * 0.45);
  const AxisScale scale = AxisScale::linear(greatest);
  textRoom = std::max(textRoom, roomBeyond(scale));
  const QRectF plot(box.left() + left, box.top(), box.width() - left - textRoom, box.height() - kAxisHeight);
  paintHorizontalAxis(page, plot, scale, chart.axis);

  const double step = plot.height() / static_cast<double>(chart.bars.size());
  const double thickness = std::min(step * 0.66, 12.0);
  double top = plot.top();
  for (const Bar& bar : chart.bars) {
    const double middle = top + step / 2;
    const double length = bar.value ? scale.at(*bar.value) * plot.width() : 0;
    paintRowName(page, {box.left(), top, left, step}, bar.name);
    if (length > 0) page.box({plot.left(), middle - thickness / 2, length, thickness}, chart.colour);
    page.text({plot.left() + length + 4, middle + kChartText.size * 0.36}, bar.text, kChartText);
    top += step;
  }
  page.line(plot.topLeft(), plot.bottomLeft(), {kRule, 0.8});
}

}  // namespace study::reports
