#pragma once

// Usual lengths in pixels, of 96 to an inch.
namespace windows {

inline constexpr double kRadius = 6;    // of round corners
inline constexpr double kHeading = 26;  // of the headings of a page
inline constexpr double kHeadingPadding = 16;
inline constexpr double kSkirt = 12;        // by which a page reaches below its control
inline constexpr double kLargestIcon = 20;  // on a button
inline constexpr double kFocusLine = 2;

}  // namespace windows
