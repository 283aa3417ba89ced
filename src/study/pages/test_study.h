#pragma once

#include <string>

#include "study/model/study.h"

// For this folder's tests: a study small enough to reckon by hand.
namespace study::pages {

// Three provinces of two zones each, one year, two age groups, 0-49 and 50 and more, of equal weight in the standard.
// Each zone has 10,000 men and 10,000 women in each group. The list of broad groups ("Tumores", "Resto") adds up; the
// reduced list has the prostate, of men only. Deaths of men of the first zone, "Alta <Norte>": 30 tumours and 2 of the
// prostate at 50 and more, 1 of the rest at 0-49; every other zone has 40 tumours of women at 50 and more.
inline Study testStudy() {
  Study study;
  study.years = {1999};
  study.ages = {{"0-49", 0, 50}, {"50 y más", 50, std::nullopt}};
  study.standard = {"población de prueba", {1, 1}};
  study.causes.codes = {"tumores", "próstata", "resto"};
  study.causes.published = {{"G1", std::string(kBroadGroups), "Tumores", {0, 1}},
                            {"G2", std::string(kBroadGroups), "Resto & otras", {2}},
                            {"L1", std::string(kReducedList), "Tumor maligno de la próstata", {1}, true, false}};
  study.provinces = {"Alta", "Ñora \"del\" Río", "Zona d'Arriba"};
  study.zones = {{"Alta <Norte>", 0}, {"Alta Sur", 0}, {"Ñora Centro", 1},
                 {"Ñora Este", 1},    {"Umbría", 2},   {"Zéjel", 2}};
  study.counts.emplace_back();
  for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
    Counts counts(2, 3);
    for (const Sex sex : kBothSexes) {
      for (std::size_t age = 0; age < 2; ++age) counts.addPersons(sex, age, 10'000);
    }
    if (zone == 0) {
      counts.addDeaths(0, Sex::men, 1, 30);
      counts.addDeaths(1, Sex::men, 1, 2);
      counts.addDeaths(2, Sex::men, 0, 1);
    } else {
      counts.addDeaths(0, Sex::women, 1, 40);
    }
    study.counts.front().push_back(counts);
  }
  return study;
}

inline constexpr const SexChoice& kBoth = kSexChoices[0];
inline constexpr const SexChoice& kMen = kSexChoices[1];
inline constexpr const SexChoice& kWomen = kSexChoices[2];

}  // namespace study::pages
