#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/reports/axis_scale.h"
#include "study/reports/charts.h"

// What charts have in common.
namespace study::reports {

inline constexpr TextStyle kChartText{7.5};
inline constexpr TextStyle kChartNarrow{6.75};
inline constexpr TextStyle kChartFaint{7, false, kFaintText};
inline constexpr double kAxisHeight = 24;    // of a horizontal axis: its numbers and its name
inline constexpr double kLegendHeight = 16;  // of the names of the series, above a chart

// The room that names beside rows need, at most `most`.
[[nodiscard]] double namesWidth(const std::vector<std::string>& names, double most);

// What the last number of an axis takes beyond the axis's end.
[[nodiscard]] double roomBeyond(const AxisScale& scale);

// Grid lines over the plot, the numbers below them and the axis's name at their right end. Numbers that would touch
// their neighbour are left out, and so is what does not fit the box.
void paintHorizontalAxis(Page& page, const QRectF& plot, const AxisScale& scale, std::string_view name);

// Names with their colours, one beside the other from the box's left.
void paintLegend(Page& page, const QRectF& box, const std::vector<Series>& series);

// A name at the left of a row, in two lines where it needs and the row has room for them.
void paintRowName(Page& page, const QRectF& row, const std::string& name);

}  // namespace study::reports
