#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace study::generator {

// Invented names in the sound of Spanish ones; no real province has one of them. All differ, from each other and from
// the study's region, also without regard to case and accents. None has more than 60 characters.

// The names of the provinces, in their order; at most 200.
[[nodiscard]] std::vector<std::string> provinceNames(std::size_t count);

// Names of villages and towns, the same for every seed, in no order; none is one of `taken`. At most 20,000.
[[nodiscard]] std::vector<std::string> placeNames(std::size_t count, const std::vector<std::string>& taken);

}  // namespace study::generator
