#pragma once

#include <string>

#include "study/model/indicators.h"
#include "study/model/study.h"

// For this folder's tests.
namespace study {

// A square of ten kilometres, in columns and rows of such squares.
inline Area square(int column, int row) {
  constexpr double kSide = 10'000;
  const double x = 500'000 + column * kSide;
  const double y = 4'500'000 + row * kSide;
  return {{{x, y}, {x + kSide, y}, {x + kSide, y + kSide}, {x, y + kSide}}};
}

// Two provinces of two and one zones in one year, 20 men and 10 women dead of a tumour in each zone more than in the
// one before, of 10,000 persons of each sex; nobody lives in the last zone. Only men die of the prostate's tumour.
inline Study testingStudy() {
  Study study;
  study.years = {2001};
  study.ages = {{"0-64", 0, 65}, {"65 y más", 65, {}}};
  study.standard = {"", {4, 1}};
  study.causes.codes = {"C61", "C00"};
  for (const std::string_view cause : kThematicCauses) {
    const bool prostate = cause == "Tumor maligno de la próstata";
    study.causes.published.push_back(
        {"", std::string(kReducedList), std::string(cause), {prostate ? 0U : 1U}, true, !prostate});
  }
  study.causes.published.push_back({"", std::string(kBroadGroups), "Tumores", {0, 1}, true, true});
  study.provinces = {"Álava del Río", "Baja"};
  study.zones = {{"Norte", 0}, {"Ñora", 0}, {"Vacía", 1}};
  std::vector<Counts> zones(3, Counts(2, 2));
  for (int zone = 0; zone < 2; ++zone) {
    for (const Sex sex : kBothSexes) {
      zones[static_cast<std::size_t>(zone)].addPersons(sex, 0, 8'000);
      zones[static_cast<std::size_t>(zone)].addPersons(sex, 1, 2'000);
      zones[static_cast<std::size_t>(zone)].addDeaths(1, sex, 1, (zone + 1) * (sex == Sex::men ? 20 : 10));
    }
  }
  study.counts = {zones};
  study.zoneAreas = {square(0, 0), square(1, 0), square(2, 0)};
  Area both = square(0, 0);
  both[0][1].x += 10'000;
  both[0][2].x += 10'000;
  study.provinceAreas = {both, square(2, 0)};
  study.regionArea = both;
  study.regionArea[0][1].x += 10'000;
  study.regionArea[0][2].x += 10'000;
  return study;
}

}  // namespace study
