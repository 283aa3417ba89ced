#pragma once

#include <cstddef>
#include <vector>

#include "study/model/sexes.h"

namespace study {

// Numbers by age group, in the order of the study's groups.
using ByAge = std::vector<long>;

[[nodiscard]] long total(const ByAge& counts);

// Persons and deaths of one unit in one year, by sex, age group and counted cause. Indices are those of the study's age
// groups and of its causes' codes; they and the numbers' signs are the caller's to check.
class Counts {
 public:
  Counts() = default;
  Counts(std::size_t ages, std::size_t causes);

  // Fail with StudyError where a count grows beyond 2,147,483,647.
  void addPersons(Sex sex, std::size_t age, long number);
  void addDeaths(std::size_t cause, Sex sex, std::size_t age, long number);

  [[nodiscard]] long persons(Sex sex, std::size_t age) const { return persons_[at(sex, age)]; }
  [[nodiscard]] long deaths(std::size_t cause, Sex sex, std::size_t age) const { return deaths_[at(cause, sex, age)]; }

  // Summed over the sexes of the choice.
  [[nodiscard]] ByAge persons(const SexChoice& sex) const;
  [[nodiscard]] ByAge deaths(const SexChoice& sex) const;  // of all causes
  [[nodiscard]] ByAge deaths(const SexChoice& sex, const std::vector<std::size_t>& causes) const;

  // Larger units are the sums of their parts, which have as many age groups and causes. Fails as the additions do.
  Counts& operator+=(const Counts& other);

 private:
  [[nodiscard]] std::size_t at(Sex sex, std::size_t age) const { return static_cast<std::size_t>(sex) * ages_ + age; }
  [[nodiscard]] std::size_t at(std::size_t cause, Sex sex, std::size_t age) const {
    return cause * kSexes * ages_ + at(sex, age);
  }
  void sumDeaths(std::size_t cause, const SexChoice& sex, ByAge& sums) const;

  std::size_t ages_ = 0;
  std::size_t causes_ = 0;
  std::vector<int> persons_;  // by sex, age
  std::vector<int> deaths_;   // by cause, sex, age
};

}  // namespace study
