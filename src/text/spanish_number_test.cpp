#include "text/spanish_number.h"

#include <gtest/gtest.h>

namespace text {
namespace {

TEST(SpanishNumber, CommaAndThousands) {
  EXPECT_EQ(spanishNumber(0, 0), "0");
  EXPECT_EQ(spanishNumber(999, 0), "999");
  EXPECT_EQ(spanishNumber(1000, 0), "1.000");
  EXPECT_EQ(spanishNumber(1234567.89, 1), "1.234.567,9");
  EXPECT_EQ(spanishNumber(-1234.5, 2), "-1.234,50");
}

TEST(SpanishNumber, HalvesGoAwayFromZero) {
  EXPECT_EQ(spanishNumber(0.5, 0), "1");
  EXPECT_EQ(spanishNumber(2.5, 0), "3");
  EXPECT_EQ(spanishNumber(12.345, 2), "12,35");
  EXPECT_EQ(spanishNumber(1.005, 2), "1,01");
  EXPECT_EQ(spanishNumber(-0.05, 1), "-0,1");
  EXPECT_EQ(spanishNumber(2656.2499999999995, 1), "2.656,3") << "2656.25 but for the last binary digit";
  EXPECT_EQ(spanishNumber(2656.2499, 1), "2.656,2");
  EXPECT_EQ(spanishNumber(9.995, 2), "10,00");
  EXPECT_EQ(spanishNumber(0.000000000000005, 14), "0,00000000000001");
  EXPECT_EQ(spanishNumber(0.123456789012345, 15), "0,123456789012345");
  EXPECT_EQ(spanishNumber(1.5, 15), "1,500000000000000");
  EXPECT_EQ(spanishNumber(0.0499, 1), "0,0");
}

TEST(SpanishNumber, NothingIsNotNegative) {
  EXPECT_EQ(spanishNumber(-0.001, 1), "0,0");
  EXPECT_EQ(spanishNumber(-0.04, 1), "0,0");
}

TEST(SpanishNumber, GreatNumbers) {
  EXPECT_EQ(spanishNumber(999999.95, 1), "1.000.000,0");
  EXPECT_EQ(spanishNumber(1e15, 0), "1.000.000.000.000.000");
  EXPECT_EQ(spanishNumber(1e15, 1), "1.000.000.000.000.000,0");
  EXPECT_EQ(spanishNumber(1e15 + 2, 2), "1.000.000.000.000.002,00");
  EXPECT_EQ(spanishNumber(99'999'999'999'999.5, 0), "100.000.000.000.000");
}

TEST(SpanishNumber, ShortOnesEndWithTheirLastDecimal) {
  EXPECT_EQ(shortSpanishNumber(22.5, 3), "22,5");
  EXPECT_EQ(shortSpanishNumber(1200, 3), "1.200");
  EXPECT_EQ(shortSpanishNumber(0.125, 2), "0,13");
}

}  // namespace
}  // namespace text
