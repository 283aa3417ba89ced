#include "study/generator/generator.h"

#include <array>
#include <system_error>

#include "study/generator/counts_files.h"
#include "study/generator/description_files.h"
#include "study/generator/region.h"
#include "study/generator/zones_file.h"
#include "study/model/study_error.h"
#include "text/file_text.h"

namespace study::generator {

namespace {

constexpr std::array kFiles{"deaths.csv", "population.csv", "causes.csv", "zones.geojson", "study.toml"};

void prepare(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) throw StudyError("the folder " + text::fromPath(folder) + " cannot be made: " + error.message());
  for (const char* file : kFiles) {
    if (!std::filesystem::exists(folder / file, error)) continue;
    throw StudyError(text::fromPath(folder / file) + " is already there; name a folder without raw input");
  }
}

}  // namespace

void generateInput(const GeneratorSettings& settings, const std::filesystem::path& folder, const Progress& progress) {
  const auto begin = [&](const std::string& step) {
    if (progress) progress(step);
  };
  check(settings);
  prepare(folder);
  begin("Drawing the provinces and zones of a fictional region");
  const Region region = makeRegion(settings);
  writeZones(region, folder / kFiles[3]);
  begin("Counting its persons and deaths");
  writeCounts(region, settings, folder / kFiles[1], folder / kFiles[0]);
  begin("Writing its causes and settings");
  writeCauses(folder / kFiles[2]);
  writeSettings(settings, folder / kFiles[4]);
}

}  // namespace study::generator
