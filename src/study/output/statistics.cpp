#include "study/output/statistics.h"

#include <cstddef>
#include <utility>

#include "study/methods/life_lost.h"
#include "study/methods/rates.h"
#include "study/model/ground_area.h"

namespace study {

namespace {

constexpr std::string_view kTerritory = "Territorio";
constexpr std::string_view kPopulation = "Población";
constexpr std::string_view kAgeStructure = "Estructura por edad";
constexpr std::string_view kMortality = "Mortalidad";
constexpr std::string_view kLostYears = "Años de vida potencialmente perdidos";

constexpr double kSquareMetres = 1'000'000;  // of a square kilometre

// "2000", "1999-2002" where no year is missing, otherwise "1999 y 2002".
std::string periodOf(const std::vector<int>& years) {
  const std::string first = std::to_string(years.front());
  const std::string last = std::to_string(years.back());
  if (years.size() == 1) return first;
  if (static_cast<std::size_t>(years.back() - years.front()) + 1 == years.size()) return first + "-" + last;
  std::string period = first;
  for (std::size_t i = 1; i + 1 < years.size(); ++i) period += ", " + std::to_string(years[i]);
  return period + " y " + last;
}

// Persons and deaths of both sexes in one year.
struct YearCounts {
  ByAge persons;
  ByAge deaths;
};

class Sheet {
 public:
  Sheet(const Study& study, const std::vector<HiddenDeaths>& hidden, Unit unit)
      : study_(study), hidden_(hidden), unit_(unit) {
    for (std::size_t year = 0; year < study.years.size(); ++year) {
      const Counts counts = study.countsOf(year, unit);
      years_.push_back({counts.persons(kSexChoices.front()), counts.deaths(kSexChoices.front())});
    }
    first_ = std::to_string(study.years.front());
    last_ = std::to_string(study.years.back());
    period_ = periodOf(study.years);
  }

  std::vector<Statistic> lines() && {
    addTerritory();
    addPopulation();
    addAgeStructure();
    addMortality();
    return std::move(lines_);
  }

 private:
  void put(std::string_view group, std::string label, double value) {
    lines_.push_back({group, std::move(label), value});
  }

  void addTerritory() {
    const double squareKilometres = groundSquareMetres(study_.area(unit_), study_.utmZone) / kSquareMetres;
    put(kTerritory, "Superficie (km²)", squareKilometres);
    if (unit_.kind == UnitKind::region) {
      put(kTerritory, "Provincias", static_cast<double>(study_.provinces.size()));
    }
    put(kTerritory, "Zonas básicas de salud", static_cast<double>(study_.zonesOf(unit_).size()));
    if (squareKilometres <= 0) return;
    put(kTerritory, "Densidad en " + last_ + " (habitantes/km²)",
        static_cast<double>(total(years_.back().persons)) / squareKilometres);
  }

  void addPopulation() {
    for (std::size_t year = 0; year < years_.size(); ++year) {
      put(kPopulation, "Población " + std::to_string(study_.years[year]),
          static_cast<double>(total(years_[year].persons)));
    }
    const auto first = static_cast<double>(total(years_.front().persons));
    const auto last = static_cast<double>(total(years_.back().persons));
    if (first > 0 && years_.size() > 1)
      put(kPopulation, "Variación " + first_ + "-" + last_ + " (%)", (last / first - 1) * 100);
  }

  // Persons in the groups that begin within these years of age.
  [[nodiscard]] double persons(const ByAge& counts, double from, double to) const {
    double sum = 0;
    for (std::size_t age = 0; age < counts.size(); ++age) {
      if (study_.ages[age].from >= from && study_.ages[age].from < to) sum += static_cast<double>(counts[age]);
    }
    return sum;
  }

  void addAgeStructure() {
    constexpr double kAdult = 15;
    constexpr double kOld = 65;
    constexpr double kOldest = 150;
    const ByAge& counts = years_.back().persons;
    const auto all = static_cast<double>(total(counts));
    const double children = persons(counts, 0, kAdult);
    const double old = persons(counts, kOld, kOldest);
    if (all <= 0) return;
    put(kAgeStructure, "Menores de 15 años en " + last_ + " (%)", children / all * 100);
    put(kAgeStructure, "De 65 y más años en " + last_ + " (%)", old / all * 100);
    if (children > 0) put(kAgeStructure, "Índice de envejecimiento en " + last_, old / children * 100);
  }

  void addMortality() {
    YearCounts all{ByAge(study_.ages.size()), ByAge(study_.ages.size())};
    bool isHidden = false;
    bool isLifeLostHidden = false;
    for (std::size_t year = 0; year < years_.size(); ++year) {
      const YearCounts& counts = years_[year];
      for (std::size_t age = 0; age < study_.ages.size(); ++age) {
        all.persons[age] += counts.persons[age];
        all.deaths[age] += counts.deaths[age];
      }
      isLifeLostHidden = isLifeLostHidden || hidden_[year].areEarlyHidden(unit_, kSexChoices.front());
      if (hidden_[year].areHidden(unit_, kSexChoices.front())) {
        isHidden = true;
      } else {
        put(kMortality, "Fallecidos " + std::to_string(study_.years[year]), static_cast<double>(total(counts.deaths)));
      }
    }
    if (!isHidden) addDeaths(all);
    if (!isLifeLostHidden) addLifeLost(all);
  }

  void addDeaths(const YearCounts& all) {
    if (years_.size() > 1) put(kMortality, "Fallecidos " + period_, static_cast<double>(total(all.deaths)));
    if (const auto rate = crudeRate(all.deaths, all.persons)) {
      put(kMortality, "Tasa bruta " + period_ + " (x100.000)", rate->rate);
    }
    if (const auto rate = standardisedRate(all.deaths, all.persons, study_.standard)) {
      put(kMortality, "Tasa estandarizada " + period_ + " (x100.000)", rate->rate);
    }
  }

  void addLifeLost(const YearCounts& all) {
    put(kLostYears, "AVPP " + period_, yearsOfLifeLost(all.deaths, study_.ages));
    if (const auto rate = yearsOfLifeLostRate(all.deaths, all.persons, study_.ages)) {
      put(kLostYears, "Tasa de AVPP " + period_ + " (x100.000)", *rate);
    }
  }

  const Study& study_;
  const std::vector<HiddenDeaths>& hidden_;
  Unit unit_;
  std::vector<YearCounts> years_;
  std::string first_;
  std::string last_;
  std::string period_;  // all years that were counted
  std::vector<Statistic> lines_;
};

}  // namespace

std::vector<HiddenDeaths> hiddenDeaths(const Study& study) {
  std::vector<HiddenDeaths> hidden;
  for (std::size_t year = 0; year < study.years.size(); ++year) hidden.emplace_back(study, year);
  return hidden;
}

std::vector<Statistic> statistics(const Study& study, const std::vector<HiddenDeaths>& hidden, Unit unit) {
  return Sheet(study, hidden, unit).lines();
}

}  // namespace study
