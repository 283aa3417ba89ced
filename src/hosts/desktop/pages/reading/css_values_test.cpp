#include "hosts/desktop/pages/reading/css_values.h"

#include <gtest/gtest.h>

namespace desktop::pages {
namespace {

constexpr double kEm = 20;

double pixelsOf(const char* text) {
  const auto length = lengthFrom(QString::fromLatin1(text), kEm);
  EXPECT_TRUE(length && length->isPixels()) << text;
  return length ? length->value : -1;
}

TEST(CssValues, LengthsArePixels) {
  EXPECT_DOUBLE_EQ(pixelsOf("3px"), 3);
  EXPECT_DOUBLE_EQ(pixelsOf(" 12 "), 12);
  EXPECT_DOUBLE_EQ(pixelsOf("48.0pt"), 64);
  EXPECT_NEAR(pixelsOf(".5pt"), 0.667, 0.001);
  EXPECT_DOUBLE_EQ(pixelsOf("-1PT"), -4.0 / 3);
  EXPECT_DOUBLE_EQ(pixelsOf("1in"), 96);
  EXPECT_DOUBLE_EQ(pixelsOf("2.54cm"), 96);
  EXPECT_DOUBLE_EQ(pixelsOf("1.5em"), 30);
  EXPECT_DOUBLE_EQ(pixelsOf("1rem"), 16);
  EXPECT_DOUBLE_EQ(pixelsOf("2ex"), 20);
  EXPECT_DOUBLE_EQ(pixelsOf("99999999px"), kLongest);
  EXPECT_DOUBLE_EQ(pixelsOf("-99999999px"), -kLongest);
}

TEST(CssValues, OtherLengths) {
  EXPECT_EQ(lengthFrom(u"auto", kEm)->unit, Length::Unit::automatic);
  EXPECT_EQ(lengthFrom(u"50%", kEm)->unit, Length::Unit::percent);
  EXPECT_DOUBLE_EQ(lengthFrom(u"50%", kEm)->pixels(300), 150);
  for (const char* none : {"", "px", "a3px", "3 4", "3fr", ".", "-", "inherit", "1e9px", "calc(1px)"}) {
    EXPECT_FALSE(lengthFrom(QString::fromLatin1(none), kEm)) << none;
  }
}

TEST(CssValues, AttributesHoldNumbersOrParts) {
  EXPECT_DOUBLE_EQ(attributeLength(u"64")->value, 64);
  EXPECT_DOUBLE_EQ(attributeLength(u"64px")->value, 64);
  EXPECT_EQ(attributeLength(u" 50% ")->unit, Length::Unit::percent);
  EXPECT_FALSE(attributeLength(u"*"));
  EXPECT_FALSE(attributeLength(u"2*x") && attributeLength(u"-4"));
  EXPECT_FALSE(attributeLength(u""));
}

TEST(CssValues, Colors) {
  EXPECT_EQ(*colorFrom(u"#FFCC99"), QColor(0xFF, 0xCC, 0x99));
  EXPECT_EQ(*colorFrom(u"#fc9"), QColor(0xFF, 0xCC, 0x99));
  EXPECT_EQ(*colorFrom(u"Silver"), QColor(0xC0, 0xC0, 0xC0));
  EXPECT_EQ(*colorFrom(u"windowtext"), QColor(0, 0, 0));
  EXPECT_EQ(*colorFrom(u"rgb(255, 0, 10%)"), QColor(255, 0, 25));
  EXPECT_EQ(*colorFrom(u"rgba(1,2,3,1)"), QColor(1, 2, 3));
  EXPECT_FALSE(colorFrom(u"transparent")->isValid());
  EXPECT_FALSE(colorFrom(u"rgba(1,2,3,0)")->isValid());
  for (const char* none : {"", "auto", "inherit", "#12345", "rgb(1,2", "rgb)(", "#", "c0c0c0"}) {
    EXPECT_FALSE(colorFrom(QString::fromLatin1(none))) << none;
  }
  EXPECT_EQ(*attributeColor(u"c0c0c0"), QColor(0xC0, 0xC0, 0xC0));
  EXPECT_EQ(*attributeColor(u"red"), QColor(255, 0, 0));
}

}  // namespace
}  // namespace desktop::pages
