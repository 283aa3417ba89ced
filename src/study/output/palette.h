#pragma once

#include <array>

// The maps' colours and their typeface's colours, as red * 65536 + green * 256 + blue.
namespace study::palette {

inline constexpr int kPaper = 0xFFFFFF;
inline constexpr int kInk = 0x2C3E4C;
inline constexpr int kProvinceLine = 0x4A6172;
inline constexpr int kProvinceFill = 0xDCE7EC;
inline constexpr int kZoneLine = 0xA9B5A5;
inline constexpr int kZoneFill = 0xEEF2E6;
inline constexpr int kSurroundings = 0xFFFFFF;  // as the ground beyond them

// One for each province of the statistics map; light enough for dark labels, and of like strength.
inline constexpr std::array<int, 8> kProvinces{0x9CC3B0, 0xEACB98, 0xB3C4DD, 0xDFB1A7,
                                               0xCDD6A0, 0xC3B4D1, 0xE8DAA9, 0xA2C9CD};

}  // namespace study::palette
