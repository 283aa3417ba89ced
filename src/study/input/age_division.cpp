#include "study/input/age_division.h"

#include <algorithm>
#include <limits>
#include <string>

namespace study {

namespace {

double end(const AgeGroup& group) { return group.to.value_or(std::numeric_limits<double>::infinity()); }

std::string years(double age) { return std::to_string(static_cast<int>(age)); }

void addGap(const FileFaults& faults, double from, double to) {
  const std::string ages = from + 1 == to ? "the age " + years(from) : "the ages " + years(from) + "-" + years(to - 1);
  faults.add(FaultKind::ageGroupGap, 0, "no age group holds " + ages, "give rows of every age");
}

}  // namespace

bool areSameAges(const AgeGroup& a, const AgeGroup& b) { return a.from == b.from && a.to == b.to; }

bool areWithin(const AgeGroup& part, const AgeGroup& whole) {
  return part.from >= whole.from && end(part) <= end(whole);
}

std::vector<AgeGroup> divideAges(std::vector<NamedAgeGroup> groups, const FileFaults& faults) {
  if (groups.empty()) return {};
  std::stable_sort(groups.begin(), groups.end(),
                   [](const NamedAgeGroup& a, const NamedAgeGroup& b) { return a.group.from < b.group.from; });
  bool isSound = true;
  double covered = 0;
  const NamedAgeGroup* last = nullptr;  // the group that reaches farthest
  for (const NamedAgeGroup& next : groups) {
    if (next.group.from > covered) {
      isSound = false;
      addGap(faults, covered, next.group.from);
    } else if (next.group.from < covered) {
      isSound = false;
      faults.add(FaultKind::ageGroupOverlap, std::max(next.line, last->line),
                 "the age groups " + inQuotes(last->group.name) + " and " + inQuotes(next.group.name) + " overlap",
                 "use one division into age groups throughout");
    }
    if (last == nullptr || end(next.group) > covered) last = &next;
    covered = std::max(covered, end(next.group));
  }
  if (last->group.to) {
    isSound = false;
    faults.add(FaultKind::ageGroupGap, 0, "no age group holds the ages from " + years(covered) + " on",
               "add an open group, as \"" + years(covered) + "+\"");
  }
  if (!isSound) return {};
  std::vector<AgeGroup> ages;
  for (NamedAgeGroup& group : groups) ages.push_back(std::move(group.group));
  return ages;
}

}  // namespace study
