#include "hosts/desktop/pages/cell_styles.h"

#include <algorithm>

namespace desktop::pages {
namespace {

constexpr std::size_t kMostKnown = 12;
constexpr qsizetype kMostClasses = 40;  // with more of them the toolkit would look for them longer

}  // namespace

const QString& CellStyles::attributesFor(const PageStyle& style, Around around) {
  const auto isSame = [&](const Known& each) { return each.around == around && each.style == style; };
  const auto known = std::ranges::find_if(known_, isSame);
  if (known != known_.end()) return known->attributes;
  if (known_.size() < kMostKnown)
    return known_.emplace_back(Known{style, around, attributes(style, around)}).attributes;
  Known& replaced = known_[oldest_];
  oldest_ = (oldest_ + 1) % kMostKnown;
  replaced = {style, around, attributes(style, around)};
  return replaced.attributes;
}

QString CellStyles::attributes(const PageStyle& style, Around around) {
  const QString css = cellCss(style, zoom_) + blockCss(style, around) + textCss(style.text, around, zoom_);
  auto known = classes_.find(css);
  if (known == classes_.end() && classes_.size() < kMostClasses) {
    known = classes_.insert(css, QStringLiteral("c%1").arg(classes_.size()));
    sheet_ += QLatin1String("td.") + *known + u'{' + css + QLatin1String("}\n");
  }
  const QString said = known == classes_.end() ? QLatin1String(" style=\"") + css : QLatin1String(" class=\"") + *known;
  return blockAttribute(style) + said + u'"';
}

}  // namespace desktop::pages
