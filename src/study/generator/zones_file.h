#pragma once

#include <filesystem>

#include "study/generator/region.h"

namespace study::generator {

// The zones as GeoJSON in metres of UTM zone 30 north, with the attributes `zone` and `province`.
void writeZones(const Region& region, const std::filesystem::path& file);

}  // namespace study::generator
