#pragma once

#include <filesystem>
#include <string>

#include "study/plane.h"

namespace study {

// The workspace of a year's map, in UTF-8 with plain line ends: the provinces' outlines over the zones, and the
// region's own table, which is not displayed but has its place as layer 3. `region` is the region's extent.
[[nodiscard]] std::string yearWorkspace(int year, const Extent& region);

// The workspace of the statistics map: one layer, the table Estadisticas.
[[nodiscard]] std::string statisticsWorkspace(const Extent& region);

// Writes a workspace as map programs do: windows-1252, lines that end in CR LF. Throws StudyError.
void writeWorkspace(const std::filesystem::path& file, const std::string& text);

}  // namespace study
