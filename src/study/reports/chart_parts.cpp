#include "study/reports/chart_parts.h"

#include <algorithm>

namespace study::reports {

namespace {

constexpr double kGap = 6;

// The baseline of a line centred on y.
double centred(double y, const TextStyle& style) { return y + style.size * 0.36; }

}  // namespace

double namesWidth(const std::vector<std::string>& names, double most) {
  double widest = 0;
  for (const std::string& name : names) widest = std::max(widest, textWidth(name, kChartText));
  return std::min(widest + 2 * kGap, most);
}

double roomBeyond(const AxisScale& scale) { return textWidth(scale.label(scale.ticks().back()), kChartFaint) / 2; }

void paintHorizontalAxis(Page& page, const QRectF& plot, const AxisScale& scale, std::string_view name) {
  double free = plot.left() - kGap * 3;
  for (const Tick& tick : scale.ticks()) {
    const double x = plot.left() + scale.at(tick.value) * plot.width();
    page.line({x, plot.top()}, {x, plot.bottom()}, {kGrid, 0.5});
    const std::string label = scale.label(tick);
    const double half = textWidth(label, kChartFaint) / 2;
    if (!tick.isLabelled || x - half < free) continue;
    page.text({x, plot.bottom() + 9}, label, kChartFaint, Align::centre);
    free = x + half + kGap;
  }
  page.text({plot.right(), plot.bottom() + 19}, shortened(name, plot.width(), kChartFaint), kChartFaint, Align::right);
}

void paintLegend(Page& page, const QRectF& box, const std::vector<Series>& series) {
  constexpr double kSample = 8;
  double x = box.left();
  for (const Series& each : series) {
    page.box({x, box.top() + 1, kSample, kSample}, each.colour);
    page.text({x + kSample + 4, box.top() + 8}, each.name, kChartText);
    x += kSample + 4 + textWidth(each.name, kChartText) + 3 * kGap;
  }
}

void paintRowName(Page& page, const QRectF& row, const std::string& name) {
  const double width = row.width() - kGap;
  const bool isLong = textWidth(name, kChartText) > width;
  const TextStyle style = isLong ? kChartNarrow : kChartText;
  const double step = style.size * 1.12;
  std::vector<std::string> lines = wrapped(name, width, style);
  const auto fitting = static_cast<std::size_t>(std::max(1.0, row.height() / step));
  if (lines.size() > fitting) {
    std::string rest;
    for (std::size_t i = fitting - 1; i < lines.size(); ++i) rest += (rest.empty() ? "" : " ") + lines[i];
    lines.resize(fitting - 1);
    lines.push_back(shortened(rest, width, style));
  }
  double y = row.center().y() - step * (static_cast<double>(lines.size()) - 1) / 2;
  for (const std::string& line : lines) {
    page.text({row.right() - kGap, centred(y, style)}, line, style, Align::right);
    y += step;
  }
}

}  // namespace study::reports
