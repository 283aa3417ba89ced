#include "study/reports/charts.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "study/reports/test_pages.h"

namespace study::reports {
namespace {

const QRectF kBox(100, 100, 400, 260);
const std::string kLongName = "Enfermedades crónicas de las vías respiratorias inferiores excepto asma";

template <typename Chart>
Page painted(const Chart& chart) {
  Page page;
  paintChart(page, kBox, chart);
  expectWithin(page, kBox);
  expectLegible(page);
  return page;
}

std::vector<QRectF> boxesOf(const Page& page, int fill) {
  std::vector<QRectF> boxes;
  for (const Mark& mark : page.marks()) {
    const auto* shape = std::get_if<ShapeMark>(&mark);
    if (shape && shape->fill == fill) boxes.push_back(markExtent(mark));
  }
  return boxes;
}

std::vector<const DiscMark*> discsOf(const Page& page) {
  std::vector<const DiscMark*> discs;
  for (const Mark& mark : page.marks()) {
    if (const auto* disc = std::get_if<DiscMark>(&mark)) discs.push_back(disc);
  }
  return discs;
}

TEST(BarChart, HasLengthsInProportion) {
  const Page page =
      painted(BarChart{{{"A", 100, "100"}, {kLongName, 50, "50"}, {"C", 0, "0"}, {"D", {}, "(s)"}}, "Número"});
  const std::vector<QRectF> bars = boxesOf(page, kBar);
  ASSERT_EQ(bars.size(), 2U) << "neither 0 nor a hidden value has a bar";
  EXPECT_NEAR(bars[0].width(), 2 * bars[1].width(), 0.01);
  EXPECT_TRUE(hasText(page, "(s)"));
}

TEST(BarChart, CopesWithNothingAndWithMuch) {
  EXPECT_TRUE(painted(BarChart{}).marks().empty());
  painted(BarChart{{{"A", 0, "0"}}, ""});
  painted(BarChart{std::vector<Bar>(20, {kLongName + kLongName, 123'456'789, "123.456.789 (100,0 %)"}), kLongName});
}

TEST(DotChart, ShowsDotsWhiskersAndTheReference) {
  DotChart chart{{{"Ambos sexos", kBar}}, {}, "Tasa", 620, "Veldoria: 620,0"};
  chart.rows = {{"Alta", {Dot{650, std::pair(600.0, 700.0)}}}, {"Baja", {Dot{600, std::pair(560.0, 640.0), true}}}};
  const Page page = painted(chart);
  const std::vector<const DiscMark*> dots = discsOf(page);
  ASSERT_EQ(dots.size(), 2U);
  EXPECT_GT(dots[0]->centre.x(), dots[1]->centre.x());
  EXPECT_EQ(dots[0]->fill, kBar);
  EXPECT_EQ(dots[1]->fill, kPaper) << "unstable";
  EXPECT_TRUE(hasText(page, "Veldoria: 620,0"));
}

TEST(DotChart, CopesWithNothingAndWithMuch) {
  EXPECT_TRUE(painted(DotChart{}).marks().empty());
  painted(DotChart{{{"A", kMen}}, {{"x", {std::nullopt}}}, "", 0.0, "Veldoria: 0,0"});
  DotChart chart{{{"Hombres", kMen}, {"Mujeres", kWomen}}, {}, "Tasa", 1e6, kLongName};
  chart.rows.assign(28, {kLongName, {Dot{0}, Dot{1e6, std::pair(0.0, 2e6)}}});
  painted(chart);
}

LineChart lines(std::vector<std::optional<double>> values) {
  LineChart chart;
  for (std::size_t i = 0; i < values.size(); ++i)
    chart.categories.push_back(std::to_string(5 * i) + "-" + std::to_string(5 * i + 4));
  chart.lines = {{{"Hombres", kMen}, std::move(values)}};
  chart.axis = "Defunciones por 100.000";
  chart.categoryAxis = "Edad";
  return chart;
}

TEST(LineChart, UsesLogarithmsWhereValuesSpanMuch) {
  EXPECT_TRUE(needsLogarithms(lines({5, 50, 15'000})));
  EXPECT_FALSE(needsLogarithms(lines({50, 60, 70})));
  EXPECT_FALSE(needsLogarithms(lines({0, 0, 70})));
  EXPECT_FALSE(needsLogarithms(lines({std::nullopt})));
}

TEST(LineChart, LeavesGaps) {
  const Page page = painted(lines({10, 100, std::nullopt, 0, 10'000, 20'000}));
  EXPECT_EQ(discsOf(page).size(), 4U) << "a 0 has no place on a logarithmic axis";
  const auto runs = std::count_if(page.marks().begin(), page.marks().end(), [](const Mark& mark) {
    const auto* shape = std::get_if<ShapeMark>(&mark);
    return shape && shape->stroke && shape->stroke->colour == kMen;
  });
  EXPECT_EQ(runs, 2);
}

TEST(LineChart, CopesWithNothingAndWithMuch) {
  EXPECT_TRUE(painted(LineChart{}).marks().empty());
  painted(lines({std::nullopt, std::nullopt}));
  painted(lines(std::vector<std::optional<double>>(60, 99'999.0)));
}

TEST(Pyramid, HasMenLeftAndWomenRight) {
  const Page page =
      painted(Pyramid{{"Hombres", kMen}, {"Mujeres", kWomen}, {{"0-4", 100, 50}, {"5 y más", 0, 80}}, "Personas"});
  const std::vector<QRectF> men = boxesOf(page, kMen);
  const std::vector<QRectF> women = boxesOf(page, kWomen);
  ASSERT_EQ(men.size(), 1U);
  ASSERT_EQ(women.size(), 2U);
  EXPECT_LT(men[0].right(), women[0].left());
  EXPECT_NEAR(men[0].width(), 2 * women[0].width(), 0.01);
  EXPECT_LT(women[1].bottom(), women[0].bottom()) << "the oldest at the top";
}

TEST(Pyramid, CopesWithNothingAndWithMuch) {
  EXPECT_TRUE(painted(Pyramid{}).marks().empty());
  painted(Pyramid{{"Hombres", kMen}, {"Mujeres", kWomen}, {{"Todas", 0, 0}}, ""});
  painted(Pyramid{
      {"Hombres", kMen}, {"Mujeres", kWomen}, std::vector<Pyramid::Band>(20, {"100 y más", 3e8, 1}), "Personas"});
}

}  // namespace
}  // namespace study::reports
