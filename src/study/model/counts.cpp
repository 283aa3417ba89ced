#include "study/model/counts.h"

#include <limits>
#include <numeric>

#include "study/model/study_error.h"

namespace study {

namespace {

void add(int& count, long number) {
  constexpr long kMost = std::numeric_limits<int>::max();
  if (number > kMost - count) throw StudyError("a count of persons or deaths grows beyond 2,147,483,647");
  count += static_cast<int>(number);
}

void add(std::vector<int>& counts, const std::vector<int>& others) {
  for (std::size_t i = 0; i < counts.size(); ++i) add(counts[i], others[i]);
}

}  // namespace

long total(const ByAge& counts) { return std::accumulate(counts.begin(), counts.end(), 0L); }

Counts::Counts(std::size_t ages, std::size_t causes)
    : ages_(ages), causes_(causes), persons_(kSexes * ages), deaths_(causes * kSexes * ages) {}

void Counts::addPersons(Sex sex, std::size_t age, long number) { add(persons_[at(sex, age)], number); }

void Counts::addDeaths(std::size_t cause, Sex sex, std::size_t age, long number) {
  add(deaths_[at(cause, sex, age)], number);
}

ByAge Counts::persons(const SexChoice& sex) const {
  ByAge sums(ages_);
  for (const Sex one : kBothSexes) {
    if (!sex.includes(one)) continue;
    for (std::size_t age = 0; age < ages_; ++age) sums[age] += persons(one, age);
  }
  return sums;
}

void Counts::sumDeaths(std::size_t cause, const SexChoice& sex, ByAge& sums) const {
  for (const Sex one : kBothSexes) {
    if (!sex.includes(one)) continue;
    for (std::size_t age = 0; age < ages_; ++age) sums[age] += deaths(cause, one, age);
  }
}

ByAge Counts::deaths(const SexChoice& sex) const {
  ByAge sums(ages_);
  for (std::size_t cause = 0; cause < causes_; ++cause) sumDeaths(cause, sex, sums);
  return sums;
}

ByAge Counts::deaths(const SexChoice& sex, const std::vector<std::size_t>& causes) const {
  ByAge sums(ages_);
  for (const std::size_t cause : causes) sumDeaths(cause, sex, sums);
  return sums;
}

Counts& Counts::operator+=(const Counts& other) {
  add(persons_, other.persons_);
  add(deaths_, other.deaths_);
  return *this;
}

}  // namespace study
