#pragma once

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "motor/language/value.h"

namespace motor {

// Many values that others are compared with, as `equals` and `order` compare; a search takes the same time however many
// there are.
class ValueSet {
 public:
  // The least and the greatest of values that all compare with each other.
  struct Range {
    Value least;
    Value greatest;
  };

  ValueSet() = default;
  explicit ValueSet(std::vector<Value> values);

  [[nodiscard]] const std::vector<Value>& values() const { return values_; }
  // Whether one of the values equals this one; none when none does and it does not compare with one of them.
  [[nodiscard]] std::optional<bool> contains(const Value& value) const;
  // None for no values and for values that do not compare. Made when first asked for; a set is used by one thread.
  [[nodiscard]] const std::optional<Range>& range() const;

 private:
  [[nodiscard]] bool hasEqual(const Value& value) const;
  [[nodiscard]] bool compares(const Value& value) const;
  [[nodiscard]] bool hasText(const char* folded) const { return texts_.count(folded) != 0; }

  std::vector<Value> values_;
  std::unordered_set<std::string> texts_;  // folded
  std::unordered_set<double> numbers_;
  std::unordered_set<ObjectPtr> objects_;
  bool hasEmpty_ = false;
  bool hasTrue_ = false;
  bool hasFalse_ = false;
  mutable bool rangeKnown_ = false;
  mutable std::optional<Range> range_;
};

}  // namespace motor
