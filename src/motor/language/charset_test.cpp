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
      {Charset::codePage437, "A\xA4o \x80\xE1\xFF", "Año Çß\u00A0"},
      {Charset::codePage850, "A\xA4o \xB5\xE9\xD5", "Año ÁÚı"},
      {Charset::codePage852, "\x88\xE6\xFD", "łŠř"},
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
  EXPECT_EQ(charsetNamed("NeutralCharset"), Charset::neutral);
  EXPECT_EQ(charsetNamed("codepage437"), Charset::codePage437);
  EXPECT_EQ(charsetNamed("CodePage850"), Charset::codePage850);
  EXPECT_EQ(charsetNamed("CodePage852"), Charset::codePage852);
  EXPECT_EQ(charsetNamed("Klingon"), std::nullopt);
  EXPECT_EQ(charsetNamed("WindowsGreek"), std::nullopt);
  EXPECT_TRUE(isUnreadableCharset("windowsgreek"));
  EXPECT_FALSE(isUnreadableCharset("Klingon"));
}

}  // namespace
}  // namespace motor
