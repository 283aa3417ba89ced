#pragma once

#include <cstddef>
#include <string>

#include "study/model/study.h"

namespace study::reports {

// A region of square zones of 10 km, in rows of provinces; for tests.
struct StudyShape {
  std::size_t provinces = 3;
  std::size_t zonesPerProvince = 4;
  std::size_t years = 2;
  long persons = 500;  // of each sex, age and zone
  int deathsIn = 100;  // persons to a death, fewer with age; 0: there are no deaths
  bool hasCauses = true;
  std::string longName = {};  // after the names of zones, provinces and causes
};

inline std::vector<AgeGroup> testAges() {
  std::vector<AgeGroup> ages{{"0", 0, 1}, {"1-4", 1, 5}};
  for (int from = 5; from < 85; from += 5) {
    ages.push_back({std::to_string(from) + "-" + std::to_string(from + 4), double(from), double(from + 5)});
  }
  ages.push_back({"85 y más", 85, std::nullopt});
  return ages;
}

inline CauseList testCauses(const StudyShape& shape) {
  CauseList causes;
  causes.codes = {"C50", "C61", "R99"};
  if (!shape.hasCauses) return causes;
  const std::string broad(kBroadGroups);
  const std::string reduced(kReducedList);
  causes.published = {{"", broad, "Tumores" + shape.longName, {0, 1}},
                      {"", broad, "Todo lo demás", {2}},
                      {"", reduced, "Tumor maligno de la mama" + shape.longName, {0}},
                      {"", reduced, "Tumor maligno de la próstata", {1}, true, false}};
  return causes;
}

inline Counts testCounts(const StudyShape& shape, std::size_t ages, std::size_t zone) {
  Counts counts(ages, 3);
  for (const Sex sex : kBothSexes) {
    for (std::size_t age = 0; age < ages; ++age) {
      counts.addPersons(sex, age, shape.persons);
      if (shape.deathsIn == 0) continue;
      const long deaths = shape.persons * long(age + 1 + zone % 5) / shape.deathsIn;
      counts.addDeaths(sex == Sex::men ? 1 : 0, sex, age, deaths / 3);
      counts.addDeaths(2, sex, age, deaths - deaths / 3);
    }
  }
  return counts;
}

inline Ring testRectangle(double left, double bottom, double right, double top) {
  return {{left, bottom}, {right, bottom}, {right, top}, {left, top}};
}

inline Study testStudy(const StudyShape& shape = {}) {
  constexpr double kSide = 10'000;
  Study study;
  for (std::size_t year = 0; year < shape.years; ++year) study.years.push_back(kProgramYears[year]);
  study.ages = testAges();
  study.standard = {"población de prueba", std::vector<double>(study.ages.size(), 1)};
  study.causes = testCauses(shape);
  for (std::size_t province = 0; province < shape.provinces; ++province) {
    study.provinces.push_back("Provincia " + std::to_string(province + 1) + shape.longName);
    const double bottom = kSide * double(province);
    for (std::size_t i = 0; i < shape.zonesPerProvince; ++i) {
      study.zones.push_back({"Zona " + std::to_string(study.zones.size() + 1) + shape.longName, province});
      study.zoneAreas.push_back({testRectangle(kSide * double(i), bottom, kSide * double(i + 1), bottom + kSide)});
    }
    Ring ring = testRectangle(0, bottom, kSide * double(shape.zonesPerProvince), bottom + kSide);
    study.provinceAreas.push_back({ring});
  }
  for (std::size_t year = 0; year < shape.years; ++year) {
    std::vector<Counts>& counts = study.counts.emplace_back();
    for (std::size_t zone = 0; zone < study.zones.size(); ++zone) {
      counts.push_back(testCounts(shape, study.ages.size(), zone));
    }
  }
  return study;
}

}  // namespace study::reports
