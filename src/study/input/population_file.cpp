#include "study/input/population_file.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

#include "study/input/numbers.h"

namespace study {

namespace {

enum Column : std::size_t { year, zone, sex, ageGroup, persons };

class Reader {
 public:
  Reader(const std::filesystem::path& folder, const CountedUnits& units, FaultLog& log)
      : units_(units),
        totals_(units.years().size()),
        file_(folder, {log, kPopulationFile}, {{"year"}, {"zone"}, {"sex"}, {"age_group"}, {"persons"}}) {}

  PopulationRows read() {
    while (file_.next()) readRow();
    return std::move(population_);
  }

 private:
  void readRow() {
    const std::optional<CountedGroup> group = readGroup(file_, units_, file_[year], file_[zone], file_[sex]);
    const std::optional<std::uint32_t> age = readAge(file_[ageGroup]);
    const std::optional<long> number = readCount(file_, file_[persons], "number of persons");
    if (!group || !age) return;
    const bool isFitting = number && totals_.add(file_, group->year, *number);
    population_.rows.push_back({*group, *age, file_.line(), isFitting ? *number : 0});
  }

  std::optional<std::uint32_t> readAge(std::string_view field) {
    if (const auto known = ages_.find(std::string(field)); known != ages_.end()) return known->second;
    const std::optional<AgeGroup> group = parseAgeGroup(field);
    if (!group) {
      file_.fault(FaultKind::unknownAgeGroup, inQuotes(field) + " is no age group",
                  "write it as 0, 1-4 or 85+, in completed years");
      return std::nullopt;
    }
    std::vector<NamedAgeGroup>& groups = population_.ageGroups;
    const auto same = std::find_if(groups.begin(), groups.end(),
                                   [&](const NamedAgeGroup& named) { return areSameAges(named.group, *group); });
    const auto place = static_cast<std::uint32_t>(same - groups.begin());
    if (same == groups.end()) groups.push_back({*group, file_.line()});
    ages_.emplace(field, place);
    return place;
  }

  const CountedUnits& units_;
  Totals totals_;
  CsvFile file_;
  PopulationRows population_;
  std::unordered_map<std::string, std::uint32_t> ages_;  // by their texts
};

// Which counts were given.
class Given {
 public:
  Given(const CountedUnits& units, const std::vector<AgeGroup>& ages, FileFaults faults)
      : units_(units), ages_(ages), faults_(std::move(faults)) {
    given_.resize(units.zones().size() * units.years().size() * kSexes * ages.size());
  }

  [[nodiscard]] std::size_t place(const CountedGroup& group, std::size_t age) const {
    const std::size_t ofZone = group.zone * units_.years().size() + group.year;
    return (ofZone * kSexes + static_cast<std::size_t>(group.sex)) * ages_.size() + age;
  }
  void mark(std::size_t place) { given_[place] = true; }

  // Says nothing where the years could not be read.
  void addMissing() const {
    if (units_.years().empty()) return;
    const std::size_t perZone = units_.years().size() * kSexes * ages_.size();
    for (std::size_t i = 0; i < units_.zones().size(); ++i) {
      if (hasNone(place({i, 0}), perZone)) {
        faults_.add(
            FaultKind::zoneWithoutPopulation, 0,
            "there is no population of the zone " + inQuotes(units_.zones()[i].name) + " of " + units_.zonesFile(),
            "add its rows");
      } else {
        addMissingOf(i);
      }
    }
  }

 private:
  struct ZoneYear {
    std::size_t zone;
    std::size_t year;
  };
  [[nodiscard]] std::size_t place(ZoneYear at) const { return place({at.year, at.zone, Sex::men}, 0); }

  [[nodiscard]] bool hasNone(std::size_t from, std::size_t count) const {
    const auto first = given_.begin() + static_cast<std::ptrdiff_t>(from);
    return std::none_of(first, first + static_cast<std::ptrdiff_t>(count), [](bool isGiven) { return isGiven; });
  }

  void addMissingOf(std::size_t zoneIndex) const {
    for (std::size_t y = 0; y < units_.years().size(); ++y) {
      for (const Sex ofSex : kBothSexes) {
        const CountedGroup group{y, zoneIndex, ofSex};
        const std::string words = "of the zone " + inQuotes(units_.zones()[zoneIndex].name) + " (" +
                                  std::to_string(units_.years()[y]) + ", " +
                                  std::string(kSexChoices[1 + static_cast<std::size_t>(ofSex)].name) + ")";
        if (hasNone(place(group, 0), ages_.size())) {
          faults_.add(FaultKind::missingPopulation, 0, "there is no population " + words, "add its rows");
        } else {
          addMissingAges(group, words);
        }
      }
    }
  }

  void addMissingAges(const CountedGroup& group, const std::string& words) const {
    std::vector<std::string> missing;
    for (std::size_t age = 0; age < ages_.size(); ++age) {
      if (!given_[place(group, age)]) missing.push_back(ages_[age].name);
    }
    if (missing.empty()) return;
    faults_.add(FaultKind::missingAgeGroup, 0, "the population " + words + " lacks the age groups " + asList(missing),
                "add a row for each, with 0 where there are no persons");
  }

  const CountedUnits& units_;
  const std::vector<AgeGroup>& ages_;
  FileFaults faults_;
  std::vector<bool> given_;  // by zone, year, sex, age
};

}  // namespace

PopulationRows readPopulation(const std::filesystem::path& folder, const CountedUnits& units, FaultLog& log) {
  return Reader(folder, units, log).read();
}

void enterPopulation(const PopulationRows& population, const CountedUnits& units, Study& study, FaultLog& log) {
  std::vector<std::size_t> ages;  // of the study, by group
  for (const NamedAgeGroup& named : population.ageGroups) {
    const auto age = std::find_if(study.ages.begin(), study.ages.end(),
                                  [&](const AgeGroup& a) { return areSameAges(a, named.group); });
    ages.push_back(static_cast<std::size_t>(age - study.ages.begin()));
  }
  const FileFaults faults(log, kPopulationFile);
  Given given(units, study.ages, faults);
  RowKeys keys;
  for (const PopulationRows::Row& row : population.rows) {
    const std::size_t age = ages[row.age];
    const std::size_t place = given.place(row.group, age);
    given.mark(place);
    keys.add(place, row.line);
    study.counts[row.group.year][row.group.zone].addPersons(row.group.sex, age, row.persons);
  }
  keys.addDoubleRows(faults);
  given.addMissing();
}

}  // namespace study
