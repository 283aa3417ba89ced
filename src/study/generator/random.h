#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace study::generator {

// Pseudo-random numbers that are the same on every machine for the same seed (the standard library's distributions
// differ between libraries). Generator: xoshiro256**, seeded by SplitMix64 (D. Blackman, S. Vigna, "Scrambled linear
// pseudorandom number generators", 2018).
class Random {
 public:
  // `stream` tells apart independent sequences of one seed.
  explicit Random(std::uint64_t seed, std::uint64_t stream = 0);

  [[nodiscard]] std::uint64_t next();
  // At least 0, below 1.
  [[nodiscard]] double unit();
  [[nodiscard]] double between(double low, double high);
  // At least 0, below `count` (> 0).
  [[nodiscard]] std::size_t below(std::size_t count);
  // Mean 0, standard deviation 1, never beyond 6.
  [[nodiscard]] double normal();
  // A count of events with this mean (>= 0): Poisson, beyond a mean of 50 by its normal approximation.
  [[nodiscard]] long poisson(double mean);

  template <typename T>
  void shuffle(std::vector<T>& items) {
    for (std::size_t i = items.size(); i > 1; --i) std::swap(items[i - 1], items[below(i)]);
  }

 private:
  std::array<std::uint64_t, 4> state_;
};

// One step of SplitMix64: spreads a number over all 64 bits.
[[nodiscard]] std::uint64_t mix(std::uint64_t value);

}  // namespace study::generator
