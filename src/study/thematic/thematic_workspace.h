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
// units in grey, which show where there is no figure and cannot be selected. Where units of a map of counts have no
// figure (`isComplete` is false), a theme of its own over the grey units says so in the legend; maps of rates always
// do.
//
// The outlines have to lie above the fills of the zones. The program puts the labels of layer 2 back when it leaves a
// thematic map: there that is the theme, which has none; the map is closed with it.
[[nodiscard]] std::string thematicWorkspace(const Study& study, const ThematicMap& map, const ThematicScales& scales,
                                            const MapProjection& projection, bool isComplete);

// The legend's text of each class, in Spanish: "menos de 20", "20 a 30", "30 y más".
[[nodiscard]] std::vector<std::string> classTexts(const std::vector<double>& limits);

}  // namespace study
