#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace study::generator {

// What kind of region to make. The seed of the sample that is shipped is the default; with it every province is in one
// piece and encloses no other.
struct GeneratorSettings {
  std::uint64_t seed = 1999;
  std::size_t provinces = 8;                       // 1 to 200
  std::size_t zones = 120;                         // of all provinces together: as many as provinces, to 20,000
  std::size_t vertices = 56;                       // of a zone's outline, on average: 20 to 2,000
  std::vector<int> years{1999, 2000, 2001, 2002};  // of the program's, ascending

  bool operator==(const GeneratorSettings&) const = default;
};

// Throws StudyError, which names the setting, when one is out of its range.
void check(const GeneratorSettings& settings);

}  // namespace study::generator
