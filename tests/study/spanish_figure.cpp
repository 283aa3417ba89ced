#include "spanish_figure.h"

#include <regex>

namespace studytest {

std::optional<SpanishFigure> spanishFigure(std::string_view text) {
  static const std::regex pattern(R"((\*?)(-?\d{1,3}(?:\.\d{3})*)(?:,(\d+))?)");
  std::match_results<std::string_view::const_iterator> parts;
  if (!std::regex_match(text.begin(), text.end(), parts, pattern)) return std::nullopt;
  std::string digits = parts[2].str();
  std::erase(digits, '.');
  const std::string decimals = parts[3].str();
  if (!decimals.empty()) digits += "." + decimals;
  return SpanishFigure{std::stod(digits), static_cast<int>(decimals.size()), parts[1].length() > 0};
}

}  // namespace studytest
