#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "motor/language/value.h"

namespace motor {

struct ThemeClass;

// Finds the class of a value in the time of a binary search. Of classes that share a value the first one has it.
class ClassIndex {
 public:
  explicit ClassIndex(const std::vector<ThemeClass>& classes);

  // The number of the class; none for a value that is in none.
  [[nodiscard]] std::optional<std::size_t> find(const Value& value) const;

 private:
  // The numbers from `minimum` up to the next range's belong to one class, or to none.
  struct Range {
    double minimum = 0;
    std::optional<std::size_t> number;
  };
  void addRanges(const std::vector<ThemeClass>& classes);

  std::vector<Range> ranges_;  // ascending
  std::map<double, std::size_t> numbers_;
  std::map<std::string, std::size_t> texts_;  // in lower case
};

}  // namespace motor
