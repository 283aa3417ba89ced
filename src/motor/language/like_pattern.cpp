#include "motor/language/like_pattern.h"

#include <algorithm>

#include "text/utf8.h"

namespace motor {

namespace {

// What a place of a pattern takes.
struct Place {
  enum class Kind { exactly, one, any };
  Kind kind = Kind::exactly;
  char32_t character = 0;
};

bool isAscii(std::string_view s) {
  return std::all_of(s.begin(), s.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

Place placeOf(char32_t c) {
  if (c == U'%') return {Place::Kind::any, 0};
  if (c == U'_') return {Place::Kind::one, 0};
  return {Place::Kind::exactly, c};
}

// Goes back only to the last run of any characters, so that time grows with text times pattern at most.
template <typename PlaceAt>
bool matchesPlaces(const std::u32string& text, std::size_t places, const PlaceAt& placeAt) {
  std::size_t t = 0;
  std::size_t p = 0;
  std::size_t afterAny = std::u32string::npos;
  std::size_t anyEnd = 0;
  while (t < text.size()) {
    const bool inside = p < places;
    const Place place = inside ? placeAt(p) : Place{};
    if (inside && place.kind == Place::Kind::any) {
      afterAny = ++p;
      anyEnd = t;
    } else if (inside && (place.kind == Place::Kind::one || place.character == text[t])) {
      ++p;
      ++t;
    } else if (afterAny != std::u32string::npos) {
      p = afterAny;
      t = ++anyEnd;
    } else {
      return false;
    }
  }
  while (p < places && placeAt(p).kind == Place::Kind::any) ++p;
  return p == places;
}

}  // namespace

std::u32string foldedForLike(std::string_view s) {
  if (isAscii(s)) return text::decode(text::lower(s));
  return text::decode(text::lower(text::withoutAccents(text::compose(s))));
}

LikePattern::LikePattern(std::string_view pattern) : pattern_(foldedForLike(pattern)) {}

bool LikePattern::matches(std::string_view subject) const { return matchesFolded(foldedForLike(subject)); }

bool LikePattern::matchesFolded(const std::u32string& subject) const {
  return matchesPlaces(subject, pattern_.size(), [this](std::size_t i) { return placeOf(pattern_[i]); });
}

bool likeExactly(std::string_view subject, std::string_view pattern, std::string_view escape) {
  const std::u32string escapes = text::decode(escape);
  std::vector<Place> places;
  const std::u32string characters = text::decode(pattern);
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const bool escaped = !escapes.empty() && characters[i] == escapes.front() && i + 1 < characters.size();
    places.push_back(escaped ? Place{Place::Kind::exactly, characters[++i]} : placeOf(characters[i]));
  }
  return matchesPlaces(text::decode(subject), places.size(), [&places](std::size_t i) { return places[i]; });
}

}  // namespace motor
