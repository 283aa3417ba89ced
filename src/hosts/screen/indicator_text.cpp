#include "hosts/screen/indicator_text.h"

#include <algorithm>
#include <string_view>

namespace screen {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isFigure(std::string_view text) {
  static constexpr std::string_view kSigns = "-.,";
  return std::ranges::any_of(text, isDigit) &&
         std::ranges::all_of(text, [](char c) { return isDigit(c) || kSigns.find(c) != std::string_view::npos; });
}

}  // namespace

IndicatorText splitIndicator(const std::string& nodeText) {
  constexpr std::string_view kSeparator = ": ";
  const std::size_t at = nodeText.rfind(kSeparator);
  if (at == std::string::npos || !isFigure(std::string_view(nodeText).substr(at + kSeparator.size()))) {
    return {nodeText, ""};
  }
  return {nodeText.substr(0, at), nodeText.substr(at + kSeparator.size())};
}

}  // namespace screen
