#include "motor/session/style_text.h"

#include <vector>

#include "text/number_text.h"

namespace motor {
namespace {

std::string clause(const char* name, const std::vector<std::string>& arguments) {
  std::string text = std::string(name) + " (";
  for (const std::string& argument : arguments) text += (text.back() == '(' ? "" : ",") + argument;
  return text + ")";
}

std::string quoted(const std::string& s) { return '"' + s + '"'; }

}  // namespace

std::string styleText(const Pen& pen) {
  return clause("Pen", {std::to_string(pen.width), std::to_string(pen.pattern), std::to_string(pen.colour)});
}

std::string styleText(const Brush& brush) {
  std::vector<std::string> arguments{std::to_string(brush.pattern), std::to_string(brush.fore)};
  if (brush.back != kTransparent) arguments.push_back(std::to_string(brush.back));
  return clause("Brush", arguments);
}

std::string styleText(const Symbol& symbol) {
  const std::string colour = std::to_string(symbol.colour);
  const std::string size = std::to_string(symbol.size);
  if (!symbol.file.empty()) return clause("Symbol", {quoted(symbol.file), colour, size, std::to_string(symbol.style)});
  const std::string shape = std::to_string(symbol.shape);
  if (symbol.font.empty()) return clause("Symbol", {shape, colour, size});
  return clause("Symbol",
                {shape, colour, size, quoted(symbol.font), std::to_string(symbol.style), text::number(symbol.angle)});
}

std::string styleText(const Font& font) {
  std::vector<std::string> arguments{quoted(font.name), std::to_string(font.style), text::number(font.size),
                                     std::to_string(font.fore)};
  if (font.back != kTransparent) arguments.push_back(std::to_string(font.back));
  return clause("Font", arguments);
}

}  // namespace motor
