#include "motor/language/charset.h"

#include <algorithm>
#include <array>

#include "motor/language/code_pages.h"
#include "text/utf8.h"

namespace motor {

namespace {

constexpr CodePage latin1() {
  CodePage page{};
  for (std::size_t i = 0; i < page.size(); ++i) page[i] = static_cast<char16_t>(0x80 + i);
  return page;
}

constexpr CodePage windowsLatin1() {
  CodePage page = latin1();
  constexpr std::array<char16_t, 32> kFirst = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                               0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
  for (std::size_t i = 0; i < kFirst.size(); ++i) page[i] = kFirst[i];
  return page;
}

constexpr CodePage kWindowsLatin2 = {
    0x20AC, 0,      0x201A, 0,      0x201E, 0x2026, 0x2020, 0x2021, 0,      0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0,      0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

constexpr CodePage windowsCyrillic() {
  CodePage page = {0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021, 0x20AC, 0x2030, 0x0409,
                   0x2039, 0x040A, 0x040C, 0x040B, 0x040F, 0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                   0x2013, 0x2014, 0,      0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F, 0x00A0,
                   0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6, 0x00A7, 0x0401, 0x00A9, 0x0404, 0x00AB,
                   0x00AC, 0x00AD, 0x00AE, 0x0407, 0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6,
                   0x00B7, 0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457};
  for (std::size_t i = 0x40; i < page.size(); ++i) page[i] = static_cast<char16_t>(0x0410 + i - 0x40);
  return page;
}

constexpr CodePage kLatin1 = latin1();
constexpr CodePage kWindowsLatin1 = windowsLatin1();
constexpr CodePage kWindowsCyrillic = windowsCyrillic();

struct CharsetName {
  std::string_view name;
  Charset charset;
};

constexpr std::array kNames = {
    CharsetName{"Neutral", Charset::neutral},
    CharsetName{"NeutralCharset", Charset::neutral},
    CharsetName{"UTF-8", Charset::utf8},
    CharsetName{"ISO8859-1", Charset::iso8859_1},
    CharsetName{"WindowsLatin1", Charset::windowsLatin1},
    CharsetName{"WindowsLatin2", Charset::windowsLatin2},
    CharsetName{"WindowsCyrillic", Charset::windowsCyrillic},
    CharsetName{"CodePage437", Charset::codePage437},
    CharsetName{"CodePage850", Charset::codePage850},
    CharsetName{"CodePage852", Charset::codePage852},
};

constexpr std::array<std::string_view, 31> kUnreadable = {
    "ISO8859-2",        "ISO8859-3",          "ISO8859-4",          "ISO8859-5",       "ISO8859-6",     "ISO8859-7",
    "ISO8859-8",        "ISO8859-9",          "PackedEUCJapanese",  "WindowsArabic",   "WindowsGreek",  "WindowsHebrew",
    "WindowsTurkish",   "WindowsTradChinese", "WindowsSimpChinese", "WindowsJapanese", "WindowsKorean", "WindowsThai",
    "WindowsBalticRim", "WindowsVietnamese",  "CodePage855",        "CodePage857",     "CodePage860",   "CodePage861",
    "CodePage863",      "CodePage864",        "CodePage865",        "CodePage869",     "CodePage932",   "CodePage936",
    "MacRoman"};

std::string fromCodePage(std::string_view bytes, const CodePage& page) {
  std::u32string characters;
  characters.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      characters += static_cast<char32_t>(byte);
    } else {
      const char16_t code = page[byte - 0x80U];
      characters += code != 0 ? static_cast<char32_t>(code) : U'\uFFFD';
    }
  }
  return text::encode(characters);
}

// Malformed bytes are decoded to U+DC80..U+DCFF.
bool isMalformed(char32_t c) { return c >= 0xDC80 && c <= 0xDCFF; }

std::string fromUtf8(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text::startsWith(bytes, kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  std::u32string characters = text::decode(bytes);
  for (char32_t& c : characters) {
    if (isMalformed(c)) c = U'\uFFFD';
  }
  return text::encode(characters);
}

bool isUtf8(std::string_view bytes) {
  for (const char32_t c : text::decode(bytes)) {
    if (isMalformed(c)) return false;
  }
  return true;
}

}  // namespace

std::optional<Charset> charsetNamed(std::string_view name) {
  for (const CharsetName& candidate : kNames) {
    if (text::equalsIgnoringCase(candidate.name, name)) return candidate.charset;
  }
  return std::nullopt;
}

bool isUnreadableCharset(std::string_view name) {
  return std::any_of(kUnreadable.begin(), kUnreadable.end(),
                     [name](std::string_view known) { return text::equalsIgnoringCase(known, name); });
}

std::string toUtf8(std::string_view bytes, Charset charset) {
  switch (charset) {
    case Charset::iso8859_1:
      return fromCodePage(bytes, kLatin1);
    case Charset::windowsLatin1:
      return fromCodePage(bytes, kWindowsLatin1);
    case Charset::windowsLatin2:
      return fromCodePage(bytes, kWindowsLatin2);
    case Charset::windowsCyrillic:
      return fromCodePage(bytes, kWindowsCyrillic);
    case Charset::codePage437:
      return fromCodePage(bytes, kCodePage437);
    case Charset::codePage850:
      return fromCodePage(bytes, kCodePage850);
    case Charset::codePage852:
      return fromCodePage(bytes, kCodePage852);
    case Charset::neutral:
      return isUtf8(bytes) ? fromUtf8(bytes) : fromCodePage(bytes, kWindowsLatin1);
    default:
      return fromUtf8(bytes);
  }
}

}  // namespace motor
