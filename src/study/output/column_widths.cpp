#include "study/output/column_widths.h"

#include <algorithm>

#include "study/model/indicators.h"
#include "text/utf8.h"

namespace study {

namespace {

int width(std::string_view text) { return static_cast<int>(text::length(text)); }

}  // namespace

int nameWidth(const Study& study) {
  int widest = width(kRegion);
  for (const std::string& province : study.provinces) widest = std::max(widest, width(province));
  for (const Zone& zone : study.zones) widest = std::max(widest, width(zone.name));
  return widest;
}

int sexWidth() {
  int widest = 0;
  for (const SexChoice& sex : kSexChoices) widest = std::max(widest, width(sex.name));
  return widest;
}

int typeWidth() { return std::max({width(kGeneralIndicators), width(kBroadGroups), width(kReducedList)}); }

int indicatorWidth(const Study& study) {
  int widest = 0;
  for (std::size_t i = 0; i < kThematicIndicators; ++i) widest = std::max(widest, width(thematicIndicator(i)));
  for (const PublishedCause& cause : study.causes.published) {
    widest = std::max(widest, width(kCausePrefix) + width(cause.name));
  }
  return widest;
}

}  // namespace study
