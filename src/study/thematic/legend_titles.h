#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace study {

// The longest title or subtitle that a legend takes, in characters.
inline constexpr std::size_t kLegendTitleLength = 32;

// A thematic indicator as a legend's title names it: at most kLegendTitleLength characters.
[[nodiscard]] std::string legendTitle(std::string_view indicator);

// The legend's second line: what is counted, of whom and when. At most kLegendTitleLength characters.
[[nodiscard]] std::string legendSubtitle(std::string_view indicator, std::string_view sex, int year);

}  // namespace study
