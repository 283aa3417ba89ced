#include "hosts/screen/indicator_text.h"

#include <gtest/gtest.h>

namespace screen {
namespace {

TEST(IndicatorText, SplitsAFigureFromTheEnd) {
  struct Case {
    const char* node;
    const char* text;
    const char* figure;
  };
  for (const Case& each : {Case{"Población: 1.234,5", "Población", "1.234,5"}, Case{"Tasa: -3", "Tasa", "-3"},
                           Case{"Hombres", "Hombres", ""}, Case{"Tipo: lista", "Tipo: lista", ""},
                           Case{"a: b: 7", "a: b", "7"}, Case{"a: -", "a: -", ""}}) {
    const IndicatorText parts = splitIndicator(each.node);
    EXPECT_EQ(parts.text, each.text);
    EXPECT_EQ(parts.figure, each.figure);
  }
}

}  // namespace
}  // namespace screen
