#pragma once

#include <string_view>
#include <vector>

namespace study {

// Invented names, none of them a real province's or well-known town's. All differ, also without their accents.
[[nodiscard]] const std::vector<std::string_view>& provinceNames();
[[nodiscard]] const std::vector<std::string_view>& placeNames();

}  // namespace study
