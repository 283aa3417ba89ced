#pragma once

#include <cstdint>

#include "study/study.h"

namespace study {

// The study of a fictional region. The same seed gives the same study.
[[nodiscard]] Study makeSampleStudy(std::uint64_t seed);

// The seed of the sample that is shipped; with it every province is in one piece and encloses no other.
inline constexpr std::uint64_t kSampleSeed = 1999;

}  // namespace study
