#include "study/model/windows1252.h"

#include <gtest/gtest.h>

#include "study/model/study_error.h"

namespace study {
namespace {

TEST(Windows1252, Encodes) {
  struct Case {
    const char* utf8;
    const char* bytes;
  };
  for (const Case& c : {Case{"", ""},
                        {"Tasa 1,5 %", "Tasa 1,5 %"},
                        {"Año", "A\xF1o"},
                        {"Ñorza", "\xD1orza"},
                        {"Güelmes km²",
                         "G\xFC"
                         "elmes km\xB2"},
                        {"€ – “Š”", "\x80 \x96 \x93\x8A\x94"}}) {
    EXPECT_EQ(toWindows1252(c.utf8), c.bytes) << c.utf8;
  }
}

TEST(Windows1252, KnowsItsCharacters) {
  for (const char32_t character : U"Año, ÿ, € y – “Œuvre” Ÿ") EXPECT_TRUE(isOfWindows1252(character));
  for (const char32_t character : {U'Č', char32_t{0x80}, U'日'}) EXPECT_FALSE(isOfWindows1252(character));
}

TEST(Windows1252, RefusesWhatItDoesNotHave) {
  for (const char* text : {"Ωmega", "\xC2\x81", "日"}) EXPECT_THROW(static_cast<void>(toWindows1252(text)), StudyError);
}

}  // namespace
}  // namespace study
