#include "study/model/windows1252.h"

#include <algorithm>
#include <array>

#include "study/model/study_error.h"
#include "text/utf8.h"

namespace study {

namespace {

// What the bytes from 0x80 to 0x9F mean (0: nothing), from the Unicode consortium's table CP1252.TXT; the others are
// Latin-1.
constexpr std::array<char32_t, 32> kHighBytes{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                              0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

bool isLatin1(char32_t character) { return character < 0x80 || (character >= 0xA0 && character <= 0xFF); }

}  // namespace

bool isOfWindows1252(char32_t character) {
  return isLatin1(character) ||
         (character != 0 && std::find(kHighBytes.begin(), kHighBytes.end(), character) != kHighBytes.end());
}

std::string toWindows1252(std::string_view utf8) {
  std::string bytes;
  for (const char32_t character : text::decode(utf8)) {
    if (isLatin1(character)) {
      bytes.push_back(static_cast<char>(character));
      continue;
    }
    const auto found = std::find(kHighBytes.begin(), kHighBytes.end(), character);
    if (found == kHighBytes.end()) {
      throw StudyError("the text \"" + std::string(utf8) + "\" holds a character that windows-1252 does not have");
    }
    bytes.push_back(static_cast<char>(0x80 + (found - kHighBytes.begin())));
  }
  return bytes;
}

}  // namespace study
