#include <algorithm>

#include "study/reports/chart_parts.h"

namespace study::reports {

namespace {

constexpr double kRadius = 2.6;

AxisScale scaleOf(const DotChart& chart) {
  std::vector<double> values;
  for (const DotRow& row : chart.rows) {
    for (const std::optional<Dot>& dot : row.dots) {
      if (!dot) continue;
      values.push_back(dot->value);
      if (dot->limits) values.insert(values.end(), {dot->limits->first, dot->limits->second});
    }
  }
  if (chart.reference) values.push_back(*chart.reference);
  if (values.empty()) return AxisScale::linear(0);
  const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
  return chart.startsAtZero ? AxisScale::linear(*greatest) : AxisScale::around(*least, *greatest);
}

void paintDot(Page& page, const Dot& dot, const Series& series, const AxisScale& scale, const QRectF& plot, double y) {
  const auto at = [&](double value) { return plot.left() + scale.at(value) * plot.width(); };
  if (dot.limits) {
    page.line({at(dot.limits->first), y}, {at(dot.limits->second), y}, {series.colour, 1});
    for (const double limit : {dot.limits->first, dot.limits->second}) {
      page.line({at(limit), y - 2}, {at(limit), y + 2}, {series.colour, 1});
    }
  }
  page.disc({at(dot.value), y}, kRadius, dot.isUnstable ? kPaper : series.colour, Stroke{series.colour, 0.9});
}

void paintReference(Page& page, const QRectF& plot, const AxisScale& scale, const DotChart& chart) {
  const double x = plot.left() + scale.at(*chart.reference) * plot.width();
  page.line({x, plot.top()}, {x, plot.bottom()}, {kBothSexesColour, 0.9, true});
  const std::string name = shortened(chart.referenceName, plot.width(), kChartFaint);
  const double width = textWidth(name, kChartFaint);
  const double centre =
      std::clamp(x, plot.left() + width / 2, std::max(plot.left() + width / 2, plot.right() - width / 2));
  page.text({centre, plot.top() - 4}, name, kChartFaint, Align::centre);
}

}  // namespace

void paintChart(Page& page, const QRectF& box, const DotChart& chart) {
  if (chart.rows.empty()) return;
  std::vector<std::string> names;
  for (const DotRow& row : chart.rows) names.push_back(row.name);
  const double left = namesWidth(names, box.width() * 0.45);
  const double top = (chart.series.size() > 1 ? kLegendHeight : 0) + (chart.reference ? 12 : 0);
  const AxisScale scale = scaleOf(chart);
  const double beyond = std::max(8.0, roomBeyond(scale));
  const QRectF plot(box.left() + left, box.top() + top, box.width() - left - beyond, box.height() - kAxisHeight - top);
  if (chart.series.size() > 1) paintLegend(page, {plot.left(), box.top(), plot.width(), kLegendHeight}, chart.series);
  paintHorizontalAxis(page, plot, scale, chart.axis);
  if (chart.reference) paintReference(page, plot, scale, chart);

  const double step = plot.height() / static_cast<double>(chart.rows.size());
  double middle = plot.top() + step / 2;
  for (const DotRow& row : chart.rows) {
    paintRowName(page, {box.left(), middle - step / 2, left, step}, row.name);
    page.line({plot.left(), middle}, {plot.right(), middle}, {kGrid, 0.5});
    for (std::size_t i = 0; i < row.dots.size(); ++i) {
      if (row.dots[i]) paintDot(page, *row.dots[i], chart.series[i], scale, plot, middle);
    }
    middle += step;
  }
  page.line(plot.topLeft(), plot.bottomLeft(), {kRule, 0.8});
}

}  // namespace study::reports
