#include "hosts/desktop/pages/reading/text_measure.h"

#include <algorithm>

namespace desktop::pages {
namespace {

constexpr double kCharacter = 0.6;  // of a font's size
constexpr double kBoldCharacter = 0.66;
constexpr int kBold = 600;

struct Lines {
  qsizetype longest = 0;
  qsizetype current = 0;
  qsizetype all = 0;
  bool afterBlank = true;

  void end() {
    longest = std::max(longest, current);
    current = 0;
    afterBlank = true;
  }
};

void count(const Node& node, Lines& lines) {
  for (const QChar c : node.text) {
    const bool isBlank = c.isSpace() && c != QChar::Nbsp;
    if (isBlank && lines.afterBlank) continue;
    lines.afterBlank = isBlank;
    ++lines.current;
    ++lines.all;
  }
  for (const auto& child : node.children) count(*child, lines);
  if (node.tag == Tag::br || isBlock(node.tag)) lines.end();
}

}  // namespace

qsizetype textLength(const Node& node) {
  Lines lines;
  count(node, lines);
  return lines.all;
}

double lineWidth(const Node& node, const TextStyle& style) {
  Lines lines;
  count(node, lines);
  lines.end();
  return static_cast<double>(lines.longest) * style.pixels * (style.weight < kBold ? kCharacter : kBoldCharacter);
}

}  // namespace desktop::pages
