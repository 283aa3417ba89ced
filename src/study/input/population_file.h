#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "study/input/age_division.h"
#include "study/input/counted_rows.h"

namespace study {

// The persons of an input as its rows give them.
struct PopulationRows {
  struct Row {
    CountedGroup group;
    std::uint32_t age;  // of `ageGroups`
    std::size_t line;
    long persons;  // 0 where the row's number is faulty
  };
  std::vector<NamedAgeGroup> ageGroups;  // each once, in the order of their first rows
  std::vector<Row> rows;
};

[[nodiscard]] PopulationRows readPopulation(const std::filesystem::path& folder, const CountedUnits& units,
                                            FaultLog& log);

// Enters the persons in the study's counts, which are there, and checks that each zone has all years, sexes and age
// groups, each once.
void enterPopulation(const PopulationRows& population, const CountedUnits& units, Study& study, FaultLog& log);

}  // namespace study
