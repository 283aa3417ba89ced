#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace study {

// The causes of death as counted: each death has exactly one.
enum class Cause {
  infectious,
  tumourOfStomach,
  tumourOfColon,
  tumourOfLung,
  tumourOfBreast,
  tumourOfProstate,
  otherTumours,
  diabetes,
  otherEndocrine,
  organicMental,
  otherMental,
  nervous,
  heartInfarction,
  cerebrovascular,
  otherCirculatory,
  pneumonia,
  chronicLowerRespiratory,
  otherRespiratory,
  digestive,
  genitourinary,
  perinatalAndCongenital,
  illDefined,
  trafficAccidents,
  otherExternal,
  count
};
inline constexpr std::size_t kCauses = static_cast<std::size_t>(Cause::count);

inline constexpr std::string_view kBroadGroups = "Grandes grupos";
inline constexpr std::string_view kReducedList = "Lista reducida";

// A cause as the study publishes it: a line of one of its two lists, the sum of counted causes.
struct PublishedCause {
  std::string_view list;
  std::string_view name;
  std::vector<Cause> sums;
  bool womenToo = true;  // whether women can die of it
};

// Both lists, each in the order in which it is shown.
[[nodiscard]] const std::vector<PublishedCause>& publishedCauses();

}  // namespace study
