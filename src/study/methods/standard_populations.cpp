#include "study/methods/standard_populations.h"

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

}  // namespace study
