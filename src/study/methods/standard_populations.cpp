#include "study/methods/standard_populations.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace study {

namespace {

struct Line {
  std::string_view age;
  double weight;
};

PublishedStandard published(std::string_view setting, std::string name, const std::vector<Line>& lines) {
  PublishedStandard standard{setting, {std::move(name), {}}, {}};
  for (const Line& line : lines) {
    standard.ages.push_back(parseAgeGroup(line.age).value());
    standard.population.weights.push_back(line.weight);
  }
  return standard;
}

double end(const AgeGroup& age) { return age.to.value_or(std::numeric_limits<double>::infinity()); }

bool holds(const AgeGroup& group, const AgeGroup& part) { return group.from <= part.from && end(part) <= end(group); }

bool areApart(const AgeGroup& a, const AgeGroup& b) { return end(a) <= b.from || end(b) <= a.from; }

}  // namespace

const std::vector<PublishedStandard>& publishedStandards() {
  static const std::vector<PublishedStandard> standards{
      published("europea 1976", "población europea estándar de 1976",
                {{"0", 1600},
                 {"1-4", 6400},
                 {"5-9", 7000},
                 {"10-14", 7000},
                 {"15-19", 7000},
                 {"20-24", 7000},
                 {"25-29", 7000},
                 {"30-34", 7000},
                 {"35-39", 7000},
                 {"40-44", 7000},
                 {"45-49", 7000},
                 {"50-54", 7000},
                 {"55-59", 6000},
                 {"60-64", 5000},
                 {"65-69", 4000},
                 {"70-74", 3000},
                 {"75-79", 2000},
                 {"80-84", 1000},
                 {"85+", 1000}}),
      published("europea 2013", "población europea estándar de 2013",
                {{"0", 1000},     {"1-4", 4000},   {"5-9", 5500},   {"10-14", 5500}, {"15-19", 5500}, {"20-24", 6000},
                 {"25-29", 6000}, {"30-34", 6500}, {"35-39", 7000}, {"40-44", 7000}, {"45-49", 7000}, {"50-54", 7000},
                 {"55-59", 6500}, {"60-64", 6000}, {"65-69", 5500}, {"70-74", 5000}, {"75-79", 4000}, {"80-84", 2500},
                 {"85-89", 1500}, {"90-94", 800},  {"95+", 200}}),
  };
  return standards;
}

std::optional<StandardPopulation> publishedStandard(std::string_view setting, const std::vector<AgeGroup>& ages) {
  const auto& standards = publishedStandards();
  const auto standard = std::find_if(standards.begin(), standards.end(),
                                     [&](const PublishedStandard& s) { return s.setting == setting; });
  if (standard == standards.end()) return std::nullopt;

  StandardPopulation result{standard->population.name, std::vector<double>(ages.size())};
  for (std::size_t part = 0; part < standard->ages.size(); ++part) {
    int holders = 0;
    for (std::size_t age = 0; age < ages.size(); ++age) {
      if (holds(ages[age], standard->ages[part])) {
        result.weights[age] += standard->population.weights[part];
        ++holders;
      } else if (!areApart(ages[age], standard->ages[part])) {
        return std::nullopt;
      }
    }
    if (holders != 1) return std::nullopt;
  }
  return result;
}

}  // namespace study
