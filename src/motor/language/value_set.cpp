#include "motor/language/value_set.h"

#include "motor/language/comparison.h"

namespace motor {

namespace {

std::optional<ValueSet::Range> rangeOf(const std::vector<Value>& values) {
  std::optional<ValueSet::Range> range;
  for (const Value& value : values) {
    if (!range) range = {value, value};
    const auto fromLeast = order(value, range->least);
    const auto fromGreatest = order(value, range->greatest);
    if (!fromLeast || !fromGreatest) return std::nullopt;
    if (std::is_lt(*fromLeast)) range->least = value;
    if (std::is_gt(*fromGreatest)) range->greatest = value;
  }
  return range;
}

}  // namespace

ValueSet::ValueSet(std::vector<Value> values) : values_(std::move(values)) {
  for (const Value& value : values_) {
    if (const std::string* s = value.text()) {
      texts_.insert(foldedForEquality(*s));
    } else if (const double* n = value.number()) {
      numbers_.insert(*n);
    } else if (const bool* b = value.logical()) {
      (*b ? hasTrue_ : hasFalse_) = true;
    } else if (const ObjectPtr* o = value.object()) {
      objects_.insert(*o);
    } else {
      hasEmpty_ = true;
    }
  }
}

std::optional<bool> ValueSet::contains(const Value& value) const {
  if (hasEqual(value)) return true;
  if (compares(value)) return false;
  return std::nullopt;
}

const std::optional<ValueSet::Range>& ValueSet::range() const {
  if (!rangeKnown_) range_ = rangeOf(values_);
  rangeKnown_ = true;
  return range_;
}

bool ValueSet::hasEqual(const Value& value) const {
  if (const double* n = value.number()) {
    return numbers_.count(*n) != 0 || (hasTrue_ && *n == 1) || (hasFalse_ && *n == 0);
  }
  if (const std::string* s = value.text()) {
    const std::string folded = foldedForEquality(*s);
    return texts_.count(folded) != 0 || (hasEmpty_ && folded.empty()) || (hasTrue_ && folded == "t") ||
           (hasFalse_ && folded == "f");
  }
  if (const bool* b = value.logical()) {
    return *b ? hasTrue_ || numbers_.count(1) != 0 || hasText("t")
              : hasFalse_ || numbers_.count(0) != 0 || hasText("f");
  }
  if (const ObjectPtr* o = value.object()) return objects_.count(*o) != 0;
  return hasEmpty_ || hasText("");
}

bool ValueSet::compares(const Value& value) const {
  if (value.isEmpty()) return true;
  if (value.number() != nullptr) return texts_.empty() && objects_.empty();
  if (value.text() != nullptr) return numbers_.empty() && objects_.empty();
  if (value.logical() != nullptr) return objects_.empty();
  return texts_.empty() && numbers_.empty() && !hasTrue_ && !hasFalse_;
}

}  // namespace motor
