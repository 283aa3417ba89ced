#pragma once

#include <filesystem>

#include "study/generator/region.h"
#include "study/generator/settings.h"

namespace study::generator {

// Plausible counts of the region's zones: every number of persons by year, zone, sex and age group, and every number of
// deaths that is not 0 by cause as well, drawn from the mortality that the zone's ages, its place and the year let
// expect.
void writeCounts(const Region& region, const GeneratorSettings& settings, const std::filesystem::path& population,
                 const std::filesystem::path& deaths);

}  // namespace study::generator
