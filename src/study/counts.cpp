#include "study/counts.h"

#include <numeric>

namespace study {

namespace {

void add(ByAge& sum, const ByAge& other) {
  for (std::size_t age = 0; age < kAgeGroups; ++age) sum[age] += other[age];
}

}  // namespace

Counts& Counts::operator+=(const Counts& other) {
  for (std::size_t sex = 0; sex < kSexes; ++sex) {
    add(persons[sex], other.persons[sex]);
    for (std::size_t cause = 0; cause < kCauses; ++cause) add(deaths[cause][sex], other.deaths[cause][sex]);
  }
  return *this;
}

long total(const ByAge& counts) { return std::accumulate(counts.begin(), counts.end(), 0L); }

}  // namespace study
