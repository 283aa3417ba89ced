#include "study/reports/type.h"

#include <gtest/gtest.h>

namespace study::reports {
namespace {

constexpr TextStyle kPlain{9};

TEST(Type, MeasuresInProportionToTheSize) {
  requireTypeface();
  const double width = textWidth("Mortalidad", kPlain);
  EXPECT_GT(width, 30);
  EXPECT_LT(width, 70);
  EXPECT_NEAR(textWidth("Mortalidad", {18}), 2 * width, 1e-6);
  EXPECT_GT(textWidth("Mortalidad", {9, true}), width);
}

TEST(Type, WrapsAtBlanks) {
  const std::vector<std::string> lines =
      wrapped("uno dos\ttres\ncuatro  cinco", textWidth("uno dos t", kPlain), kPlain);
  EXPECT_EQ(lines, (std::vector<std::string>{"uno dos", "tres", "cuatro", "cinco"}));
  EXPECT_TRUE(wrapped("  ", 100, kPlain).empty());
}

TEST(Type, BreaksWordsThatAreTooWide) {
  const std::string word(60, 'w');
  std::string joined;
  for (const std::string& line : wrapped("a " + word, 50, kPlain)) {
    EXPECT_LE(textWidth(line, kPlain), 50) << line;
    joined += line;
  }
  EXPECT_EQ(joined, "a" + word);
  EXPECT_EQ(wrapped("ñu", 0.1, kPlain), (std::vector<std::string>{"ñ", "u"}));
}

TEST(Type, KeepsNumbersAndPercentSignsTogether) {
  const std::vector<std::string> lines = wrapped("el 50,7 % eran", textWidth("el 50,7 ", kPlain), kPlain);
  EXPECT_EQ(lines, (std::vector<std::string>{"el", "50,7\u00A0%", "eran"}));
}

TEST(Type, Shortens) {
  EXPECT_EQ(shortened("corto", 100, kPlain), "corto");
  const std::string text = shortened("Enfermedades del sistema circulatorio", 80, kPlain);
  EXPECT_LE(textWidth(text, kPlain), 80);
  EXPECT_TRUE(text.starts_with("Enferm")) << text;
  EXPECT_TRUE(text.ends_with("…")) << text;
}

TEST(Type, FindsTheWidestWord) {
  EXPECT_DOUBLE_EQ(widestWord("a estandarizada b", kPlain), textWidth("estandarizada", kPlain));
}

}  // namespace
}  // namespace study::reports
