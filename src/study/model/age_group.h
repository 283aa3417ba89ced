#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace study {

// Persons of these completed years. `to` is exclusive; the open group at the end of a life has none.
struct AgeGroup {
  std::string name;  // as the study publishes it: "0", "1-4", "85 y más"
  double from = 0;
  std::optional<double> to;

  bool operator==(const AgeGroup&) const = default;
};

// The group that a text names: a year ("0"), the years below one ("<1"), a range of years ("1-4", "05-09", "1–4") or
// the open group ("85+", "85 y más", "85 o más"), capitals, accents and blanks aside. Years have at most three digits.
// The result has the published name, so that spellings of one group are equal. None: the text names no group.
[[nodiscard]] std::optional<AgeGroup> parseAgeGroup(std::string_view text);

}  // namespace study
