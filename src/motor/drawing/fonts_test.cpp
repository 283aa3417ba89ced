#include "motor/drawing/fonts.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

TEST(Fonts, MissingFamiliesAreReplacedByOnesOfTheSameWidths) {
  struct Case {
    const char* name;
    const char* family;
  };
  for (const Case& c : {Case{"Tahoma", "DejaVu Sans Condensed"}, Case{"tahoma", "DejaVu Sans Condensed"},
                        Case{"Verdana", "DejaVu Sans"}, Case{"DejaVu Serif", "DejaVu Serif"},
                        Case{"No Such Font", "DejaVu Sans"}, Case{"", "DejaVu Sans"}}) {
    EXPECT_EQ(installedFamily(c.name).toStdString(), c.family);
  }
}

TEST(Fonts, StylesAddUp) {
  const QFont plain = toQFont({"Verdana", 0, 9, 0, kTransparent});
  EXPECT_EQ(plain.pixelSize(), 12);
  EXPECT_FALSE(plain.bold());
  const QFont all = toQFont({"Verdana", 1 + 2 + 4 + 8 + 512 + 1024, 9, 0, kTransparent});
  EXPECT_TRUE(all.bold() && all.italic() && all.underline() && all.strikeOut());
  EXPECT_EQ(all.capitalization(), QFont::AllUppercase);
  EXPECT_GT(all.letterSpacing(), 100);
  EXPECT_TRUE(hasHalo({"Verdana", 256, 9, 0, kTransparent}));
  EXPECT_FALSE(hasHalo({"Verdana", 1, 9, 0, kTransparent}));
  EXPECT_TRUE(hasShadow({"Verdana", 32, 9, 0, kTransparent}));
}

TEST(Fonts, ABackColourIsAHalosOrABoxs) {
  EXPECT_TRUE(hasBox({"Verdana", 1, 9, 0, 0xFFFFFF}));
  EXPECT_FALSE(hasBox({"Verdana", 1, 9, 0, kTransparent}));
  EXPECT_FALSE(hasBox({"Verdana", 256, 9, 0, 0xFFFFFF}));
}

TEST(Fonts, LettersAreOfAHeightThatCanBeDrawn) {
  EXPECT_EQ(toQFont({"Verdana", 0, 1e9, 0, kTransparent}).pixelSize(), 256);
  EXPECT_EQ(toQFont({"Verdana", 0, -1, 0, kTransparent}).pixelSize(), 1);
  EXPECT_EQ(toQFont({"Verdana", 0, 9, 0, kTransparent}, 1e9).pixelSize(), 8192);
}

}  // namespace
}  // namespace motor
