#pragma once

#include "forms/control.h"

// The program's colours on every screen.
namespace screen::palette {

[[nodiscard]] constexpr forms::Color rgb(int red, int green, int blue) { return red | green << 8 | blue << 16; }

inline constexpr forms::Color kNavy = rgb(0x14, 0x2B, 0x4D);      // the header, chosen things
inline constexpr forms::Color kNavyDeep = rgb(0x0D, 0x1E, 0x38);  // pressed things, splash
inline constexpr forms::Color kNavyTint = rgb(0xE4, 0xEA, 0xF3);  // things under the pointer
inline constexpr forms::Color kPaper = rgb(0xF4, 0xF1, 0xEA);     // the window
inline constexpr forms::Color kShade = rgb(0xEC, 0xE8, 0xDE);  // things under the pointer on a card, things out of use
inline constexpr forms::Color kCard = rgb(0xFF, 0xFF, 0xFF);   // pages, lists, boxes
inline constexpr forms::Color kBorder = rgb(0xDD, 0xD8, 0xCC);
inline constexpr forms::Color kInk = rgb(0x1F, 0x2A, 0x3C);    // text
inline constexpr forms::Color kMuted = rgb(0x5E, 0x69, 0x7A);  // text of less weight
inline constexpr forms::Color kAccent = rgb(0xC5, 0x56, 0x36);
inline constexpr forms::Color kMenuText = rgb(0xE9, 0xEE, 0xF6);  // entries of the header

}  // namespace screen::palette
