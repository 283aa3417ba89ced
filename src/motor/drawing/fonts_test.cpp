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
}

}  // namespace
}  // namespace motor
