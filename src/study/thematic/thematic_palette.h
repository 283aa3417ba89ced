#pragma once

#include <cstddef>
#include <vector>

// The thematic maps' colours, as red * 65536 + green * 256 + blue.
namespace study::palette {

// From the lowest class to the highest, each clearly darker than the one before, so that they keep their order for
// readers who do not see all colours, and in grey print. `classes` is 1 to 5.
[[nodiscard]] std::vector<int> sequence(std::size_t classes);

inline constexpr int kNoFigure = 0xDADADA;  // units without a figure: grey, which no class is
inline constexpr int kNoFigureLine = 0xB4B4B4;
inline constexpr int kThematicLine = 0xFFFFFF;   // between filled units
inline constexpr int kThematicLimit = 0x3A4A54;  // of the provinces, over zones
inline constexpr int kSign = 0xB5523B;           // the signs of counts
inline constexpr int kSignGround = 0xF2EFE6;     // the land below them
inline constexpr int kSignGroundLine = 0xB9B09A;

}  // namespace study::palette
