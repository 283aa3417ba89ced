#include "hosts/desktop/pages/reading/page_style.h"

#include <algorithm>

namespace desktop::pages {

PageStyle PageStyle::handedOn() const {
  PageStyle inner;
  inner.text = text;
  inner.align = align;
  inner.whiteSpace = whiteSpace;
  inner.vertical = vertical;
  inner.mark = mark;
  inner.lineHeight = lineHeight;
  inner.textIndent = textIndent;
  inner.collapsesBorders = collapsesBorders;
  inner.borderSpacing = borderSpacing;
  inner.margin.fill({Length::Unit::pixels, 0});
  return inner;
}

bool PageStyle::hasBorder() const { return std::ranges::any_of(border, &Border::isSeen); }

}  // namespace desktop::pages
