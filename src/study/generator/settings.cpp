#include "study/generator/settings.h"

#include <algorithm>
#include <functional>
#include <string>

#include "study/model/study.h"
#include "study/model/study_error.h"

namespace study::generator {

namespace {

void checkRange(const std::string& what, std::size_t value, std::size_t least, std::size_t most) {
  if (value >= least && value <= most) return;
  throw StudyError("a region of " + std::to_string(value) + " " + what + " cannot be made; ask for " +
                   std::to_string(least) + " to " + std::to_string(most));
}

}  // namespace

void check(const GeneratorSettings& settings) {
  checkRange("provinces", settings.provinces, 1, 200);
  checkRange("zones", settings.zones, settings.provinces, 20'000);
  checkRange("vertices per zone", settings.vertices, 20, 2'000);
  const std::vector<int>& years = settings.years;
  const bool ascending = std::adjacent_find(years.begin(), years.end(), std::greater_equal<>()) == years.end();
  if (years.empty() || !ascending) throw StudyError("the years of a region are one or more, each once, ascending");
  for (const int year : years) {
    if (std::find(kProgramYears.begin(), kProgramYears.end(), year) == kProgramYears.end()) {
      throw StudyError("the years " + std::to_string(kProgramYears.front()) + " to " +
                       std::to_string(kProgramYears.back()) + " can be made, not " + std::to_string(year));
    }
  }
}

}  // namespace study::generator
