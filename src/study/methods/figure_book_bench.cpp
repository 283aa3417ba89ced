#include <benchmark/benchmark.h>

#include <string>

#include "study/methods/figure_book.h"

namespace study {
namespace {

// A large region: one year, 24 counted and 28 published causes, 19 age groups, so that each unit has 96 figures.
Study large(std::size_t zones) {
  constexpr std::size_t kAges = 19;
  constexpr std::size_t kCodes = 24;
  Study study;
  study.years = {2001};
  study.standard.weights.assign(kAges, 1);
  for (std::size_t age = 0; age < kAges; ++age)
    study.ages.push_back({std::to_string(age), static_cast<double>(age), {}});
  for (std::size_t code = 0; code < kCodes; ++code) study.causes.codes.push_back(std::to_string(code));
  for (std::size_t i = 0; i < 28; ++i) {
    const std::string list(i < 12 ? kBroadGroups : kReducedList);
    study.causes.published.push_back({"", list, "Causa " + std::to_string(i), {i % kCodes, (i + 5) % kCodes}});
  }
  study.provinces.assign(8, "Provincia");
  study.counts.resize(1);
  for (std::size_t zone = 0; zone < zones; ++zone) {
    study.zones.push_back({"Zona", zone % study.provinces.size()});
    Counts counts(kAges, kCodes);
    for (std::size_t age = 0; age < kAges; ++age) {
      counts.addPersons(Sex::men, age, 1'000);
      counts.addPersons(Sex::women, age, 1'000);
      counts.addDeaths((zone + age) % kCodes, Sex::men, age, 3);
    }
    study.counts.front().push_back(counts);
  }
  return study;
}

void figureBook(benchmark::State& state) {
  const Study study = large(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    const FigureBook book(study);
    benchmark::DoNotOptimize(book.of(0, {UnitKind::region, 0}).data());
  }
}
BENCHMARK(figureBook)->Arg(500)->Arg(8'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace study
