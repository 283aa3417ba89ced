#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "study/thematic/thematic_map.h"

namespace study {

// The longest title or subtitle that a legend takes, in characters.
inline constexpr std::size_t kLegendTitleLength = 32;

// A thematic indicator as a legend's title names it: at most kLegendTitleLength characters.
[[nodiscard]] std::string legendTitle(std::string_view indicator);

// The legend's second line: what is counted, of whom and when. At most kLegendTitleLength characters.
[[nodiscard]] std::string legendSubtitle(std::string_view indicator, std::string_view sex, int year);

// What heads the map on paper: the indicator, of whom and when, which units: "Población. Mujeres, 1999. Zonas básicas
// de salud de Norte".
[[nodiscard]] std::string mapTitle(const Study& study, const ThematicMap& map);

}  // namespace study
