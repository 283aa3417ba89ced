#pragma once

#include <string>
#include <vector>

#include "study/output/map_projection.h"
#include "study/thematic/thematic_scales.h"

namespace study {

// The name of a map's own table in the session, and of the areas below it.
inline constexpr std::string_view kThematicTable = "Tematico";
inline constexpr std::string_view kBaseTable = "SinDatos";

// The workspace of a thematic map, in UTF-8 with plain line ends. From the top down its layers are: the provinces'
// outlines, where zones of several provinces are shown; the theme; the map's own table, which it opens first; and all
// units in grey, which show where there is no figure and cannot be selected.
[[nodiscard]] std::string thematicWorkspace(const Study& study, const ThematicMap& map, const ThematicScales& scales,
                                            const MapProjection& projection);

// The legend's text of each class, in Spanish: "menos de 20", "20 a 30", "30 y más".
[[nodiscard]] std::vector<std::string> classTexts(const std::vector<double>& limits);

}  // namespace study
