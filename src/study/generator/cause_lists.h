#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace study::generator {

// A line of one of the study's two lists of causes.
struct ListedCause {
  std::string code;
  std::string_view list;
  std::string_view name;
  std::string_view sums;  // codes of counted causes, with blanks between
  std::string_view sex;   // who can die of it
};

// The broad groups, of which each counted cause is in one, and the sixteen causes of the reduced list.
[[nodiscard]] std::vector<ListedCause> listedCauses();

}  // namespace study::generator
