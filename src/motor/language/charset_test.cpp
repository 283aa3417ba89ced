#include "motor/language/charset.h"

#include <gtest/gtest.h>

namespace motor {
namespace {

TEST(CharsetTest, decodes) {
  struct Case {
    Charset charset;
    const char* bytes;
    const char* text;
  };
  const Case cases[] = {
      {Charset::windowsLatin1, "A\xF1o \x80 \x93x\x94", "Año € “x”"},
      {Charset::windowsLatin1, "\x81", "\xEF\xBF\xBD"},
      {Charset::iso8859_1, "Le\xF3n", "León"},
      {Charset::windowsLatin2, "\x8A\xE8\xF8\xBC\xA5", "ŠčřĽĄ"},
      {Charset::windowsCyrillic, "\xCF\xF0\xE8\xE2\xE5\xF2 \xA8\xB8\xB9", "Привет Ёё№"},
      {Charset::windowsCyrillic, "\x98", "\xEF\xBF\xBD"},
      {Charset::utf8, "Año", "Año"},
      {Charset::utf8,
       "\xEF\xBB\xBF"
       "Año",
       "Año"},
      {Charset::utf8, "A\xF1o", "A\xEF\xBF\xBDo"},
      {Charset::neutral, "Año", "Año"},
      {Charset::neutral, "A\xF1o", "Año"},
      {Charset::neutral, "", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(toUtf8(c.bytes, c.charset), c.text) << c.text;
}

TEST(CharsetTest, isFoundByName) {
  EXPECT_EQ(charsetNamed("WindowsLatin1"), Charset::windowsLatin1);
  EXPECT_EQ(charsetNamed("windowslatin2"), Charset::windowsLatin2);
  EXPECT_EQ(charsetNamed("WindowsCyrillic"), Charset::windowsCyrillic);
  EXPECT_EQ(charsetNamed("ISO8859-1"), Charset::iso8859_1);
  EXPECT_EQ(charsetNamed("utf-8"), Charset::utf8);
  EXPECT_EQ(charsetNamed("Neutral"), Charset::neutral);
  EXPECT_EQ(charsetNamed("Klingon"), std::nullopt);
}

}  // namespace
}  // namespace motor
