#pragma once

#include <string_view>

namespace atlas {

// The workspace of the statistics map, below the application folder: the first map that the program opens.
inline constexpr std::string_view kStatisticsWorkspace = "\\Tablas\\Estadisticas\\Estadisticas.wor";

}  // namespace atlas
