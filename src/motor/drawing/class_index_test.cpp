#include "motor/drawing/class_index.h"

#include <gtest/gtest.h>

#include "motor/drawing/class_theme.h"

namespace motor {
namespace {

ThemeClass range(double minimum, double maximum) { return {minimum, maximum, {}, 0}; }

TEST(ClassIndex, aRangeHoldsItsMinimumAndNotItsMaximum) {
  const ClassIndex index({range(0, 10), range(10, 25), range(40, 50)});
  struct Case {
    double value;
    std::optional<std::size_t> number;
  };
  for (const Case& c : {Case{-0.1, {}}, Case{0, 0}, Case{9.99, 0}, Case{10, 1}, Case{24.9, 1}, Case{25, {}},
                        Case{39.9, {}}, Case{40, 2}, Case{50, {}}, Case{1e9, {}}}) {
    EXPECT_EQ(index.find(c.value), c.number) << c.value;
  }
  EXPECT_FALSE(index.find("10"));
  EXPECT_FALSE(index.find(Value()));
}

TEST(ClassIndex, theFirstOfSeveralRangesHasAValue) {
  const ClassIndex index({range(10, 20), range(0, 30), range(25, 40)});
  EXPECT_EQ(index.find(5.0), 1U);
  EXPECT_EQ(index.find(15.0), 0U);
  EXPECT_EQ(index.find(20.0), 1U);
  EXPECT_EQ(index.find(29.0), 1U);
  EXPECT_EQ(index.find(30.0), 2U);
}

TEST(ClassIndex, findsSingleValuesWithoutRegardToCase) {
  const ClassIndex index({{"Ñorga", Value(), {}, 0}, {1.0, Value(), {}, 0}, {"", Value(), {}, 0}});
  EXPECT_EQ(index.find("ñORGA"), 0U);
  EXPECT_EQ(index.find(1.0), 1U);
  EXPECT_EQ(index.find(true), 1U) << "a logical is 1 or 0";
  EXPECT_FALSE(index.find(false));
  EXPECT_EQ(index.find(""), 2U);
  EXPECT_FALSE(index.find("1"));
}

}  // namespace
}  // namespace motor
