#include "study/thematic/thematic_scales.h"

#include <algorithm>
#include <cmath>

#include "study/model/indicators.h"
#include "study/thematic/classes.h"

namespace study {

namespace {

std::vector<double> values(const Study& study, const FigureBook& book, UnitKind kind, const std::string& indicator) {
  std::vector<double> result;
  for (std::size_t year = 0; year < study.years.size(); ++year) {
    for (const Unit unit : study.units(kind)) {
      for (const SexChoice& sex : kSexChoices) {
        if (const Figure* figure = book.find(year, unit, sex.name, indicator)) result.push_back(figure->value);
      }
    }
  }
  return result;
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
      std::vector<double> all = values(study, book, kind, key.second);
      if (isCount(key.second)) {
        const double most = all.empty() ? 0 : *std::max_element(all.begin(), all.end());
        greatest_[key] = readableAbove(std::max(most, 1.0));
      } else {
        std::vector<double> limits = classLimits(std::move(all));
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
