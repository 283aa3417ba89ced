#include "motor/tables/coord_sys_clause.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <vector>

#include "motor/language/error.h"
#include "text/utf8.h"

namespace motor {
namespace {

// How many numbers follow the unit of each projection at least, by the projection's number; -1 where none is known.
constexpr std::array<int, 35> kParameterCounts = {
    -1, 0, 1, 6, 3, 3, 6, 6, 5, 6, 1, 1, 1, 1, 1,  1,  1, 1,  // 0 to 17
    4,  6, 5, 5, 5, 5, 5, 4, 2, 4, 3, 3, 4, 5, -1, -1, 5,     // 18 to 34
};
// The transverse Mercator projections that differ only in the series they are computed by.
constexpr int kTransverseMercator = 8;
constexpr int kExtendedTransverseMercator = 34;
// Added to the number of a projection that has an affine transformation, or bounds.
constexpr int kModifierStep = 1000;

// Datums spelled out: an ellipsoid's number and three shifts follow; in the longer form also three rotations, a scale
// and a prime meridian.
constexpr int kCustomDatum = 999;
constexpr std::size_t kCustomDatumNumbers = 4;
constexpr int kLongCustomDatum = 9999;
constexpr std::size_t kLongCustomDatumNumbers = 9;

[[noreturn]] void fail(const std::string& clause) {
  throw EngineError("No se entiende el sistema de coordenadas «" + clause + "»");
}

std::vector<std::string> wordsOf(const std::string& clause) {
  constexpr std::string_view kPunctuation = "(),";
  std::vector<std::string> words;
  std::size_t i = 0;
  while (i < clause.size()) {
    const char c = clause[i];
    std::size_t end = i + 1;
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
      ++i;
      continue;
    }
    if (c == '"') {
      end = clause.find('"', i + 1);
      if (end == std::string::npos) fail(clause);
      ++end;
    } else if (kPunctuation.find(c) == std::string_view::npos) {
      end = clause.find_first_of(" \t\r\n(),\"", i);
      end = std::min(end, clause.size());
    }
    words.push_back(clause.substr(i, end - i));
    i = end;
  }
  return words;
}

bool is(const std::string& word, std::string_view expected) { return text::equalsIgnoringCase(word, expected); }

bool isNumber(const std::string& word) {
  double value = 0;
  const char* end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, value);
  return error == std::errc() && stop == end;
}

class ClauseParser {
 public:
  explicit ClauseParser(const std::string& clause) : clause_(clause), words_(wordsOf(clause)) {}

  CoordinateClause parse() {
    if (accept("coordsys") && at_ == words_.size()) fail(clause_);
    CoordinateClause result;
    if (accept("nonearth")) {
      result.kind = CoordinateClause::Kind::plain;
      expect("units");
      result.unit = quoted();
    } else if (accept("layout")) {
      result.kind = CoordinateClause::Kind::plain;
      expect("units");
      result.unit = quoted();
    } else {
      expect("earth");
      if (accept("projection")) {
        result.kind = CoordinateClause::Kind::earth;
        result.projection = projection();
      }
    }
    skipBounds();
    if (at_ != words_.size()) fail(clause_);
    return result;
  }

 private:
  bool accept(std::string_view word) {
    if (at_ >= words_.size() || !is(words_[at_], word)) return false;
    ++at_;
    return true;
  }

  void expect(std::string_view word) {
    if (!accept(word)) fail(clause_);
  }

  const std::string& next() {
    if (at_ >= words_.size()) fail(clause_);
    return words_[at_++];
  }

  std::string quoted() {
    const std::string& word = next();
    if (word.size() < 2 || word.front() != '"') fail(clause_);
    return word.substr(1, word.size() - 2);
  }

  std::string number() {
    const std::string& word = next();
    if (!isNumber(word)) fail(clause_);
    return word;
  }

  int wholeNumber() {
    const std::string word = number();
    int value = 0;
    const char* end = word.data() + word.size();
    if (std::from_chars(word.data(), end, value).ptr != end) fail(clause_);
    return value;
  }

  void numbers(std::size_t count, std::string& result) {
    for (std::size_t i = 0; i < count; ++i) {
      expect(",");
      result += ", " + number();
    }
  }

  // "8, 28, "m", -3, 0, 0.9996, 500000, 0" behind the word Projection.
  std::string projection() {
    int code = wholeNumber() % kModifierStep;
    if (code < 0 || static_cast<std::size_t>(code) >= kParameterCounts.size()) fail(clause_);
    const int parameters = kParameterCounts[static_cast<std::size_t>(code)];
    if (parameters < 0) fail(clause_);
    if (code == kExtendedTransverseMercator) code = kTransverseMercator;
    std::string result = "Earth Projection " + std::to_string(code);
    expect(",");
    const int datum = wholeNumber();
    result += ", " + std::to_string(datum);
    if (datum == kCustomDatum) numbers(kCustomDatumNumbers, result);
    if (datum == kLongCustomDatum) numbers(kLongCustomDatumNumbers, result);
    if (code == 1) return result;
    expect(",");
    result += ", \"" + quoted() + "\"";
    numbers(static_cast<std::size_t>(parameters), result);
    while (at_ < words_.size() && words_[at_] == ",") numbers(1, result);
    return result;
  }

  void point() {
    expect("(");
    std::string ignored = number();
    numbers(1, ignored);
    expect(")");
  }

  void skipBounds() {
    if (!accept("bounds")) return;
    point();
    point();
  }

  const std::string& clause_;
  std::vector<std::string> words_;
  std::size_t at_ = 0;
};

}  // namespace

CoordinateClause parseCoordSysClause(const std::string& clause) { return ClauseParser(clause).parse(); }

}  // namespace motor
