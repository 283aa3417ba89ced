#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "text/collation.h"
#include "text/failure.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace {

TEST(Utf8, CountsCharacters) {
  EXPECT_EQ(text::length("Año"), 3U);
  EXPECT_EQ(text::length(""), 0U);
  EXPECT_EQ(text::length("a\xFF\xC3"), 3U) << "a malformed byte counts as one character";
  EXPECT_EQ(text::left("Población", 8), "Població");
  EXPECT_EQ(text::left("Año", 9), "Año");
  EXPECT_EQ(text::mid("Tasa estandarizada (x100.000) de Neumonía", 34), "Neumonía");
  EXPECT_EQ(text::mid("Ñandú", 2, 3), "and");
  EXPECT_EQ(text::mid("abc", 4), "");
}

TEST(Utf8, FindsByCharacterPosition) {
  EXPECT_EQ(text::find("añb,c", ","), 4U);
  EXPECT_EQ(text::find("añb,c", ",", 5), 0U);
  EXPECT_EQ(text::find("ñ,ñ,", ",", 3), 4U);
}

TEST(Utf8, DecodesAndEncodesAnything) {
  for (const std::string s : {"Ávila", "\x80\xFFñ", "€𝄞", "\xED\xA0\x80", "\xC0\x80"}) {
    EXPECT_EQ(text::encode(text::decode(s)), s);
  }
}

TEST(Utf8, MapsCase) {
  EXPECT_EQ(text::upper("mapinfor.exe"), "MAPINFOR.EXE");
  EXPECT_EQ(text::upper("ñandú ž ÿ я"), "ÑANDÚ Ž Ÿ Я");
  EXPECT_EQ(text::lower("ÑANDÚ Ž Ÿ Я Σ"), "ñandú ž ÿ я σ");
  EXPECT_TRUE(text::equalsIgnoringCase("Zonas Básicas", "zonas BÁSICAS"));
  EXPECT_FALSE(text::equalsIgnoringCase("Basicas", "Básicas"));
}

TEST(Utf8, ComposesAndDropsAccents) {
  EXPECT_EQ(text::compose("An\xCC\x83o"), "Año");
  EXPECT_EQ(text::compose("Año"), "Año");
  EXPECT_EQ(text::withoutAccents("Ávila, Ñoño, pingüino"), "Avila, Nono, pinguino");
}

TEST(NumberText, WritesShortestDigits) {
  const std::pair<double, const char*> rows[] = {{0, "0"},
                                                 {-0.0, "0"},
                                                 {12.35, "12.35"},
                                                 {300, "300"},
                                                 {-1.5, "-1.5"},
                                                 {0.1 + 0.2, "0.30000000000000004"},
                                                 {1e14, "100000000000000"},
                                                 {1e15, "1e+15"},
                                                 {1e22, "1e+22"},
                                                 {123456789012345.5, "123456789012345.5"},
                                                 {-999999999999999.9, "-999999999999999.9"},
                                                 {1e-16, "0.0000000000000001"},
                                                 {-1.5e-16, "-0.00000000000000015"},
                                                 {1e-38, "0.00000000000000000000000000000000000001"},
                                                 {-1e-38, "-0.00000000000000000000000000000000000001"},
                                                 {1e-39, "1e-39"},
                                                 {1.5e-38, "1.5e-38"},
                                                 {5e-324, "5e-324"}};
  for (const auto& [value, expected] : rows) EXPECT_EQ(text::number(value), expected);
}

TEST(NumberText, WritesDigitsWithoutExponent) {
  const std::pair<double, std::string> rows[] = {{0, "0"},
                                                 {1.5e16, "15000000000000000"},
                                                 {-1e22, "-10000000000000000000000"},
                                                 {1e-3, "0.001"},
                                                 {1e-42, "0." + std::string(41, '0') + "1"},
                                                 {1e300, "1" + std::string(300, '0')}};
  for (const auto& [value, expected] : rows) EXPECT_EQ(text::plainNumber(value), expected);
}

TEST(NumberText, ReadsBackWhatItWrites) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-300, 300);
  for (int i = 0; i < 10000; ++i) {
    const double value = mantissa(random) * std::pow(10.0, exponent(random));
    EXPECT_EQ(text::toNumber(text::number(value)), value);
    EXPECT_EQ(text::toNumber(text::plainNumber(value)), value);
  }
}

TEST(NumberText, ReadsNumbers) {
  EXPECT_EQ(text::toNumber(""), 0);
  EXPECT_EQ(text::toNumber(" 12.5 "), 12.5);
  EXPECT_EQ(text::toNumber("+3"), 3);
  for (const char* wrong : {"12,5", "abc", "1 2", "inf", "nan", "-", "+"}) {
    try {
      (void)text::toNumber(wrong);
      ADD_FAILURE() << wrong;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.number(), 13) << wrong;
    }
  }
}

TEST(NumberText, RoundsHalfToEvenAndOverflows) {
  EXPECT_EQ(text::toInt16("2.5"), 2);
  EXPECT_EQ(text::toInt16("3.5"), 4);
  EXPECT_EQ(text::toInt16("32767"), 32767);
  EXPECT_EQ(text::toInt32("2147483647"), 2147483647);
  for (const char* beyond : {"32768", "-32769", "1e9"}) {
    try {
      (void)text::toInt16(beyond);
      ADD_FAILURE() << beyond;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.number(), 6) << beyond;
    }
  }
}

TEST(Collation, IsTheSpanishOrder) {
  const std::vector<std::string> sorted = {"",   "-",     "1",      "a",      "A",      "á",    "Á",
                                           "ab", "Ávila", "Avis",   "nube",   "nz",     "ñame", "Ñoño",
                                           "oa", "pingo", "pingue", "pingüe", "pinguo", "z"};
  std::vector<std::string> shuffled = sorted;
  std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(7));
  std::sort(shuffled.begin(), shuffled.end(), text::CollationLess());
  EXPECT_EQ(shuffled, sorted);
}

TEST(Collation, DecomposedTextIsTheSame) { EXPECT_TRUE(std::is_eq(text::collate("n\xCC\x83", "ñ"))); }

TEST(Failures, CarryNumberAndDescription) {
  EXPECT_EQ(failures::engineRejected("x").number(), -2147352567);
  EXPECT_EQ(failures::noObject().number(), 91);
  EXPECT_FALSE(failures::noObject().description().empty());
}

}  // namespace
