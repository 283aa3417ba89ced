#pragma once

#include <string>

namespace screen {

// A node's text and the figure at its end ("Población: 1.234"), empty where there is none.
struct IndicatorText {
  std::string text;
  std::string figure;
};
[[nodiscard]] IndicatorText splitIndicator(const std::string& nodeText);

}  // namespace screen
