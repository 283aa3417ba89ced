#include "text/collation.h"

#include <cstdint>

#include "text/letters.h"
#include "text/utf8.h"

namespace text {
namespace {

struct Weights {
  std::u32string letters;
  std::string accents;
  std::string cases;
};

// Signs sort below digits and digits below letters; ñ stands between n and o.
char32_t letterWeight(char32_t c) {
  constexpr char32_t kSign = 0x1000000, kDigit = 0x2000000, kLetter = 0x3000000;
  if (c >= U'0' && c <= U'9') return kDigit + c;
  const bool isLetter = (c >= U'a' && c <= U'z') || c >= 0xC0;
  if (!isLetter) return kSign + c;
  return kLetter + c * 2;
}

Weights weightsOf(std::string_view s) {
  Weights weights;
  for (const char32_t c : decode(compose(s))) {
    const char32_t small = lowerLetter(c);
    AccentedLetter letter = baseLetter(small);
    const bool isEñe = small == U'ñ';
    if (isEñe) letter = {U'n', 0};
    weights.letters.push_back(letterWeight(letter.base) + (isEñe ? 1 : 0));
    weights.accents.push_back(static_cast<char>(letter.mark == 0 ? 1 : letter.mark - 0x2FF + 1));
    weights.cases.push_back(static_cast<char>(small == c ? 1 : 2));
  }
  return weights;
}

}  // namespace

std::strong_ordering collate(std::string_view a, std::string_view b) {
  if (a == b) return std::strong_ordering::equal;
  const std::string keyA = collationKey(a);
  const std::string keyB = collationKey(b);
  return keyA.compare(keyB) <=> 0;
}

std::string collationKey(std::string_view s) {
  const Weights weights = weightsOf(s);
  std::string key;
  key.reserve(weights.letters.size() * 6 + 2);
  for (const char32_t weight : weights.letters) {
    for (int shift = 24; shift >= 0; shift -= 8) key.push_back(static_cast<char>((weight >> shift) & 0xFF));
  }
  key.push_back('\0');
  key += weights.accents;
  key.push_back('\0');
  key += weights.cases;
  return key;
}

}  // namespace text
