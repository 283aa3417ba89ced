#include "motor/session/distance_text.h"

#include <cmath>

#include "motor/tables/coordinate_system.h"
#include "text/spanish_number.h"
#include "text/utf8.h"

namespace motor {
namespace {

struct Abbreviation {
  const char* unit;
  const char* spanish;
};

// Those that differ from the language's own words.
constexpr Abbreviation kAbbreviations[] = {
    {"in", "pulg."}, {"ft", "pies"}, {"survey ft", "pies"}, {"yd", "yd"}, {"mi", "millas"}, {"nmi", "millas náuticas"},
};

// So many that four digits are read, and never more than three.
int decimalsOf(double length) {
  constexpr int kMost = 3;
  int decimals = kMost;
  for (double limit = 10; decimals > 0 && length >= limit; limit *= 10) --decimals;
  return decimals;
}

}  // namespace

std::string distanceText(double metres, const std::string& unit) {
  const double length = metres / metresPerDistanceUnit(unit);
  if (!std::isfinite(length)) return "—";
  std::string name = text::lower(unit);
  for (const Abbreviation& known : kAbbreviations) {
    if (name == known.unit) {
      name = known.spanish;
      break;
    }
  }
  return text::spanishNumber(length, decimalsOf(length)) + " " + name;
}

}  // namespace motor
