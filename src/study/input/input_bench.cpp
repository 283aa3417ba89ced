#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "study/input/age_division.h"
#include "study/input/deaths_file.h"
#include "study/input/fault_log.h"
#include "study/input/population_file.h"

// How long the two large files take: those of four years, 2,000 zones and 19 age groups.
namespace study {
namespace {

constexpr std::size_t kZones = 2000;
constexpr std::size_t kDeathRows = 500'000;

const std::vector<std::string>& ageNames() {
  static const std::vector<std::string> names{"0",     "1-4",   "5-9",   "10-14", "15-19", "20-24", "25-29",
                                              "30-34", "35-39", "40-44", "45-49", "50-54", "55-59", "60-64",
                                              "65-69", "70-74", "75-79", "80-84", "85+"};
  return names;
}

struct Input {
  std::filesystem::path folder = std::filesystem::temp_directory_path() / "veldoria_input_bench";
  Study study;

  Input() {
    std::filesystem::create_directories(folder);
    study.years.assign(kProgramYears.begin(), kProgramYears.end());
    for (std::size_t i = 0; i < kZones; ++i) study.zones.push_back({"Zona básica " + std::to_string(i), 0});
    for (std::size_t i = 0; i < 60; ++i) study.causes.codes.push_back("C" + std::to_string(i));
    writePopulation();
    writeDeaths();
  }
  ~Input() { std::filesystem::remove_all(folder); }
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;

  [[nodiscard]] std::string group(std::size_t row) const {
    const std::size_t age = row % 19;
    const std::size_t zone = row / 38 % kZones;
    return std::to_string(1999 + row / 38 / kZones % 4) + "," + study.zones[zone].name + "," +
           (row / 19 % 2 == 0 ? "Hombres," : "Mujeres,") + ageNames()[age] + ",";
  }

  void writePopulation() const {
    std::ofstream file(folder / kPopulationFile);
    file << "year,zone,sex,age_group,persons\n";
    for (std::size_t row = 0; row < 4 * kZones * 38; ++row) file << group(row) << row % 977 + 1 << '\n';
  }

  void writeDeaths() const {
    std::ofstream file(folder / kDeathsFile);
    file << "year,zone,sex,age_group,cause,count\n";
    for (std::size_t row = 0; row < kDeathRows; ++row) {
      file << group(row) << study.causes.codes[row / (4 * kZones * 38)] << ',' << row % 7 << '\n';
    }
  }
};

void readCounts(benchmark::State& state) {
  Input input;
  const CountedUnits units(input.study.years, input.study.zones, "zones.gpkg");
  for (auto _ : state) {
    FaultLog log;
    const PopulationRows population = readPopulation(input.folder, units, log);
    input.study.ages = divideAges(population.ageGroups, {log, kPopulationFile});
    input.study.counts.assign(4, std::vector<Counts>(kZones, Counts(19, 60)));
    enterPopulation(population, units, input.study, log);
    if (state.range(0) == 1) readDeaths(input.folder, units, input.study, log);
    if (!log.isEmpty()) state.SkipWithError("the input has faults");
  }
}
BENCHMARK(readCounts)->ArgName("deaths")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace study
