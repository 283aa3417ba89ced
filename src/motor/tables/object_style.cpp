#include "motor/tables/object_style.h"

#include <array>
#include <charconv>
#include <cmath>
#include <map>

namespace motor {
namespace {

// One tool of a style string, as "PEN", with its parameters by name.
struct Tool {
  std::string name;
  std::map<std::string, std::string, std::less<>> parameters;

  [[nodiscard]] std::string_view get(std::string_view parameter) const {
    const auto found = parameters.find(parameter);
    return found == parameters.end() ? std::string_view{} : std::string_view(found->second);
  }
};

// Reads the tools of a style string one after the other: NAME(key:value,key:"value",...);NAME(...)
class ToolReader {
 public:
  explicit ToolReader(std::string_view style) : rest_(style) {}

  bool next(Tool& tool) {
    const std::size_t open = rest_.find('(');
    if (open == std::string_view::npos) return false;
    const std::size_t begin = rest_.find_first_not_of("; ");
    tool.name = rest_.substr(begin, open - begin);
    tool.parameters.clear();
    rest_.remove_prefix(open + 1);
    while (!rest_.empty() && rest_.front() != ')') parameter(tool);
    if (!rest_.empty()) rest_.remove_prefix(1);
    return true;
  }

 private:
  void parameter(Tool& tool) {
    const std::size_t colon = rest_.find_first_of(":,)");
    std::string key(rest_.substr(0, colon));
    rest_.remove_prefix(std::min(colon, rest_.size()));
    if (!rest_.empty() && rest_.front() == ':') {
      rest_.remove_prefix(1);
      tool.parameters.insert_or_assign(std::move(key), value());
    }
    if (!rest_.empty() && rest_.front() == ',') rest_.remove_prefix(1);
  }

  std::string value() {
    if (rest_.empty() || rest_.front() != '"') {
      const std::size_t end = std::min(rest_.find_first_of(",)"), rest_.size());
      std::string plain(rest_.substr(0, end));
      rest_.remove_prefix(end);
      return plain;
    }
    std::string quoted;
    std::size_t i = 1;
    for (; i < rest_.size() && rest_[i] != '"'; ++i) {
      if (rest_[i] == '\\' && i + 1 < rest_.size()) ++i;
      quoted += rest_[i];
    }
    rest_.remove_prefix(std::min(i + 1, rest_.size()));
    return quoted;
  }

