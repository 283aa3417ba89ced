#pragma once

#include <filesystem>

#include "study/generator/settings.h"

namespace study::generator {

// What the input says of its causes of death: the two lists and which counted causes they sum.
void writeCauses(const std::filesystem::path& file);

// The study's settings and the texts of its documents, which tell that the region and its figures are fictional.
void writeSettings(const GeneratorSettings& settings, const std::filesystem::path& file);

}  // namespace study::generator
