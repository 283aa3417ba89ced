#include "study/statistics.h"

#include <algorithm>
#include <functional>

#include "study/figures.h"
#include "study/rates.h"

namespace study {

namespace {

constexpr std::string_view kTerritory = "Territorio";
constexpr std::string_view kPopulation = "Población";
constexpr std::string_view kAgeStructure = "Estructura por edad";
constexpr std::string_view kMortality = "Mortalidad";
constexpr std::string_view kLostYears = "Años potenciales de vida perdidos";
constexpr int kLastYear = kFirstYear + kYears - 1;

double square(double kilometres) { return kilometres * kilometres; }

long persons(const ByAge& counts, double from, double to) {
  long sum = 0;
  for (std::size_t age = 0; age < kAgeGroups; ++age) {
    if (kAges[age].from >= from && kAges[age].from < to) sum += counts[age];
  }
  return sum;
}

void addPopulation(std::vector<Statistic>& lines, const std::vector<SexCounts>& years) {
  for (int i = 0; i < kYears; ++i) {
    lines.push_back({kPopulation, "Población " + std::to_string(kFirstYear + i),
                     static_cast<double>(total(years[static_cast<std::size_t>(i)].persons))});
  }
  const auto first = static_cast<double>(total(years.front().persons));
  const auto last = static_cast<double>(total(years.back().persons));
  if (first > 0) lines.push_back({kPopulation, "Variación 1999-2002 (%)", (last / first - 1) * 100});
}

void addAgeStructure(std::vector<Statistic>& lines, const ByAge& last) {
  const auto all = static_cast<double>(total(last));
  const auto children = static_cast<double>(persons(last, 0, 15));
  const auto old = static_cast<double>(persons(last, 65, 120));
  if (all <= 0) return;
  lines.push_back({kAgeStructure, "Menores de 15 años en 2002 (%)", children / all * 100});
  lines.push_back({kAgeStructure, "De 65 y más años en 2002 (%)", old / all * 100});
  if (children > 0) lines.push_back({kAgeStructure, "Índice de envejecimiento en 2002", old / children * 100});
}

void addMortality(std::vector<Statistic>& lines, const std::vector<SexCounts>& years) {
  SexCounts all;
  for (int i = 0; i < kYears; ++i) {
    const SexCounts& year = years[static_cast<std::size_t>(i)];
    lines.push_back(
        {kMortality, "Fallecidos " + std::to_string(kFirstYear + i), static_cast<double>(total(year.deaths))});
    for (std::size_t age = 0; age < kAgeGroups; ++age) {
      all.persons[age] += year.persons[age];
      all.deaths[age] += year.deaths[age];
    }
  }
  lines.push_back({kMortality, "Fallecidos 1999-2002", static_cast<double>(total(all.deaths))});
  if (hasRate(all.persons)) {
    lines.push_back({kMortality, "Tasa bruta 1999-2002 (x100.000)", crudeRate(all.deaths, all.persons)});
    lines.push_back({kMortality, "Tasa estandarizada 1999-2002 (x100.000)", standardisedRate(all.deaths, all.persons)});
    lines.push_back({kLostYears, "Tasa de AVPP 1999-2002 (x100.000)", yearsOfLifeLostRate(all.deaths, all.persons)});
  }
  lines.push_back({kLostYears, "AVPP 1999-2002", yearsOfLifeLost(all.deaths)});
}

std::vector<Statistic> statistics(double metresSquared, std::size_t zones, long provinces,
                                  const std::function<Counts(int year)>& counts) {
  std::vector<SexCounts> years;
  for (int year = kFirstYear; year <= kLastYear; ++year) years.push_back(bothSexes(counts(year)));
  const double squareKilometres = metresSquared / square(1000);

  std::vector<Statistic> lines;
  lines.push_back({kTerritory, "Superficie (km²)", squareKilometres});
  if (provinces > 0) lines.push_back({kTerritory, "Provincias", static_cast<double>(provinces)});
  lines.push_back({kTerritory, "Zonas básicas de salud", static_cast<double>(zones)});
  lines.push_back({kTerritory, "Densidad en 2002 (habitantes/km²)",
                   static_cast<double>(total(years.back().persons)) / squareKilometres});
  addPopulation(lines, years);
  addAgeStructure(lines, years.back().persons);
  addMortality(lines, years);
  return lines;
}

}  // namespace

std::vector<Statistic> provinceStatistics(const Study& study, int province) {
  const auto zones = std::count_if(study.zones.begin(), study.zones.end(),
                                   [&](const Zone& zone) { return zone.province == province; });
  return statistics(area(study.provinceOutline(province)), static_cast<std::size_t>(zones), 0,
                    [&](int year) { return study.provinceCounts(year, province); });
}

std::vector<Statistic> regionStatistics(const Study& study) {
  return statistics(area(study.regionOutline()), study.zones.size(), static_cast<long>(study.provinces.size()),
                    [&](int year) { return study.regionCounts(year); });
}

}  // namespace study
