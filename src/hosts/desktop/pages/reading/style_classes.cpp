#include "hosts/desktop/pages/reading/style_classes.h"

#include <algorithm>

namespace desktop::pages {
namespace {

constexpr std::size_t kMostKnown = 12;
constexpr qsizetype kMostClasses = 40;  // with more of them the toolkit would look for them longer

}  // namespace

const QString& StyleClasses::cellAttributes(const PageStyle& style, Around around) {
  const auto isSame = [&](const Known& each) { return each.around == around && each.style == style; };
  const auto known = std::ranges::find_if(known_, isSame);
  if (known != known_.end()) return known->attributes;
  if (known_.size() < kMostKnown) {
    return known_.emplace_back(Known{style, around, writtenCell(style, around)}).attributes;
  }
  Known& replaced = known_[oldest_];
  oldest_ = (oldest_ + 1) % kMostKnown;
  replaced = {style, around, writtenCell(style, around)};
  return replaced.attributes;
}

QString StyleClasses::writtenCell(const PageStyle& style, Around around) {
  const QString css = cellCss(style, zoom_) + blockCss(style, around) + textCss(style.text, around, zoom_);
  return blockAttribute(style) + attribute(cells_, css);
}

QString StyleClasses::attribute(Classes& classes, const QString& css) {
  auto known = classes.names.find(css);
  if (known == classes.names.end()) {
    if (classes.names.size() == kMostClasses) return QLatin1String(" style=\"") + css + u'"';
    known = classes.names.insert(css, QStringLiteral("c%1").arg(classes.names.size()));
    sheet_ += classes.element + u'.' + *known + u'{' + css + QLatin1String("}\n");
  }
  return QLatin1String(" class=\"") + *known + u'"';
}

}  // namespace desktop::pages
