#include "study/input/deaths_file.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include "study/input/age_division.h"
#include "study/input/numbers.h"
#include "text/utf8.h"

namespace study {

namespace {

enum Column : std::size_t { year, zone, sex, ageGroup, cause, count };

class Reader {
 public:
  Reader(const std::filesystem::path& folder, const CountedUnits& units, Study& study, FaultLog& log)
      : units_(units),
        study_(study),
        totals_(units.years().size()),
        file_(folder, {log, kDeathsFile}, {{"year"}, {"zone"}, {"sex"}, {"age_group"}, {"cause"}, {"count"}}),
        isPopulationSound_(isSound(log)),
        deadOf_(units.years().size() * units.zones().size() * kSexes * study.ages.size()) {
    for (std::size_t i = 0; i < study.causes.codes.size(); ++i) causes_.emplace(study.causes.codes[i], i);
    for (const PublishedCause& published : study.causes.published) {
      for (const std::size_t code : published.sums) restrict(code, published);
    }
  }

  void read() {
    std::size_t rows = 0;
    for (; file_.next(); ++rows) readRow();
    if (file_.isReadable() && rows == 0) {
      file_.faults().add(FaultKind::noRows, 1, "the file has no row below its first line", "give the deaths");
    }
    keys_.addDoubleRows(file_.faults());
    checkPopulation();
  }

 private:
  // Who can die of a counted cause, and which published cause tells so.
  struct Possible {
    std::array<const PublishedCause*, kSexes> excludedBy{};
  };

  // Whether all persons could be entered: otherwise those that are missing are told of already.
  static bool isSound(const FaultLog& log) {
    using enum FaultKind;
    const std::array kinds{missingFile,    fieldCount,       unclosedQuote,   misplacedQuote,    notANumber,
                           negativeNumber, fractionalNumber, tooLargeNumber,  unknownZone,       unknownSex,
                           unknownYear,    unknownAgeGroup,  missingAgeGroup, missingPopulation, zoneWithoutPopulation};
    return std::none_of(kinds.begin(), kinds.end(), [&](FaultKind kind) { return log.count(kind) > 0; });
  }

  struct Dead {
    long number = 0;
    std::size_t line = 0;  // of the first row with a death
  };

  void restrict(std::size_t code, const PublishedCause& published) {
    Possible& possible = possible_[code];
    if (!published.men) possible.excludedBy[static_cast<std::size_t>(Sex::men)] = &published;
    if (!published.women) possible.excludedBy[static_cast<std::size_t>(Sex::women)] = &published;
  }

  void readRow() {
    const std::optional<CountedGroup> group = readGroup(file_, units_, file_[year], file_[zone], file_[sex]);
    const std::optional<std::size_t> age = readAge(file_[ageGroup]);
    const std::optional<std::size_t> code = readCause(file_[cause]);
    const std::optional<long> number = readCount(file_, file_[count], "count");
    if (!group || !age || !code || !number) return;
    if (!isPossible(*code, *group, *number)) return;

    const std::size_t place = placeOf(*group);
    keys_.add((place * study_.ages.size() + *age) * study_.causes.codes.size() + *code, file_.line());
    if (!totals_.add(file_, group->year, *number)) return;
    study_.counts[group->year][group->zone].addDeaths(*code, group->sex, *age, *number);
    Dead& dead = deadOf_[place * study_.ages.size() + *age];
    if (dead.number == 0) dead.line = file_.line();
    dead.number += *number;
  }

  [[nodiscard]] std::size_t placeOf(const CountedGroup& group) const {
    return (group.year * units_.zones().size() + group.zone) * kSexes + static_cast<std::size_t>(group.sex);
  }