  std::string_view rest_;
};

// The number at the beginning of a text, "12" of "12pt"; `otherwise` when there is none.
double leadingNumber(std::string_view s, double otherwise) {
  double number = otherwise;
  std::from_chars(s.data(), s.data() + s.size(), number);
  return number;
}

int leadingInteger(std::string_view s, int otherwise) {
  int number = otherwise;
  std::from_chars(s.data(), s.data() + s.size(), number);
  return number;
}

bool endsWith(std::string_view s, std::string_view end) {
  return s.size() >= end.size() && s.substr(s.size() - end.size()) == end;
}

// "#rrggbb", perhaps with more digits for the opacity.
Colour colourOf(std::string_view s, Colour otherwise) {
  constexpr std::size_t kDigits = 6;
  Colour colour = 0;
  if (s.size() <= kDigits || s.front() != '#') return otherwise;
  const char* end = s.data() + 1 + kDigits;
  return std::from_chars(s.data() + 1, end, colour, 16).ptr == end ? colour : otherwise;
}

// What follows a prefix in the comma-separated names of an id: "2" in "mapinfo-pen-2,ogr-pen-0".
std::string_view named(std::string_view id, std::string_view prefix) {
  const std::size_t at = id.find(prefix);
  if (at == std::string_view::npos) return {};
  id.remove_prefix(at + prefix.size());
  return id.substr(0, id.find(','));
}

void applyPen(const Tool& tool, ObjectStyle& style) {
  const std::string_view width = tool.get("w");
  const double number = leadingNumber(width, 1);
  // Widths in points are written as ten times the points, plus ten.
  style.pen.width = static_cast<int>(std::lround(endsWith(width, "pt") ? number * 10 + 10 : number));
  style.pen.pattern = leadingInteger(named(tool.get("id"), "mapinfo-pen-"), style.pen.pattern);
  style.pen.colour = colourOf(tool.get("c"), style.pen.colour);
}

void applyBrush(const Tool& tool, ObjectStyle& style) {
  style.brush.pattern = leadingInteger(named(tool.get("id"), "mapinfo-brush-"), style.brush.pattern);
  style.brush.fore = colourOf(tool.get("fc"), style.brush.fore);
  style.brush.back = colourOf(tool.get("bc"), kTransparent);
}

void applySymbol(const Tool& tool, ObjectStyle& style) {
  constexpr int kBorder = 16;
  constexpr int kHalo = 256;
  Symbol& symbol = style.symbol;
  const std::string_view id = tool.get("id");
  symbol.colour = colourOf(tool.get("c"), symbol.colour);
  symbol.size = leadingInteger(tool.get("s"), symbol.size);
  if (const std::string_view picture = named(id, "mapinfo-custom-sym-"); !picture.empty()) {
    const std::size_t dash = picture.find('-');
    symbol.style = leadingInteger(picture, 0);
    if (dash != std::string_view::npos) symbol.file = picture.substr(dash + 1);
  } else if (const std::string_view character = named(id, "font-sym-"); !character.empty()) {
    symbol.shape = leadingInteger(character, symbol.shape);
    symbol.font = tool.get("f");
    symbol.angle = leadingNumber(tool.get("a"), 0);
    // Only the outline's colour tells a border (black) from a halo (white).
    const Colour outline = colourOf(tool.get("o"), kTransparent);
    if (outline != kTransparent) symbol.style = outline == 0 ? kBorder : kHalo;
  } else {
    symbol.shape = leadingInteger(named(id, "mapinfo-sym-"), symbol.shape);
  }
}

void applyLabel(const Tool& tool, ObjectStyle& style) {
  struct FontFlag {
    const char* parameter;
    int style;
  };
  constexpr std::array kFlags = {FontFlag{"bo", 1}, FontFlag{"it", 2}, FontFlag{"un", 4}, FontFlag{"st", 8}};
  constexpr int kHalo = 256;
  // The size that the library gives is that of a capital, as this part of the line's height.
  constexpr double kSizeOfLine = 0.69;

  style.isText = true;
  style.text = tool.get("t");
  style.angle = leadingNumber(tool.get("a"), 0);
  style.lineHeight = leadingNumber(tool.get("s"), 0) / kSizeOfLine;
  style.font.size = 0;
  style.font.fore = colourOf(tool.get("c"), style.font.fore);
  style.font.back = colourOf(tool.get("b"), kTransparent);
  if (const std::string_view name = tool.get("f"); !name.empty()) style.font.name = name;
  for (const FontFlag& flag : kFlags) {
    if (tool.get(flag.parameter) == "1") style.font.style += flag.style;
  }
  if (const Colour halo = colourOf(tool.get("o"), kTransparent); halo != kTransparent) {
    style.font.style += kHalo;
    style.font.back = halo;
  }
}

struct ToolKind {
  const char* name;
  void (*apply)(const Tool&, ObjectStyle&);
};

constexpr std::array kToolKinds = {
    ToolKind{"PEN", applyPen},
    ToolKind{"BRUSH", applyBrush},
    ToolKind{"SYMBOL", applySymbol},
    ToolKind{"LABEL", applyLabel},
};

}  // namespace

ObjectStyle parseObjectStyle(std::string_view style) {
  ObjectStyle result;
  ToolReader reader(style);
  Tool tool;
  while (reader.next(tool)) {
    for (const ToolKind& kind : kToolKinds) {
      if (tool.name == kind.name) kind.apply(tool, result);
    }
  }
  return result;
}

}  // namespace motor
