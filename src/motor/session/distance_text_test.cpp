#include "motor/session/distance_text.h"

#include <gtest/gtest.h>

#include <cmath>

#include "motor/language/error.h"

namespace motor {
namespace {

TEST(DistanceText, HasFourDigitsInTheUnitAsked) {
  struct Case {
    double metres;
    const char* unit;
    const char* text;
  };
  for (const Case& c : {Case{0, "km", "0,000 km"}, Case{12.3456, "km", "0,012 km"}, Case{3417.2, "km", "3,417 km"},
                        Case{34172, "km", "34,17 km"}, Case{341720, "KM", "341,7 km"}, Case{3417200, "km", "3.417 km"},
                        Case{3417.2, "m", "3.417 m"}, Case{1609.344, "mi", "1,000 millas"},
                        Case{18520, "nmi", "10,00 millas náuticas"}, Case{3.048, "ft", "10,00 pies"}}) {
    EXPECT_EQ(distanceText(c.metres, c.unit), c.text) << c.metres << " " << c.unit;
  }
  EXPECT_EQ(distanceText(std::nan(""), "km"), "—");
  EXPECT_THROW((void)distanceText(1, "leguas"), EngineError);
}

}  // namespace
}  // namespace motor
