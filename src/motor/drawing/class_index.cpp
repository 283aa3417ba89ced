#include "motor/drawing/class_index.h"

#include <algorithm>
#include <set>

#include "motor/drawing/class_theme.h"
#include "text/utf8.h"

namespace motor {

namespace {

std::optional<double> numberOf(const Value& value) {
  if (value.number() != nullptr) return *value.number();
  if (value.logical() != nullptr) return *value.logical() ? 1.0 : 0.0;
  return std::nullopt;
}

bool contains(const ThemeClass& range, double number) {
  const double* minimum = range.minimum.number();
  const double* maximum = range.maximum.number();
  return minimum != nullptr && maximum != nullptr && *minimum <= number && number < *maximum;
}

}  // namespace

ClassIndex::ClassIndex(const std::vector<ThemeClass>& classes) {
  for (std::size_t i = 0; i < classes.size(); ++i) {
    if (!classes[i].maximum.isEmpty()) continue;
    if (classes[i].minimum.text() != nullptr) texts_.try_emplace(text::lower(*classes[i].minimum.text()), i);
    if (const auto number = numberOf(classes[i].minimum)) numbers_.try_emplace(*number, i);
  }
  addRanges(classes);
}

// Every limit starts a range, which the first class that contains the limit has.
void ClassIndex::addRanges(const std::vector<ThemeClass>& classes) {
  std::set<double> limits;
  for (const ThemeClass& range : classes) {
    if (range.minimum.number() == nullptr || range.maximum.number() == nullptr) continue;
    limits.insert(*range.minimum.number());
    limits.insert(*range.maximum.number());
  }
  for (const double limit : limits) {
    const auto found =
        std::find_if(classes.begin(), classes.end(), [limit](const ThemeClass& c) { return contains(c, limit); });
    Range range{limit, std::nullopt};
    if (found != classes.end()) range.number = static_cast<std::size_t>(found - classes.begin());
    ranges_.push_back(range);
  }
}

std::optional<std::size_t> ClassIndex::find(const Value& value) const {
  if (value.text() != nullptr) {
    const auto found = texts_.find(text::lower(*value.text()));
    return found == texts_.end() ? std::nullopt : std::optional(found->second);
  }
  const auto number = numberOf(value);
  if (!number) return std::nullopt;
  if (const auto found = numbers_.find(*number); found != numbers_.end()) return found->second;
  const auto above = std::upper_bound(ranges_.begin(), ranges_.end(), *number,
                                      [](double n, const Range& range) { return n < range.minimum; });
  return above == ranges_.begin() ? std::nullopt : std::prev(above)->number;
}

}  // namespace motor
