#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "study/model/sexes.h"

namespace study {

inline constexpr std::string_view kBroadGroups = "Grandes grupos";
inline constexpr std::string_view kReducedList = "Lista reducida";

// A cause of death as the study publishes it: a line of one of its two lists, the sum of counted causes.
struct PublishedCause {
  std::string code;
  std::string list;
  std::string name;
  std::vector<std::size_t> sums;  // indices of CauseList::codes
  bool men = true;                // whether men can die of it
  bool women = true;

  // Whether the cause has figures of that sex.
  [[nodiscard]] bool existsFor(const SexChoice& sex) const { return (men && sex.men) || (women && sex.women); }
};

// The causes as counted (each death has one code) and as published, in the order of the lists.
struct CauseList {
  std::vector<std::string> codes;
  std::vector<PublishedCause> published;
};

}  // namespace study
