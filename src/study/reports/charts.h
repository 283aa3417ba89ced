#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "study/reports/page.h"

// The reports' charts. Each is painted into a box and stays within it, whatever its numbers and names.
namespace study::reports {

// A row of a bar chart. No value: nothing is known, or nothing may be told; then only the text stands there.
struct Bar {
  std::string name;
  std::optional<double> value;
  std::string text;  // beside the bar
};

// Horizontal bars from 0, the names at their left.
struct BarChart {
  std::vector<Bar> bars;
  std::string axis;
  int colour = kBar;
};
void paintChart(Page& page, const QRectF& box, const BarChart& chart);

// A value with its limits, where it has any.
struct Dot {
  double value = 0;
  std::optional<std::pair<double, double>> limits = std::nullopt;
  bool isUnstable = false;  // painted hollow
};

struct Series {
  std::string name;
  int colour = kBar;
};

// A row: a dot of each series, or none.
struct DotRow {
  std::string name;
  std::vector<std::optional<Dot>> dots;
};

// Dots with whiskers beside names; dots of one row stand on one line. The reference is a dashed line.
struct DotChart {
  std::vector<Series> series;
  std::vector<DotRow> rows;
  std::string axis;
  std::optional<double> reference;
  std::string referenceName;
  bool startsAtZero = false;
};
void paintChart(Page& page, const QRectF& box, const DotChart& chart);

// Lines over categories, on a logarithmic axis where the values span much. A missing value, and on a logarithmic axis
// a 0, leaves a gap.
struct LineChart {
  struct Line {
    Series series;
    std::vector<std::optional<double>> values;  // by category
  };
  std::vector<std::string> categories;
  std::vector<Line> lines;
  std::string axis;
  std::string categoryAxis;
};
void paintChart(Page& page, const QRectF& box, const LineChart& chart);

// Whether a line chart's values need a logarithmic axis.
[[nodiscard]] bool needsLogarithms(const LineChart& chart);

// Persons of two sexes by age, the youngest at the bottom.
struct Pyramid {
  struct Band {
    std::string name;
    double left = 0;
    double right = 0;
  };
  Series left;
  Series right;
  std::vector<Band> bands;
  std::string axis;
};
void paintChart(Page& page, const QRectF& box, const Pyramid& chart);

}  // namespace study::reports
