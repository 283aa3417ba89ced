#include <algorithm>
#include <utility>

#include "study/reports/chart_parts.h"

namespace study::reports {

namespace {

// The least value above 0, and the greatest.
std::pair<double, double> range(const LineChart& chart) {
  double least = 0;
  double greatest = 0;
  for (const LineChart::Line& line : chart.lines) {
    for (const std::optional<double>& value : line.values) {
      if (!value || *value <= 0) continue;
      least = least > 0 ? std::min(least, *value) : *value;
      greatest = std::max(greatest, *value);
    }
  }
  return {least, greatest};
}

AxisScale scaleOf(const LineChart& chart) {
  const auto [least, greatest] = range(chart);
  return needsLogarithms(chart) ? AxisScale::logarithmic(least, greatest) : AxisScale::linear(greatest);
}

void paintVerticalAxis(Page& page, const QRectF& plot, const AxisScale& scale) {
  for (const Tick& tick : scale.ticks()) {
    const double y = plot.bottom() - scale.at(tick.value) * plot.height();
    page.line({plot.left(), y}, {plot.right(), y}, {kGrid, tick.isLabelled ? 0.7 : 0.3});
    if (tick.isLabelled) page.text({plot.left() - 5, y + 2.5}, scale.label(tick), kChartFaint, Align::right);
  }
}

// Every name where there is room, otherwise every second, third ...
void paintCategories(Page& page, const QRectF& plot, const std::vector<std::string>& names) {
  const double step = plot.width() / static_cast<double>(names.size());
  double widest = 0;
  for (const std::string& name : names) widest = std::max(widest, textWidth(name, kChartFaint));
  const auto every = static_cast<std::size_t>((widest + 3) / step) + 1;
  for (std::size_t i = 0; i < names.size(); i += every) {
    const double x = plot.left() + (static_cast<double>(i) + 0.5) * step;
    page.text({x, plot.bottom() + 10}, names[i], kChartFaint, Align::centre);
  }
}

void paintLine(Page& page, const QRectF& plot, const LineChart::Line& line, const AxisScale& scale,
               bool isLogarithmic) {
  const double step = plot.width() / static_cast<double>(line.values.size());
  QPolygonF run;
  const auto finish = [&] {
    if (run.size() > 1) page.path(run, {line.series.colour, 1.4});
    for (const QPointF point : run) page.disc(point, 1.8, line.series.colour);
    run.clear();
  };
  for (std::size_t i = 0; i < line.values.size(); ++i) {
    const std::optional<double>& value = line.values[i];
    if (!value || (isLogarithmic && *value <= 0)) {
      finish();
      continue;
    }
    run.append({plot.left() + (static_cast<double>(i) + 0.5) * step, plot.bottom() - scale.at(*value) * plot.height()});
  }
  finish();
}

}  // namespace

bool needsLogarithms(const LineChart& chart) {
  constexpr double kMuch = 20;
  const auto [least, greatest] = range(chart);
  return least > 0 && greatest / least >= kMuch;
}

void paintChart(Page& page, const QRectF& box, const LineChart& chart) {
  if (chart.categories.empty()) return;
  const AxisScale scale = scaleOf(chart);
  double left = 0;
  for (const Tick& tick : scale.ticks()) left = std::max(left, textWidth(scale.label(tick), kChartFaint));
  const double top = kLegendHeight + 12;
  const QRectF plot(box.left() + left + 8, box.top() + top, box.width() - left - 8, box.height() - top - kAxisHeight);
  std::vector<Series> series;
  for (const LineChart::Line& line : chart.lines) series.push_back(line.series);
  paintLegend(page, {plot.left(), box.top(), plot.width(), kLegendHeight}, series);
  page.text({box.left(), box.top() + kLegendHeight + 4}, shortened(chart.axis, box.width(), kChartFaint), kChartFaint);
  paintVerticalAxis(page, plot, scale);
  paintCategories(page, plot, chart.categories);
  page.text({plot.right(), plot.bottom() + 20}, chart.categoryAxis, kChartFaint, Align::right);
  for (const LineChart::Line& line : chart.lines) paintLine(page, plot, line, scale, needsLogarithms(chart));
  page.line(plot.bottomLeft(), plot.bottomRight(), {kRule, 0.8});
}

}  // namespace study::reports
