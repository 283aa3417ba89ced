#include "study/sample/sample_counts.h"

#include <array>
#include <string_view>

#include "study/random.h"
#include "study/sample/mortality.h"
#include "study/sample/population.h"

namespace study {

namespace {

// Each use of the seed has random numbers of its own, so that a change to one leaves the others as they are.
enum Stream : std::uint64_t { populationStream = 1, mortalityStream, deathsStream };

constexpr std::array<Sex, kSexes> kBoth{Sex::men, Sex::women};

void drawDeaths(Random& random, Counts& counts, const MortalityMap& map, std::size_t zone, int years,
                double yearFactor) {
  for (std::size_t i = 0; i < kCauses; ++i) {
    const Cause cause = static_cast<Cause>(i);
    const double level = map.factor(cause, zone) * trend(cause, years) * yearFactor;
    for (const Sex sex : kBoth) {
      for (std::size_t age = 0; age < kAgeGroups; ++age) {
        const double expected = counts.personsOf(sex)[age] * baseMortality(cause, sex, age) * level;
        counts.deathsOf(cause, sex)[age] = random.poisson(expected);
      }
    }
  }
}

}  // namespace

std::vector<std::vector<Counts>> makeCounts(const SampleRegion& region, std::uint64_t seed) {
  Random populationRandom(seed, populationStream);
  std::vector<Population> populations;
  for (const Settled settled : region.settled) populations.emplace_back(populationRandom, settled);
  Random mapRandom(seed, mortalityStream);
  const MortalityMap map(mapRandom, region);

  Random random(seed, deathsStream);
  std::vector<std::vector<Counts>> years;
  for (int year = 0; year < kYears; ++year) {
    const double yearFactor = 1 + 0.012 * random.normal();  // a mild or a hard winter
    std::vector<Counts>& zones = years.emplace_back(region.zones.size());
    for (std::size_t zone = 0; zone < zones.size(); ++zone) {
      zones[zone].persons = populations[zone].after(year);
      drawDeaths(random, zones[zone], map, zone, year, yearFactor);
    }
  }
  return years;
}

}  // namespace study
