#include "study/input/standard_file.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <utility>

#include "study/input/age_division.h"
#include "study/input/csv_file.h"
#include "study/input/numbers.h"
#include "study/methods/standard_populations.h"

namespace study {

namespace {

enum Column : std::size_t { ageGroup, weight };

// The file's rows, as far as they are sound.
struct Rows {
  std::vector<NamedAgeGroup> groups;
  std::vector<double> weights;
  bool areSound = true;
};

void readRow(const CsvFile& file, Rows& rows) {
  const std::optional<AgeGroup> group = parseAgeGroup(file[ageGroup]);
  if (!group) {
    file.fault(FaultKind::unknownAgeGroup, inQuotes(file[ageGroup]) + " is no age group",
               "write it as 0, 1-4 or 85+, in completed years");
  }
  const std::optional<double> number = readNumber(file, file[weight], "weight");
  if (number && *number < 0) {
    file.fault(FaultKind::badWeight, "the weight " + inQuotes(file[weight]) + " is negative", "give 0 or more");
  }
  const auto earlier = std::find_if(rows.groups.begin(), rows.groups.end(), [&](const NamedAgeGroup& named) {
    return group && areSameAges(named.group, *group);
  });
  if (earlier != rows.groups.end()) {
    file.fault(FaultKind::doubleRow, "the row gives the same as line " + std::to_string(earlier->line),
               "remove one of the two");
  }
  if (!group || !number || *number < 0 || earlier != rows.groups.end()) {
    rows.areSound = false;
    return;
  }
  rows.groups.push_back({*group, file.line()});
  rows.weights.push_back(*number);
}

Standard readFile(const std::filesystem::path& folder, FaultLog& log) {
  CsvFile file(folder, {log, kStandardFile}, {{"age_group"}, {"weight"}});
  Rows rows;
  while (file.next()) readRow(file, rows);
  if (!file.isReadable() || !rows.areSound) return {};

  Standard standard{{"población estándar del estudio", {}}, divideAges(rows.groups, file.faults())};
  if (std::accumulate(rows.weights.begin(), rows.weights.end(), 0.0) <= 0) {
    file.faults().add(FaultKind::allWeightsZero, 0, "no weight is above 0", "give each age group its weight");
    return {};
  }
  for (const AgeGroup& age : standard.ages) {
    const auto row = std::find_if(rows.groups.begin(), rows.groups.end(),
                                  [&](const NamedAgeGroup& named) { return areSameAges(named.group, age); });
    standard.population.weights.push_back(rows.weights[static_cast<std::size_t>(row - rows.groups.begin())]);
  }
  return standard;
}

}  // namespace

Standard readStandard(const std::filesystem::path& folder, const Settings& settings, FaultLog& log) {
  if (settings.standard == kStandardFile) return readFile(folder, log);
  std::string known;
  for (const PublishedStandard& published : publishedStandards()) {
    if (published.setting == settings.standard) return {published.population, published.ages};
    known += inQuotes(published.setting) + ", ";
  }
  log.add(FaultKind::unknownStandard,
          {kSettingsFile, settings.standardLine, "there is no standard population " + inQuotes(settings.standard),
           "write one of " + known + "or \"standard.csv\" for your own"});
  return {};
}

StandardPopulation standardFor(const std::vector<AgeGroup>& ages, const Standard& standard, const Settings& settings,
                               FaultLog& log) {
  StandardPopulation result{standard.population.name, std::vector<double>(ages.size())};
  for (std::size_t part = 0; part < standard.ages.size() && !ages.empty(); ++part) {
    const auto whole = std::find_if(ages.begin(), ages.end(),
                                    [&](const AgeGroup& age) { return areWithin(standard.ages[part], age); });
    if (whole != ages.end()) {
      result.weights[static_cast<std::size_t>(whole - ages.begin())] += standard.population.weights[part];
      continue;
    }
    log.add(FaultKind::standardGroup,
            {kSettingsFile, settings.standardLine,
             "the age group " + inQuotes(standard.ages[part].name) + " of the standard population " +
                 inQuotes(settings.standard) + " is divided by the age groups of population.csv",
             "let each age group of population.csv be one of the standard's or several together"});
  }
  return result;
}

}  // namespace study
