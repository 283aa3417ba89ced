#include "study/thematic/thematic_scales.h"

#include <algorithm>
#include <cmath>

#include "study/model/indicators.h"
#include "study/thematic/classes.h"

namespace study {

namespace {

// Of all years, by sex.
std::vector<std::vector<double>> values(const Study& study, const FigureBook& book, UnitKind kind,
                                        const std::string& indicator) {
  std::vector<std::vector<double>> result;
  for (const SexChoice& sex : kSexChoices) {
    std::vector<double>& ofSex = result.emplace_back();
    for (std::size_t year = 0; year < study.years.size(); ++year) {
      for (const Unit unit : study.units(kind)) {
        if (const Figure* figure = book.find(year, unit, sex.name, indicator)) ofSex.push_back(figure->value);
      }
    }
  }
  return result;
}

double greatestOf(const std::vector<std::vector<double>>& groups) {
  double greatest = 0;
  for (const std::vector<double>& group : groups) {
    for (const double value : group) greatest = std::max(greatest, value);
  }
  return greatest;
}

// The least of some readable numbers that is not below `number`, which is greater than 0. They lie close together, so
// that the greatest sign on a map is nearly as large as signs may be.
double readableAbove(double number) {
  const double power = std::pow(10, std::floor(std::log10(number)));
  for (const double factor : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (factor * power >= number) return factor * power;
  }
  return 10 * power;
}

}  // namespace

bool isCount(std::string_view indicator) { return indicator == kDeathsIndicator || indicator == kPopulationIndicator; }

ThematicScales::ThematicScales(const Study& study, const FigureBook& book) {
  for (const UnitKind kind : {UnitKind::province, UnitKind::zone}) {
    for (std::size_t i = 0; i < kThematicIndicators; ++i) {
      const Key key{kind, thematicIndicator(i)};
      const std::vector<std::vector<double>> all = values(study, book, kind, key.second);
      if (isCount(key.second)) {
        greatest_[key] = readableAbove(std::max(greatestOf(all), 1.0));
      } else {
        std::vector<double> limits = classLimits(all);
        limits_[key] = limits.empty() ? std::vector<double>{0, 1} : std::move(limits);
      }
    }
  }
}

const std::vector<double>& ThematicScales::limits(const ThematicMap& map) const {
  return limits_.at({map.units, map.indicator});
}

double ThematicScales::greatest(const ThematicMap& map) const { return greatest_.at({map.units, map.indicator}); }

}  // namespace study
