#include "study/model/age_group.h"

#include <gtest/gtest.h>

namespace study {
namespace {

TEST(AgeGroup, IsReadFromItsNames) {
  struct Case {
    std::string_view text, name;
    double from;
    std::optional<double> to;
  };
  for (const Case& c : {Case{"0", "0", 0, 1},
                        {"<1", "0", 0, 1},
                        {"< 1", "0", 0, 1},
                        {"<5", "0-4", 0, 5},
                        {"7", "7", 7, 8},
                        {"1-4", "1-4", 1, 5},
                        {" 1 - 4 ", "1-4", 1, 5},
                        {"1–4", "1-4", 1, 5},
                        {"05-09", "5-9", 5, 10},
                        {"100-104", "100-104", 100, 105},
                        {"4-4", "4", 4, 5},
                        {"85+", "85 y más", 85, std::nullopt},
                        {"85 +", "85 y más", 85, std::nullopt},
                        {"85 y más", "85 y más", 85, std::nullopt},
                        {"85 y mas", "85 y más", 85, std::nullopt},
                        {"85 Y MÁS", "85 y más", 85, std::nullopt},
                        {"85 y ma\u0301s", "85 y más", 85, std::nullopt},
                        {"95 o más", "95 y más", 95, std::nullopt}}) {
    EXPECT_EQ(parseAgeGroup(c.text), (AgeGroup{std::string(c.name), c.from, c.to})) << c.text;
  }
}

TEST(AgeGroup, OtherTextsNameNone) {
  for (const std::string_view text :
       {"",   " ",    "x",   "-",    "<",    "<0",   "+",    "y más",          "1-", "-4", "4-1", "1-4-5", "1.5",
        "-1", "1000", "1 2", "85++", "85 y", "1-4+", "<1-4", "85 y más y más", "0x"}) {
    EXPECT_FALSE(parseAgeGroup(text)) << text;
  }
}

}  // namespace
}  // namespace study
