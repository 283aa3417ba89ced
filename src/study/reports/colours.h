#pragma once

// The reports' colours, as red * 65536 + green * 256 + blue; those of maps are the thematic maps' own.
namespace study::reports {

inline constexpr int kText = 0x26323D;
inline constexpr int kFaintText = 0x5F6C78;
inline constexpr int kTitle = 0x1D4C78;
inline constexpr int kPaper = 0xFFFFFF;
inline constexpr int kRule = 0xAEBBC6;
inline constexpr int kGrid = 0xE3E8EC;
inline constexpr int kTint = 0xEEF3F6;  // below headers and cards
inline constexpr int kBar = 0x3A87A0;
inline constexpr int kMen = 0x2F7F9C;
inline constexpr int kWomen = 0xB5523B;
inline constexpr int kBothSexesColour = 0x44546A;

}  // namespace study::reports
