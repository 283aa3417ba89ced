#pragma once

#include <array>

namespace motor {

// What the bytes 0x80-0xFF mean; 0 where a byte means nothing.
using CodePage = std::array<char16_t, 128>;

// The character sets of text screens: 437 of the first ones, 850 of western and 852 of central Europe.
extern const CodePage kCodePage437;
extern const CodePage kCodePage850;
extern const CodePage kCodePage852;

}  // namespace motor
