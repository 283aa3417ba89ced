#include "study/reports/axis_scale.h"

#include <gtest/gtest.h>

namespace study::reports {
namespace {

std::vector<std::string> labels(const AxisScale& scale) {
  std::vector<std::string> texts;
  for (const Tick& tick : scale.ticks()) {
    if (tick.isLabelled) texts.push_back(scale.label(tick));
  }
  return texts;
}

using Texts = std::vector<std::string>;

TEST(AxisScale, EndsAtReadableNumbers) {
  EXPECT_EQ(labels(AxisScale::linear(100)), (Texts{"0", "20", "40", "60", "80", "100"}));
  EXPECT_EQ(labels(AxisScale::linear(5'859)), (Texts{"0", "2.000", "4.000", "6.000"}));
  EXPECT_EQ(labels(AxisScale::linear(0.03, 3)), (Texts{"0", "0,01", "0,02", "0,03"}));
  EXPECT_EQ(labels(AxisScale::around(566, 657)), (Texts{"560", "580", "600", "620", "640", "660"}));
}

TEST(AxisScale, HasAnAxisWhereAllIsZeroOrEqual) {
  EXPECT_GE(AxisScale::linear(0).ticks().size(), 2U);
  EXPECT_EQ(AxisScale::linear(0).at(0), 0);
  const AxisScale same = AxisScale::around(500, 500);
  EXPECT_GE(same.ticks().size(), 2U);
  EXPECT_GE(same.at(500), 0);
  EXPECT_LE(same.at(500), 1);
}

TEST(AxisScale, PlacesValues) {
  const AxisScale linear = AxisScale::linear(100);
  EXPECT_DOUBLE_EQ(linear.at(25), 0.25);
  EXPECT_DOUBLE_EQ(linear.at(-5), 0);
  EXPECT_DOUBLE_EQ(linear.at(500), 1);
  const AxisScale logarithmic = AxisScale::logarithmic(3, 900);
  EXPECT_EQ(labels(logarithmic), (Texts{"1", "10", "100", "1.000"}));
  EXPECT_NEAR(logarithmic.at(10), 1.0 / 3, 1e-12);
  EXPECT_DOUBLE_EQ(logarithmic.at(0), 0);
  EXPECT_DOUBLE_EQ(logarithmic.at(1'000), 1);
}

}  // namespace
}  // namespace study::reports
