#include "text/letters.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace text {
namespace {

constexpr char32_t kGrave = 0x300, kAcute = 0x301, kCircumflex = 0x302, kTilde = 0x303, kMacron = 0x304;
constexpr char32_t kBreve = 0x306, kDot = 0x307, kDiaeresis = 0x308, kRing = 0x30A, kDouble = 0x30B, kCaron = 0x30C;
constexpr char32_t kCedilla = 0x327, kOgonek = 0x328;

struct Composition {
  char32_t letter;
  char32_t base;
  char32_t mark;
};

// The canonical compositions of the Latin-1 and Latin Extended-A blocks (Unicode character database, UnicodeData.txt).
constexpr std::array kCompositions = std::to_array<Composition>({
    {U'À', U'A', kGrave},      {U'Á', U'A', kAcute},      {U'Â', U'A', kCircumflex}, {U'Ã', U'A', kTilde},
    {U'Ä', U'A', kDiaeresis},  {U'Å', U'A', kRing},       {U'Ç', U'C', kCedilla},    {U'È', U'E', kGrave},
    {U'É', U'E', kAcute},      {U'Ê', U'E', kCircumflex}, {U'Ë', U'E', kDiaeresis},  {U'Ì', U'I', kGrave},
    {U'Í', U'I', kAcute},      {U'Î', U'I', kCircumflex}, {U'Ï', U'I', kDiaeresis},  {U'Ñ', U'N', kTilde},
    {U'Ò', U'O', kGrave},      {U'Ó', U'O', kAcute},      {U'Ô', U'O', kCircumflex}, {U'Õ', U'O', kTilde},
    {U'Ö', U'O', kDiaeresis},  {U'Ù', U'U', kGrave},      {U'Ú', U'U', kAcute},      {U'Û', U'U', kCircumflex},
    {U'Ü', U'U', kDiaeresis},  {U'Ý', U'Y', kAcute},      {U'Ā', U'A', kMacron},     {U'Ă', U'A', kBreve},
    {U'Ą', U'A', kOgonek},     {U'Ć', U'C', kAcute},      {U'Ĉ', U'C', kCircumflex}, {U'Ċ', U'C', kDot},
    {U'Č', U'C', kCaron},      {U'Ď', U'D', kCaron},      {U'Ē', U'E', kMacron},     {U'Ĕ', U'E', kBreve},
    {U'Ė', U'E', kDot},        {U'Ę', U'E', kOgonek},     {U'Ě', U'E', kCaron},      {U'Ĝ', U'G', kCircumflex},
    {U'Ğ', U'G', kBreve},      {U'Ġ', U'G', kDot},        {U'Ģ', U'G', kCedilla},    {U'Ĥ', U'H', kCircumflex},
    {U'Ĩ', U'I', kTilde},      {U'Ī', U'I', kMacron},     {U'Ĭ', U'I', kBreve},      {U'Į', U'I', kOgonek},
    {U'İ', U'I', kDot},        {U'Ĵ', U'J', kCircumflex}, {U'Ķ', U'K', kCedilla},    {U'Ĺ', U'L', kAcute},
    {U'Ļ', U'L', kCedilla},    {U'Ľ', U'L', kCaron},      {U'Ń', U'N', kAcute},      {U'Ņ', U'N', kCedilla},
    {U'Ň', U'N', kCaron},      {U'Ō', U'O', kMacron},     {U'Ŏ', U'O', kBreve},      {U'Ő', U'O', kDouble},
    {U'Ŕ', U'R', kAcute},      {U'Ŗ', U'R', kCedilla},    {U'Ř', U'R', kCaron},      {U'Ś', U'S', kAcute},
    {U'Ŝ', U'S', kCircumflex}, {U'Ş', U'S', kCedilla},    {U'Š', U'S', kCaron},      {U'Ţ', U'T', kCedilla},
    {U'Ť', U'T', kCaron},      {U'Ũ', U'U', kTilde},      {U'Ū', U'U', kMacron},     {U'Ŭ', U'U', kBreve},
    {U'Ů', U'U', kRing},       {U'Ű', U'U', kDouble},     {U'Ų', U'U', kOgonek},     {U'Ŵ', U'W', kCircumflex},
    {U'Ŷ', U'Y', kCircumflex}, {U'Ÿ', U'Y', kDiaeresis},  {U'Ź', U'Z', kAcute},      {U'Ż', U'Z', kDot},
    {U'Ž', U'Z', kCaron},
});

struct Tables {
  std::map<char32_t, AccentedLetter> bases;
  std::map<std::pair<char32_t, char32_t>, char32_t> letters;

  Tables() {
    for (const Composition& c : kCompositions) {
      add(c.letter, c.base, c.mark);
      if (c.letter != U'İ') add(lowerLetter(c.letter), lowerLetter(c.base), c.mark);
    }
  }
  void add(char32_t letter, char32_t base, char32_t mark) {
    bases[letter] = {base, mark};
    letters[{base, mark}] = letter;
  }
};

const Tables& tables() {
  static const Tables all;
  return all;
}

// Whether the block from U+0100 to U+017F pairs capitals with the small letter after them at this code point.
bool isEvenPair(char32_t c) {
  return (c >= 0x100 && c <= 0x12F) || (c >= 0x132 && c <= 0x137) || (c >= 0x14A && c <= 0x177) ||
         (c >= 0x460 && c <= 0x481) || (c >= 0x48A && c <= 0x4BF) || (c >= 0x4D0 && c <= 0x52F);
}
bool isOddPair(char32_t c) { return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E); }

}  // namespace

char32_t lowerLetter(char32_t c) {
  if (c >= U'A' && c <= U'Z') return c + 32;
  if (c < 0xC0) return c;
  if (c <= 0xDE && c != 0xD7) return c + 32;
  if (c == 0x178) return 0xFF;
  if (c == 0x130) return U'i';
  if (isEvenPair(c)) return c | 1;
  if (isOddPair(c)) return c + (c & 1);
  if (c >= 0x391 && c <= 0x3A9 && c != 0x3A2) return c + 32;
  if (c >= 0x410 && c <= 0x42F) return c + 32;
  if (c >= 0x400 && c <= 0x40F) return c + 80;
  return c;
}

char32_t upperLetter(char32_t c) {
  if (c >= U'a' && c <= U'z') return c - 32;
  if (c < 0xE0) return c;
  if (c <= 0xFE && c != 0xF7) return c - 32;
  if (c == 0xFF) return 0x178;
  if (c == 0x131) return U'I';
  if (isEvenPair(c)) return c & ~char32_t{1};
  if (isOddPair(c)) return (c & 1) != 0 ? c : c - 1;
  if (c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2) return c - 32;
  if (c >= 0x430 && c <= 0x44F) return c - 32;
  if (c >= 0x450 && c <= 0x45F) return c - 80;
  return c;
}

AccentedLetter baseLetter(char32_t c) {
  if (c < 0xC0 || c > 0x17F) return {c, 0};
  const auto found = tables().bases.find(c);
  return found == tables().bases.end() ? AccentedLetter{c, 0} : found->second;
}

char32_t composedLetter(char32_t base, char32_t mark) {
  if (mark < 0x300 || mark > 0x36F) return 0;
  const auto found = tables().letters.find({base, mark});
  return found == tables().letters.end() ? 0 : found->second;
}

}  // namespace text
