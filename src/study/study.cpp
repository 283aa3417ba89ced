#include "study/study.h"

namespace study {

const Counts& Study::zoneCounts(int year, std::size_t zone) const {
  return counts[static_cast<std::size_t>(year - kFirstYear)][zone];
}

Counts Study::provinceCounts(int year, int province) const {
  Counts sum;
  for (std::size_t zone = 0; zone < zones.size(); ++zone) {
    if (zones[zone].province == province) sum += zoneCounts(year, zone);
  }
  return sum;
}

Counts Study::regionCounts(int year) const {
  Counts sum;
  for (const Counts& zone : counts[static_cast<std::size_t>(year - kFirstYear)]) sum += zone;
  return sum;
}

std::vector<Ring> Study::zoneOutline(std::size_t zone) const { return zoneCoverage.outline(static_cast<int>(zone)); }

std::vector<Ring> Study::provinceOutline(int province) const {
  return zoneCoverage.merged([&](int zone) { return zones[static_cast<std::size_t>(zone)].province == province; });
}

std::vector<Ring> Study::regionOutline() const { return zoneCoverage.outline(); }

}  // namespace study
