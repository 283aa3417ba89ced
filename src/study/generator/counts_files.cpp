#include "study/generator/counts_files.h"

#include <string>
#include <vector>

#include "study/generator/ages.h"
#include "study/generator/cause_patterns.h"
#include "study/generator/mortality.h"
#include "study/generator/output_file.h"
#include "study/generator/population.h"
#include "study/generator/random.h"

namespace study::generator {

namespace {

// Each use of the seed has random numbers of its own, so that a change to one leaves the others as they are. Years have
// those that are numbered like them.
enum Stream : std::uint64_t { populationStream = 1, mortalityStream };

using RatesByCause = std::vector<BySexAndAge<double>>;

RatesByCause ratesIn(int year, double yearFactor) {
  RatesByCause rates(causePatterns().size());
  for (std::size_t cause = 0; cause < rates.size(); ++cause) {
    for (const Sex sex : kBothSexes) {
      for (std::size_t age = 0; age < kAgeSpans; ++age) {
        rates[cause][indexOf(sex)][age] = baseMortality(cause, sex, age) * trend(cause, year) * yearFactor;
      }
    }
  }
  return rates;
}

std::string rowStart(int year, const RegionZone& zone, Sex sex, std::size_t age) {
  return std::to_string(year)
      .append(",")
      .append(zone.name)
      .append(",")
      .append(nameOf(sex))
      .append(",")
      .append(kAges[age].name);
}

class CountsFiles {
 public:
  CountsFiles(const Region& region, const MortalityMap& map, const std::filesystem::path& population,
              const std::filesystem::path& deaths)
      : region_(region), map_(map), population_(population), deaths_(deaths) {
    population_ << "year,zone,sex,age_group,persons\n";
    deaths_ << "year,zone,sex,age_group,cause,count\n";
  }

  void writeZone(Random& random, int year, std::size_t zone, const BySexAndAge<long>& persons,
                 const RatesByCause& rates) {
    for (const Sex sex : kBothSexes) {
      for (std::size_t age = 0; age < kAgeSpans; ++age) {
        const long living = persons[indexOf(sex)][age];
        const std::string start = rowStart(year, region_.zones[zone], sex, age);
        population_ << start << "," << living << "\n";
        for (std::size_t cause = 0; cause < rates.size(); ++cause) {
          const double rate = rates[cause][indexOf(sex)][age] * map_.factor(cause, zone);
          const long count = random.poisson(static_cast<double>(living) * rate);
          if (count > 0) deaths_ << start << "," << causePatterns()[cause].code << "," << count << "\n";
        }
      }
    }
  }

  void close() {
    population_.close();
    deaths_.close();
  }

 private:
  const Region& region_;
  const MortalityMap& map_;
  OutputFile population_;
  OutputFile deaths_;
};

}  // namespace

void writeCounts(const Region& region, const GeneratorSettings& settings, const std::filesystem::path& population,
                 const std::filesystem::path& deaths) {
  Random populationRandom(settings.seed, populationStream);
  const std::vector<Population> populations = makePopulations(populationRandom, region);
  Random mapRandom(settings.seed, mortalityStream);
  const MortalityMap map(mapRandom, region);

  CountsFiles files(region, map, population, deaths);
  for (const int year : settings.years) {
    Random random(settings.seed, static_cast<std::uint64_t>(year));
    const double yearFactor = 1 + 0.012 * random.normal();  // a mild or a hard winter
    const RatesByCause rates = ratesIn(year, yearFactor);
    for (std::size_t zone = 0; zone < region.zones.size(); ++zone) {
      files.writeZone(random, year, zone, populations[zone].in(year), rates);
    }
  }
  files.close();
}

}  // namespace study::generator