  std::optional<std::size_t> readAge(std::string_view field) {
    if (study_.ages.empty()) return std::nullopt;
    if (const auto known = ages_.find(std::string(field)); known != ages_.end()) return known->second;
    const std::optional<AgeGroup> group = parseAgeGroup(field);
    const auto same = std::find_if(study_.ages.begin(), study_.ages.end(),
                                   [&](const AgeGroup& age) { return group && areSameAges(age, *group); });
    if (same == study_.ages.end()) {
      file_.fault(FaultKind::unknownAgeGroup, inQuotes(field) + " is none of the age groups of population.csv",
                  "use the same age groups in both files");
      return std::nullopt;
    }
    const auto place = static_cast<std::size_t>(same - study_.ages.begin());
    ages_.emplace(field, place);
    return place;
  }

  std::optional<std::size_t> readCause(std::string_view field) const {
    if (causes_.empty()) return std::nullopt;
    if (const auto found = causes_.find(std::string(field)); found != causes_.end()) return found->second;
    file_.fault(FaultKind::unknownCause, "the cause " + inQuotes(field) + " is in no sums of causes.csv",
                "correct it, or name it in the sums of its causes there");
    return std::nullopt;
  }

  bool isPossible(std::size_t code, const CountedGroup& group, long number) const {
    const auto possible = possible_.find(code);
    const PublishedCause* excluding =
        possible == possible_.end() ? nullptr : possible->second.excludedBy[static_cast<std::size_t>(group.sex)];
    if (number == 0 || excluding == nullptr) return true;
    file_.fault(FaultKind::impossibleDeath,
                std::string(file_[sex]) + " cannot die of " + inQuotes(study_.causes.codes[code]) + ", which \"" +
                    excluding->name + "\" sums in causes.csv",
                "correct the row's sex or cause, or the sex of the cause in causes.csv");
    return false;
  }

  void checkPopulation() const {
    if (study_.ages.empty() || causes_.empty() || !isPopulationSound_) return;
    for (std::size_t y = 0; y < units_.years().size(); ++y) {
      for (std::size_t z = 0; z < units_.zones().size(); ++z) {
        for (const Sex ofSex : kBothSexes) checkPopulation({y, z, ofSex});
      }
    }
  }

  void checkPopulation(const CountedGroup& group) const {
    const SexChoice& choice = kSexChoices[1 + static_cast<std::size_t>(group.sex)];
    const ByAge persons = study_.counts[group.year][group.zone].persons(choice);
    std::vector<std::string> ages;
    std::size_t line = 0;
    for (std::size_t age = 0; age < persons.size(); ++age) {
      const Dead& dead = deadOf_[placeOf(group) * persons.size() + age];
      if (dead.number == 0 || persons[age] > 0) continue;
      ages.push_back(study_.ages[age].name);
      line = line == 0 ? dead.line : std::min(line, dead.line);
    }
    if (ages.empty()) return;
    const std::string ofAges = total(persons) > 0 ? " in the age groups " + asList(ages) : "";
    file_.faults().add(FaultKind::deathsWithoutPopulation, line,
                       "the zone " + inQuotes(units_.zones()[group.zone].name) + " (" +
                           std::to_string(units_.years()[group.year]) + ", " + std::string(choice.name) +
                           ") has deaths" + ofAges + ", but no person" + (ofAges.empty() ? "" : " of that age") +
                           " in population.csv",
                       "correct whichever is wrong; where somebody died, at least one person lived");
  }

  const CountedUnits& units_;
  Study& study_;
  Totals totals_;
  CsvFile file_;
  std::unordered_map<std::string, std::size_t> ages_;  // by their texts
  std::unordered_map<std::string, std::size_t> causes_;
  std::unordered_map<std::size_t, Possible> possible_;
  bool isPopulationSound_;
  std::vector<Dead> deadOf_;  // by year, zone, sex, age
  RowKeys keys_;
};

}  // namespace

void readDeaths(const std::filesystem::path& folder, const CountedUnits& units, Study& study, FaultLog& log) {
  Reader(folder, units, study, log).read();
}

}  // namespace study
