#include "motor/language/expressions/name_reference.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "text/utf8.h"

namespace motor {

namespace {

struct Colour {
  std::string_view name;
  double number;
};
constexpr std::array kColours = {
    Colour{"black", 0x000000}, Colour{"white", 0xFFFFFF}, Colour{"red", 0xFF0000},     Colour{"green", 0x00FF00},
    Colour{"blue", 0x0000FF},  Colour{"cyan", 0x00FFFF},  Colour{"magenta", 0xFF00FF}, Colour{"yellow", 0xFFFF00},
};

std::optional<double> colourNamed(const std::string& name) {
  const auto* found = std::find_if(kColours.begin(), kColours.end(), [&name](const Colour& colour) {
    return text::equalsIgnoringCase(colour.name, name);
  });
  if (found == kColours.end()) return std::nullopt;
  return found->number;
}

}  // namespace

NameReference::NameReference(Position position, std::string table, std::string name)
    : Expression(position), table_(std::move(table)), name_(std::move(name)) {
  if (table_.empty()) colour_ = colourNamed(name_);
}

Value NameReference::evaluate(const Scope& scope) const {
  return colour_ && !scope.hides(*this) ? Value(*colour_) : scope.name(*this);
}

}  // namespace motor
