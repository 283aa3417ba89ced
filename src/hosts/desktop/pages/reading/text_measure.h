#pragma once

#include "hosts/desktop/pages/reading/page_style.h"
#include "hosts/desktop/pages/reading/page_tree.h"

namespace desktop::pages {

// The characters of all texts in the element, blanks in a row as one.
[[nodiscard]] qsizetype textLength(const Node& node);

// About how many pixels the longest line of the element's text takes in fonts of the usual width, when it breaks only
// where the page breaks it. What its inner elements change of the font does not count.
[[nodiscard]] double lineWidth(const Node& node, const TextStyle& style);

}  // namespace desktop::pages
