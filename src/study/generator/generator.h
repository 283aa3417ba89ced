#pragma once

#include <filesystem>

#include "study/generator/settings.h"
#include "study/model/progress.h"

namespace study::generator {

// Writes the raw input of a study of a fictional region into a folder, which is made where there is none: deaths.csv,
// population.csv, causes.csv, zones.geojson and study.toml. The same settings give the same bytes on every machine, and
// a year's counts do not depend on which other years are asked for. Throws StudyError when a setting is out of range,
// one of the files is already there, or one cannot be written.
void generateInput(const GeneratorSettings& settings, const std::filesystem::path& folder, const Progress& progress);

}  // namespace study::generator
